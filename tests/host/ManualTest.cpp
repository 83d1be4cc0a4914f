// SPDX-License-Identifier: MIT
// The manual pages against the programs.
#include "SampleCommandLine.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QtTest>

#include <algorithm>

namespace {

// The options that the list under OPTIONS has entries for, as in the page:
// "-null" and "0" are the flags of ".It Fl 0 , Fl -null".
QStringList describedFlags(const QString& page)
{
    QStringList flags;
    for (const QString& line : page.split('\n')) {
        if (!line.startsWith(QLatin1String(".It Fl ")))
            continue;
        QRegularExpressionMatchIterator matches =
            QRegularExpression(QStringLiteral("Fl ([-a-z0-9]+)")).globalMatch(line);
        while (matches.hasNext())
            flags.append(matches.next().captured(1));
    }
    std::sort(flags.begin(), flags.end());
    return flags;
}

} // namespace

class ManualTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void init();

    void describesEveryOption();
    void namesEveryOptionInTheSynopsis();
    void givesEveryValueAName();
    void showsTypesForEveryDialog();
    void passesLint();

private:
    bool isCommand() const { return m_name == QLatin1String("vyfiledialog"); }
    QList<QCommandLineOption> options() const
    {
        return isCommand() ? CommandLine::options() : SampleCommandLine::options();
    }
    QString m_name;
    QString m_file;
    QString m_page;
};

void ManualTest::initTestCase_data()
{
    QTest::addColumn<QString>("program");
    for (const char* program : {"vyfiledialog", "vyfiledialog-sample"})
        QTest::newRow(program) << program;
}

void ManualTest::init()
{
    QFETCH_GLOBAL(QString, program);
    m_name = program;
    m_file = QStringLiteral(VY_MANUALS "/%1.1").arg(program);
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::ReadOnly));
    m_page = QString::fromUtf8(file.readAll());
}

// Neither one too few nor one too many.
void ManualTest::describesEveryOption()
{
    QStringList expected;
    for (const QCommandLineOption& option : options()) {
        for (const QString& name : option.names())
            expected.append(name.size() == 1 ? name : QLatin1Char('-') + name);
    }
    std::sort(expected.begin(), expected.end());
    QCOMPARE(describedFlags(m_page), expected);
}

void ManualTest::namesEveryOptionInTheSynopsis()
{
    const QString synopsis = m_page.section(".Sh SYNOPSIS", 1).section(".Sh ", 0, 0);
    for (const QCommandLineOption& option : options()) {
        const QRegularExpression flag(QStringLiteral("Fl -%1( |$)").arg(option.names().constLast()),
                                      QRegularExpression::MultilineOption);
        QVERIFY2(synopsis.contains(flag), qPrintable(option.names().constLast()));
    }
}

void ManualTest::givesEveryValueAName()
{
    for (const QCommandLineOption& option : options()) {
        const QString name = option.names().constLast();
        const QString value = option.valueName();
        const QString entry =
            QStringLiteral("Fl -%1%2\n")
                .arg(name, value.isEmpty() ? QString() : QLatin1String(" Ar ") + value);
        QVERIFY2(m_page.contains(entry), qPrintable(entry));
    }
}

// The types of the examples suit native panels, in which a reader may try them.
void ManualTest::showsTypesForEveryDialog()
{
    QRegularExpressionMatchIterator filters =
        QRegularExpression(QStringLiteral("--filter '([^']+)'")).globalMatch(m_page);
    int count = 0;
    for (; filters.hasNext(); ++count) {
        const QString filter = filters.next().captured(1);
        const CommandLine::Parsed parsed =
            CommandLine::parse({"vyfiledialog", "open", "--style", "native", "--filter", filter});
        QCOMPARE(parsed.error, QString());
        QCOMPARE(parsed.options.filter, std::optional(filter));
    }
    QCOMPARE(count > 2, isCommand());
}

void ManualTest::passesLint()
{
    const QString mandoc = QStandardPaths::findExecutable(QStringLiteral("mandoc"));
    if (mandoc.isEmpty())
        QSKIP("mandoc is not installed");
    QProcess process;
    process.start(mandoc, {"-T", "lint", "-W", "warning", m_file});
    QVERIFY(process.waitForFinished());
    QCOMPARE(QString::fromUtf8(process.readAllStandardOutput()), QString());
    QCOMPARE(process.exitCode(), 0);
}

QTEST_GUILESS_MAIN(ManualTest)
#include "ManualTest.moc"
