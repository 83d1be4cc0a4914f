// SPDX-License-Identifier: MIT
// The application-modal lock: which windows it takes from the user, which it
// leaves to him.
#include "HostWindow.h"
#include "VyAppModalLock.h"

#include <QAction>
#include <QMenu>
#include <QtTest>

#include <functional>
#include <memory>

namespace {

// What a host can do to a window of its own while the lock is held.
using Change = std::function<void(HostWindow&)>;

void addChanges()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("nothing") << Change([](HostWindow&) {});
    QTest::newRow("hidden and shown again") << Change([](HostWindow& window) {
        window.hide();
        window.open();
    });
    QTest::newRow("made anew with other flags") << Change([](HostWindow& window) {
        window.setWindowFlags(Qt::Window | Qt::WindowStaysOnTopHint);
        window.open();
    });
    QTest::newRow("made a tool window") << Change([](HostWindow& window) {
        window.setWindowFlags(Qt::Tool);
        window.open();
    });
    QTest::newRow("given native children") << Change([](HostWindow& window) {
        window.edit->winId();
        window.button->winId();
    });
}

} // namespace

Q_DECLARE_METATYPE(Change)

class LockContract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesTheUserAway_data() { addChanges(); }
    void takesTheUserAway();
    void takesHimFromLaterWindowsToo();
    void leavesTheUsableWindow_data() { addChanges(); }
    void leavesTheUsableWindow();
    void leavesDialogsOpenedLater_data();
    void leavesDialogsOpenedLater();
    void locksADialogThatWasOpen();
    void leavesWhatADialogOpens_data();
    void leavesWhatADialogOpens();
    void staysOpenWhenAllAreClosed();
    void locksWindowsWithoutWidgets();
    void locksActionsByTheirPlaces_data();
    void locksActionsByTheirPlaces();
};

void LockContract::takesTheUserAway()
{
    QFETCH(Change, change);
    HostWindow window;
    window.open();
    QCOMPARE(window.takes(), Everything);
    CVyAppModalLock lock(nullptr);
    change(window);
    QCOMPARE(window.takes(), Nothing);
    lock.unlock();
    QCOMPARE(window.takes(), Everything);
}

// A timer of the host's opens them, or they wait unseen when the lock is taken.
void LockContract::takesHimFromLaterWindowsToo()
{
    QWidget owner;
    owner.show();
    HostWindow waiting;
    HostWindow hidden;
    hidden.open();
    hidden.hide();
    HostWindow palette(&owner, Qt::Tool);
    CVyAppModalLock lock(nullptr);
    HostWindow later;
    HostWindow dialog(&owner, Qt::Dialog);
    for (HostWindow* opened : {&waiting, &hidden, &palette, &later, &dialog}) {
        opened->open();
        QCOMPARE(opened->takes(), Nothing);
    }
    lock.unlock();
    for (HostWindow* opened : {&waiting, &hidden, &palette, &later, &dialog})
        QCOMPARE(opened->takes(), Everything);
}

void LockContract::leavesTheUsableWindow()
{
    QFETCH(Change, change);
    HostWindow locked;
    locked.open();
    HostWindow usable;
    usable.open();
    const CVyAppModalLock lock(usable.button);
    change(usable);
    QCOMPARE(locked.takes(), Nothing);
    QCOMPARE(usable.takes(), Everything);
}

void LockContract::leavesDialogsOpenedLater_data()
{
    QTest::addColumn<Qt::WindowModality>("modality");
    QTest::addColumn<bool>("madeBefore");
    for (const bool before : {false, true}) {
        const char* const made = before ? "made before" : "made later";
        QTest::addRow("application modal, %s", made) << Qt::ApplicationModal << before;
        QTest::addRow("window modal, %s", made) << Qt::WindowModal << before;
    }
}

void LockContract::leavesDialogsOpenedLater()
{
    QFETCH(Qt::WindowModality, modality);
    QFETCH(bool, madeBefore);
    HostWindow locked;
    locked.open();
    auto dialog = std::make_unique<HostWindow>(&locked);
    dialog->winId();
    const CVyAppModalLock lock(nullptr);
    if (!madeBefore)
        dialog = std::make_unique<HostWindow>(&locked);
    dialog->setWindowModality(modality);
    dialog->open();
    QCOMPARE(dialog->takes(), Everything);
    QCOMPARE(locked.takes(), Nothing);
    dialog->hide();
    dialog->open();
    QCOMPARE(dialog->takes(), Everything);
}

// The host asks for a file from a dialog of its own. Shown anew, that comes
// before everything else, and so must work.
void LockContract::locksADialogThatWasOpen()
{
    HostWindow dialog;
    dialog.openModal();
    const CVyAppModalLock lock(nullptr);
    QCOMPARE(dialog.takesClicks(), false);
    QCOMPARE(dialog.takes(), Nothing);
    dialog.hide();
    dialog.open();
    QCOMPARE(dialog.takes(), Everything);
}

void LockContract::leavesWhatADialogOpens_data()
{
    QTest::addColumn<Qt::WindowFlags>("flags");
    QTest::newRow("popup") << Qt::WindowFlags(Qt::Popup);
    QTest::newRow("tool window") << Qt::WindowFlags(Qt::Tool);
    QTest::newRow("window") << Qt::WindowFlags(Qt::Window);
}

void LockContract::leavesWhatADialogOpens()
{
    QFETCH(Qt::WindowFlags, flags);
    HostWindow locked;
    locked.open();
    const CVyAppModalLock lock(nullptr);
    HostWindow dialog;
    dialog.openModal();
    HostWindow child(&dialog, flags);
    child.show();
    QVERIFY(QTest::qWaitForWindowExposed(&child));
    QVERIFY(child.takesClicks());
    QVERIFY(child.takesKeys());
    QVERIFY(child.takesCloseRequests());
    child.close();

    QWindow bare; // the tie is all that it has
    bare.setTransientParent(dialog.windowHandle());
    bare.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bare));
    QVERIFY(bare.close());
}

// As at the end of a session, or when the host is told to quit.
void LockContract::staysOpenWhenAllAreClosed()
{
    HostWindow window;
    window.open();
    CVyAppModalLock lock(nullptr);
    HostWindow dialog;
    dialog.openModal();
    QApplication::closeAllWindows();
    QVERIFY(!dialog.isVisible());
    QVERIFY(window.isVisible());
    lock.unlock();
    QApplication::closeAllWindows();
    QVERIFY(!window.isVisible());
}

void LockContract::locksWindowsWithoutWidgets()
{
    class Bare : public QWindow
    {
    public:
        int presses = 0;
        int keys = 0;

    protected:
        void mousePressEvent(QMouseEvent*) override { ++presses; }
        void keyPressEvent(QKeyEvent*) override { ++keys; }
    };
    const auto use = [](Bare& window) {
        QTest::mouseClick(&window, Qt::LeftButton);
        QTest::keyClick(&window, Qt::Key_A);
        return window.presses + window.keys;
    };
    Bare bare;
    bare.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bare));
    CVyAppModalLock lock(nullptr);
    Bare later;
    later.show();
    QVERIFY(QTest::qWaitForWindowExposed(&later));
    QCOMPARE(use(bare), 0);
    QCOMPARE(use(later), 0);
    lock.unlock();
    QCOMPARE(use(bare), 2);
    QCOMPARE(use(later), 2);
}

void LockContract::locksActionsByTheirPlaces_data()
{
    QTest::addColumn<QString>("place");
    QTest::addColumn<bool>("works");
    QTest::newRow("locked window") << "locked" << false;
    QTest::newRow("menu of the locked window") << "locked menu" << false;
    QTest::newRow("menu without a parent, of the locked window") << "locked loose menu" << false;
    QTest::newRow("usable window") << "usable" << true;
    QTest::newRow("menu without a parent, of the usable window") << "usable loose menu" << true;
    QTest::newRow("both windows") << "locked usable" << true;
}

// With the keys going to the usable window: a shortcut of the whole application
// works from everywhere. Actions often belong to no window.
void LockContract::locksActionsByTheirPlaces()
{
    QFETCH(QString, place);
    QFETCH(bool, works);
    HostWindow locked;
    locked.open();
    HostWindow usable;
    usable.open();
    QMenu loose;
    QMenu menu(&locked);
    QAction action(nullptr);
    const QSignalSpy triggers(&action, SIGNAL(triggered()));
    action.setShortcut(QKeySequence(QStringLiteral("Ctrl+L")));
    action.setShortcutContext(Qt::ApplicationShortcut);
    if (place.contains("menu")) {
        HostWindow& window = place.contains("locked") ? locked : usable;
        QMenu& offers = place.contains("loose") ? loose : menu;
        window.addAction(offers.menuAction());
        offers.addAction(&action);
    } else {
        for (HostWindow* window : {&locked, &usable}) {
            if (place.contains(window == &locked ? "locked" : "usable"))
                window->addAction(&action);
        }
    }
    const auto press = [&](HostWindow& window) {
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTest::keyClick(window.windowHandle(), Qt::Key_L, Qt::ControlModifier);
    };
    CVyAppModalLock lock(&usable);
    press(locked);
    QCOMPARE(triggers.size(), 0);
    press(usable);
    QCOMPARE(triggers.size(), int(works));
    lock.unlock();
    press(usable);
    QCOMPARE(triggers.size(), works + 1);
}

QTEST_MAIN(LockContract)
#include "LockContract.moc"
