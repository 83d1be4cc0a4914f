// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPushButton>
#include <QString>
#include <QUrl>

/// What a request leaves as it found it, whatever happens meanwhile: the working
/// directory, the cursors, the places of Qt's dialogs, the host's windows and that
/// they answer to the user. Made before the request; it opens a window with a button
/// and a floating window, which are the host's.
class HostState
{
public:
    HostState();
    Q_DISABLE_COPY(HostState)

    /// Fails the test for the first thing that is not as it was.
    void expectUnchanged();

private:
    QString m_folder;
    QList<QUrl> m_places;
    QWidget m_window;
    QPushButton m_button;
    QWidget m_floating;
    int m_clicks = 0;
};
