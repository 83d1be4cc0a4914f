// SPDX-License-Identifier: MIT
// The sample's arguments, and the program as far as it ends without a user.
#include "SampleCommandLine.h"
#include "HostPlatform.h"

#include <QProcess>
#include <QtTest>

namespace {

SampleCommandLine::Parsed parsed(const QStringList& arguments)
{
    return SampleCommandLine::parse(QStringList("vyfiledialog-sample") + arguments);
}

} // namespace

class SampleCommandLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reads();
    void readsTheStyle();
    void faults_data();
    void faults();
    void program_data();
    void program();
};

void SampleCommandLineTest::reads()
{
    const SampleCommandLine::Parsed none = parsed({});
    QCOMPARE(none.error, QString());
    QCOMPARE(none.files, QStringList());
    QCOMPARE(none.style, HostPlatform::defaultStyle());
    QVERIFY(none.action == Options::Action::Ask);

    QCOMPARE(parsed({"a.dwg", "--style", "qt", "--", "-b.dxf"}).files,
             (QStringList{"a.dwg", "-b.dxf"}));
    QVERIFY(parsed({"--help", "--style", "none"}).action == Options::Action::Help);
    QVERIFY(parsed({"-h"}).action == Options::Action::Help);
    QVERIFY(parsed({"--version"}).action == Options::Action::Version);
}

void SampleCommandLineTest::readsTheStyle()
{
    QCOMPARE(parsed({"--style", "qt"}).style, CVyFileDialog::StyleQt);
    const SampleCommandLine::Parsed native = parsed({"--style=native"});
    QCOMPARE(native.style, CVyFileDialog::StyleNative);
    QCOMPARE(native.error,
             VY_HAS_NATIVE ? QString() : QString("--style: this build has no native panels"));
}

void SampleCommandLineTest::faults_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");
    QTest::newRow("style") << QStringList{"--style", "gtk"}
                           << "--style: 'gtk' is no style: qt or native";
    QTest::newRow("no style") << QStringList{"--style"} << "Missing value after '--style'";
    QTest::newRow("option") << QStringList{"--json", "a.dwg"} << "Unknown option 'json'";
}

void SampleCommandLineTest::faults()
{
    QFETCH(QStringList, arguments);
    QTEST(parsed(arguments).error, "error");
}

void SampleCommandLineTest::program_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("output"); // the beginning
    QTest::addColumn<QString>("errors");
    QTest::newRow("version") << QStringList{"--version"} << 0 << SampleCommandLine::versionText()
                             << "";
    QTest::newRow("help") << QStringList{"--help"} << 0
                          << "Usage: " VY_PROGRAM " [options] [file...]\n"
                          << "";
    QTest::newRow("wrong usage") << QStringList{"--style", "gtk"} << 2 << ""
                                 << "vyfiledialog-sample: --style: 'gtk' is no style: qt or "
                                    "native\n";
    if (HostPlatform::defaultStyle() == CVyFileDialog::StyleQt)
        QTest::newRow("no display")
            << QStringList{"a.dwg"} << 3 << ""
            << "vyfiledialog-sample: there is no display to show a window on\n";
}

void SampleCommandLineTest::program()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
        environment.remove(QString::fromLatin1(name));
    QProcess process;
    process.setProcessEnvironment(environment);
    QFETCH(QStringList, arguments);
    process.start(QStringLiteral(VY_PROGRAM), arguments);
    QVERIFY(process.waitForFinished());
    QTEST(process.exitCode(), "status");
    QFETCH(QString, output);
    const QString printed = QString::fromUtf8(process.readAllStandardOutput());
    QCOMPARE(printed.left(output.size()), output);
    QCOMPARE(printed.isEmpty(), output.isEmpty());
    QTEST(QString::fromUtf8(process.readAllStandardError()), "errors");
}

QTEST_GUILESS_MAIN(SampleCommandLineTest)
#include "SampleCommandLineTest.moc"
