// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QPoint>
#include <QStringList>
#include <QWidget>

#include <memory>

class QLineEdit;
class QProcess;
class QPushButton;

/// A host's window on the real display that notes what the user gets through to
/// it. It refuses to be closed.
class DeskWindow : public QWidget
{
public:
    explicit DeskWindow(const QString& title, const QPoint& place = QPoint(10, 40));

    /// Shows it and waits until it is active.
    void open();

    /// What a DeskUser does to try everything: a click, typing, a shortcut of the
    /// window and one of the application, the wheel, a close request with the
    /// window manager's button, and a drop from \a source, a point in the window
    /// of another program.
    QString tryEverything(const QPoint& source) const;
    /// A click and typing.
    QString tryMouseAndKeys() const;

    /// What has reached it, in its order.
    QString reached() const;
    /// What reached() answers after these.
    static QString everything();
    static QString mouseAndKeys();

    QPushButton* const button;
    QLineEdit* const edit;

protected:
    void wheelEvent(QWheelEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    QPoint closeButton() const;
    QPoint middle() const; ///< where no child is

    QAction m_windowAction;
    QAction m_applicationAction;
    QStringList m_reached;
};

/// Another program, with a window at (1000, 40) whose text can be dragged away.
class DragSource
{
public:
    DragSource();
    ~DragSource();
    Q_DISABLE_COPY(DragSource)

    /// A point of the screen where a drag can begin.
    static QPoint place() { return QPoint(1020, 60); }

private:
    const std::unique_ptr<QProcess> m_process;
};
