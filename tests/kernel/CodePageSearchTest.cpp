// SPDX-License-Identifier: MIT
#include "VyCodePageSearch.h"

#include <QtTest>

/// What finds a page by typing, and what does not.
class CodePageSearchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void finds_data();
    void finds();
};

void CodePageSearchTest::finds_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("found");

    const QStringList page{"Japanese Shift-JIS (Windows)", "ANSI_932", "windows-31j", "Shift_JIS"};
    const auto row = [&page](const char* name, const QString& typed, bool found) {
        QTest::newRow(name) << page << typed << found;
    };
    row("nothing typed", "", true);
    row("blanks", "   ", true);
    row("beginning", "jap", true);
    row("middle of a word", "anes", true);
    row("other case", "JAPANESE", true);
    row("two words", "shift jis", true);
    row("other order", "jis shift", true);
    row("words of different texts", "932 japanese", true);
    row("the same word twice", "jis jis", true);
    row("many blanks", "  shift \t  jis ", true);
    row("with its hyphen", "shift-jis", true);
    row("with another mark", "shift_jis", true);
    row("without its hyphen", "shiftjis", true);
    row("number alone", "932", true);
    row("name in drawings", "ansi_932", true);
    row("name without its mark", "ANSI932", true);
    row("begun parenthesis", "japanese (w", true);
    row("marks alone", "(-", true);
    row("wide digits and letters", QStringLiteral("ＡＮＳＩ ９３２"), true);
    row("one word too many", "japanese 1252", false);
    row("another number", "936", false);
    row("across two texts", "windowsansi", false);
    row("letters of another script", QStringLiteral("日本"), false);

    const QStringList translated{QStringLiteral("Öst- och Mellaneuropa"), QStringLiteral("日本語"),
                                 QStringLiteral("BATI AVRUPA Iık"), QStringLiteral("\U00020000x")};
    const auto foreign = [&translated](const char* name, const QString& typed, bool found) {
        QTest::newRow(name) << translated << typed << found;
    };
    foreign("accent left out", "ost", true);
    foreign("accent typed", QStringLiteral("öST"), true);
    foreign("accent typed apart", QStringLiteral("O\u0308st"), true);
    foreign("accent that is not there", QStringLiteral("óch"), true);
    foreign("Japanese", QStringLiteral("日本"), true);
    foreign("other Japanese", QStringLiteral("日中"), false);
    foreign("i without a dot for its capital", QStringLiteral("batı"), true);
    foreign("i with a dot for it", QStringLiteral("iik"), true);
    foreign("beyond the basic plane", QStringLiteral("\U00020000"), true);
    foreign("another one there", QStringLiteral("\U00020001"), false);
}

void CodePageSearchTest::finds()
{
    QFETCH(QStringList, texts);
    QFETCH(QString, typed);
    QFETCH(bool, found);
    QCOMPARE(VyCodePageSearch::matches(VyCodePageSearch::key(texts), typed), found);
}

QTEST_GUILESS_MAIN(CodePageSearchTest)
#include "CodePageSearchTest.moc"
