// SPDX-License-Identifier: MIT
// A host that no panel can be shown for: its request fails, with a warning that
// says why, and the host goes on.
#include "QuietTest.h"
#include "VyCocoa.h"
#include "VyFileDialog.h"
#include "VyFileDialogImpl.h"

#include <QApplication>
#include <QLineEdit>
#include <QProcess>
#include <QtTest>

#include <cstdio>
#include <cstring>
#include <thread>

namespace {

constexpr char noApplication[] =
    "VyFileDialogs: no native panel can be shown: there is no QGuiApplication";
constexpr char wrongThread[] =
    "VyFileDialogs: no native panel can be shown: this is not the user-interface thread";
constexpr char noDisplay[] =
    "VyFileDialogs: no native panel can be shown: no X display answers; see DISPLAY";

constexpr char noBackEnd[] = "VyFileDialogs: no native panel can be shown: "
                             "GNUstep found no back-end that works with this display";

QByteArray display; // the one that the tests run on

// A request as a host makes it, without anything that needs an event loop.
struct PlainRequest
{
    unsigned type;
    bool several;

    int status = 0;
    CVyUserIO::_FileNameRetVal mode = CVyUserIO::_FileNameRetVal(0xdead);
    CVyString path = CVyString(L"untouched");
    std::vector<CVyString> paths = {CVyString(L"untouched")};
    int typeIndex = 2;
    CVyString templateName = CVyString(L"template");
    OdCodePageId* codePage = nullptr;

    void make();
    void compareFailed() const;
};

void PlainRequest::make()
{
    CVyFileDialog::SetStyle(CVyFileDialog::StyleNative);
    const auto kind = CVyUserIO::_FileNameType(type);
    const CVyString filter(L"Drawings&*.dwg&Templates&*.dwt&All files&*.*");
    const CVyString folder(QDir::tempPath());
    const auto flags = CVyUserIO::FileNameModeChoices;
    status = several
                 ? CVyFileDialog::GetFileNames(&mode, &paths, 0, kind, L"Choose", L"dwg", filter,
                                               folder, &typeIndex, &templateName, flags, &codePage)
                 : CVyFileDialog::GetFileName(&mode, &path, 0, kind, L"Choose", L"dwg", filter,
                                              folder, &typeIndex, &templateName, flags, &codePage);
}

// The outputs are as they were, but the mode, which every request writes.
void PlainRequest::compareFailed() const
{
    QCOMPARE(status, VyStatus::Failed);
    QCOMPARE(QString(path), QString("untouched"));
    QCOMPARE(paths.size(), std::size_t(1));
    QCOMPARE(QString(paths.front()), QString("untouched"));
    QCOMPARE(typeIndex, 2);
    QCOMPARE(QString(templateName), QString("template"));
    QVERIFY(!codePage);
    QCOMPARE(mode, type == CVyUserIO::FileNameSave  ? CVyUserIO::Save
                   : type == CVyUserIO::FileNameNew ? CVyUserIO::NewFromTemplate
                                                    : CVyUserIO::Open);
}

void addRequests()
{
    QTest::addColumn<unsigned>("type");
    QTest::addColumn<bool>("several");
    for (const bool several : {false, true}) {
        const char* const files = several ? "several files" : "one file";
        QTest::addRow("new, %s", files) << unsigned(CVyUserIO::FileNameNew) << several;
        QTest::addRow("open, %s", files) << unsigned(CVyUserIO::FileNameOpen) << several;
        QTest::addRow("save, %s", files) << unsigned(CVyUserIO::FileNameSave) << several;
    }
}

} // namespace

/// A host without an application object, or with one that has no windows.
class ConsoleTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void requestFails_data() { addRequests(); }
    void requestFails();
};

void ConsoleTest::requestFails()
{
    QFETCH(unsigned, type);
    QFETCH(bool, several);
    for (int time = 0; time < 2; ++time) {
        PlainRequest request{type, several};
        request.make();
        request.compareFailed();
        QCOMPARE(takeMessages(), QStringList(noApplication));
    }
}

/// A host with windows of its own kind, on no display that a panel could use.
class NoDisplayTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void requestFails_data() { addRequests(); }
    void requestFails();
    void requestFailsOnAnotherThread();
    void windowsGoOn();
    void qtDialogsGoOn();
    void saysSoForEveryDisplayThatDoesNotAnswer_data();
    void saysSoForEveryDisplayThatDoesNotAnswer();
    void saysSoWithoutABackEnd();
};

void NoDisplayTest::requestFails()
{
    QFETCH(unsigned, type);
    QFETCH(bool, several);
    for (int time = 0; time < 2; ++time) {
        PlainRequest request{type, several};
        request.make();
        request.compareFailed();
        QCOMPARE(takeMessages(), QStringList(noDisplay));
    }
    QVERIFY(!VyCocoa::canShowPanels());
    QCOMPARE(takeMessages(), QStringList(noDisplay));
}

void NoDisplayTest::requestFailsOnAnotherThread()
{
    PlainRequest request{CVyUserIO::FileNameOpen, false};
    std::thread thread([&] { request.make(); });
    thread.join();
    request.compareFailed();
    QCOMPARE(takeMessages(), QStringList(wrongThread));
}

void NoDisplayTest::windowsGoOn()
{
    QLineEdit window;
    window.show();
    QWidget floating(&window, Qt::Tool);
    floating.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    takeMessages(); // what the platform says about windows
    PlainRequest request{CVyUserIO::FileNameOpen, false};
    request.make();
    QCOMPARE(takeMessages(), QStringList(noDisplay));
    QVERIFY(floating.isVisible());
    for (const char key : {'a', 'b', 'c'})
        QTest::keyClick(window.windowHandle(), key);
    QCOMPARE(window.text(), QString("abc"));
    bool fired = false;
    QTimer::singleShot(0, &window, [&] { fired = true; });
    QTRY_VERIFY(fired);
}

void NoDisplayTest::qtDialogsGoOn()
{
    PlainRequest request{CVyUserIO::FileNameOpen, false};
    request.make();
    QCOMPARE(takeMessages(), QStringList(noDisplay));
    const std::unique_ptr<CVyFileDialogImpl> dialog(
        CVyFileDialog::CreateImpl(CVyFileDialog::StyleQt, CVyUserIO::FileNameOpen, false, false));
    QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
    QCOMPARE(dialog->show(0), VyStatus::Cancelled);
    QCOMPARE(takeMessages().filter("VyFileDialogs"), QStringList());
}

void NoDisplayTest::saysSoForEveryDisplayThatDoesNotAnswer_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << "";
    QTest::newRow("nobody's") << ":4711";
    QTest::newRow("nonsense") << "no display";
}

// In processes of their own: the AppKit is looked for once.
void NoDisplayTest::saysSoForEveryDisplayThatDoesNotAnswer()
{
    QFETCH(QString, name);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", name);
    QProcess host;
    host.setProcessEnvironment(environment);
    host.start(QCoreApplication::applicationFilePath(), {"--ask"});
    QVERIFY(host.waitForFinished());
    QCOMPARE(host.exitStatus(), QProcess::NormalExit);
    QCOMPARE(host.exitCode(), 0);
    QCOMPARE(host.readAllStandardOutput(), QByteArray("-5001 -5001\n"));
    QCOMPARE(host.readAllStandardError().count(noDisplay), 2);
}

// Here the display answers, but the AppKit's own part for it is not installed.
void NoDisplayTest::saysSoWithoutABackEnd()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", QString::fromLocal8Bit(display));
    QProcess host;
    host.setProcessEnvironment(environment);
    host.start(QCoreApplication::applicationFilePath(), {"--ask", "-GSBackend", "libnonesuch"});
    QVERIFY(host.waitForFinished());
    QCOMPARE(host.exitStatus(), QProcess::NormalExit);
    QCOMPARE(host.readAllStandardOutput(), QByteArray("-5001 -5001\n"));
    QCOMPARE(host.readAllStandardError().count(noBackEnd), 2);
}

namespace {

// A host that asks twice and says what it was answered.
int askTwice(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    PlainRequest first{CVyUserIO::FileNameOpen, false};
    first.make();
    PlainRequest second{CVyUserIO::FileNameSave, true};
    second.make();
    std::printf("%d %d\n", first.status, second.status);
    return 0;
}

template <class Test>
int exec(int argc, char* argv[])
{
    Test test;
    return QTest::qExec(&test, argc, argv);
}

} // namespace

// One host after the other.
int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argc >= 2 && std::strcmp(argv[1], "--ask") == 0)
        return askTwice(argc, argv);
    display = qgetenv("DISPLAY");
    qunsetenv("DISPLAY");
    int failures = exec<ConsoleTest>(argc, argv);
    {
        const QCoreApplication application(argc, argv);
        failures += exec<ConsoleTest>(argc, argv);
    }
    const QApplication application(argc, argv);
    return failures + exec<NoDisplayTest>(argc, argv);
}

#include "NoDisplayTest.moc"
