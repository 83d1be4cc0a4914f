// SPDX-License-Identifier: MIT
// What the user was just doing when the application-modal lock was taken, with
// real hands on a real display: nothing of it hangs, clicks or gets in the way.
#include "DeskMarker.h"
#include "VyAppModalLock.h"

#include <QCheckBox>
#include <QDrag>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QToolButton>
#include <QToolTip>
#include <QVBoxLayout>
#include <QtTest>

#include <functional>
#include <memory>

namespace {

// A host's window that is all one widget.
class Window : public QWidget
{
public:
    explicit Window(QWidget* all)
    {
        auto* rows = new QVBoxLayout(this);
        rows->addWidget(all);
        setWindowTitle(QStringLiteral("Host"));
        setGeometry(10, 40, 240, 200);
        show();
        activateWindow();
        if (!QTest::qWaitForWindowActive(this))
            QTest::qFail("the window did not become active", __FILE__, __LINE__);
        QTest::qWait(100); // until the window manager has placed its frame
    }
};

// A view that notes what it is told of the mouse.
class View : public QWidget
{
public:
    QStringList told;
    std::function<void()> onPress;

protected:
    void mousePressEvent(QMouseEvent*) override
    {
        told += QStringLiteral("press");
        if (onPress)
            onPress();
    }
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        told += rect().contains(event->pos()) ? QStringLiteral("release inside")
                                              : QStringLiteral("release outside");
    }
    void dragEnterEvent(QDragEnterEvent* event) override { event->acceptProposedAction(); }
    void dropEvent(QDropEvent* event) override
    {
        told += QStringLiteral("drop");
        event->acceptProposedAction();
    }
};

const QString Press = QStringLiteral("xdotool mousedown 1; sleep 0.2\n");
const QString Release = QStringLiteral("xdotool mouseup 1; sleep 0.1\n");

// A button that takes the lock when it goes down.
struct Button
{
    std::function<QAbstractButton*()> make;
};

} // namespace

Q_DECLARE_METATYPE(Button)

class LockBegunInputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aButtonComesUpAgain_data();
    void aButtonComesUpAgain();
    void aViewLearnsThatTheButtonIsUp();
    void aListIsNotClicked();
    void aDragIsCancelled();
    void aMenuIsClosed();
    void theWindowUnderTheMouseLearnsOfIt();
    void showsNoToolTip();
};

void LockBegunInputTest::aButtonComesUpAgain_data()
{
    QTest::addColumn<Button>("kind");
    QTest::newRow("push button") << Button{[] { return new QPushButton(QStringLiteral("Ask")); }};
    QTest::newRow("tool button, which takes no focus") << Button{[] { return new QToolButton; }};
    QTest::newRow("repeating tool button") << Button{[] {
        auto* button = new QToolButton;
        button->setAutoRepeat(true);
        button->setAutoRepeatDelay(10);
        button->setAutoRepeatInterval(10);
        return button;
    }};
    QTest::newRow("check box") << Button{[] { return new QCheckBox(QStringLiteral("Ask")); }};
}

void LockBegunInputTest::aButtonComesUpAgain()
{
    QFETCH(Button, kind);
    DeskMarker marker;
    QAbstractButton* const button = kind.make();
    const Window window(button);
    const QSignalSpy clicks(button, SIGNAL(clicked()));
    std::unique_ptr<CVyAppModalLock> lock;
    const auto pressed = connect(button, &QAbstractButton::pressed, this,
                                 [&] { lock = std::make_unique<CVyAppModalLock>(&marker); });
    // A check box is clicked on its box.
    const QString over = pointAt(button->mapToGlobal(QPoint(10, button->height() / 2)));
    marker.afterUser(over + Press + Release);
    QVERIFY(lock);
    QVERIFY(!button->isDown());
    QCOMPARE(clicks.size(), 0);
    lock.reset();
    disconnect(pressed);
    marker.afterUser(over + "xdotool click 1");
    QCOMPARE(clicks.size(), 1);
    QVERIFY(!button->isDown());
}

void LockBegunInputTest::aViewLearnsThatTheButtonIsUp()
{
    DeskMarker marker;
    auto* view = new View;
    const Window window(view);
    std::unique_ptr<CVyAppModalLock> lock;
    view->onPress = [&] { lock = std::make_unique<CVyAppModalLock>(&marker); };
    marker.afterUser(pointAt(*view) + Press + Release);
    QCOMPARE(view->told, QStringList({"press", "release outside"}));
    lock.reset();
    view->onPress = nullptr;
    view->told.clear();
    marker.afterUser(pointAt(*view) + Press + Release);
    QCOMPARE(view->told, QStringList({"press", "release inside"}));
}

// A double click, say, that asks for a file, and whose second release follows.
void LockBegunInputTest::aListIsNotClicked()
{
    DeskMarker marker;
    auto* list = new QListWidget;
    list->addItems({"one", "two"});
    const Window window(list);
    const QSignalSpy clicks(list, SIGNAL(itemClicked(QListWidgetItem*)));
    std::unique_ptr<CVyAppModalLock> lock;
    connect(list, &QListWidget::itemPressed, this,
            [&] { lock = std::make_unique<CVyAppModalLock>(&marker); });
    const QPoint item = list->viewport()->mapToGlobal(list->visualItemRect(list->item(1)).center());
    marker.afterUser(pointAt(item) + Press + Release);
    QVERIFY(lock);
    QCOMPARE(clicks.size(), 0);
    QCOMPARE(list->currentRow(), 1);
}

void LockBegunInputTest::aDragIsCancelled()
{
    DeskMarker marker;
    auto* view = new View;
    view->setAcceptDrops(true);
    const Window window(view);
    std::unique_ptr<CVyAppModalLock> lock;
    Qt::DropAction dropped = Qt::TargetMoveAction;
    bool ended = false;
    bool endedAtOnce = false;
    const auto takeLock = [&] {
        lock = std::make_unique<CVyAppModalLock>(&marker);
        QTimer::singleShot(0, &marker, [&] { endedAtOnce = ended; });
    };
    view->onPress = [&] {
        auto* drag = new QDrag(view);
        auto* data = new QMimeData;
        data->setText("dragged");
        drag->setMimeData(data);
        QTimer::singleShot(400, &marker, takeLock);
        dropped = drag->exec(Qt::CopyAction);
        ended = true;
    };
    const QString move = "xdotool mousemove_relative 5 5; sleep 0.05\n";
    marker.afterUser(pointAt(*view) + Press + move.repeated(15) + Release);
    QVERIFY(lock);
    QVERIFY(endedAtOnce); // not by a click elsewhere
    QCOMPARE(dropped, Qt::IgnoreAction);
    QVERIFY(!view->told.contains("drop"));
}

// It would keep mouse and keyboard from a dialog that is no window of Qt's.
void LockBegunInputTest::aMenuIsClosed()
{
    DeskMarker marker;
    auto* view = new View;
    const Window window(view);
    QMenu menu;
    QMenu deeper("Deeper", &menu);
    QAction* const action = deeper.addAction("Do it");
    const QSignalSpy triggers(action, SIGNAL(triggered()));
    menu.addMenu(&deeper);
    menu.popup(view->mapToGlobal(QPoint(5, 5)));
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    deeper.popup(view->mapToGlobal(QPoint(60, 20)));
    QVERIFY(QTest::qWaitForWindowExposed(&deeper));
    const CVyAppModalLock lock(&marker);
    QVERIFY(!menu.isVisible());
    QVERIFY(!deeper.isVisible());
    marker.afterUser("xdotool key Return; xdotool key space\n");
    QCOMPARE(triggers.size(), 0);

    deeper.popup(view->mapToGlobal(QPoint(60, 20))); // one that is opened later works
    QVERIFY(QTest::qWaitForWindowExposed(&deeper));
    const QPoint item = deeper.mapToGlobal(deeper.actionGeometry(action).center());
    marker.afterUser(clickOn(item));
    QCOMPARE(triggers.size(), 1);
}

void LockBegunInputTest::theWindowUnderTheMouseLearnsOfIt()
{
    DeskMarker marker;
    auto* button = new QPushButton("Hover");
    const Window window(button);
    marker.afterUser("point 600 600");
    CVyAppModalLock outer(&marker);
    CVyAppModalLock inner(&marker);
    DeskUser("Marker", pointAt(*button)).wait();
    QTest::qWait(100);
    QVERIFY(!button->underMouse());
    inner.unlock();
    QVERIFY(!button->underMouse());
    outer.unlock();
    QVERIFY(button->underMouse());
    DeskUser("Marker", "point 600 600").wait();
    QTRY_VERIFY(!button->underMouse());
}

void LockBegunInputTest::showsNoToolTip()
{
    DeskMarker marker;
    auto* button = new QPushButton("Hover");
    button->setToolTip("Explains");
    Window window(button);
    window.setAttribute(Qt::WA_AlwaysShowToolTips); // not only while it is active
    const auto rest = [&] {
        marker.afterUser(QString());
        DeskUser("Marker", pointAt(*button) + "xdotool mousemove_relative 3 3").wait();
        QTest::qWait(1000); // the tip comes after 700 ms
        return QToolTip::isVisible();
    };
    QVERIFY(rest());
    CVyAppModalLock lock(&marker);
    QVERIFY(!rest());
    lock.unlock();
    QVERIFY(rest());

    // One that is due when the lock is taken. One that follows another comes at once.
    marker.afterUser(QString());
    QTRY_VERIFY(!QToolTip::isVisible());
    QTest::qWait(2500);
    DeskUser("Marker", "point 600 600\n" + pointAt(*button) + "xdotool mousemove_relative 3 3")
        .wait();
    QVERIFY(button->underMouse());
    QVERIFY(!QToolTip::isVisible());
    const CVyAppModalLock again(&marker);
    QTest::qWait(1000);
    QVERIFY(!QToolTip::isVisible());
}

QTEST_MAIN(LockBegunInputTest)
#include "LockBegunInputTest.moc"
