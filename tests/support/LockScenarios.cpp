// SPDX-License-Identifier: MIT
#include "LockScenarios.h"

#include "DeskUser.h"
#include "DeskWindow.h"

#include <QLineEdit>
#include <QMenu>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest>

#include <memory>

namespace {

const QPoint OtherPlace(10, 740);

// The window that has the keyboard when the request is made. Some window managers
// give the keyboard to the dialog when that window is clicked.
class AskingWindow : public QWidget
{
public:
    AskingWindow()
        : button(new QToolButton(this))
    {
        auto* rows = new QVBoxLayout(this);
        rows->addWidget(button);
        rows->addWidget(new QLineEdit); // has the focus
        setWindowTitle(QStringLiteral("Asks"));
        setGeometry(10, 400, 150, 100);
        show();
        activateWindow();
        if (!QTest::qWaitForWindowActive(this))
            QTest::qFail("the window did not become active", __FILE__, __LINE__);
        QTest::qWait(100); // until the window manager has placed its frame
    }

    QToolButton* const button;
};

QString toDialog(const HostRequest& request, const QString& finish)
{
    return QStringLiteral("activate '%1'\n%2\n").arg(request.title, finish);
}

} // namespace

void LockScenarios::everythingOnAnOpenWindow(HostRequest& request, const QString& finish,
                                             int expected)
{
    const DragSource source;
    DeskWindow window(QStringLiteral("Host"));
    window.open();
    const QString commands = window.tryEverything(DragSource::place());
    const AskingWindow host;
    {
        const DeskUser user(request.title, commands + toDialog(request, finish));
        request.getFileName({});
    }
    QTest::qWait(200); // what was held back would come now
    QCOMPARE(request.status, expected);
    QCOMPARE(window.reached(), QString());
    QVERIFY(window.isVisible() && window.isEnabled());

    window.open();
    DeskUser(window.windowTitle(), commands).wait();
    QTRY_COMPARE(window.reached(), DeskWindow::everything());
}

void LockScenarios::clicksOnALaterWindow(HostRequest& request, const QString& finish, int expected)
{
    auto window = std::make_unique<DeskWindow>(QStringLiteral("Later"), OtherPlace);
    window->open(); // for its places
    const QString commands = window->tryMouseAndKeys();
    window = nullptr;

    const AskingWindow host;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        timer.stop();
        window = std::make_unique<DeskWindow>(QStringLiteral("Later"), OtherPlace);
        window->show();
    });
    timer.start(1500);
    {
        const DeskUser user(request.title,
                            QStringLiteral("xdotool search --sync --onlyvisible --name '^Later$' "
                                           ">/dev/null; sleep 0.5\n") +
                                commands + toDialog(request, finish));
        request.getFileName({});
    }
    QTest::qWait(200);
    QCOMPARE(request.status, expected);
    QVERIFY(window);
    QCOMPARE(window->reached(), QString());

    window->open();
    DeskUser(window->windowTitle(), commands).wait();
    QTRY_COMPARE(window->reached(), DeskWindow::mouseAndKeys());
}

void LockScenarios::aButtonHeldDown(HostRequest& request, const QString& finish, int expected)
{
    AskingWindow window;
    QToolButton& button = *window.button;
    const QSignalSpy clicks(&button, SIGNAL(clicked()));
    bool isDownMeanwhile = true;
    const auto asking = QObject::connect(&button, &QToolButton::pressed, [&] {
        QTimer::singleShot(500, &button, [&] { isDownMeanwhile = button.isDown(); });
        request.getFileName({});
    });
    {
        DeskUser user(window.windowTitle(), pointAt(button) +
                                                QStringLiteral("xdotool mousedown 1; active '%1'\n"
                                                               "sleep 0.3; xdotool mouseup 1\n")
                                                    .arg(request.title) +
                                                toDialog(request, finish));
        user.wait();
    }
    QTest::qWait(200);
    QCOMPARE(request.status, expected);
    QVERIFY(!isDownMeanwhile);
    QVERIFY(!button.isDown());
    QCOMPARE(clicks.size(), 0);

    QObject::disconnect(asking);
    window.activateWindow();
    DeskUser(window.windowTitle(), clickOn(button)).wait();
    QTRY_COMPARE(clicks.size(), 1);
}

void LockScenarios::anOpenMenu(HostRequest& request, const QString& finish, int expected)
{
    AskingWindow host;
    QMenu menu;
    const QSignalSpy triggers(menu.addAction(QStringLiteral("Do it")), SIGNAL(triggered()));
    menu.popup(host.mapToGlobal(QPoint(10, 10)));
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    {
        const DeskUser user(request.title,
                            QStringLiteral("xdotool key Down\n") + toDialog(request, finish));
        request.getFileName({});
    }
    QTest::qWait(200);
    QCOMPARE(request.status, expected);
    QVERIFY(!menu.isVisible());
    QCOMPARE(triggers.size(), 0);
}
