// SPDX-License-Identifier: MIT
// Where the list cannot be written: it goes on in memory, and nothing is lost.
#include "BookmarkTest.h"
#include "FullDisk.h"
#include "PlainUser.h"

#include <QLockFile>

#include <sys/stat.h>

namespace {

QString numbered(int number)
{
    return QStringLiteral("/plans/%1.dwg").arg(number);
}

} // namespace

class BookmarkObstacleTest : public BookmarkTest
{
    Q_OBJECT

private Q_SLOTS:
    void goesOnInMemory_data();
    void goesOnInMemory();
    void survivesAFullDisk();
    void removesWhenThereIsRoom();
    void keepsADamagedFileOnAFullDisk();
    void waitsForOthersBriefly();
    void ignoresAStaleLock_data();
    void ignoresAStaleLock();
};

void BookmarkObstacleTest::goesOnInMemory_data()
{
    QTest::addColumn<QString>("obstacle");
    QTest::addColumn<QString>("reason");

    QTest::newRow("file for a folder") << "file"
                                       << "its folder cannot be made";
    QTest::newRow("read-only folder") << "read-only"
                                      << "its folder cannot be written to";
    QTest::newRow("folder without entry") << "no entry"
                                          << "its folder cannot be written to";
    QTest::newRow("read-only file") << "read-only file"
                                    << "not written";
    QTest::newRow("FIFO for the lock") << "lock fifo"
                                       << "bookmarks.jsonl.lock is not a file";
    QTest::newRow("folder for the lock") << "lock folder"
                                         << "bookmarks.jsonl.lock is not a file";
    QTest::newRow("dangling link for the lock") << "lock link"
                                                << "bookmarks.jsonl.lock is not a file";
}

// Once said; and when the obstacle is gone, nothing has been lost.
void BookmarkObstacleTest::goesOnInMemory()
{
    QFETCH(QString, obstacle);
    QFETCH(QString, reason);
    const QString folder = in("data");
    const QString file = folder + "/bookmarks.jsonl";
    const auto mode = [&folder](mode_t bits) {
        return chmod(QFile::encodeName(folder).constData(), bits) == 0;
    };
    QVERIFY(chmod(QFile::encodeName(in(".")).constData(), 0755) == 0);
    if (obstacle == "file") {
        newFile("data");
    } else {
        QVERIFY(QDir().mkpath(folder));
        newFile("data/bookmarks.jsonl", storeText({"/before"}));
        QVERIFY(chmod(QFile::encodeName(file).constData(), 0666) == 0);
    }
    if (obstacle == "read-only file")
        QVERIFY(chmod(QFile::encodeName(file).constData(), 0444) == 0 && mode(0777));
    if (obstacle == "read-only")
        QVERIFY(mode(0555));
    if (obstacle == "no entry")
        QVERIFY(mode(0));
    if (obstacle == "lock fifo")
        QCOMPARE(mkfifo(QFile::encodeName(file + ".lock").constData(), 0666), 0);
    if (obstacle == "lock folder")
        QVERIFY(QDir().mkpath(file + ".lock"));
    if (obstacle == "lock link")
        QVERIFY(QFile::link(in("nowhere"), file + ".lock"));

    CVyBookmarkList list(file);
    const QStringList before =
        obstacle == "file" || obstacle == "no entry" ? QStringList() : QStringList("/before");
    {
        const PlainUser user;
        add(list, "/a");
        add(list, "/b");
        QCOMPARE(paths(list), QStringList({"/b", "/a"}) + before);
    }
    const QStringList messages = takeMessages();
    QCOMPARE(messages.size(), 1);
    QVERIFY(messages[0].startsWith("VyHostKernel: bookmarks: " + file +
                                   " is not written, the list goes on in memory: "));
    QVERIFY2(messages[0].contains(QRegularExpression(reason)), qPrintable(messages[0]));

    if (obstacle == "file")
        QVERIFY(QFile::remove(folder));
    else
        QVERIFY(mode(0777));
    if (obstacle == "lock folder")
        QVERIFY(QDir(file + ".lock").removeRecursively());
    else
        QFile::remove(file + ".lock");
    QVERIFY(!QFile::exists(file) || chmod(QFile::encodeName(file).constData(), 0666) == 0);
    add(list, "/c");
    CVyBookmarkList again(file);
    QCOMPARE(paths(again), QStringList({"/c", "/b", "/a"}) +
                               (obstacle == "file" ? QStringList() : QStringList("/before")));
}

void BookmarkObstacleTest::survivesAFullDisk()
{
    CVyBookmarkList list(store());
    for (int number = 1; number <= 30; ++number)
        add(list, numbered(number));
    const QByteArray text = textOf(store());
    {
        const FullDisk disk(1000);
        add(list, "/a");
        add(list, "/b");
        QCOMPARE(textOf(store()), text);
        QCOMPARE(names(), QStringList("bookmarks.jsonl"));
        QCOMPARE(paths(list).mid(0, 3), QStringList({"/b", "/a", numbered(30)}));
        QVERIFY(takeMessages().join(";").contains("the list goes on in memory: "));
    }
    add(list, "/c");
    QCOMPARE(storedPaths().mid(0, 4), QStringList({"/c", "/b", "/a", numbered(30)}));
    QCOMPARE(storedPaths().size(), 33);
}

// What was removed meanwhile does not come back, but for what another process has
// chosen again.
void BookmarkObstacleTest::removesWhenThereIsRoom()
{
    CVyBookmarkList list(store());
    CVyBookmarkList other(store());
    for (int number = 1; number <= 30; ++number)
        add(list, numbered(number));
    const QByteArray text = textOf(store());
    {
        const FullDisk disk(1000);
        list.remove({numbered(30), {}, {}});
        list.remove({numbered(29), {}, {}});
        QCOMPARE(paths(list).mid(0, 1), QStringList(numbered(28)));
        QCOMPARE(textOf(store()), text);
        QVERIFY(takeMessages().join(";").contains("the list goes on in memory: "));
    }
    QTest::qWait(5);
    add(other, numbered(29));
    add(list, "/a");
    QCOMPARE(storedPaths().mid(0, 3), QStringList({"/a", numbered(29), numbered(28)}));
    QCOMPARE(storedPaths().size(), 30);
}

void BookmarkObstacleTest::keepsADamagedFileOnAFullDisk()
{
    QStringList many;
    for (int number = 1; number <= 30; ++number)
        many.append(numbered(number));
    const QByteArray text = storeText(many) + "damaged\n";
    newFile("bookmarks.jsonl", text);
    {
        const FullDisk disk(1000);
        CVyBookmarkList list(store());
        QCOMPARE(paths(list), many);
        const QStringList messages = takeMessages();
        QCOMPARE(messages.size(), 2);
        QVERIFY(messages[0].contains("has 1 lines that are no entries") &&
                messages[0].endsWith("the file is left as it is"));
        QVERIFY(messages[1].contains("the list goes on in memory: "));
    }
    QCOMPARE(textOf(store()), text);
    QCOMPARE(names(), QStringList("bookmarks.jsonl"));
}

// The interface stands still for a second at most, and only once.
void BookmarkObstacleTest::waitsForOthersBriefly()
{
    CVyBookmarkList list(store());
    add(list, "/a");
    QLockFile other(store() + ".lock");
    QVERIFY(other.tryLock(0));
    QElapsedTimer timer;
    timer.start();
    add(list, "/b");
    const qint64 first = timer.restart();
    for (int number = 1; number <= 50; ++number)
        add(list, numbered(number));
    const qint64 later = timer.elapsed();
    QVERIFY2(first >= CVyBookmarkList::longestWait && first < 3000, QByteArray::number(first));
    QVERIFY2(later < 1000, QByteArray::number(later));
    QCOMPARE(storedPaths(), QStringList("/a"));
    const QStringList messages = takeMessages();
    QCOMPARE(messages.size(), 1);
    QVERIFY(messages[0].endsWith("another process holds it"));

    other.unlock();
    add(list, "/c");
    QCOMPARE(storedPaths().size(), 53);
    QCOMPARE(storedPaths(), paths(list));
}

void BookmarkObstacleTest::ignoresAStaleLock_data()
{
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("of a process that is gone")
        << "99999999\nBookmarkObstacleTest\n" + QSysInfo::machineHostName().toLocal8Bit() + "\n";
    QTest::newRow("killed before it was written") << QByteArray();
    QTest::newRow("killed while it was written") << QByteArray("99");
}

void BookmarkObstacleTest::ignoresAStaleLock()
{
    QFETCH(QByteArray, text);
    newFile("bookmarks.jsonl.lock", text);
    CVyBookmarkList list(store());
    QElapsedTimer timer;
    timer.start();
    add(list, "/a");
    QVERIFY(timer.elapsed() < 2 * CVyBookmarkList::longestWait);
    QCOMPARE(storedPaths(), QStringList("/a"));
    QCOMPARE(names(), QStringList("bookmarks.jsonl"));
}

QTEST_GUILESS_MAIN(BookmarkObstacleTest)
#include "BookmarkObstacleTest.moc"
