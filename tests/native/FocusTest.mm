// SPDX-License-Identifier: MIT
// Windows and keys: what the user sees in front, where what he types goes, and
// that the host has all that is its own back afterwards: windows, focus, signals
// and child processes. The keys are real ones.
#include "NativeTest.h"

#include <QLineEdit>
#include <QPointer>
#include <QProcess>
#include <QVBoxLayout>

#include <csignal>

namespace {

volatile std::sig_atomic_t terminations = 0;

// A host's window, of which the second field has the focus.
class HostWindow : public QWidget
{
public:
    HostWindow()
        : other(new QLineEdit(this))
        , edit(new QLineEdit(this))
    {
        auto* rows = new QVBoxLayout(this);
        rows->addWidget(other);
        rows->addWidget(edit);
        setWindowTitle(QStringLiteral("Host"));
        setGeometry(300, 300, 500, 400);
        edit->setFocus();
        show();
        if (!QTest::qWaitForWindowActive(this))
            QTest::qFail("the host's window did not become active", __FILE__, __LINE__);
    }

    QLineEdit* const other;
    QLineEdit* const edit;
};

// A user at the keyboard, in a process of his own: what he does goes on while
// this one is busy.
class User
{
public:
    /// Waits until the window with that title is active, then does \a commands.
    User(const char* title, const QString& commands)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral("bash"),
                        {QStringLiteral("-c"), QString::fromLatin1(script), QStringLiteral("user"),
                         QString::fromLatin1(title), commands});
    }
    ~User()
    {
        said();
        if (!m_output.endsWith("done\n"))
            QTest::qFail("the user did not find the window", __FILE__, __LINE__);
    }
    Q_DISABLE_COPY(User)

    /// What the commands said, and at last "done".
    QStringList said()
    {
        if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(10000))
            QTest::qFail("the user did not come to an end", __FILE__, __LINE__);
        m_output += m_process.readAllStandardOutput();
        return QString::fromLocal8Bit(m_output).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }

private:
    static constexpr char script[] = R"(
        is_active() {
            [[ $(xdotool getactivewindow getwindowname 2>/dev/null) == "$1" &&
                $(xdotool getwindowfocus getwindowname 2>/dev/null) == "$1" ]]
        }
        for ((tries = 0; tries < 200; ++tries)); do
            if is_active "$1"; then
                sleep 0.3
                eval "$2"
                echo done
                exit
            fi
            sleep 0.05
        done
    )";

    QProcess m_process;
    QByteArray m_output;
};

} // namespace

class FocusTest : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void givesTheFocusBack_data();
    void givesTheFocusBack();
    void givesTheFocusBackToTheWindowThatHadIt();
    void activatesNothingWhereNothingWas();
    void panelIsInFront_data();
    void panelIsInFront();
    void acceptsATypedName_data();
    void acceptsATypedName();
    void escapeCancels_data();
    void escapeCancels();
    void hidesFloatingWindows_data();
    void hidesFloatingWindows();
    void leavesOtherFloatingWindowsAlone();
    void leavesTheHostItsSignals();
    void leavesTheHostItsChildProcesses();

private:
    static void addKinds();
    static void compareTypedInto(HostWindow& window);
};

void FocusTest::addKinds()
{
    QTest::addColumn<unsigned>("type");
    QTest::newRow("open") << unsigned(CVyUserIO::FileNameOpen);
    QTest::newRow("new") << unsigned(CVyUserIO::FileNameNew);
    QTest::newRow("save") << unsigned(CVyUserIO::FileNameSave);
}

// The window is active again, with the focus where it was, and a key that is
// pressed arrives there.
void FocusTest::compareTypedInto(HostWindow& window)
{
    QTRY_COMPARE(QApplication::activeWindow(), &window);
    QTRY_COMPARE(QApplication::focusWidget(), window.edit);
    QCOMPARE(window.edit->text(), QString());
    User user("Host", "xdotool type abc");
    QTRY_COMPARE(window.edit->text(), QString("abc"));
    QCOMPARE(window.other->text(), QString());
}

void FocusTest::givesTheFocusBack_data()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<bool>("accepts");
    for (const bool accepts : {true, false}) {
        const char* const end = accepts ? "accepted" : "cancelled";
        QTest::addRow("open, %s", end) << unsigned(CVyUserIO::FileNameOpen) << accepts;
        QTest::addRow("new, %s", end) << unsigned(CVyUserIO::FileNameNew) << accepts;
        QTest::addRow("save, %s", end) << unsigned(CVyUserIO::FileNameSave) << accepts;
    }
}

void FocusTest::givesTheFocusBack()
{
    QFETCH(unsigned, type);
    QFETCH(bool, accepts);
    addFile("plan.dwg");
    HostWindow window;
    HostRequest host = request(type);
    host.parent = window.winId();
    host.start = path("plan2.dwg");
    run(host, {onPanel([](NSSavePanel* panel) {
                   if ([panel isKindOfClass:[NSOpenPanel class]])
                       selectNames(panel, {"plan.dwg"});
               }),
               accepts ? accept() : cancel()});
    QCOMPARE(host.status, accepts ? VyStatus::Accepted : VyStatus::Cancelled);
    compareTypedInto(window);
}

void FocusTest::givesTheFocusBackToTheWindowThatHadIt()
{
    QWidget below;
    below.setWindowTitle("Below");
    below.setGeometry(100, 100, 300, 300);
    below.show();
    QVERIFY(QTest::qWaitForWindowActive(&below));
    HostWindow window;
    HostRequest open = request(CVyUserIO::FileNameOpen);
    open.parent = below.winId(); // a panel has no parent
    run(open, {cancel()});
    compareTypedInto(window);
}

void FocusTest::activatesNothingWhereNothingWas()
{
    QWidget minimized;
    minimized.setWindowTitle("Minimized");
    minimized.showMinimized();
    QTRY_VERIFY(minimized.isVisible());
    HostRequest open = request(CVyUserIO::FileNameOpen);
    run(open, {cancel()});
    QTest::qWait(200);
    QVERIFY(!QApplication::activeWindow());
    QVERIFY(minimized.isMinimized());
}

void FocusTest::panelIsInFront_data()
{
    addKinds();
}

void FocusTest::panelIsInFront()
{
    QFETCH(unsigned, type);
    HostWindow window;
    QWidget tool(&window, Qt::Tool);
    tool.show();
    QVERIFY(QTest::qWaitForWindowExposed(&tool));
    HostRequest host = request(type);
    host.flags = CVyUserIO::FileNameModeChoices; // for the title of a save
    bool wasKey = false;
    QTimer look;
    connect(&look, &QTimer::timeout, [&] {
        NSWindow* const panel = [NSApp modalWindow];
        if (panel && [panel isVisible] && [panel isKeyWindow] && [NSApp keyWindow] == panel)
            wasKey = true;
    });
    look.start(10);
    User user("Choose", "xdotool getactivewindow;"
                        "xprop -root _NET_CLIENT_LIST_STACKING | sed 's/.*# //';"
                        "xdotool key Escape");
    run(host, {});
    QVERIFY(wasKey);

    const QStringList said = user.said();
    QCOMPARE(said.size(), 3);
    QList<qulonglong> stacking; // from below
    const QStringList ids = said[1].split(", ");
    for (const QString& id : ids)
        stacking += id.toULongLong(nullptr, 16);
    QCOMPARE(stacking.last(), said[0].toULongLong());
    QVERIFY(stacking.contains(window.winId()));
    QVERIFY(stacking.last() != window.winId());
    QVERIFY(!stacking.contains(tool.winId()));
}

void FocusTest::acceptsATypedName_data()
{
    addKinds();
}

void FocusTest::acceptsATypedName()
{
    QFETCH(unsigned, type);
    addFile("plan.dwg");
    addFile("plant.dwg");
    const QString name = type == CVyUserIO::FileNameSave ? "new.dwg" : "plan.dwg";
    HostWindow window;
    HostRequest host = request(type);
    host.flags = CVyUserIO::FileNameModeChoices;
    host.withTypeIndex = false; // the name is answered as it is
    const User user("Choose", "xdotool type --delay 30 " + name + "; xdotool key Return");
    run(host, {});
    QCOMPARE(host.status, VyStatus::Accepted);
    QCOMPARE(host.paths, QStringList(path(name)));
    compareTypedInto(window);
}

void FocusTest::escapeCancels_data()
{
    addKinds();
}

void FocusTest::escapeCancels()
{
    QFETCH(unsigned, type);
    addFile("plan.dwg");
    HostWindow window;
    HostRequest host = request(type);
    host.flags = CVyUserIO::FileNameModeChoices;
    const User user("Choose", "xdotool type --delay 30 plan; xdotool key Escape");
    run(host, {});
    QCOMPARE(host.status, VyStatus::Cancelled);
    QCOMPARE(host.paths, QStringList());
    compareTypedInto(window);
}

void FocusTest::hidesFloatingWindows_data()
{
    givesTheFocusBack_data();
}

void FocusTest::hidesFloatingWindows()
{
    QFETCH(unsigned, type);
    QFETCH(bool, accepts);
    addFile("plan.dwg");
    HostWindow window;
    QWidget tool(&window, Qt::Tool);
    QWidget other(nullptr, Qt::Tool);
    tool.setGeometry(50, 60, 200, 150);
    for (QWidget* floating : {&tool, &other}) {
        floating->show();
        QVERIFY(QTest::qWaitForWindowExposed(floating));
    }
    const QRect geometry = tool.geometry();
    window.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &window);

    HostRequest host = request(type);
    host.start = path("plan2.dwg");
    run(host, {onPanel([&](NSSavePanel* panel) {
                   QVERIFY(!tool.isVisible());
                   QVERIFY(!other.isVisible());
                   QVERIFY(window.isVisible());
                   if ([panel isKindOfClass:[NSOpenPanel class]])
                       selectNames(panel, {"plan.dwg"});
               }),
               accepts ? accept() : cancel()});
    QCOMPARE(host.status, accepts ? VyStatus::Accepted : VyStatus::Cancelled);
    QVERIFY(tool.isVisible());
    QVERIFY(other.isVisible());
    QVERIFY(QTest::qWaitForWindowExposed(&tool));
    QTRY_COMPARE(tool.geometry(), geometry);
    compareTypedInto(window);
}

void FocusTest::leavesOtherFloatingWindowsAlone()
{
    HostWindow window;
    QWidget hidden(&window, Qt::Tool);
    QPointer<QWidget> doomed = new QWidget(&window, Qt::Tool);
    doomed->show();
    QVERIFY(QTest::qWaitForWindowExposed(doomed));
    HostRequest open = request(CVyUserIO::FileNameOpen);
    run(open, {onPanel([&](NSSavePanel*) { delete doomed; }), cancel()});
    QVERIFY(!doomed);
    QVERIFY(!hidden.isVisible());
    QCOMPARE(open.status, VyStatus::Cancelled);
}

// The handlers were installed before there was an application object.
void FocusTest::leavesTheHostItsSignals()
{
    HostRequest open = request(CVyUserIO::FileNameOpen);
    terminations = 0;
    run(open, {onPanel([](NSSavePanel*) {
                   std::raise(SIGINT); // ignored
                   std::raise(SIGTERM);
               }),
               cancel()});
    QCOMPARE(int(terminations), 1);
    QCOMPARE(open.status, VyStatus::Cancelled);
    std::raise(SIGTERM);
    QCOMPARE(int(terminations), 2);

    struct sigaction interrupt = {};
    QCOMPARE(sigaction(SIGINT, nullptr, &interrupt), 0);
    QVERIFY(interrupt.sa_handler == SIG_IGN);
    struct sigaction terminate = {};
    QCOMPARE(sigaction(SIGTERM, nullptr, &terminate), 0);
    QCOMPARE(terminate.sa_flags & SA_RESTART, SA_RESTART);
    QCOMPARE(sigismember(&terminate.sa_mask, SIGUSR1), 1);
}

// Their end is the host's to hear of, whenever it comes.
void FocusTest::leavesTheHostItsChildProcesses()
{
    QProcess before;
    QProcess during;
    QProcess after;
    const auto start = [](QProcess& child, const char* commands) {
        child.start("sh", {"-c", QString::fromLatin1(commands)});
        QVERIFY(child.waitForStarted());
    };
    start(before, "sleep 0.3; exit 3");
    HostRequest open = request(CVyUserIO::FileNameOpen);
    const PanelDriver::Step wait = onPanel([](NSSavePanel*) {});
    run(open, {onPanel([&](NSSavePanel*) { start(during, "exit 4"); }), wait, wait, wait, wait,
               wait, wait, wait, wait, cancel()});
    start(after, "exit 5");
    int code = 3;
    for (QProcess* child : {&before, &during, &after}) {
        QTRY_COMPARE(child->state(), QProcess::NotRunning);
        QCOMPARE(child->exitStatus(), QProcess::NormalExit);
        QCOMPARE(child->exitCode(), code++);
    }
}

// The windows must be real, whatever platform the tests run on elsewhere.
int main(int argc, char* argv[])
{
    struct sigaction terminate = {};
    terminate.sa_handler = [](int) { terminations = terminations + 1; };
    terminate.sa_flags = SA_RESTART;
    sigaddset(&terminate.sa_mask, SIGUSR1);
    sigaction(SIGTERM, &terminate, nullptr);
    std::signal(SIGINT, SIG_IGN);

    qputenv("QT_QPA_PLATFORM", "xcb");
    QApplication application(argc, argv);
    FocusTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "FocusTest.moc"
