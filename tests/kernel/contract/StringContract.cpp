// SPDX-License-Identifier: MIT
#include "VyString.h"

#include <QtTest>

#include <climits>

namespace {

QStringList toStringList(const std::vector<CVyString>& texts)
{
    return QStringList(texts.begin(), texts.end());
}

const QString smile = QStringLiteral("\U0001F600");

} // namespace

/// The operations on a host's string.
class StringContract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void splits_data();
    void splits();
    void finds_data();
    void finds();
    void findsTheLast_data();
    void findsTheLast();
    void takesTheLeft_data();
    void takesTheLeft();
    void takesTheMiddle_data();
    void takesTheMiddle();
    void trimsTheEnd_data();
    void trimsTheEnd();
    void replaces_data();
    void replaces();
};

void StringContract::splits_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<char>("separator");
    QTest::addColumn<QStringList>("parts");

    QTest::newRow("empty") << QString() << '&' << QStringList{""};
    QTest::newRow("no separator") << "abc" << '&' << QStringList{"abc"};
    QTest::newRow("separator inside") << "a&bc" << '&' << QStringList{"a", "bc"};
    QTest::newRow("separator at the start") << "&a" << '&' << QStringList{"", "a"};
    QTest::newRow("separator at the end") << "a&" << '&' << QStringList{"a", ""};
    QTest::newRow("separators side by side") << "a&&b" << '&' << QStringList{"a", "", "b"};
    QTest::newRow("separator alone") << "&" << '&' << QStringList{"", ""};
    QTest::newRow("separators alone") << "&&&" << '&' << QStringList{"", "", "", ""};
    QTest::newRow("another separator") << "a&b;c" << ';' << QStringList{"a&b", "c"};
    QTest::newRow("separator of Latin-1")
        << QStringLiteral("a\u00a7b") << '\xa7' << QStringList{"a", "b"};
    QTest::newRow("beyond the basic plane")
        << QString(smile + "&" + smile) << '&' << QStringList{smile, smile};
}

void StringContract::splits()
{
    QFETCH(QString, text);
    QFETCH(char, separator);
    QFETCH(QStringList, parts);
    QCOMPARE(toStringList(CVyString(text).SplitA(separator)), parts);
}

void StringContract::finds_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("position");

    QTest::newRow("at the start") << "abcabc"
                                  << "abc" << 0 << 0;
    QTest::newRow("from behind the start") << "abcabc"
                                           << "abc" << 1 << 3;
    QTest::newRow("from its own place") << "abcabc"
                                        << "abc" << 3 << 3;
    QTest::newRow("from behind the last") << "abcabc"
                                          << "abc" << 4 << -1;
    QTest::newRow("at the end") << "abc"
                                << "c" << 0 << 2;
    QTest::newRow("overlapping") << "aaa"
                                 << "aa" << 1 << 1;
    QTest::newRow("absent") << "abc"
                            << "x" << 0 << -1;
    QTest::newRow("other case") << "abc"
                                << "A" << 0 << -1;
    QTest::newRow("longer than the text") << "abc"
                                          << "abcd" << 0 << -1;
    QTest::newRow("in the empty text") << QString() << "a" << 0 << -1;
    QTest::newRow("nothing, at the start") << "abc"
                                           << "" << 0 << 0;
    QTest::newRow("nothing, from inside") << "abc"
                                          << "" << 2 << 2;
    QTest::newRow("nothing, from the end") << "abc"
                                           << "" << 3 << 3;
    QTest::newRow("nothing, from behind the end") << "abc"
                                                  << "" << 4 << -1;
    QTest::newRow("from before the start") << "abc"
                                           << "a" << -1 << 0;
    QTest::newRow("from the smallest number") << "abc"
                                              << "c" << INT_MIN << 2;
    QTest::newRow("from the end") << "abc"
                                  << "c" << 3 << -1;
    QTest::newRow("from the largest number") << "abc"
                                             << "a" << INT_MAX << -1;
    QTest::newRow("Latin-1") << QStringLiteral("a\u00e9") << QStringLiteral("\u00e9") << 0 << 1;
    QTest::newRow("behind a wide character") << QString(smile + "a") << "a" << 0 << 1;
}

void StringContract::finds()
{
    QFETCH(QString, text);
    QFETCH(QString, wanted);
    QFETCH(int, from);
    QFETCH(int, position);

    QCOMPARE(CVyString(text).findA(wanted.toLatin1(), from), position);
    if (from == 0)
        QCOMPARE(CVyString(text).findA(wanted.toLatin1()), position);
}

void StringContract::findsTheLast_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<int>("position");

    QTest::newRow("of two") << "abcabc"
                            << "abc" << 3;
    QTest::newRow("of one, at the start") << "abc"
                                          << "a" << 0;
    QTest::newRow("at the end") << "abc"
                                << "c" << 2;
    QTest::newRow("overlapping") << "aaa"
                                 << "aa" << 1;
    QTest::newRow("absent") << "abc"
                            << "x" << -1;
    QTest::newRow("in the empty text") << QString() << "a" << -1;
    QTest::newRow("nothing") << "abc"
                             << "" << 3;
    QTest::newRow("nothing in the empty text") << QString() << "" << 0;
    QTest::newRow("Latin-1") << QStringLiteral("\u00e9a\u00e9b") << QStringLiteral("\u00e9") << 2;
    QTest::newRow("behind a wide character") << QString(smile + "aa") << "a" << 2;
}

void StringContract::findsTheLast()
{
    QFETCH(QString, text);
    QFETCH(QString, wanted);
    QFETCH(int, position);
    QCOMPARE(CVyString(text).reverseFindA(wanted.toLatin1()), position);
}

void StringContract::takesTheLeft_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("part");

    QTest::newRow("some") << "abcd" << 2 << "ab";
    QTest::newRow("all") << "abcd" << 4 << "abcd";
    QTest::newRow("none") << "abcd" << 0 << "";
    QTest::newRow("more than there are") << "abcd" << 5 << "abcd";
    QTest::newRow("the largest count") << "abcd" << INT_MAX << "abcd";
    QTest::newRow("a negative count") << "abcd" << -1 << "";
    QTest::newRow("the smallest count") << "abcd" << INT_MIN << "";
    QTest::newRow("of the empty text") << "" << 2 << "";
    QTest::newRow("a wide character") << QString(smile + "ab") << 1 << smile;
}

void StringContract::takesTheLeft()
{
    QFETCH(QString, text);
    QFETCH(int, count);
    QFETCH(QString, part);
    QCOMPARE(QString(CVyString(text).left(count)), part);
}

void StringContract::takesTheMiddle_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("part");

    QTest::newRow("inside") << "abcd" << 1 << 2 << "bc";
    QTest::newRow("from the start") << "abcd" << 0 << 2 << "ab";
    QTest::newRow("up to the end") << "abcd" << 1 << -1 << "bcd";
    QTest::newRow("up to the end, smallest count") << "abcd" << 1 << INT_MIN << "bcd";
    QTest::newRow("more than there are") << "abcd" << 2 << 3 << "cd";
    QTest::newRow("the largest count") << "abcd" << 2 << INT_MAX << "cd";
    QTest::newRow("none") << "abcd" << 1 << 0 << "";
    QTest::newRow("at the end") << "abcd" << 4 << 1 << "";
    QTest::newRow("behind the end") << "abcd" << 5 << -1 << "";
    QTest::newRow("far behind the end") << "abcd" << INT_MAX << INT_MAX << "";
    QTest::newRow("all, from before the start") << "abcd" << -1 << -1 << "abcd";
    QTest::newRow("all, from far before the start") << "abcd" << INT_MIN << -1 << "abcd";
    QTest::newRow("of the empty text") << "" << 0 << 1 << "";
    QTest::newRow("behind a wide character") << QString(smile + "ab") << 1 << 1 << "a";
}

void StringContract::takesTheMiddle()
{
    QFETCH(QString, text);
    QFETCH(int, first);
    QFETCH(int, count);
    QFETCH(QString, part);

    QCOMPARE(QString(CVyString(text).mid(first, count)), part);
    if (count == -1)
        QCOMPARE(QString(CVyString(text).mid(first)), part);
}

void StringContract::trimsTheEnd_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("trimmed");

    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("nothing to trim") << "a b"
                                     << "a b";
    QTest::newRow("blanks") << "a  "
                            << "a";
    QTest::newRow("tab and line ends") << "a\t\v\f\r\n"
                                       << "a";
    QTest::newRow("blanks alone") << " \t "
                                  << "";
    QTest::newRow("start stays") << " \ta "
                                 << " \ta";
    QTest::newRow("no-break space") << QStringLiteral("a\u00a0") << "a";
    QTest::newRow("next line") << QStringLiteral("a\u0085") << "a";
    QTest::newRow("em space") << QStringLiteral("a\u2003") << "a";
    QTest::newRow("line and paragraph separator") << QStringLiteral("a\u2028\u2029") << "a";
    QTest::newRow("narrow no-break space") << QStringLiteral("a\u202f") << "a";
    QTest::newRow("ideographic space") << QStringLiteral("a\u3000") << "a";
    QTest::newRow("zero width space is none")
        << QStringLiteral("a\u200b") << QStringLiteral("a\u200b");
    QTest::newRow("zero is none") << QString("a" + QString(QChar()))
                                  << QString("a" + QString(QChar()));
    QTest::newRow("behind a wide character") << QString(smile + " ") << smile;
}

void StringContract::trimsTheEnd()
{
    QFETCH(QString, text);
    QFETCH(QString, trimmed);

    CVyString string(text);
    QCOMPARE(&string.trimRight(), &string);
    QCOMPARE(QString(string), trimmed);
}

void StringContract::replaces_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("replaced");

    QTest::newRow("same length") << "a;b;c"
                                 << ";"
                                 << " "
                                 << "a b c";
    QTest::newRow("growing") << "a;b;c"
                             << ";"
                             << ", "
                             << "a, b, c";
    QTest::newRow("shrinking") << "a, b, c"
                               << ", "
                               << ";"
                               << "a;b;c";
    QTest::newRow("away") << "a;b;c"
                          << ";"
                          << ""
                          << "abc";
    QTest::newRow("at both ends") << ";a;"
                                  << ";"
                                  << "--"
                                  << "--a--";
    QTest::newRow("side by side") << "a;;b"
                                  << ";"
                                  << "--"
                                  << "a----b";
    QTest::newRow("the whole text") << "abc"
                                    << "abc"
                                    << "x"
                                    << "x";
    QTest::newRow("by what holds it") << "a;b"
                                      << ";"
                                      << ";;"
                                      << "a;;b";
    QTest::newRow("overlapping") << "aaa"
                                 << "aa"
                                 << "b"
                                 << "ba";
    QTest::newRow("not what has been replaced") << "aab"
                                                << "ab"
                                                << "b"
                                                << "ab";
    QTest::newRow("absent") << "abc"
                            << "x"
                            << "y"
                            << "abc";
    QTest::newRow("other case") << "abc"
                                << "A"
                                << "y"
                                << "abc";
    QTest::newRow("in the empty text") << ""
                                       << "a"
                                       << "b"
                                       << "";
    QTest::newRow("Latin-1") << QStringLiteral("a\u00a7b") << QStringLiteral("\u00a7")
                             << QStringLiteral("\u00b6") << QStringLiteral("a\u00b6b");
    QTest::newRow("between wide characters") << QString(smile + ";" + smile) << ";"
                                             << "--" << QString(smile + "--" + smile);
}

void StringContract::replaces()
{
    QFETCH(QString, text);
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(QString, replaced);

    CVyString string(text);
    QCOMPARE(&string.replaceA(before.toLatin1(), after.toLatin1()), &string);
    QCOMPARE(QString(string), replaced);
}

QTEST_GUILESS_MAIN(StringContract)
#include "StringContract.moc"
