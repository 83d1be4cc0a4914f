// SPDX-License-Identifier: MIT
// Which of a host's windows give way to a native panel, and how they come back,
// whatever a token is.
#include "Palette.h"
#include "VyFloatingWindows.h"

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QSplashScreen>
#include <QToolBar>

#include <map>
#include <memory>
#include <set>
#include <vector>

namespace {

using Maker = std::function<QWidget*(HostWindow&)>;
using Deed = std::function<void(QWidget&)>;

Maker withFlags(Qt::WindowFlags flags)
{
    return [flags](HostWindow& host) { return new QWidget(&host, flags); };
}

} // namespace

Q_DECLARE_METATYPE(Maker)
Q_DECLARE_METATYPE(Deed)

class FloatingWindowsContract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hidesToolWindows_data();
    void hidesToolWindows();
    void leavesOtherWindows_data();
    void leavesOtherWindows();
    void leavesHiddenOnesHidden();
    void bringsThemBackWhereTheyWere();
    void bringsTheirStateBack_data();
    void bringsTheirStateBack();
    void bringsTheirContentsBack();
    void bringsDocksBack();
    void leavesTheActiveWindow();
    void overlooksDeletedOnes();
    void overlooksThoseThatGoMeanwhile();
    void leavesHiddenWhatTheHostHidesMeanwhile();
    void leavesTheHostItsLastWord_data();
    void leavesTheHostItsLastWord();
    void showsOneThatCloseWasRefusedFor();
    void hidesAgainWhatTheHostShowed();
    void bringsThemBackWhereTheHostMovedThem();
    void nests_data();
    void nests();
    void closesNothing();
};

void FloatingWindowsContract::hidesToolWindows_data()
{
    QTest::addColumn<Maker>("make");

    QTest::newRow("of the main window") << withFlags(Qt::Tool);
    QTest::newRow("of no window") << Maker(
        [](HostWindow&) { return new QWidget(nullptr, Qt::Tool); });
    QTest::newRow("of another one")
        << Maker([](HostWindow& host) { return new QWidget(new Palette(&host), Qt::Tool); });
    QTest::newRow("frameless") << withFlags(Qt::Tool | Qt::FramelessWindowHint);
    QTest::newRow("on top") << withFlags(Qt::Tool | Qt::WindowStaysOnTopHint);
    QTest::newRow("dialog") << Maker([](HostWindow& host) { return new QDialog(&host, Qt::Tool); });
    QTest::newRow("floating dock")
        << Maker([](HostWindow& host) { return host.addFloatingDock(); });
    QTest::newRow("floating tool bar") << Maker([](HostWindow& host) {
        auto* bar = new QToolBar;
        host.addToolBar(bar);
        bar->setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
        return bar;
    });
}

void FloatingWindowsContract::hidesToolWindows()
{
    QFETCH(Maker, make);

    HostWindow host;
    const std::unique_ptr<QWidget> window(make(host));
    window->show();
    const auto token = HideFloatingWindows();
    QVERIFY(!window->isVisible());
    QVERIFY(host.isVisible());
    ShowFloatingWindows(token);
    QVERIFY(window->isVisible());
    QVERIFY(host.isVisible());
}

void FloatingWindowsContract::leavesOtherWindows_data()
{
    QTest::addColumn<Maker>("make");

    QTest::newRow("window") << withFlags(Qt::Window);
    QTest::newRow("dialog") << Maker([](HostWindow& host) { return new QDialog(&host); });
    QTest::newRow("modal dialog") << Maker([](HostWindow& host) {
        auto* dialog = new QDialog(&host);
        dialog->setModal(true);
        return dialog;
    });
    QTest::newRow("modal tool window") << Maker([](HostWindow& host) {
        auto* dialog = new QDialog(&host, Qt::Tool);
        dialog->setModal(true);
        return dialog;
    });
    QTest::newRow("another main window") << Maker([](HostWindow&) { return new QMainWindow; });
    QTest::newRow("sheet") << withFlags(Qt::Sheet);
    QTest::newRow("drawer") << withFlags(Qt::Drawer);
    QTest::newRow("popup") << withFlags(Qt::Popup);
    QTest::newRow("menu") << Maker([](HostWindow& host) { return new QMenu(&host); });
    QTest::newRow("tool tip") << withFlags(Qt::ToolTip);
    QTest::newRow("splash screen") << Maker([](HostWindow&) { return new QSplashScreen; });
    QTest::newRow("window in a window") << withFlags(Qt::SubWindow);
    QTest::newRow("child") << withFlags(Qt::Widget);
    QTest::newRow("dock in its place") << Maker([](HostWindow& host) { return host.addDock(); });
    QTest::newRow("tool bar in its place")
        << Maker([](HostWindow& host) { return host.addToolBar(QStringLiteral("Draw")); });
}

void FloatingWindowsContract::leavesOtherWindows()
{
    QFETCH(Maker, make);

    HostWindow host;
    const std::unique_ptr<QWidget> window(make(host));
    window->show();
    const Palette palette;
    QVERIFY(window->isVisible());
    const auto token = HideFloatingWindows();
    QVERIFY(!palette.isVisible());
    QVERIFY(window->isVisible());
    QVERIFY(host.isVisible());
    ShowFloatingWindows(token);
    QVERIFY(palette.isVisible());
    QVERIFY(window->isVisible());
}

void FloatingWindowsContract::leavesHiddenOnesHidden()
{
    HostWindow host;
    const QWidget neverShown(&host, Qt::Tool);
    Palette hidden(&host);
    hidden.hide();
    QDockWidget* dock = host.addFloatingDock();
    dock->hide();
    const Palette visible(&host);
    ShowFloatingWindows(HideFloatingWindows());
    QVERIFY(visible.isVisible());
    QVERIFY(!neverShown.isVisible());
    QVERIFY(!hidden.isVisible());
    QVERIFY(!dock->isVisible());
}

void FloatingWindowsContract::bringsThemBackWhereTheyWere()
{
    HostWindow host;
    Palette first(&host);
    first.setGeometry(400, 20, 123, 45);
    Palette second;
    second.setGeometry(410, 300, 67, 89);
    QDockWidget* dock = host.addFloatingDock();
    dock->setGeometry(600, 200, 150, 170);
    const QRect docked = host.centralWidget()->geometry();

    ShowFloatingWindows(HideFloatingWindows());
    QCoreApplication::processEvents();
    QCOMPARE(first.geometry(), QRect(400, 20, 123, 45));
    QCOMPARE(second.geometry(), QRect(410, 300, 67, 89));
    QCOMPARE(dock->geometry(), QRect(600, 200, 150, 170));
    QCOMPARE(host.centralWidget()->geometry(), docked);
}

void FloatingWindowsContract::bringsTheirStateBack_data()
{
    QTest::addColumn<Qt::WindowState>("state");

    QTest::newRow("normal") << Qt::WindowNoState;
    QTest::newRow("minimized") << Qt::WindowMinimized;
    QTest::newRow("maximized") << Qt::WindowMaximized;
    QTest::newRow("full screen") << Qt::WindowFullScreen;
}

void FloatingWindowsContract::bringsTheirStateBack()
{
    QFETCH(Qt::WindowState, state);

    Palette palette;
    palette.setGeometry(200, 100, 120, 90);
    palette.setWindowOpacity(0.5);
    palette.setWindowState(state);
    ShowFloatingWindows(HideFloatingWindows());
    QVERIFY(palette.isVisible());
    QCOMPARE(palette.windowState() & ~Qt::WindowActive, Qt::WindowStates(state));
    QCOMPARE(qRound(palette.windowOpacity() * 100), 50);
    palette.setWindowState(Qt::WindowNoState);
    QTRY_COMPARE(palette.geometry(), QRect(200, 100, 120, 90));
}

void FloatingWindowsContract::bringsTheirContentsBack()
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

// With their menu entry, and their place to dock back to.
void FloatingWindowsContract::bringsDocksBack()
{
    HostWindow host;
    host.addDock();
    QDockWidget* dock = host.addDock();
    QCoreApplication::processEvents();
    const QRect docked = dock->geometry();
    dock->setFloating(true);
    ShowFloatingWindows(HideFloatingWindows());
    QVERIFY(dock->isFloating());
    QVERIFY(dock->toggleViewAction()->isChecked());
    dock->setFloating(false);
    QTRY_COMPARE(dock->geometry(), docked);
    QVERIFY(dock->isVisible());
}

void FloatingWindowsContract::leavesTheActiveWindow()
{
    HostWindow host;
    Palette child(&host);
    QLineEdit name(&child);
    name.show();
    Palette alone;
    host.addFloatingDock();
    host.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&host));
    host.centralWidget()->setFocus();

    ShowFloatingWindows(HideFloatingWindows());
    QVERIFY(child.isVisible() && alone.isVisible());
    QTest::qWait(50); // what a show activates, it activates from the event loop
    QCOMPARE(QApplication::activeWindow(), static_cast<QWidget*>(&host));
    QCOMPARE(QApplication::focusWidget(), host.centralWidget());
}

void FloatingWindowsContract::overlooksDeletedOnes()
{
    auto deleted = std::make_unique<Palette>();
    const Palette kept;
    const auto token = HideFloatingWindows();
    deleted.reset();
    ShowFloatingWindows(token);
    QVERIFY(kept.isVisible());
}

// A host's own code runs whenever a window goes or comes.
void FloatingWindowsContract::overlooksThoseThatGoMeanwhile()
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
        ShowFloatingWindows(HideFloatingWindows());
        QVERIFY(kept.isVisible());
        QVERIFY((one ? one : other)->isVisible());
        QVERIFY(!one || !other);
        (one ? one : other)->onHide = [] {};
    }
}

void FloatingWindowsContract::leavesHiddenWhatTheHostHidesMeanwhile()
{
    Palette one;
    Palette other;
    one.onHide = [&other] { other.hide(); };
    other.onHide = [&one] { one.hide(); };
    ShowFloatingWindows(HideFloatingWindows());
    QVERIFY(one.isVisible() != other.isVisible()); // one is hidden for the token, first
}

void FloatingWindowsContract::leavesTheHostItsLastWord_data()
{
    QTest::addColumn<Deed>("deed");
    QTest::addColumn<bool>("visible");

    const Deed show = [](QWidget& window) { window.show(); };
    const Deed hide = [](QWidget& window) { window.hide(); };
    const Deed close = [](QWidget& window) { window.close(); };
    const auto both = [](const Deed& one, const Deed& other) {
        return Deed([one, other](QWidget& window) {
            one(window);
            other(window);
        });
    };
    QTest::newRow("nothing") << Deed([](QWidget&) {}) << true;
    QTest::newRow("shown") << show << true;
    QTest::newRow("hidden") << hide << false;
    QTest::newRow("closed") << close << false;
    QTest::newRow("shown and hidden") << both(show, hide) << false;
    QTest::newRow("shown and closed") << both(show, close) << false;
    QTest::newRow("hidden and shown") << both(hide, show) << true;
    QTest::newRow("closed and shown") << both(close, show) << true;
    QTest::newRow("other flags") << Deed([](QWidget& window) {
        window.setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    }) << true;
}

void FloatingWindowsContract::leavesTheHostItsLastWord()
{
    QFETCH(Deed, deed);
    QFETCH(bool, visible);

    Palette palette;
    const auto outer = HideFloatingWindows();
    const auto inner = HideFloatingWindows();
    QCoreApplication::processEvents();
    deed(palette);
    QCoreApplication::processEvents();
    const bool isLeft = palette.isVisible();
    ShowFloatingWindows(outer);
    QCOMPARE(palette.isVisible(), isLeft);
    ShowFloatingWindows(inner);
    QCOMPARE(palette.isVisible(), visible);
}

void FloatingWindowsContract::showsOneThatCloseWasRefusedFor()
{
    Palette palette;
    palette.onClose = [](QCloseEvent* event) { event->ignore(); };
    const auto token = HideFloatingWindows();
    QVERIFY(!palette.close());
    ShowFloatingWindows(token);
    QVERIFY(palette.isVisible());
}

void FloatingWindowsContract::hidesAgainWhatTheHostShowed()
{
    Palette palette;
    const auto outer = HideFloatingWindows();
    palette.show();
    const auto inner = HideFloatingWindows();
    QVERIFY(!palette.isVisible());
    ShowFloatingWindows(outer); // lost it to the host
    QVERIFY(!palette.isVisible());
    ShowFloatingWindows(inner);
    QVERIFY(palette.isVisible());
}

void FloatingWindowsContract::bringsThemBackWhereTheHostMovedThem()
{
    Palette hidden;
    Palette shown;
    const auto token = HideFloatingWindows();
    hidden.setGeometry(300, 310, 140, 50);
    shown.show();
    shown.setGeometry(310, 410, 150, 60);
    ShowFloatingWindows(token);
    QCoreApplication::processEvents();
    QCOMPARE(hidden.geometry(), QRect(300, 310, 140, 50));
    QCOMPARE(shown.geometry(), QRect(310, 410, 150, 60));
    QCOMPARE(shown.shown, 2);
}

// "+a" takes the token a, "-a" gives it back. A window is opened before each.
void FloatingWindowsContract::nests_data()
{
    QTest::addColumn<QByteArray>("steps");
    for (const char* steps :
         {"+a +b +c -a -b -c", "+a +b +c -a -c -b", "+a +b +c -b -a -c", "+a +b +c -b -c -a",
          "+a +b +c -c -a -b", "+a +b +c -c -b -a", "+a +b -a +c -b -c", "+a +b -a +c -c -b",
          "+a +b -b +c -a -c", "+a +b -b +c -c -a", "+a -a +b -b", "+a -a -a", "+a +b -a -a -b",
          "+a +b -b -b -a", "+a +b -a -b -a", "+a -a +b -a -b"})
        QTest::newRow(steps) << QByteArray(steps);
}

void FloatingWindowsContract::nests()
{
    std::map<char, decltype(HideFloatingWindows())> tokens;
    std::vector<std::unique_ptr<Palette>> palettes;
    std::map<const Palette*, std::set<char>> holders;
    std::map<const Palette*, int> shows;
    QFETCH(QByteArray, steps);
    for (const QByteArray& step : steps.split(' ')) {
        palettes.push_back(std::make_unique<Palette>());
        shows[palettes.back().get()] = 1;
        const char name = step.at(1);
        if (step.at(0) == '+')
            tokens[name] = HideFloatingWindows();
        else
            ShowFloatingWindows(tokens[name]);
        for (const auto& palette : palettes) {
            std::set<char>& held = holders[palette.get()];
            const bool wasHeld = !held.empty();
            step.at(0) == '+' ? void(held.insert(name)) : void(held.erase(name));
            shows[palette.get()] += wasHeld && held.empty() ? 1 : 0;
            QVERIFY2(palette->isVisible() == held.empty(), step);
            QCOMPARE(palette->shown, shows[palette.get()]);
        }
    }
}

// The windows are hidden, not closed: none is deleted for it, and the
// application does not end with the last of them.
void FloatingWindowsContract::closesNothing()
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

QTEST_MAIN(FloatingWindowsContract)
#include "FloatingWindowsContract.moc"
