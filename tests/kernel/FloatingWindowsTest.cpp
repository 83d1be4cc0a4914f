// SPDX-License-Identifier: MIT
// What our floating windows promise beyond what any host's do: what a token is,
// threads, and what the windows hear.
#include "VyFloatingWindows.h"
#include "contract/Palette.h"

#include <QAction>
#include <QApplication>

#include <memory>
#include <thread>
#include <utility>

namespace {

// Asked before there is an application.
const bool nothingWithoutApplication = !HideFloatingWindows();

// Goes when there is no application any more.
VyFloatingWindows lastToken;

} // namespace

class FloatingWindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersNullWithoutAnApplication();
    void doesNothingOnAnotherThread();
    void showsNothingForTheNullToken();
    void showsWhenTheLastCopyGoes();
    void releasesOnceForAllCopies();
    void showsWithoutActivating_data();
    void showsWithoutActivating();
    void tellsDocks();
    void nestsInTheHostsOwnCode();
    void ordersByCreation();
    void survivesATokenOfAnEarlierTime();
};

void FloatingWindowsTest::answersNullWithoutAnApplication()
{
    QVERIFY(nothingWithoutApplication);
}

void FloatingWindowsTest::doesNothingOnAnotherThread()
{
    const Palette palette;
    bool isNull = false;
    std::thread([&isNull] { isNull = !HideFloatingWindows(); }).join();
    QVERIFY(isNull);
    QVERIFY(palette.isVisible());

    const auto token = HideFloatingWindows();
    std::thread([&token] { ShowFloatingWindows(token); }).join();
    QVERIFY(!palette.isVisible());
    ShowFloatingWindows(token);
    QVERIFY(palette.isVisible());
}

void FloatingWindowsTest::showsNothingForTheNullToken()
{
    const Palette visible;
    Palette hidden;
    hidden.hide();
    ShowFloatingWindows(VyFloatingWindows());
    QCOMPARE(visible.shown, 1);
    QCOMPARE(hidden.shown, 1);
    QVERIFY(!hidden.isVisible());
}

void FloatingWindowsTest::showsWhenTheLastCopyGoes()
{
    const Palette palette;
    auto token = HideFloatingWindows();
    auto copy = token;
    token.reset();
    QVERIFY(!palette.isVisible());
    copy = HideFloatingWindows();
    QVERIFY(!palette.isVisible());
    copy.reset();
    QVERIFY(palette.isVisible());
    QCOMPARE(palette.shown, 2);
}

void FloatingWindowsTest::releasesOnceForAllCopies()
{
    const Palette palette;
    const auto outer = HideFloatingWindows();
    auto inner = HideFloatingWindows();
    auto copy = inner;
    ShowFloatingWindows(inner);
    ShowFloatingWindows(copy);
    inner.reset();
    copy.reset();
    QVERIFY(!palette.isVisible());
    ShowFloatingWindows(outer);
    QVERIFY(palette.isVisible());
    QCOMPARE(palette.shown, 2);
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

    const char* const platformsChoice = "_q_showWithoutActivating";
    Palette palette;
    palette.hide();
    palette.setAttribute(Qt::WA_ShowWithoutActivating, inactive);
    palette.show();
    const bool told = palette.windowHandle()->property(platformsChoice).toBool();
    bool isInactive = false;
    palette.onShow = [&] {
        isInactive = palette.testAttribute(Qt::WA_ShowWithoutActivating) &&
                     palette.windowHandle()->property(platformsChoice).toBool();
    };
    ShowFloatingWindows(HideFloatingWindows());
    QCOMPARE(palette.shown, 3);
    QVERIFY(isInactive);
    QCOMPARE(palette.testAttribute(Qt::WA_ShowWithoutActivating), inactive);
    QCOMPARE(palette.windowHandle()->property(platformsChoice).toBool(), told);
}

void FloatingWindowsTest::tellsDocks()
{
    HostWindow host;
    const QAction* action = host.addFloatingDock()->toggleViewAction();
    QVERIFY(action->isChecked());
    const auto token = HideFloatingWindows();
    QVERIFY(!action->isChecked());
    ShowFloatingWindows(token);
    QVERIFY(action->isChecked());
}

// A window that asks for files when it goes, and when it comes.
void FloatingWindowsTest::nestsInTheHostsOwnCode()
{
    Palette asking;
    const Palette other;
    int answers = 0;
    const auto ask = [&answers] {
        if (answers++ % 2 == 0)
            ShowFloatingWindows(HideFloatingWindows());
    };
    asking.onHide = ask;
    const auto token = HideFloatingWindows();
    QCOMPARE(answers, 1);
    QVERIFY(!asking.isVisible());
    QVERIFY(!other.isVisible());
    asking.onHide = [] {};
    answers = 0;
    asking.onShow = ask;
    ShowFloatingWindows(token);
    QCOMPARE(answers, 2); // the inner answer brought it once more
    QVERIFY(asking.isVisible());
    QVERIFY(other.isVisible());
}

// Without a window manager, the best that is known.
void FloatingWindowsTest::ordersByCreation()
{
    HostWindow host;
    Palette first(&host);
    Palette hidden;
    hidden.hide();
    Palette last;
    std::vector<WId> shown;
    for (Palette* palette : {&last, &first})
        palette->onShow = [palette, &shown] { shown.push_back(palette->winId()); };
    host.raise(); // is not known
    ShowFloatingWindows(HideFloatingWindows());
    QCOMPARE(shown, std::vector<WId>({first.winId(), last.winId()}));
}

void FloatingWindowsTest::survivesATokenOfAnEarlierTime()
{
    const Palette palette;
    lastToken = HideFloatingWindows();
    QVERIFY(lastToken);
}

QTEST_MAIN(FloatingWindowsTest)
#include "FloatingWindowsTest.moc"
