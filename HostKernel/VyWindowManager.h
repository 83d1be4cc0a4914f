// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>
#include <QWindow>

/// What the platform, or its window manager, knows of windows and Qt does not. One
/// source for each kind of platform defines what has no definition in
/// VyWindowManager.cpp. All on the user-interface thread of a QGuiApplication.
namespace VyWindowManager {

/// Windows from the back to the front, each at most once.
using Order = QVector<WId>;

/// What a window manager notes of a window while it shows it, and forgets when it is
/// hidden; in the platform's own numbers.
struct Notes
{
    Qt::WindowStates qtStates = Qt::WindowNoState;
    QVector<quint32> states;   ///< all, also those that its user alone can have set
    QVector<quint32> desktops; ///< the one that it is on; empty where there are none
};

/// The windows that are on screen: of all applications, where the platform tells of
/// those, else of this one; on platforms that tell of none, creationOrder().
Order current();

/// The notes on \a window, which is visible.
Notes notes(const QWindow& window);

/// Has \a notes taken over when \a window, which is hidden, is shown again; except
/// for its states when it has got others from its application since.
void prepare(const QWindow& window, const Notes& notes);

/// Brings those of \a placed into their places in \a order, directly above their
/// predecessors; the others keep theirs. All are visible. \a active, which may be
/// null, is the active window and stays so.
void place(const Order& placed, const Order& order, QWindow* active);

/// \a now with those windows of \a before that are not in it, each directly above
/// the window that it lay on in \a before; at the back where that was none.
Order merged(const Order& before, const Order& now);

/// The visible windows of this application in the order in which they were made.
Order creationOrder();

/// place() for platforms that cannot be asked: a window that is shown comes to the
/// front there, and on some is activated whatever Qt was told.
void keepActive(QWindow* active);

} // namespace VyWindowManager
