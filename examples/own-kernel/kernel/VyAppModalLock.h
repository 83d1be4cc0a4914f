// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

/// Keeps the user from Acme's windows while a dialog is up, also from those that a
/// timer opens meanwhile: an unseen modal window, under which Qt locks all others. A
/// dialog that comes later works.
class CVyAppModalLock
{
public:
    /// The dialogs leave no widget usable.
    explicit CVyAppModalLock(QWidget* /*usable*/)
    {
        m_window.setAttribute(Qt::WA_DontShowOnScreen);
        m_window.setWindowModality(Qt::ApplicationModal);
        m_window.show();
    }

    void unlock() { m_window.hide(); }

private:
    QWidget m_window;
};
