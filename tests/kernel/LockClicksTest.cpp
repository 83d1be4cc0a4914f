// SPDX-License-Identifier: MIT
// The application-modal lock against a real user: real clicks, keys and drags on
// a real display, at windows of every make.
#include "DeskMarker.h"
#include "DeskWindow.h"
#include "VyAppModalLock.h"

#include <QApplication>
#include <QDockWidget>
#include <QLineEdit>
#include <QMainWindow>
#include <QMouseEvent>
#include <QPushButton>
#include <QWindow>
#include <QtTest>

#include <functional>
#include <memory>

namespace {

// A window without widgets.
class Bare : public QWindow
{
public:
    Bare()
    {
        setTitle(QStringLiteral("Bare"));
        setGeometry(10, 40, 200, 200);
    }

    int presses = 0;
    int releases = 0;
    int keys = 0;
    int wheels = 0;

protected:
    void mousePressEvent(QMouseEvent*) override { ++presses; }
    void mouseReleaseEvent(QMouseEvent*) override { ++releases; }
    void keyPressEvent(QKeyEvent*) override { ++keys; }
    void wheelEvent(QWheelEvent*) override { ++wheels; }
};

// What a host does to its window, before the lock is taken and while it is held.
struct Life
{
    std::function<void(DeskWindow&)> before;
    std::function<void(DeskWindow&)> meanwhile;
};

} // namespace

Q_DECLARE_METATYPE(Life)

class LockClicksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void locksEverything();
    void locksWindow_data();
    void locksWindow();
    void locksADockFloatedMeanwhile();
    void locksAWindowWithoutWidgets();
};

void LockClicksTest::locksEverything()
{
    const DragSource source;
    DeskMarker marker;
    DeskWindow window(QStringLiteral("Host"));
    window.open();
    const QString commands = window.tryEverything(DragSource::place());
    CVyAppModalLock lock(&marker);
    marker.afterUser(commands);
    QCOMPARE(window.reached(), QString());
    lock.unlock();
    marker.afterUser(commands);
    QCOMPARE(window.reached(), DeskWindow::everything());
}

void LockClicksTest::locksWindow_data()
{
    const auto nothing = [](DeskWindow&) {};
    const auto open = [](DeskWindow& window) { window.open(); };
    QTest::addColumn<Life>("life");
    QTest::newRow("opened later") << Life{nothing, open};
    QTest::newRow("created, opened later")
        << Life{[](DeskWindow& window) { window.winId(); }, open};
    QTest::newRow("hidden and shown again") << Life{open, [](DeskWindow& window) {
                                                        window.hide();
                                                        window.open();
                                                    }};
    QTest::newRow("made anew") << Life{open, [](DeskWindow& window) {
                                           window.setWindowFlag(Qt::WindowStaysOnTopHint);
                                           window.open();
                                       }};
    QTest::newRow("with native children") << Life{[](DeskWindow& window) {
                                                      window.button->winId();
                                                      window.edit->winId();
                                                      window.open();
                                                  },
                                                  nothing};
    QTest::newRow("native children meanwhile")
        << Life{open, [](DeskWindow& window) {
                    for (QWidget* child :
                         {static_cast<QWidget*>(window.button), static_cast<QWidget*>(window.edit)})
                        child->winId();
                    QTest::qWait(100);
                }};
}

void LockClicksTest::locksWindow()
{
    QFETCH(Life, life);
    DeskMarker marker;
    DeskWindow window(QStringLiteral("Host"));
    life.before(window);
    CVyAppModalLock lock(&marker);
    life.meanwhile(window);
    marker.afterUser(window.tryMouseAndKeys());
    QCOMPARE(window.reached(), QString());
    lock.unlock();
    marker.afterUser(window.tryMouseAndKeys());
    QCOMPARE(window.reached(), DeskWindow::mouseAndKeys());
}

void LockClicksTest::locksADockFloatedMeanwhile()
{
    DeskMarker marker;
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Host"));
    window.setGeometry(10, 40, 300, 300);
    auto* dock = new QDockWidget(QStringLiteral("Dock"), &window);
    auto* button = new QPushButton(QStringLiteral("Press"));
    dock->setWidget(button);
    window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const QSignalSpy clicks(button, SIGNAL(clicked()));
    CVyAppModalLock lock(&marker);
    dock->setFloating(true);
    dock->setGeometry(400, 100, 200, 150);
    QTest::qWait(100);
    marker.afterUser(clickOn(*button));
    QCOMPARE(clicks.size(), 0);
    lock.unlock();
    marker.afterUser(clickOn(*button));
    QCOMPARE(clicks.size(), 1);
}

void LockClicksTest::locksAWindowWithoutWidgets()
{
    DeskMarker marker;
    Bare window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTest::qWait(100);
    const QString commands = QStringLiteral("click 100 140; xdotool key a; wheel 100 140");
    CVyAppModalLock lock(&marker);
    marker.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&marker));
    marker.afterUser(commands);
    QCOMPARE(window.presses + window.releases + window.keys + window.wheels, 0);
    lock.unlock();
    marker.afterUser(commands);
    QCOMPARE(window.presses, 1);
    QCOMPARE(window.releases, 1);
    QCOMPARE(window.keys, 1);
    QCOMPARE(window.wheels, 1);
}

QTEST_MAIN(LockClicksTest)
#include "LockClicksTest.moc"
