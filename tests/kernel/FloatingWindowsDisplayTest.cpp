// SPDX-License-Identifier: MIT
// Floating windows on a real screen: what the X server and the window manager say
// of them before they are hidden, and when they are back.
#include "VyFloatingWindows.h"
#include "contract/Palette.h"

#include <QApplication>
#include <QProcess>
#include <QRegularExpression>

#include <map>
#include <memory>
#include <vector>

#include <xcb/xcb.h>

namespace {

QString said(const char* program, const QStringList& arguments)
{
    QProcess process;
    process.start(QString::fromLatin1(program), arguments);
    process.waitForFinished(10000);
    return QString::fromLocal8Bit(process.readAllStandardOutput());
}

QString id(const QWidget& window)
{
    return QStringLiteral("0x%1").arg(window.winId(), 0, 16);
}

// The windows of the screen, back to front.
QStringList stacking()
{
    const QString list = said("xprop", {"-root", "_NET_CLIENT_LIST_STACKING"});
    return list.section("# ", 1).trimmed().split(", ");
}

QString active()
{
    return said("xprop", {"-root", "_NET_ACTIVE_WINDOW"});
}

// What is to be the same afterwards: the window in its frame, the frame and what
// the window manager notes, but for WM_STATE, which it notes of a window on another
// desktop when that is shown.
QString look(const QString& window)
{
    static const QRegularExpression facts(
        "upper-left [XY]: *-?\\d+|(?:Width|Height): *\\d+|Map State: \\w+");
    QString result = window;
    const QString info = said("xwininfo", {"-id", window});
    for (auto found = facts.globalMatch(info); found.hasNext();)
        result += ' ' + found.next().captured().section(' ', -1);
    const QString properties =
        said("xprop", {"-id", window, "_NET_FRAME_EXTENTS", "_NET_WM_STATE", "_NET_WM_DESKTOP",
                       "_NET_WM_WINDOW_OPACITY", "_NET_WM_WINDOW_TYPE", "WM_TRANSIENT_FOR"});
    return result + ' ' + properties.simplified();
}

// The looks of the windows on screen, back to front, and the active one.
QStringList screen()
{
    QStringList looks;
    for (const QString& window : stacking())
        looks.append(look(window));
    return looks << active();
}

// The screen when the window manager has done what it was asked for.
QStringList quietScreen()
{
    QStringList before;
    for (QStringList now = screen(); now != before; now = screen()) {
        before = now;
        QTest::qWait(100);
    }
    return before;
}

// Asks the window manager for something on its user's behalf.
void command(const QWidget& window, const char* name, std::vector<std::uint32_t> data)
{
    xcb_connection_t* const server = xcb_connect(nullptr, nullptr);
    const auto atom = [server](const std::string& text) {
        const auto question =
            xcb_intern_atom(server, false, static_cast<std::uint16_t>(text.size()), text.data());
        xcb_intern_atom_reply_t* const reply = xcb_intern_atom_reply(server, question, nullptr);
        const xcb_atom_t result = reply->atom;
        free(reply);
        return result;
    };
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = static_cast<xcb_window_t>(window.winId());
    const std::string text = name;
    const bool isState = text.compare(0, 14, "_NET_WM_STATE_") == 0;
    message.type = atom(isState ? "_NET_WM_STATE" : text);
    if (isState)
        data = {1, atom(text)}; // 1: add
    std::copy(data.begin(), data.end(), message.data.data32);
    xcb_send_event(server, false, xcb_setup_roots_iterator(xcb_get_setup(server)).data->root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&message));
    xcb_flush(server);
    xcb_disconnect(server);
    QTest::qWait(100);
}

using Window = std::shared_ptr<QWidget>;

// On screen, and in front; where the window manager likes it when \a place is null.
Window open(const QRect& place, const Window& parent = {}, Qt::WindowFlags flags = Qt::Tool)
{
    const Window window(new QWidget(parent.get(), flags),
                        [parent](QWidget* made) { delete made; }); // before its parent
    if (!place.isNull())
        window->setGeometry(place);
    window->show();
    if (!QTest::qWaitForWindowExposed(window.get()))
        QTest::qFail("the window did not come", __FILE__, __LINE__);
    QTest::qWait(100);
    return window;
}

Window openMain(const QRect& place)
{
    return open(place, {}, Qt::Window);
}

const QRect left(100, 100, 600, 500);
const QRect right(300, 220, 600, 500);
const QRect one(200, 200, 300, 200);
const QRect two(250, 250, 310, 190);
const QRect three(280, 230, 280, 220);

using Scene = std::vector<Window>;
using Maker = std::function<Scene()>;

// A scene whose second window gets what \a deed does to it.
Maker with(const std::function<void(QWidget&)>& deed, Qt::WindowFlags flags = Qt::Tool)
{
    return [deed, flags] {
        const Window main = openMain(left);
        const Window tool = open(one, main, flags);
        deed(*tool);
        return Scene{main, tool, open(two, main)};
    };
}

Scene toolsOfAllKinds()
{
    const Window first = openMain(left);
    const Window child = open(one, first);
    const Window alone = open(two);
    const Window second = openMain(right);
    const Window other = open(three, second);
    return {first, child, alone, second, other, open(two, other)};
}

} // namespace

Q_DECLARE_METATYPE(Maker)

class FloatingWindowsDisplayTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void comesBackAsItWas_data();
    void comesBackAsItWas();
    void comesBackBetweenOthersWindows();
    void comesBackToItsNormalSize_data();
    void comesBackToItsNormalSize();
    void comesBackWhateverTokenIsFirst_data();
    void comesBackWhateverTokenIsFirst();
    void followsWhatItLayOn();
};

void FloatingWindowsDisplayTest::comesBackAsItWas_data()
{
    QTest::addColumn<Maker>("make");

    QTest::newRow("over each other") << Maker([] {
        const Window main = openMain(left);
        const Window first = open(one, main);
        Scene scene{main, first, open(two, main), open(three, main)};
        first->raise();
        return scene;
    });
    QTest::newRow("never placed") << Maker([] {
        const Window main = openMain(left);
        return Scene{main, open({}, main), open({}), open({}, main, Qt::Tool | Qt::Dialog)};
    });
    QTest::newRow("never placed, but moved by the user") << Maker([] {
        const Window main = openMain(left);
        const Scene scene{main, open({}, main), open({})};
        said("xdotool", {"windowmove", id(*scene[1]), "431", "317"});
        said("xdotool", {"windowmove", id(*scene[2]), "23", "517"});
        return scene;
    });
    QTest::newRow("behind another window") << Maker([] {
        const Window main = openMain(left);
        return Scene{main, open(one, main), open(two, main), openMain(right)};
    });
    QTest::newRow("of no window, between windows") << Maker([] {
        return Scene{openMain(left), open(one), openMain(right), open(two), openMain(left)};
    });
    QTest::newRow("behind the active one") << Maker([] {
        Scene scene{openMain(left), open(one), open(two), openMain(right)};
        scene[0]->activateWindow();
        return scene;
    });
    QTest::newRow("active one not in front") << Maker([] {
        const Window main = openMain(left);
        const Window second = openMain(right);
        command(*second, "_NET_RESTACK_WINDOW", {2, 0, XCB_STACK_MODE_BELOW});
        return Scene{main, second, open(one, main), open(two, second)};
    });
    QTest::newRow("of all kinds") << Maker(toolsOfAllKinds);
    QTest::newRow("frameless") << with([](QWidget&) {}, Qt::Tool | Qt::FramelessWindowHint);
    QTest::newRow("title alone") << with([](QWidget&) {},
                                         Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    QTest::newRow("on top") << with([](QWidget&) {}, Qt::Tool | Qt::WindowStaysOnTopHint);
    QTest::newRow("of one size") << with([](QWidget& tool) { tool.setFixedSize(210, 120); });
    QTest::newRow("half transparent") << with([](QWidget& tool) { tool.setWindowOpacity(0.5); });
    QTest::newRow("partly outside") << with([](QWidget& tool) { tool.move(-150, 900); });
    QTest::newRow("maximized") << with([](QWidget& tool) { tool.showMaximized(); });
    QTest::newRow("minimized") << with([](QWidget& tool) { tool.showMinimized(); });
    QTest::newRow("moved by the user") << with([](QWidget& tool) {
        said("xdotool", {"windowmove", id(tool), "431", "317"});
    });
    QTest::newRow("resized by the user") << with([](QWidget& tool) {
        said("xdotool", {"windowsize", id(tool), "431", "317"});
    });
    for (const char* state :
         {"_NET_WM_STATE_SHADED", "_NET_WM_STATE_STICKY", "_NET_WM_STATE_ABOVE",
          "_NET_WM_STATE_BELOW", "_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_MAXIMIZED_VERT"})
        QTest::newRow(state) << with([state](QWidget& tool) { command(tool, state, {}); });
    QTest::newRow("on another desktop") << Maker([] {
        const Window main = openMain(left);
        const Window there = open(one);
        command(*there, "_NET_WM_DESKTOP", {1, 2});
        return Scene{main, there, open(two, main)};
    });
    QTest::newRow("floating dock") << Maker([] {
        const auto host = std::make_shared<HostWindow>();
        host->addFloatingDock()->setGeometry(one);
        return Scene{host, open(two, host)};
    });
}

void FloatingWindowsDisplayTest::comesBackAsItWas()
{
    QFETCH(Maker, make);
    const Scene scene = make();
    const QStringList before = quietScreen();
    QProcess activations;
    activations.start("xprop", {"-root", "-spy", "_NET_ACTIVE_WINDOW"});
    QVERIFY(activations.waitForReadyRead());
    const auto token = HideFloatingWindows();
    QVERIFY(quietScreen() != before);
    ShowFloatingWindows(token);
    QCOMPARE(quietScreen(), before);
    activations.terminate();
    QVERIFY(activations.waitForFinished());
    QCOMPARE(QString(activations.readAllStandardOutput()), active());
}

void FloatingWindowsDisplayTest::comesBackBetweenOthersWindows()
{
    const Window main = openMain(left);
    const Window tool = open(one, main);
    QProcess stranger;
    stranger.start("xev", {"-geometry", "300x300+220+220"});
    QTRY_COMPARE(stacking().size(), 3);
    QCOMPARE(stacking().mid(0, 2), QStringList({id(*main), id(*tool)}));
    const QStringList before = quietScreen();
    const auto token = HideFloatingWindows();
    QTRY_COMPARE(stacking().size(), 2);
    ShowFloatingWindows(token);
    QCOMPARE(quietScreen(), before);
    stranger.terminate();
    QVERIFY(stranger.waitForFinished());
}

void FloatingWindowsDisplayTest::comesBackToItsNormalSize_data()
{
    QTest::addColumn<Qt::WindowState>("state");

    QTest::newRow("from maximized") << Qt::WindowMaximized;
    QTest::newRow("from minimized") << Qt::WindowMinimized;
    QTest::newRow("from full screen") << Qt::WindowFullScreen;
}

void FloatingWindowsDisplayTest::comesBackToItsNormalSize()
{
    QFETCH(Qt::WindowState, state);
    const Window main = openMain(left);
    const Window tool = open(one);
    const QStringList normal = quietScreen();
    tool->setWindowState(state);
    quietScreen();
    const auto token = HideFloatingWindows();
    quietScreen();
    ShowFloatingWindows(token);
    quietScreen();
    tool->setWindowState(Qt::WindowNoState);
    const QRegularExpression itself('^' + id(*tool));
    QCOMPARE(quietScreen().filter(itself), normal.filter(itself));
}

void FloatingWindowsDisplayTest::comesBackWhateverTokenIsFirst_data()
{
    QTest::addColumn<QByteArray>("order");
    for (const char* order : {"abc", "acb", "bac", "bca", "cab", "cba"})
        QTest::newRow(order) << QByteArray(order);
}

void FloatingWindowsDisplayTest::comesBackWhateverTokenIsFirst()
{
    QFETCH(QByteArray, order);
    const Scene scene = toolsOfAllKinds();
    QStringList all = quietScreen();
    std::map<char, decltype(HideFloatingWindows())> tokens;
    tokens['a'] = HideFloatingWindows();
    QTRY_COMPARE(stacking(), QStringList({id(*scene[0]), id(*scene[3])}));
    const Window later = open(one, scene[3]);
    all.insert(all.size() - 1, look(id(*later)));
    tokens['b'] = HideFloatingWindows();
    QTRY_COMPARE(stacking(), QStringList({id(*scene[0]), id(*scene[3])}));
    tokens['c'] = HideFloatingWindows();
    for (const char token : order.chopped(1)) {
        ShowFloatingWindows(tokens[token]);
        QTest::qWait(150);
        QStringList shown = {id(*scene[0]), id(*scene[3])};
        if (token != order.front() && order.back() == 'a')
            shown.append(id(*later)); // which the first token never held
        QCOMPARE(stacking(), shown);
    }
    ShowFloatingWindows(tokens[order.back()]);
    QCOMPARE(quietScreen(), all);
}

// The host's windows change places while the tools are away.
void FloatingWindowsDisplayTest::followsWhatItLayOn()
{
    const Window first = openMain(left);
    const Window tool = open(one, first);
    const Window second = openMain(right);
    const auto token = HideFloatingWindows();
    QTRY_COMPARE(stacking(), QStringList({id(*first), id(*second)}));
    first->raise();
    QTRY_COMPARE(stacking(), QStringList({id(*second), id(*first)}));
    ShowFloatingWindows(token);
    QTRY_COMPARE(stacking(), QStringList({id(*second), id(*first), id(*tool)}));
}

// The windows must be real, whatever platform the tests run on elsewhere.
int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "xcb");
    QApplication application(argc, argv);
    FloatingWindowsDisplayTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "FloatingWindowsDisplayTest.moc"
