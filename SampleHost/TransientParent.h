// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QWindow>

#include <memory>

/// Makes the dialogs of this process belong to a window of another one, so that
/// the window manager keeps them above it. Lives while dialogs are shown.
class TransientParent : public QObject
{
    Q_OBJECT

public:
    /// \a window is a window's native number. Where the platform knows no
    /// windows of others the dialogs belong to none, and Qt says so.
    explicit TransientParent(WId window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const std::unique_ptr<QWindow> m_parent;
};
