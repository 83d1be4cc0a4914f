// SPDX-License-Identifier: MIT
#include "VyUtils.h"

#include <QtTest>

namespace {

QString convert(const QString& filter)
{
    return CVyUtils::ConvertToQtFilter(CVyString(filter));
}

} // namespace

/// A host's filter string, turned into name-filter entries with their patterns.
class FilterContract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void converts_data();
    void converts();
    void walksThePairs_data();
    void walksThePairs();
    void keepsOddCharacters_data();
    void keepsOddCharacters();
    void convertsManyTypes();
    void convertsLongTexts_data();
    void convertsLongTexts();

private:
    static void parenthesesRows();
    static void wildcardRows();
    static void separatorRows();
};

// One pair each: its name-filter entry is what the table is about, so the rows
// name description, patterns and entry alone.
void FilterContract::converts_data()
{
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("patterns");
    QTest::addColumn<QString>("entry");

    QTest::newRow("plain") << "Drawing"
                           << "*.dwg"
                           << "Drawing (*.dwg)";
    QTest::newRow("two patterns") << "Drawing"
                                  << "*.dwg;*.dxf"
                                  << "Drawing (*.dwg *.dxf)";
    QTest::newRow("no patterns") << "Drawing"
                                 << ""
                                 << "Drawing ()";
    QTest::newRow("no description") << ""
                                    << "*.a"
                                    << " (*.a)";
    parenthesesRows();
    wildcardRows();
    separatorRows();
}

void FilterContract::parenthesesRows()
{
    QTest::newRow("words in parentheses") << "Drawing (dwg)"
                                          << "*.dwg"
                                          << "Drawing (*.dwg)";
    QTest::newRow("text in parentheses") << "Text files (txt)"
                                         << "*.txt"
                                         << "Text files (*.txt)";
    QTest::newRow("empty parentheses") << "A ()"
                                       << "*.a"
                                       << "A (*.a)";
    QTest::newRow("text behind the words") << "A (dwg) rest"
                                           << "*.a"
                                           << "A (*.a)";
    QTest::newRow("parentheses alone") << "(dwg)"
                                       << "*.a"
                                       << " (*.a)";
    QTest::newRow("words at the start") << "(dwg) A"
                                        << "*.a"
                                        << " (*.a)";
    QTest::newRow("two groups of words") << "A (x) (y)"
                                         << "*.a"
                                         << "A (x)";
    QTest::newRow("nested words") << "A ((x))"
                                  << "*.a"
                                  << "A (";
    QTest::newRow("opening alone") << "Drawing (dwg"
                                   << "*.dwg"
                                   << "Drawing (dwg";
    QTest::newRow("opening at the end") << "A("
                                        << "*.a"
                                        << "A(";
    QTest::newRow("closing alone") << "A)b"
                                   << "*.a"
                                   << "A)b";
    QTest::newRow("closing at the start") << ")A"
                                          << "*.a"
                                          << ")A";
    QTest::newRow("opening at the start") << "(A"
                                          << "*.a"
                                          << "(A";
    QTest::newRow("closing first") << "A ) (b"
                                   << "*.a"
                                   << "A ) (b";
    QTest::newRow("closing before the words") << "A )x( b) "
                                              << "*.a"
                                              << "A )x";
    QTest::newRow("closing before the words, blank stays") << "A )x (b)"
                                                           << "*.a"
                                                           << "A )x ";
    QTest::newRow("opening without a partner, blanks stay") << "A (b  "
                                                            << "*.a"
                                                            << "A (b  ";
    QTest::newRow("one closing too many") << "A (x))"
                                          << "*.a"
                                          << "A (*.a)";
    QTest::newRow("one opening too many") << "A ((x)"
                                          << "*.a"
                                          << "A (";
    QTest::newRow("patterns with parentheses") << "A"
                                               << "*.(a)"
                                               << "A (*. (a))";
    QTest::newRow("patterns that open one") << "A"
                                            << "*.a("
                                            << "A (*.a ()";
    QTest::newRow("patterns that close one") << "A"
                                             << "*.a)"
                                             << "A (*.a))";
}

void FilterContract::wildcardRows()
{
    QTest::newRow("patterns of its own") << "Drawing (*.dwg;*.dxf)"
                                         << "*.dwg;*.dxf"
                                         << "Drawing (*.dwg *.dxf)";
    QTest::newRow("other patterns than it says") << "A (*.b)"
                                                 << "*.a"
                                                 << "A (*.b)";
    QTest::newRow("patterns before the text") << "(*.a) A"
                                              << "*.a"
                                              << " (*.a)";
    QTest::newRow("text behind the patterns") << "A (*.a) rest"
                                              << "*.a"
                                              << "A (*.a)";
    QTest::newRow("nested patterns") << "A (a (*.b) c)"
                                     << "*.b"
                                     << "A (a (*.b) c)";
    QTest::newRow("words, then patterns") << "A (x) (*.a)"
                                          << "*.a"
                                          << "A (x) (*.a)";
    QTest::newRow("patterns, then words") << "A (*.a) (x)"
                                          << "*.b"
                                          << "A (*.a) (x)";
    QTest::newRow("words and a star before") << "All * (x)"
                                             << "*.a"
                                             << "All * (x)";
    QTest::newRow("words and a star behind") << "A (x) *"
                                             << "*.a"
                                             << "A (x)";
    QTest::newRow("star without parentheses") << "A*"
                                              << "*.a"
                                              << "A* (*.a)";
    QTest::newRow("star and opening alone") << "A* (b"
                                            << "*.a"
                                            << "A* (b";
    QTest::newRow("star alone in parentheses") << "All files (*)"
                                               << "*.*"
                                               << "All files (*)";
    QTest::newRow("wildcards without a star") << "A (?.a)"
                                              << "?.a"
                                              << "A (?.a)";
}

void FilterContract::separatorRows()
{
    QTest::newRow("comma in the parentheses") << "A (x,y*)"
                                              << "p"
                                              << "A (x y*)";
    QTest::newRow("comma and blank") << "A (*.a, *.b)"
                                     << "*.a"
                                     << "A (*.a  *.b)";
    QTest::newRow("separators at both ends") << "A (;*.a,)"
                                             << "*.a"
                                             << "A ( *.a )";
    QTest::newRow("comma in the patterns") << "A"
                                           << "*.a,*.b"
                                           << "A (*.a *.b)";
    QTest::newRow("semicolon before the parentheses") << "A;B (*.a;*.b)"
                                                      << "*.a"
                                                      << "A;B (*.a *.b)";
    QTest::newRow("comma before the parentheses") << "A, B"
                                                  << "*.a"
                                                  << "A, B (*.a)";
    QTest::newRow("semicolon and opening alone") << "A (b;c"
                                                 << "*.a"
                                                 << "A (b;c";
    QTest::newRow("no blank before the parentheses") << "A(*.a)"
                                                     << "*.a"
                                                     << "A (*.a)";
    QTest::newRow("blanks before the parentheses") << "A   (*.a)"
                                                   << "*.a"
                                                   << "A (*.a)";
    QTest::newRow("blanks in the parentheses") << "A ( *.a )"
                                               << "*.a"
                                               << "A ( *.a )";
    QTest::newRow("blanks at the end") << "A  "
                                       << "*.a"
                                       << "A (*.a)";
    QTest::newRow("blanks at the start") << "  A"
                                         << "*.a"
                                         << "  A (*.a)";
    QTest::newRow("blanks alone") << "   "
                                  << "*.a"
                                  << " (*.a)";
    QTest::newRow("blank and blank") << " "
                                     << " "
                                     << " ( )";
    QTest::newRow("blanks in the patterns") << "A"
                                            << "*.a; *.b "
                                            << "A (*.a  *.b )";
    QTest::newRow("blanks before patterns with parentheses") << "A  "
                                                             << "*.(a)"
                                                             << "A (*. (a))";
    QTest::newRow("tab at the end") << "A\t"
                                    << "*.a"
                                    << "A (*.a)";
    QTest::newRow("line end at the end") << "A\r\n"
                                         << "*.a"
                                         << "A (*.a)";
    QTest::newRow("no-break space at the end") << QStringLiteral("A\u00a0") << "*.a"
                                               << "A (*.a)";
    QTest::newRow("no-break space before the parentheses")
        << QStringLiteral("A\u00a0(*.a)") << "*.a"
        << "A (*.a)";
    QTest::newRow("ideographic space before the words") << QStringLiteral("A\u3000(a)") << "*.a"
                                                        << "A (*.a)";
}

void FilterContract::converts()
{
    QFETCH(QString, description);
    QFETCH(QString, patterns);
    QFETCH(QString, entry);
    QCOMPARE(convert(description + "&" + patterns), QString(entry + "&" + patterns + "&&"));
}

void FilterContract::walksThePairs_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("converted");

    QTest::newRow("the empty string") << ""
                                      << "&";
    QTest::newRow("one pair") << "Drawing&*.dwg"
                              << "Drawing (*.dwg)&*.dwg&&";
    QTest::newRow("one pair, closed") << "Drawing&*.dwg&"
                                      << "Drawing (*.dwg)&*.dwg&&";
    QTest::newRow("two pairs") << "A&*.a&B&*.b;*.c"
                               << "A (*.a)&*.a&B (*.b *.c)&*.b;*.c&&";
    QTest::newRow("the same pair twice") << "A&*.a&A&*.a"
                                         << "A (*.a)&*.a&A (*.a)&*.a&&";
    QTest::newRow("no patterns in the middle") << "A&&B&*.b"
                                               << "A ()&&B (*.b)&*.b&&";
    QTest::newRow("no description in the middle") << "A&*.a&&*.b"
                                                  << "A (*.a)&*.a& (*.b)&*.b&&";
    QTest::newRow("description without its field of patterns") << "Drawing"
                                                               << "Drawing ()&&&";
    QTest::newRow("last description without it") << "A&*.a&B"
                                                 << "A (*.a)&*.a&B ()&&&";
    QTest::newRow("last description with words") << "A (x)"
                                                 << "A ()&&&";
    QTest::newRow("last description with patterns") << "A (*.a)"
                                                    << "A (*.a)&&&";
    QTest::newRow("last description with an empty field") << "Drawing&"
                                                          << "Drawing ()&&&";
    QTest::newRow("one separator") << "&"
                                   << "&";
    QTest::newRow("two separators") << "&&"
                                    << "&";
    QTest::newRow("three separators") << "&&&"
                                      << "&";
    QTest::newRow("four separators") << "&&&&"
                                     << "&";
    QTest::newRow("empty pair at the start") << "&&A&*.a"
                                             << "A (*.a)&*.a&&";
    QTest::newRow("empty pair in the middle") << "A&*.a&&&B&*.b"
                                              << "A (*.a)&*.a&B (*.b)&*.b&&";
    QTest::newRow("empty pair at the end") << "A&*.a&&"
                                           << "A (*.a)&*.a&&";
    QTest::newRow("empty pairs everywhere") << "&&&&A&*.a&&&&&&"
                                            << "A (*.a)&*.a&&";
    QTest::newRow("shifted by one field") << "&A&*.a"
                                          << " (A)&A&*.a ()&&&";
    QTest::newRow("converted already") << "A (*.a *.b)&*.a;*.b&&"
                                       << "A (*.a *.b)&*.a;*.b&&";
}

void FilterContract::walksThePairs()
{
    QFETCH(QString, filter);
    QFETCH(QString, converted);
    QCOMPARE(convert(filter), converted);
}

void FilterContract::keepsOddCharacters_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("Latin-1") << QStringLiteral("Größe");
    QTest::newRow("Cyrillic") << QStringLiteral("Чертёж");
    QTest::newRow("Japanese") << QStringLiteral("図面");
    QTest::newRow("beyond the basic plane") << QStringLiteral("a\U0001F600b");
    QTest::newRow("combining accent") << QStringLiteral("re\u0301seau");
    QTest::newRow("high surrogate alone") << QString("a" + QString(QChar(0xd83d)));
    QTest::newRow("low surrogate alone") << QString(QString(QChar(0xde00)) + "a");
    QTest::newRow("zero inside") << QString("a" + QString(QChar()) + "b");
    QTest::newRow("line end inside") << "a\nb";
    QTest::newRow("full-width parentheses") << QStringLiteral("a（b）");
    QTest::newRow("full-width ampersand") << QStringLiteral("R＆D");
    QTest::newRow("brackets") << "a [b] {c}";
    QTest::newRow("quotes and percent") << "\"%1\" 'a' 100%";
    QTest::newRow("backslash") << "a\\b";
}

void FilterContract::keepsOddCharacters()
{
    QFETCH(QString, text);

    QCOMPARE(convert(text + "&*." + text), QString(text + " (*." + text + ")&*." + text + "&&"));
    QCOMPARE(convert(text + " (*." + text + ")&x"), QString(text + " (*." + text + ")&x&&"));
}

void FilterContract::convertsManyTypes()
{
    const int count = 100000;
    const QString converted = convert(QString("T&*.t&").repeated(count));
    QCOMPARE(converted.size(), count * QString("T (*.t)&*.t&").size() + 1);
    QVERIFY(converted.startsWith("T (*.t)&*.t&T "));
    QVERIFY(converted.endsWith("&T (*.t)&*.t&&"));
}

void FilterContract::convertsLongTexts_data()
{
    QTest::addColumn<QString>("part");
    QTest::addColumn<QString>("end");

    QTest::newRow("letters") << "ab"
                             << " (*.a)";
    QTest::newRow("semicolons") << ";"
                                << " (*.a)";
    QTest::newRow("wide characters") << QStringLiteral("\U0001F600") << " (*.a)";
    QTest::newRow("opening parentheses") << "("
                                         << "";
    QTest::newRow("closing parentheses") << ")"
                                         << "";
}

void FilterContract::convertsLongTexts()
{
    QFETCH(QString, part);
    QFETCH(QString, end);

    const QString description = part.repeated(200000);
    QCOMPARE(convert(description + "&*.a"), QString(description + end + "&*.a&&"));
}

QTEST_GUILESS_MAIN(FilterContract)
#include "FilterContract.moc"
