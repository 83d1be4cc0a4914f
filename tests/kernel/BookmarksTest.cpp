// SPDX-License-Identifier: MIT
#include "VyBookmarks.h"

#include <QtTest>

namespace {

QStringList paths()
{
    QStringList list;
    const QList<VyBookmark> bookmarks = VyBookmarks();
    for (const VyBookmark& bookmark : bookmarks)
        list.append(bookmark.path);
    return list;
}

QString numbered(int number)
{
    return QStringLiteral("/plans/%1.dwg").arg(number);
}

// The paths of the numbers from the one to the other, both included.
QStringList countdown(int from, int to)
{
    QStringList list;
    for (int number = from; number >= to; --number)
        list.append(numbered(number));
    return list;
}

void addNumbered(int count)
{
    for (int number = 1; number <= count; ++number)
        VyAddBookmark(numbered(number));
}

} // namespace

/// The files that the user chose, as the host keeps them.
class BookmarksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The order of the list, without a file.
    void initTestCase() { QVERIFY(VySetBookmarkFile(QString())); }
    void init() { VyClearBookmarks(); }

    void startEmpty();
    void putTheLatestFirst();
    void holdAPathOnce_data();
    void holdAPathOnce();
    void tellPathsApart_data();
    void tellPathsApart();
    void keepThePath_data();
    void keepThePath();
    void holdAHundred_data();
    void holdAHundred();
    void moveAPathInAFullList_data();
    void moveAPathInAFullList();
    void ignoreNoPath_data();
    void ignoreNoPath();
    void knowWhen();
    void knowTheLastTime();
    void areHandedOutAsACopy();
    void areRemoved_data();
    void areRemoved();
    void areAddedAgain();
    void areCleared();
};

void BookmarksTest::startEmpty()
{
    QCOMPARE(paths(), QStringList());
}

void BookmarksTest::putTheLatestFirst()
{
    addNumbered(3);
    QCOMPARE(paths(), QStringList({"/plans/3.dwg", "/plans/2.dwg", "/plans/1.dwg"}));
}

void BookmarksTest::holdAPathOnce_data()
{
    QTest::addColumn<int>("again");
    QTest::addColumn<QStringList>("list");

    QTest::newRow("the first") << 3 << QStringList{numbered(3), numbered(2), numbered(1)};
    QTest::newRow("in the middle") << 2 << QStringList{numbered(2), numbered(3), numbered(1)};
    QTest::newRow("the last") << 1 << QStringList{numbered(1), numbered(3), numbered(2)};
}

void BookmarksTest::holdAPathOnce()
{
    QFETCH(int, again);
    QFETCH(QStringList, list);

    addNumbered(3);
    VyAddBookmark(numbered(again));
    QCOMPARE(paths(), list);
    VyAddBookmark(numbered(again));
    QCOMPARE(paths(), list);
}

void BookmarksTest::tellPathsApart_data()
{
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("other");

    QTest::newRow("case") << "/plans/a.dwg"
                          << "/plans/A.dwg";
    QTest::newRow("blank at the end") << "/plans/a.dwg"
                                      << "/plans/a.dwg ";
    QTest::newRow("separator at the end") << "/plans"
                                          << "/plans/";
    QTest::newRow("beginning of the other") << "/plans/a"
                                            << "/plans/a.dwg";
    QTest::newRow("composed accent")
        << QStringLiteral("/r\u00e9seau") << QStringLiteral("/re\u0301seau");
}

void BookmarksTest::tellPathsApart()
{
    QFETCH(QString, one);
    QFETCH(QString, other);

    VyAddBookmark(one);
    VyAddBookmark(other);
    QCOMPARE(paths(), QStringList({other, one}));
}

void BookmarksTest::keepThePath_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("Cyrillic") << QStringLiteral("/планы/Чертёж №1.dwg");
    QTest::newRow("blanks") << " /plans/my plan .dwg ";
    QTest::newRow("percent") << "/plans/100%25 %1.dwg";
    QTest::newRow("ampersand and semicolon") << "/plans/R&D;a.dwg";
    QTest::newRow("line end") << "/plans/a\nb.dwg";
    QTest::newRow("beyond the basic plane") << QStringLiteral("/plans/\U0001F600.dwg");
    QTest::newRow("root") << "/";
    QTest::newRow("blank alone") << " ";
    QTest::newRow("longest") << QString("/" + QString("x").repeated(8191));
}

void BookmarksTest::keepThePath()
{
    QFETCH(QString, path);

    VyAddBookmark(path);
    QCOMPARE(paths(), QStringList(path));
}

void BookmarksTest::holdAHundred_data()
{
    QTest::addColumn<int>("chosen");
    QTest::addColumn<int>("oldest");

    QTest::newRow("one less") << 99 << 1;
    QTest::newRow("a hundred") << 100 << 1;
    QTest::newRow("one more") << 101 << 2;
    QTest::newRow("many more") << 250 << 151;
}

void BookmarksTest::holdAHundred()
{
    QFETCH(int, chosen);
    QFETCH(int, oldest);

    addNumbered(chosen);
    QCOMPARE(paths(), countdown(chosen, oldest));
}

void BookmarksTest::moveAPathInAFullList_data()
{
    QTest::addColumn<int>("again");

    QTest::newRow("the first") << 100;
    QTest::newRow("in the middle") << 50;
    QTest::newRow("the last") << 1;
}

// None is lost for one that was there already.
void BookmarksTest::moveAPathInAFullList()
{
    QFETCH(int, again);

    addNumbered(100);
    VyAddBookmark(numbered(again));
    QCOMPARE(paths(),
             QStringList(numbered(again)) + countdown(100, again + 1) + countdown(again - 1, 1));
}

void BookmarksTest::ignoreNoPath_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("empty") << "";
    QTest::newRow("null") << QString();
}

void BookmarksTest::ignoreNoPath()
{
    QFETCH(QString, path);

    VyAddBookmark(path);
    QCOMPARE(paths(), QStringList());
    addNumbered(100);
    VyAddBookmark(path);
    QCOMPARE(paths(), countdown(100, 1));
}

void BookmarksTest::knowWhen()
{
    const QDateTime before = QDateTime::currentDateTimeUtc();
    addNumbered(2);
    const QDateTime after = QDateTime::currentDateTimeUtc();
    const QList<VyBookmark> bookmarks = VyBookmarks();
    QCOMPARE(bookmarks.size(), 2);
    QVERIFY(before <= bookmarks.at(1).chosen);
    QVERIFY(bookmarks.at(1).chosen < bookmarks.at(0).chosen);
    QVERIFY(bookmarks.at(1).chosen <= after);
    QVERIFY(bookmarks.at(0).chosen <= after.addMSecs(1)); // told apart when chosen at once
    QCOMPARE(bookmarks.at(0).chosen.timeSpec(), Qt::UTC);
}

void BookmarksTest::knowTheLastTime()
{
    VyAddBookmark("/plans/a.dwg");
    const QDateTime first = VyBookmarks().constFirst().chosen;
    QTest::qWait(5);
    VyAddBookmark("/plans/a.dwg");
    QVERIFY(first < VyBookmarks().constFirst().chosen);
}

void BookmarksTest::areHandedOutAsACopy()
{
    addNumbered(1);
    QList<VyBookmark> copy = VyBookmarks();
    addNumbered(2);
    QCOMPARE(copy.size(), 1);
    copy.first().path = "/plans/changed.dwg";
    QCOMPARE(paths(), countdown(2, 1));
}

void BookmarksTest::areRemoved_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QStringList>("list");

    QTest::newRow("the first") << numbered(3) << QStringList{numbered(2), numbered(1)};
    QTest::newRow("in the middle") << numbered(2) << QStringList{numbered(3), numbered(1)};
    QTest::newRow("the last") << numbered(1) << QStringList{numbered(3), numbered(2)};
    QTest::newRow("none") << numbered(4) << countdown(3, 1);
}

void BookmarksTest::areRemoved()
{
    QFETCH(QString, path);
    QFETCH(QStringList, list);

    addNumbered(3);
    VyRemoveBookmark({path, {}, {}});
    QCOMPARE(paths(), list);
}

void BookmarksTest::areAddedAgain()
{
    addNumbered(2);
    VyRemoveBookmark(VyBookmarks().constFirst());
    VyAddBookmark(numbered(2));
    QCOMPARE(paths(), countdown(2, 1));
}

void BookmarksTest::areCleared()
{
    addNumbered(3);
    VyClearBookmarks();
    QCOMPARE(paths(), QStringList());
    VyClearBookmarks();
    QCOMPARE(paths(), QStringList());
    addNumbered(1);
    QCOMPARE(paths(), countdown(1, 1));
}

QTEST_MAIN(BookmarksTest)
#include "BookmarksTest.moc"
