// SPDX-License-Identifier: MIT
// The patterns of a file type, against Qt's own answers to them.
#include "CompiledExpressions.h"
#include "QtMatcher.h"
#include "VyNameMatcher.h"

#include <QtTest>

#include <random>

namespace {

QString randomText(std::mt19937& random, const QString& letters, int longest)
{
    QString text;
    for (auto length = 1 + random() % static_cast<unsigned>(longest); length > 0; --length)
        text += letters.at(static_cast<int>(random() % static_cast<unsigned>(letters.size())));
    return text;
}

} // namespace

class NameMatcherTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void matches_data();
    void matches();
    void answersAsQt_data();
    void answersAsQt();
    void endingsDifferInCaseAsQtSays();
    void caseCanCount();
    void compilesEachPatternOnce_data();
    void compilesEachPatternOnce();
    void manyWildcardsAreNoTrap();
};

void NameMatcherTest::matches_data()
{
    QTest::addColumn<QStringList>("patterns");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("expected");
    const auto row = [](const char* title, const QStringList& patterns, const QString& name,
                        bool expected) { QTest::newRow(title) << patterns << name << expected; };
    row("no pattern", {}, "plan.dwg", true);
    row("ending", {"*.dwg"}, "plan.dwg", true);
    row("upper case", {"*.dwg"}, "PLAN.DWG", true);
    row("upper-case pattern", {"*.DWG"}, "plan.dwg", true);
    row("another ending", {"*.dwg"}, "plan.dxf", false);
    row("ending alone", {"*.dwg"}, ".dwg", true);
    row("ending inside", {"*.dwg"}, "plan.dwg.bak", false);
    row("no dot", {"*.dwg"}, "plandwg", false);
    row("double ending", {"*.tar.gz"}, "archive.tar.gz", true);
    row("second pattern", {"*.dwg", "*.dxf"}, "plan.dxf", true);
    row("everything", {"*"}, "plan", true);
    row("everything, empty name", {"*"}, "", true);
    row("with a dot", {"*.*"}, "plan", false);
    row("with a dot, hidden", {"*.*"}, ".plan", true);
    row("one character", {"?.dwg"}, "a.dwg", true);
    row("two for one", {"?.dwg"}, "ab.dwg", false);
    row("set", {"plan[0-9].dwg"}, "plan7.dwg", true);
    row("not in the set", {"plan[0-9].dwg"}, "planx.dwg", false);
    row("excluded set", {"plan[!0-9].dwg"}, "planx.dwg", true);
    row("open bracket", {"plan[.dwg"}, "plan[.dwg", false);
    row("beside an open bracket", {"[", "*.dwg"}, "plan.dwg", true);
    row("plain name", {"plan.dwg"}, "Plan.dwg", true);
    row("plain name, longer", {"plan.dwg"}, "a plan.dwg", false);
    row("dot is a dot", {"*.d.g"}, "plan.dwg", false);
    row("plus is a plus", {"*.c++"}, "plan.c++", true);
    row("backslash", {"*.a\\b"}, "plan.a\\b", true);
    row("line break in the name", {"*.dwg"}, "plan\n2.dwg", true);
    row("line break at the end", {"*.dwg"}, "plan.dwg\n", false);
    row("cyrillic", {QString::fromUtf8("*.план")}, QString::fromUtf8("а.ПЛАН"), true);
    row("sharp s", {QString::fromUtf8("*.stra\u00dfe")}, "a.STRASSE", false);
    row("kelvin sign", {"*.k"}, QString::fromUtf8("a.\u212a"), true);
    row("half a character", {"*.dwg"}, QChar(0xd800) + QStringLiteral("a.dwg"), false);
}

void NameMatcherTest::matches()
{
    QFETCH(QStringList, patterns);
    QFETCH(QString, name);
    QFETCH(bool, expected);
    QCOMPARE(CVyNameMatcher(patterns).matches(name), expected);
    QCOMPARE(QtMatcher(patterns).matches(name), expected);
}

void NameMatcherTest::answersAsQt_data()
{
    QTest::addColumn<QString>("patternLetters");
    QTest::addColumn<QString>("nameLetters");
    QTest::newRow("endings") << "*.ab"
                             << "abAB.";
    QTest::newRow("wildcards") << "*?.ab"
                               << "abAB.\n";
    QTest::newRow("sets") << "[]!-*ab.^"
                          << "abAB[]!-^.";
    QTest::newRow("of expressions") << "*.+()|{}$\\a"
                                    << "a+()|{}$\\.";
    QTest::newRow("beyond ASCII") << QString::fromUtf8("*.äßıſкk")
                                  << QString::fromUtf8("ÄäßẞıIiſsSкКkK\u212a.");
    QTest::newRow("halves of characters") << "*.a" << QString(QChar(0xd83d)) + QChar(0xde00) + "a.";
}

void NameMatcherTest::answersAsQt()
{
    QFETCH(QString, patternLetters);
    QFETCH(QString, nameLetters);
    std::mt19937 random(20); // always the same
    int matching = 0;
    for (int i = 0; i < 1500; ++i) {
        QStringList patterns;
        for (auto count = random() % 3; count > 0; --count)
            patterns.append(randomText(random, patternLetters, 6));
        const CVyNameMatcher matcher(patterns);
        const QtMatcher qt(patterns);
        for (int n = 0; n < 10; ++n) {
            const QString name = randomText(random, nameLetters, 7);
            const bool expected = qt.matches(name);
            matching += expected;
            if (matcher.matches(name) != expected)
                QFAIL(qPrintable(
                    QStringLiteral("%1 for %2, %3 by Qt")
                        .arg(patterns.join(' '), QString::fromLatin1(QTest::toString(name)))
                        .arg(expected)));
        }
    }
    QVERIFY(matching > 500 && matching < 14500);
}

// Every character of the basic plane (with sanitizers, of its alphabets) against every
// letter: the quick way compares as the expression does.
void NameMatcherTest::endingsDifferInCaseAsQtSays()
{
    for (char letter = ' '; letter < '\x7f'; ++letter) {
        const QString pattern = QStringLiteral("*.") + QLatin1Char(letter);
        const CVyNameMatcher matcher({pattern});
        const QRegularExpression expression(
            QRegularExpression::wildcardToRegularExpression(pattern),
            QRegularExpression::CaseInsensitiveOption);
        if (!expression.isValid())
            continue;
        QString name = QStringLiteral("a.?");
        for (int code = 1; code <= VY_LAST_CODE; ++code) {
            name[2] = QChar(code);
            if (code != '/' && matcher.matches(name) != expression.match(name).hasMatch())
                QFAIL(qPrintable(pattern + QStringLiteral(" for U+%1").arg(code, 4, 16)));
        }
    }
}

void NameMatcherTest::caseCanCount()
{
    const CVyNameMatcher matcher({"*.dwg", "a?.dxf"}, Qt::CaseSensitive);
    QVERIFY(matcher.matches("plan.dwg") && matcher.matches("ab.dxf"));
    QVERIFY(!matcher.matches("plan.DWG") && !matcher.matches("AB.dxf"));
}

void NameMatcherTest::compilesEachPatternOnce_data()
{
    QTest::addColumn<QStringList>("patterns");
    QTest::addColumn<int>("expressions");
    QTest::newRow("endings") << QStringList{"*.dwg", "*.dxf", "*.dwt", "*"} << 0;
    QTest::newRow("others") << QStringList{"*.dwg", "a?.dxf", "[ab].dwt"} << 2;
}

void NameMatcherTest::compilesEachPatternOnce()
{
    QFETCH(QStringList, patterns);
    QFETCH(int, expressions);
    if (!countsExpressions())
        QSKIP("Qt's expressions cannot be counted here");
    const int before = compiledExpressions();
    const CVyNameMatcher matcher(patterns);
    for (int i = 0; i < 1000; ++i)
        matcher.matches(QStringLiteral("plan %1.bak").arg(i));
    QCOMPARE(compiledExpressions() - before, expressions);
}

// Qt's own expression for such a pattern tries all ways to part a name among the stars,
// until it gives up.
void NameMatcherTest::manyWildcardsAreNoTrap()
{
    const QString name = QString(200, 'a') + "b" + QString(54, 'a');
    const auto time = [&](const QString& pattern, bool expected) {
        const CVyNameMatcher matcher({pattern});
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < 100; ++i)
            [&] { QCOMPARE(matcher.matches(name), expected); }();
        return timer.nsecsElapsed();
    };
    const QString stars = QStringLiteral("*a").repeated(20);
    const QString tail = 'b' + QString(60, '?'); // six letters more than there are
    const qint64 one = time('*' + tail, false);
    const qint64 many = time(stars + tail, false);
    QVERIFY2(many < 500 * one, qPrintable(QString::number(many / one)));
    time(stars + "*b" + stars, true);
}

QTEST_GUILESS_MAIN(NameMatcherTest)
#include "NameMatcherTest.moc"
