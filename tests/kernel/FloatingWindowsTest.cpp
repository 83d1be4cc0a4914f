// SPDX-License-Identifier: MIT
// Which of a host's windows give way to a native panel, and how they come back.
#include "VyFloatingWindows.h"

#include <QApplication>
#include <QDialog>
#include <QDockWidget>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QSplashScreen>
#include <QToolBar>
#include <QtTest>

#include <functional>
#include <memory>

namespace {

// Asked before there is an application.
const bool nothingWithoutApplication = HideFloatingWindows().isEmpty();

using Maker = std::function<QWidget*(QMainWindow&)>;

// A tool window of a host that notes how it comes to the screen.
class Palette : public QWidget
{
public:
    explicit Palette(QWidget* parent = nullptr)
        : QWidget(parent, Qt::Tool)
    {
        show();
    }

    int shown = 0;
    bool shownActive = false;    ///< as the attribute has it
    bool platformActive = false; ///< as Qt's platform plug-in is told
    std::function<void()> onShow = [] {};
    std::function<void()> onHide = [] {};

protected:
    void showEvent(QShowEvent*) override
    {
        ++shown;
        shownActive = !testAttribute(Qt::WA_ShowWithoutActivating);
        platformActive = !windowHandle()->property("_q_showWithoutActivating").toBool();
        onShow();
    }
    void hideEvent(QHideEvent*) override { onHide(); }
};

class HostWindow : public QMainWindow
{
public:
    HostWindow()
    {
        setCentralWidget(new QLineEdit);
        setGeometry(50, 50, 300, 200);
        show();
        if (!QTest::qWaitForWindowActive(this))
            qFatal("the window did not become active");
    }
};

Maker withFlags(Qt::WindowFlags flags)
{
    return [flags](QMainWindow& host) { return new QWidget(&host, flags); };
}

QDockWidget* addDock(QMainWindow& host)
{
    auto* dock = new QDockWidget(QStringLiteral("Layers"), &host);
    host.addDockWidget(Qt::RightDockWidgetArea, dock);
    return dock;
}

QDockWidget* addFloatingDock(QMainWindow& host)
{
    auto* dock = addDock(host);
    dock->setFloating(true);
    dock->show();
    return dock;
}

} // namespace

Q_DECLARE_METATYPE(Maker)

class FloatingWindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsNoneWithoutAnApplication();
    void hidesToolWindows_data();
    void hidesToolWindows();
    void leavesOtherWindows_data();
    void leavesOtherWindows();
    void leavesHiddenOnesHidden();
    void bringsThemBackWhereTheyWere();
    void bringsTheirStateBack_data();
    void bringsTheirStateBack();
    void bringsTheirContentsBack();
    void leavesTheActiveWindow();
    void showsWithoutActivating_data();
    void showsWithoutActivating();
    void overlooksDeletedOnes();
    void overlooksThoseThatGoMeanwhile();
    void leavesThoseThatTheHostShowed();
    void nests_data();
    void nests();
    void hidesNoneTwice();
    void showsNoneForAnEmptyToken();
    void checksTheDocksActionAgain();
    void closesNothing();
};

void FloatingWindowsTest::findsNoneWithoutAnApplication()
{
    QVERIFY(nothingWithoutApplication);
}

void FloatingWindowsTest::hidesToolWindows_data()
{
    QTest::addColumn<Maker>("make");

    QTest::newRow("of the main window") << withFlags(Qt::Tool);
    QTest::newRow("of no window") << Maker(
        [](QMainWindow&) { return new QWidget(nullptr, Qt::Tool); });
    QTest::newRow("of another one")
        << Maker([](QMainWindow& host) { return new QWidget(new Palette(&host), Qt::Tool); });
    QTest::newRow("frameless") << withFlags(Qt::Tool | Qt::FramelessWindowHint);
    QTest::newRow("on top") << withFlags(Qt::Tool | Qt::WindowStaysOnTopHint);
    QTest::newRow("dialog") << Maker(
        [](QMainWindow& host) { return new QDialog(&host, Qt::Tool); });
    QTest::newRow("floating dock") << Maker(addFloatingDock);
    QTest::newRow("floating tool bar") << Maker([](QMainWindow& host) {
        auto* bar = new QToolBar;
        host.addToolBar(bar);
        bar->setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
        return bar;
    });
}

void FloatingWindowsTest::hidesToolWindows()
{
    QFETCH(Maker, make);

    HostWindow host;
    const std::unique_ptr<QWidget> window(make(host));
    window->show();
    const VyFloatingWindows token = HideFloatingWindows();
    QVERIFY(!window->isVisible());
    QVERIFY(host.isVisible());
    QCOMPARE(token.count(window.get()), 1);
    ShowFloatingWindows(token);
    QVERIFY(window->isVisible());
    QVERIFY(host.isVisible());
}

void FloatingWindowsTest::leavesOtherWindows_data()
{
    QTest::addColumn<Maker>("make");

    QTest::newRow("window") << withFlags(Qt::Window);
    QTest::newRow("dialog") << Maker([](QMainWindow& host) { return new QDialog(&host); });
    QTest::newRow("modal dialog") << Maker([](QMainWindow& host) {
        auto* dialog = new QDialog(&host);
        dialog->setModal(true);
        return dialog;
    });
    QTest::newRow("another main window") << Maker([](QMainWindow&) { return new QMainWindow; });
    QTest::newRow("sheet") << withFlags(Qt::Sheet);
    QTest::newRow("drawer") << withFlags(Qt::Drawer);
    QTest::newRow("popup") << withFlags(Qt::Popup);
    QTest::newRow("menu") << Maker([](QMainWindow& host) { return new QMenu(&host); });
    QTest::newRow("tool tip") << withFlags(Qt::ToolTip);
    QTest::newRow("splash screen") << Maker([](QMainWindow&) { return new QSplashScreen; });
    QTest::newRow("window in a window") << withFlags(Qt::SubWindow);
    QTest::newRow("child") << withFlags(Qt::Widget);
    QTest::newRow("dock in its place") << Maker(addDock);
    QTest::newRow("tool bar in its place")
        << Maker([](QMainWindow& host) { return host.addToolBar(QStringLiteral("Draw")); });
}

void FloatingWindowsTest::leavesOtherWindows()
{
    QFETCH(Maker, make);

    HostWindow host;
    const std::unique_ptr<QWidget> window(make(host));
    window->show();
    const Palette palette;
    QVERIFY(window->isVisible());
    const VyFloatingWindows token = HideFloatingWindows();
    QCOMPARE(token.size(), 1);
    QCOMPARE(token.constFirst().data(), static_cast<const QWidget*>(&palette));
    QVERIFY(window->isVisible());
    QVERIFY(host.isVisible());
    ShowFloatingWindows(token);
    QVERIFY(window->isVisible());
}

void FloatingWindowsTest::leavesHiddenOnesHidden()
{
    HostWindow host;
    const QWidget neverShown(&host, Qt::Tool);
    Palette hidden(&host);
    hidden.hide();
    QDockWidget* dock = addFloatingDock(host);
    dock->hide();
    const Palette visible(&host);
    const VyFloatingWindows token = HideFloatingWindows();
    QCOMPARE(token.size(), 1);
    ShowFloatingWindows(token);
    QVERIFY(visible.isVisible());
    QVERIFY(!neverShown.isVisible());
    QVERIFY(!hidden.isVisible());
    QVERIFY(!dock->isVisible());
}

void FloatingWindowsTest::bringsThemBackWhereTheyWere()
{
    HostWindow host;
    Palette first(&host);
    first.setGeometry(400, 20, 123, 45);
    Palette second;
    second.setGeometry(410, 300, 67, 89);
    QDockWidget* dock = addFloatingDock(host);
    dock->setGeometry(600, 200, 150, 170);
    const QRect docked = host.centralWidget()->geometry();

    ShowFloatingWindows(HideFloatingWindows());
    QCoreApplication::processEvents();
    QCOMPARE(first.geometry(), QRect(400, 20, 123, 45));
    QCOMPARE(second.geometry(), QRect(410, 300, 67, 89));
    QCOMPARE(dock->geometry(), QRect(600, 200, 150, 170));
    QVERIFY(dock->isFloating());
    QCOMPARE(host.centralWidget()->geometry(), docked);
}

void FloatingWindowsTest::bringsTheirStateBack_data()
{
    QTest::addColumn<Qt::WindowState>("state");

    QTest::newRow("normal") << Qt::WindowNoState;
    QTest::newRow("minimized") << Qt::WindowMinimized;
    QTest::newRow("maximized") << Qt::WindowMaximized;
    QTest::newRow("full screen") << Qt::WindowFullScreen;
}

void FloatingWindowsTest::bringsTheirStateBack()
{
    QFETCH(Qt::WindowState, state);

    Palette palette;
    palette.setWindowState(state);
    ShowFloatingWindows(HideFloatingWindows());
    QVERIFY(palette.isVisible());
    QCOMPARE(palette.windowState() & ~Qt::WindowActive, Qt::WindowStates(state));
}

void FloatingWindowsTest::bringsTheirContentsBack()
{
    Palette palette;
    QLineEdit shown(&palette);
    shown.show();
    QLineEdit hidden(&palette);
    hidden.hide();
    ShowFloatingWindows(HideFloatingWindows());
    QVERIFY(shown.isVisible());
    QVERIFY(!hidden.isVisible());
}

void FloatingWindowsTest::leavesTheActiveWindow()
{
    HostWindow host;
    Palette child(&host);
    QLineEdit name(&child);
    name.show();
    Palette alone;
    addFloatingDock(host);
    host.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&host));
    host.centralWidget()->setFocus();

    const VyFloatingWindows token = HideFloatingWindows();
    QCOMPARE(token.size(), 3);
    ShowFloatingWindows(token);
    QTest::qWait(50); // what a show activates, it activates from the event loop
    QCOMPARE(QApplication::activeWindow(), static_cast<QWidget*>(&host));
    QCOMPARE(QApplication::focusWidget(), host.centralWidget());
}

void FloatingWindowsTest::showsWithoutActivating_data()
{
    QTest::addColumn<bool>("inactive");

    QTest::newRow("shown active by its host") << false;
    QTest::newRow("shown inactive by its host") << true;
}

// For one restoration only: the host's own choice is back afterwards.
void FloatingWindowsTest::showsWithoutActivating()
{
    QFETCH(bool, inactive);

    Palette palette;
    palette.hide();
    palette.setAttribute(Qt::WA_ShowWithoutActivating, inactive);
    palette.show();
    const QVariant told = palette.windowHandle()->property("_q_showWithoutActivating");
    ShowFloatingWindows(HideFloatingWindows());
    QCOMPARE(palette.shown, 3);
    QVERIFY(!palette.shownActive);
    QVERIFY(!palette.platformActive);
    QCOMPARE(palette.testAttribute(Qt::WA_ShowWithoutActivating), inactive);
    QCOMPARE(palette.windowHandle()->property("_q_showWithoutActivating").toBool(), told.toBool());
}

void FloatingWindowsTest::overlooksDeletedOnes()
{
    auto deleted = std::make_unique<Palette>();
    const Palette kept;
    const VyFloatingWindows token = HideFloatingWindows();
    QCOMPARE(token.size(), 2);
    deleted.reset();
    ShowFloatingWindows(token);
    QVERIFY(kept.isVisible());
    QCOMPARE(token.count(nullptr), 1);
}

// A host's own code runs whenever a window goes or comes.
void FloatingWindowsTest::overlooksThoseThatGoMeanwhile()
{
    for (const bool whileHiding : {true, false}) {
        auto one = std::make_unique<Palette>();
        auto other = std::make_unique<Palette>();
        const Palette kept;
        const auto deleteTheOther = [&one, &other](Palette* self) {
            (self == one.get() ? other : one).reset();
        };
        for (Palette* palette : {one.get(), other.get()}) {
            (whileHiding ? palette->onHide : palette->onShow) = [deleteTheOther, palette] {
                deleteTheOther(palette);
            };
        }
        const VyFloatingWindows token = HideFloatingWindows();
        QCOMPARE(token.size(), 3);
        ShowFloatingWindows(token);
        QVERIFY(kept.isVisible());
        QCOMPARE(token.count(nullptr), 1);
        QVERIFY((one ? one : other)->isVisible());
        (one ? one : other)->onHide = [] {};
    }
}

void FloatingWindowsTest::leavesThoseThatTheHostShowed()
{
    Palette palette;
    const VyFloatingWindows token = HideFloatingWindows();
    palette.show();
    palette.setGeometry(300, 310, 40, 50);
    ShowFloatingWindows(token);
    QVERIFY(palette.isVisible());
    QCOMPARE(palette.shown, 2);
    QCOMPARE(palette.geometry(), QRect(300, 310, 40, 50));
    QVERIFY(!palette.testAttribute(Qt::WA_ShowWithoutActivating));
}

void FloatingWindowsTest::nests_data()
{
    QTest::addColumn<bool>("innerFirst");

    QTest::newRow("inner shown first") << true;
    QTest::newRow("outer shown first") << false;
}

void FloatingWindowsTest::nests()
{
    QFETCH(bool, innerFirst);

    const Palette early;
    const VyFloatingWindows outer = HideFloatingWindows();
    const Palette late;
    const VyFloatingWindows inner = HideFloatingWindows();
    QVERIFY(!early.isVisible());
    QVERIFY(!late.isVisible());
    ShowFloatingWindows(innerFirst ? inner : outer);
    QCOMPARE(early.isVisible(), !innerFirst);
    QCOMPARE(late.isVisible(), innerFirst);
    ShowFloatingWindows(innerFirst ? outer : inner);
    QVERIFY(early.isVisible());
    QVERIFY(late.isVisible());
}

void FloatingWindowsTest::hidesNoneTwice()
{
    const Palette palette;
    const VyFloatingWindows first = HideFloatingWindows();
    const VyFloatingWindows second = HideFloatingWindows();
    QCOMPARE(first.size(), 1);
    QCOMPARE(second.size(), 0);
    ShowFloatingWindows(second);
    QVERIFY(!palette.isVisible());
    ShowFloatingWindows(first);
    QVERIFY(palette.isVisible());
    QCOMPARE(palette.shown, 2);
    ShowFloatingWindows(first);
    QCOMPARE(palette.shown, 2);
}

void FloatingWindowsTest::showsNoneForAnEmptyToken()
{
    const Palette visible;
    Palette hidden;
    hidden.hide();
    for (const VyFloatingWindows& token : {VyFloatingWindows(), VyFloatingWindows({nullptr})}) {
        ShowFloatingWindows(token);
        QCOMPARE(visible.shown, 1);
        QCOMPARE(hidden.shown, 1);
        QVERIFY(!hidden.isVisible());
    }
}

void FloatingWindowsTest::checksTheDocksActionAgain()
{
    HostWindow host;
    const QAction* action = addFloatingDock(host)->toggleViewAction();
    QVERIFY(action->isChecked());
    const VyFloatingWindows token = HideFloatingWindows();
    QVERIFY(!action->isChecked());
    ShowFloatingWindows(token);
    QVERIFY(action->isChecked());
}

// The windows are hidden, not closed: none is deleted for it, and the
// application does not end with the last of them.
void FloatingWindowsTest::closesNothing()
{
    QPointer<Palette> palette(new Palette);
    palette->setAttribute(Qt::WA_DeleteOnClose);
    palette->setAttribute(Qt::WA_QuitOnClose);
    QTimer::singleShot(0, [] { ShowFloatingWindows(HideFloatingWindows()); });
    QTimer::singleShot(50, qApp, [] { QCoreApplication::exit(7); });
    QCOMPARE(QCoreApplication::exec(), 7);
    QVERIFY(palette && palette->isVisible());

    QTimer::singleShot(0, palette, SLOT(close()));
    QCOMPARE(QCoreApplication::exec(), 0); // as the host wanted it
    QTRY_VERIFY(!palette);
}

QTEST_MAIN(FloatingWindowsTest)
#include "FloatingWindowsTest.moc"
