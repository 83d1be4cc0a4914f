// SPDX-License-Identifier: MIT
#include "DeskWindow.h"

#include "DeskUser.h"

#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QProcess>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest>

DeskWindow::DeskWindow(const QString& title, const QPoint& place)
    : button(new QPushButton(QStringLiteral("Press"), this))
    , edit(new QLineEdit(this))
    , m_windowAction(nullptr)
    , m_applicationAction(nullptr)
{
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(button);
    rows->addStretch();
    rows->addWidget(edit);
    setWindowTitle(title);
    setGeometry(QRect(place, QSize(240, 200)));
    setAcceptDrops(true);

    m_windowAction.setShortcut(QKeySequence(QStringLiteral("Ctrl+J")));
    m_applicationAction.setShortcut(QKeySequence(QStringLiteral("Ctrl+K")));
    m_applicationAction.setShortcutContext(Qt::ApplicationShortcut);
    addActions({&m_windowAction, &m_applicationAction});
    const auto note = [this](const char* what) { m_reached += QLatin1String(what); };
    connect(button, &QPushButton::clicked, this, [note] { note("click"); });
    connect(edit, &QLineEdit::textEdited, this, [note] { note("key"); });
    connect(&m_windowAction, &QAction::triggered, this, [note] { note("shortcut"); });
    connect(&m_applicationAction, &QAction::triggered, this,
            [note] { note("shortcut of the application"); });
}

void DeskWindow::open()
{
    show();
    activateWindow();
    // Qt takes a window that is made anew for active before the server does.
    DeskUser(windowTitle(), QString()).wait();
    if (!isActiveWindow())
        QTest::qFail("the window did not become active", __FILE__, __LINE__);
}

QPoint DeskWindow::closeButton() const
{
    return frameGeometry().topRight() + QPoint(-12, 12);
}

QPoint DeskWindow::middle() const
{
    return mapToGlobal(rect().center());
}

QString DeskWindow::tryEverything(const QPoint& source) const
{
    const QPoint target = middle();
    const QString wheelAndDrag = QStringLiteral("wheel %3 %4\ndrag %1 %2 %3 %4\n")
                                     .arg(source.x())
                                     .arg(source.y())
                                     .arg(target.x())
                                     .arg(target.y());
    return tryMouseAndKeys() +
           QStringLiteral("xdotool key ctrl+j; xdotool key ctrl+k; sleep 0.1\n") + wheelAndDrag +
           clickOn(closeButton());
}

QString DeskWindow::tryMouseAndKeys() const
{
    return clickOn(*button) + clickOn(*edit) + QStringLiteral("xdotool key a; sleep 0.1\n");
}

QString DeskWindow::everything()
{
    return mouseAndKeys() +
           QStringLiteral(", shortcut, shortcut of the application, wheel, drop, close request");
}

QString DeskWindow::mouseAndKeys()
{
    return QStringLiteral("click, key");
}

QString DeskWindow::reached() const
{
    return m_reached.join(QStringLiteral(", "));
}

void DeskWindow::wheelEvent(QWheelEvent*)
{
    m_reached += QStringLiteral("wheel");
}

void DeskWindow::closeEvent(QCloseEvent* event)
{
    m_reached += QStringLiteral("close request");
    event->ignore();
}

void DeskWindow::dragEnterEvent(QDragEnterEvent* event)
{
    event->acceptProposedAction();
}

void DeskWindow::dropEvent(QDropEvent* event)
{
    m_reached += QStringLiteral("drop");
    event->acceptProposedAction();
}

DragSource::DragSource()
    : m_process(new QProcess)
{
    m_process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process->start(QStringLiteral(VY_DRAG_SOURCE), {});
    if (!m_process->waitForReadyRead(20000))
        QTest::qFail("the other program did not start", __FILE__, __LINE__);
}

DragSource::~DragSource()
{
    m_process->closeWriteChannel(); // ends it
    m_process->waitForFinished();
}
