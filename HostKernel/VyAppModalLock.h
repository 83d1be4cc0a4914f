// SPDX-License-Identifier: MIT
#pragma once

#include "VyHostKernelExport.h"

#include <QWidget>

/// \file
/// The lock on the application's windows.

/// Keeps the application's windows from reacting to the user for as long as the
/// lock is held: they take no clicks, keys, composed text, wheel, drops,
/// shortcuts, tool tips or close requests, QWidget::close() among them. It makes
/// no difference whether a window was open when the lock was taken, is opened,
/// hidden, shown or made anew later, or is a QWindow without widgets. The host's
/// code can show, change, hide and delete its windows all the same.
///
/// These windows work:
/// - one that is modal and was not open as such when the lock was taken, which
///   is what a dialog is that runs under the lock; hidden and shown again counts
///   as opened later;
/// - an open popup (a menu, the list of a combo box or a completer);
/// - the window of the widget that the lock was given;
/// - one that belongs to such a window, as child or transient window.
///
/// An action works where one of the widgets that offer it does, whichever window
/// has the focus. What is no window of the application is out of reach: a menu
/// bar or tray menu that the desktop shows, and what the host's code does.
///
/// Taking the lock ends what the user has begun elsewhere: composed text is
/// committed, a drag is cancelled, open popups are closed, and a mouse button
/// that is held is released outside the window, which clicks nothing. Apart from
/// that the windows are not changed: enabled state, focus and cursor stay.
///
/// Locks nest and may be released in any order. A lock is made and used on the
/// user-interface thread; on another, or without a QApplication, it does nothing.
class VY_HOSTKERNEL_EXPORT CVyAppModalLock
{
public:
    /// \a usable is a widget whose window goes on working, whichever window that
    /// is by then; null for none. It stays the caller's and may be deleted.
    explicit CVyAppModalLock(QWidget* usable);
    /// Unlocks, unless unlock() has.
    ~CVyAppModalLock();

    /// Lets the windows react again. Calling it once more does no harm.
    void unlock();

private:
    Q_DISABLE_COPY(CVyAppModalLock)

    QObject* m_filter;
};
