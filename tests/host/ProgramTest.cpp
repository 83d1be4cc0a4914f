// SPDX-License-Identifier: MIT
// The command itself, as far as it ends without a user: exit statuses, and what
// goes to which stream.
#include "Answer.h"
#include "CommandLine.h"
#include "HostPlatform.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

struct Outcome
{
    int status = -1; // negative: it did not end by itself
    QString output;
    QString errors;
};

using Variables = QList<QPair<QString, QString>>;

// Without a display, but for what \a variables give.
QProcessEnvironment environment(const Variables& variables)
{
    QProcessEnvironment result = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY", "XDG_RUNTIME_DIR"})
        result.remove(QString::fromLatin1(name));
    for (const auto& variable : variables)
        result.insert(variable.first, variable.second);
    return result;
}

Outcome run(const QString& program, const QStringList& arguments, const Variables& variables)
{
    QProcess process;
    process.setProcessEnvironment(environment(variables));
    process.start(program, arguments, QIODevice::ReadOnly);
    Outcome outcome;
    if (!process.waitForFinished(60000))
        process.kill();
    else if (process.exitStatus() == QProcess::NormalExit)
        outcome.status = process.exitCode();
    process.waitForFinished();
    outcome.output = QString::fromUtf8(process.readAllStandardOutput());
    outcome.errors = QString::fromUtf8(process.readAllStandardError());
    return outcome;
}

Outcome run(const QStringList& arguments, const Variables& variables = {})
{
    return run(QStringLiteral(VY_PROGRAM), arguments, variables);
}

// Runs the command by a shell that redirects its streams.
Outcome runRedirected(const char* redirection, const QStringList& arguments)
{
    const QString script = QLatin1String("\"$0\" \"$@\" ") + QLatin1String(redirection);
    return run(QStringLiteral("/bin/sh"),
               QStringList{QStringLiteral("-c"), script, QStringLiteral(VY_PROGRAM)} + arguments,
               {});
}

const Variables offscreen{{QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen")}};

QString line(const char* text)
{
    return QLatin1String("vyfiledialog: ") + QString::fromUtf8(text) + QLatin1Char('\n');
}

// What is said when a native panel is asked for and there is no display.
const QString noPanel = (VY_HAS_NATIVE ? line("VyFileDialogs: no native panel can be shown: "
                                              "no X display answers; see DISPLAY")
                                       : QString()) +
                        line("the dialog cannot be shown (status -5001)");

} // namespace

class ProgramTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data();
    void texts();
    void wrongUsage_data();
    void wrongUsage();
    void noDisplay_data();
    void noDisplay();
    void noDialog_data();
    void noDialog();
    void warns();
    void unwritableOutput_data();
    void unwritableOutput();
    void readerHasGone();
    void closedInputAndErrors();
};

void ProgramTest::texts_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("parts");
    QTest::newRow("help") << QStringList{"--help"}
                          << QStringList{"open|save|new", "--filter <types>", "Exit status: 0"};
    QTest::newRow("short help") << QStringList{"-h"} << QStringList{"-0, --null"};
    QTest::newRow("version") << QStringList{"--version"} << QStringList{CommandLine::versionText()};
}

void ProgramTest::texts()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, parts);
    const Outcome outcome = run(arguments);
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.errors, QString());
    for (const QString& part : parts)
        QVERIFY2(outcome.output.contains(part), qPrintable(part));
}

void ProgramTest::wrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("errors");
    QTest::newRow("nothing") << QStringList() << line("no request is given: open, save or new");
    QTest::newRow("option unknown to us and known to Qt")
        << QStringList{"open", "-platform", "offscreen"}
        << line("Unknown options: p, l, a, t, f, o, r, m");
    QTest::newRow("control characters")
        << QStringList{"op\nen\x1b[1m"} << line("'op?en?[1m' is no request: open, save or new");
    QTest::newRow("not ASCII") << QStringList{"öffnen"}
                               << line("'öffnen' is no request: open, save or new");
    QTest::newRow("style") << QStringList{"open", "--style", "fusion"}
                           << line("--style: 'fusion' is no style: qt or native");
    QTest::newRow("types that would stop a native panel")
        << QStringList{"open", "--style", "native", "--filter", "Drawings&*.dwg&All files&*"}
        << line("--filter: no type for a native open panel: 'All files (*)' has no extension; "
                "'*.*' stands for any file");
}

void ProgramTest::wrongUsage()
{
    QFETCH(QStringList, arguments);
    const Outcome outcome = run(arguments);
    QCOMPARE(outcome.status, 2);
    QTEST(outcome.errors, "errors");
    QCOMPARE(outcome.output, QString());
}

void ProgramTest::noDisplay_data()
{
    QTest::addColumn<Variables>("variables");
    QTest::addColumn<QString>("reason");
    QTest::newRow("nothing set") << Variables() << "there is no display to show a dialog on";
    QTest::newRow("set, but empty")
        << Variables{{"DISPLAY", ""}} << "there is no display to show a dialog on";
    QTest::newRow("no such display") << Variables{{"DISPLAY", ":9999"}, {"QT_QPA_PLATFORM", "xcb"}}
                                     << "no dialog can be shown: ";
    QTest::newRow("no such plug-in")
        << Variables{{"QT_QPA_PLATFORM", "nonesuch"}}
        << "no dialog can be shown: Could not find the Qt platform plugin \"nonesuch\"";
}

void ProgramTest::noDisplay()
{
    if (HostPlatform::defaultStyle() == CVyFileDialog::StyleNative)
        QSKIP("this platform always has a display");
    QFETCH(Variables, variables);
    QFETCH(QString, reason);
    const Outcome outcome = run({"open", "--json"}, variables);
    QCOMPARE(outcome.status, 3);
    QVERIFY2(outcome.errors.startsWith("vyfiledialog: " + reason), qPrintable(outcome.errors));
    QCOMPARE(outcome.errors.count('\n'), 1);
    QCOMPARE(outcome.output, QString());
}

void ProgramTest::noDialog_data()
{
    QTest::addColumn<QStringList>("request");
    QTest::newRow("open") << QStringList{"open"};
    QTest::newRow("open several") << QStringList{"open", "--multiple", "--modes"};
    QTest::newRow("open any file") << QStringList{"open", "--filter", "All files&*.*"};
    QTest::newRow("save") << QStringList{"save"};
    QTest::newRow("save under a type without extension")
        << QStringList{"save", "--filter", "All files&*"};
    QTest::newRow("new") << QStringList{"new"};
    QTest::newRow("new of a type without extension") << QStringList{"new", "--filter", "All&*"};
}

// Native panels need a display also where Qt does without.
void ProgramTest::noDialog()
{
    if (HostPlatform::defaultStyle() == CVyFileDialog::StyleNative)
        QSKIP("this platform always has a display");
    QFETCH(QStringList, request);
    const Outcome outcome = run(request + QStringList{"--json", "--style", "native"}, offscreen);
    QCOMPARE(outcome.status, 3);
    QCOMPARE(outcome.errors, noPanel);
    QCOMPARE(outcome.output, QString());
}

// The request that follows the warnings fails, so that no user is needed.
void ProgramTest::warns()
{
    if (HostPlatform::defaultStyle() == CVyFileDialog::StyleNative)
        QSKIP("this platform always has a display");
    const Outcome outcome =
        run({"save", "/dev/null", "--style", "native", "--filter", "A\n", "--parent", "0x400006"},
            offscreen);
    QCOMPARE(outcome.status, 3);
    QCOMPARE(outcome.errors,
             line("warning: the file type 'A?' has no patterns") +
                 line("warning: the start path '/dev/null' is neither a file nor a folder") +
                 line("QWindow::fromWinId(): platform plugin does not support foreign windows.") +
                 noPanel);
}

void ProgramTest::unwritableOutput_data()
{
    QTest::addColumn<QString>("device"); // what the row needs
    QTest::addColumn<QByteArray>("redirection");
    QTest::addColumn<QString>("errors");
    const QString unopened = line("the standard output is not open for writing");
    const QString unwritten = line("the standard output cannot be written to");
    QTest::newRow("closed") << "/dev/null" << QByteArray(">&-") << unopened;
    QTest::newRow("every stream but errors closed")
        << "/dev/null" << QByteArray("<&- >&-") << unopened;
    QTest::newRow("open for reading") << "/dev/null" << QByteArray("1</dev/null") << unopened;
    QTest::newRow("full disk") << "/dev/full" << QByteArray(">/dev/full") << unwritten;
}

void ProgramTest::unwritableOutput()
{
    QFETCH(QString, device);
    if (!QFileInfo::exists(device))
        QSKIP("this machine has no such device");
    QFETCH(QByteArray, redirection);
    const Outcome outcome = runRedirected(redirection.constData(), {"--help"});
    QCOMPARE(outcome.status, 3);
    QTEST(outcome.errors, "errors");
}

// A pipe that nobody reads any more.
void ProgramTest::readerHasGone()
{
    const QTemporaryDir folder;
    const QString script = QStringLiteral("mkfifo \"$1\" && exec 3<>\"$1\" 4>\"$1\" 3<&- && "
                                          "exec \"$0\" --help >&4");
    const Outcome outcome = run(
        QStringLiteral("/bin/sh"),
        {QStringLiteral("-c"), script, QStringLiteral(VY_PROGRAM), folder.filePath("pipe")}, {});
    QCOMPARE(outcome.status, 3);
    QCOMPARE(outcome.errors, line("the standard output cannot be written to"));
}

void ProgramTest::closedInputAndErrors()
{
    const Outcome outcome = runRedirected("<&- 2>&-", {"--version"});
    QCOMPARE(outcome.status, 0);
    QCOMPARE(outcome.output, CommandLine::versionText());
    QCOMPARE(runRedirected("2>&-", {"opne"}).status, 2);
    QCOMPARE(runRedirected("2>&- >&-", {"--version"}).status, 3);
}

QTEST_GUILESS_MAIN(ProgramTest)
#include "ProgramTest.moc"
