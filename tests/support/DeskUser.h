// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QProcess>
#include <QString>
#include <QStringList>

class QWidget;

/// A user at the mouse and the keyboard of the real display, in a process of his
/// own: what he does goes on while this one is busy.
class DeskUser
{
public:
    /// Waits until the window with that title is active, then does \a commands:
    /// bash, with functions of which the script in DeskUser.cpp tells.
    DeskUser(const QString& title, const QString& commands);
    /// Fails the test when he has not come to the end of his commands.
    ~DeskUser();
    Q_DISABLE_COPY(DeskUser)

    /// Handles events until he has come to the end. The events that he caused
    /// may still be on their way.
    void wait();

    /// What the commands printed.
    QStringList said();

private:
    void finish();

    QProcess m_process;
    QByteArray m_output;
};

/// Commands: to be over a point of the screen, and over the middle of a widget.
QString pointAt(const QPoint& place);
QString pointAt(const QWidget& widget);

/// Commands: to click there.
QString clickOn(const QPoint& place);
QString clickOn(const QWidget& widget);
