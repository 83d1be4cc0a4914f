// SPDX-License-Identifier: MIT
#include "OdCodePageId.h"

#include <QSet>
#include <QtTest>

#include <climits>

/// The list of code pages.
class CodePageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void holdsEveryPageOnce();
    void tellsThePagesApart();
    void describesEveryPage();
    void keepsRegionsTogether();
    void regions_data();
    void regions();
    void names_data();
    void names();
};

void CodePageTest::holdsEveryPageOnce()
{
    QList<int> numbers;
    for (const CVyCodePage& page : VyCodePages())
        numbers += static_cast<int>(page.id);
    std::sort(numbers.begin(), numbers.end());
    int expected = static_cast<int>(OdCodePageId::Undefined);
    for (const int number : qAsConst(numbers))
        QCOMPARE(number, ++expected);
    QCOMPARE(expected, static_cast<int>(OdCodePageId::Utf8));
}

void CodePageTest::tellsThePagesApart()
{
    QSet<QByteArray> names;
    QSet<QByteArray> descriptions;
    for (const CVyCodePage& page : VyCodePages()) {
        names += QByteArray(page.fileName);
        descriptions += QByteArray(page.description);
        QCOMPARE(VyCodePageName(page.id), page.fileName);
        QCOMPARE(VyFindCodePage(page.id), &page);
    }
    const int count = static_cast<int>(VyCodePages().size());
    QCOMPARE(names.size(), count);
    QCOMPARE(descriptions.size(), count);
}

void CodePageTest::describesEveryPage()
{
    for (const CVyCodePage& page : VyCodePages()) {
        for (const char* text : {page.fileName, page.description, page.otherNames,
                                 page.region->name, page.region->languages})
            QVERIFY2(*text, page.fileName);
        // Names divided by one blank: no empty ones.
        QVERIFY2(!QByteArray(page.otherNames).split(' ').contains(""), page.fileName);
    }
}

void CodePageTest::keepsRegionsTogether()
{
    QList<const CVyCodePageRegion*> seen;
    QSet<QByteArray> names;
    for (const CVyCodePage& page : VyCodePages()) {
        if (!seen.isEmpty() && seen.last() == page.region)
            continue;
        QVERIFY2(!seen.contains(page.region), page.fileName);
        seen += page.region;
        names += QByteArray(page.region->name);
    }
    QCOMPARE(names.size(), seen.size());
    QVERIFY(seen.size() > 10);
}

void CodePageTest::regions_data()
{
    QTest::addColumn<QByteArray>("region");
    QTest::addColumn<QByteArrayList>("pages"); // all of them, the commonest first

    const auto row = [](const char* region, const char* pages) {
        QTest::newRow(region) << QByteArray(region) << QByteArray(pages).split(' ');
    };
    row("Western European",
        "ANSI_1252 8859_1 mac-roman dos850 dos437 ascii 8859_3 dos860 dos861 dos863 dos865");
    row("Central European", "ANSI_1250 8859_2 dos852");
    row("Baltic", "ANSI_1257 8859_4");
    row("Cyrillic", "ANSI_1251 8859_5 dos866 dos855");
    row("Greek", "ANSI_1253 8859_7 dos869");
    row("Turkish", "ANSI_1254 8859_9 dos857");
    row("Hebrew", "ANSI_1255 8859_8");
    row("Arabic", "ANSI_1256 8859_6 dos864");
    row("Japanese", "ANSI_932 dos932");
    row("Chinese", "ANSI_936 gb2312 ANSI_950 big5");
    row("Korean", "ANSI_949 ksc5601 ANSI_1361 johab");
    row("Thai", "ANSI_874");
    row("Vietnamese", "ANSI_1258");
    row("Unicode", "UTF-8 UTF-16");
}

void CodePageTest::regions()
{
    QFETCH(QByteArray, region);
    QFETCH(QByteArrayList, pages);

    QByteArrayList found;
    for (const CVyCodePage& page : VyCodePages()) {
        if (page.region->name == region)
            found += page.fileName;
    }
    QCOMPARE(found, pages);
}

void CodePageTest::names_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QByteArray>("name");

    QTest::newRow("first") << 1 << QByteArray("ascii");
    QTest::newRow("an ISO page") << 6 << QByteArray("8859_5");
    QTest::newRow("a DOS page") << 12 << QByteArray("dos850");
    QTest::newRow("the last DOS page") << 27 << QByteArray("dos866");
    QTest::newRow("Macintosh") << 23 << QByteArray("mac-roman");
    QTest::newRow("Cyrillic") << 29 << QByteArray("ANSI_1251");
    QTest::newRow("Western European") << 30 << QByteArray("ANSI_1252");
    QTest::newRow("Simplified Chinese") << 31 << QByteArray("gb2312");
    QTest::newRow("Greek") << 32 << QByteArray("ANSI_1253");
    QTest::newRow("Japanese") << 38 << QByteArray("ANSI_932");
    QTest::newRow("UTF-16") << 43 << QByteArray("UTF-16");
    QTest::newRow("last of the drawings'") << 44 << QByteArray("ANSI_1258");
    QTest::newRow("UTF-8") << 45 << QByteArray("UTF-8");
    QTest::newRow("undefined") << 0 << QByteArray();
    QTest::newRow("negative") << -1 << QByteArray();
    QTest::newRow("behind the last") << 46 << QByteArray();
    QTest::newRow("smallest number") << INT_MIN << QByteArray();
    QTest::newRow("largest number") << INT_MAX << QByteArray();
}

void CodePageTest::names()
{
    QFETCH(int, id);
    QFETCH(QByteArray, name);

    const char* const found = VyCodePageName(static_cast<OdCodePageId>(id));
    QCOMPARE(found == nullptr, name.isNull());
    QCOMPARE(QByteArray(found), name);
    QCOMPARE(VyFindCodePage(static_cast<OdCodePageId>(id)) == nullptr, name.isNull());
}

QTEST_GUILESS_MAIN(CodePageTest)
#include "CodePageTest.moc"
