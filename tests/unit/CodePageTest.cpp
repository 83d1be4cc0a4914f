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
    void holdsEveryPageInOrder();
    void tellsThePagesApart();
    void names_data();
    void names();
};

void CodePageTest::holdsEveryPageInOrder()
{
    const int last = static_cast<int>(OdCodePageId::Ansi1258);
    int expected = static_cast<int>(OdCodePageId::Undefined);
    for (const CVyCodePage& page : VyCodePages())
        QCOMPARE(static_cast<int>(page.id), ++expected);
    QCOMPARE(expected, last);
}

void CodePageTest::tellsThePagesApart()
{
    QSet<QByteArray> names;
    QSet<QByteArray> descriptions;
    for (const CVyCodePage& page : VyCodePages()) {
        names += QByteArray(page.fileName);
        descriptions += QByteArray(page.description);
        QCOMPARE(VyCodePageName(page.id), page.fileName);
    }
    const int count = static_cast<int>(VyCodePages().size());
    QCOMPARE(names.size(), count);
    QCOMPARE(descriptions.size(), count);
    QVERIFY(!names.contains(""));
    QVERIFY(!descriptions.contains(""));
}

void CodePageTest::names_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QByteArray>("name");

    QTest::newRow("first") << 1 << QByteArray("ascii");
    QTest::newRow("an ISO page") << 6 << QByteArray("8859_5");
    QTest::newRow("a DOS page") << 12 << QByteArray("dos850");
    QTest::newRow("Macintosh") << 23 << QByteArray("mac-roman");
    QTest::newRow("Cyrillic") << 29 << QByteArray("ANSI_1251");
    QTest::newRow("Western European") << 30 << QByteArray("ANSI_1252");
    QTest::newRow("Japanese") << 38 << QByteArray("ANSI_932");
    QTest::newRow("Unicode") << 43 << QByteArray("UTF-16");
    QTest::newRow("last") << 44 << QByteArray("ANSI_1258");
    QTest::newRow("undefined") << 0 << QByteArray();
    QTest::newRow("negative") << -1 << QByteArray();
    QTest::newRow("behind the last") << 45 << QByteArray();
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
}

QTEST_GUILESS_MAIN(CodePageTest)
#include "CodePageTest.moc"
