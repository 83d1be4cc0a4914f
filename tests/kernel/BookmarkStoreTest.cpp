// SPDX-License-Identifier: MIT
// The file that the list is kept in: that it comes back, and whose it is.
#include "BookmarkTest.h"

#include <sys/stat.h>

namespace {

QString numbered(int number)
{
    return QStringLiteral("/plans/%1.dwg").arg(number);
}

} // namespace

class BookmarkStoreTest : public BookmarkTest
{
    Q_OBJECT

private Q_SLOTS:
    void comesBack();
    void isReadWhenAskedFor();
    void isNotTouchedByReading();
    void holdsAHundred();
    void holdsThePathsAndNoMore();
    void isItsOwnersAlone_data();
    void isItsOwnersAlone();
    void makesItsFolder();
    void isEmptiedToo();
    void isGoneWhenDeleted();
    void isWrittenThroughLinks_data();
    void isWrittenThroughLinks();
    void staysInMemoryAlone();
    void ignoresWhatACrashLeaves();
    void refusesLongPaths();
};

void BookmarkStoreTest::comesBack()
{
    {
        CVyBookmarkList list(store());
        for (const QString path : {"/a", "/b", "/c", "/b"})
            add(list, path);
        QCOMPARE(paths(list), QStringList({"/b", "/c", "/a"}));
    }
    CVyBookmarkList list(store());
    QCOMPARE(paths(list), QStringList({"/b", "/c", "/a"}));
    add(list, "/d");
    QCOMPARE(storedPaths(), QStringList({"/d", "/b", "/c", "/a"}));
    QCOMPARE(names(), QStringList("bookmarks.jsonl"));
}

void BookmarkStoreTest::isReadWhenAskedFor()
{
    CVyBookmarkList list(store());
    newFile("bookmarks.jsonl", storeText({"/a"}));
    QCOMPARE(paths(list), QStringList("/a"));
}

void BookmarkStoreTest::isNotTouchedByReading()
{
    CVyBookmarkList none(in("folder/bookmarks.jsonl"));
    QCOMPARE(paths(none), QStringList());
    QCOMPARE(names(), QStringList());

    const QByteArray text = storeText({"/a", "/b"});
    newFile("bookmarks.jsonl", text);
    QCOMPARE(storedPaths(), QStringList({"/a", "/b"}));
    QCOMPARE(textOf(store()), text);
    QCOMPARE(names(), QStringList("bookmarks.jsonl"));
}

void BookmarkStoreTest::holdsAHundred()
{
    CVyBookmarkList list(store());
    for (int number = 1; number <= 103; ++number)
        add(list, numbered(number));
    const QStringList stored = storedPaths();
    QCOMPARE(stored.size(), 100);
    QCOMPARE(stored.constFirst(), numbered(103));
    QCOMPARE(stored.constLast(), numbered(4));
}

// Nothing but what the user chose.
void BookmarkStoreTest::holdsThePathsAndNoMore()
{
    CVyBookmarkList list(store());
    add(list, "/a");
    add(list, newFile("b.dwg", "drawing"));
    const auto contents = VyBookmarkFormat::read(textOf(store()));
    QCOMPARE(contents.entries.size(), 2);
    QVERIFY(!contents.entries[1].file.isKnown());
    const VyBookmarkEntry& real = contents.entries[0];
    struct stat status = {};
    QCOMPARE(stat(QFile::encodeName(in("b.dwg")).constData(), &status), 0);
    QCOMPARE(real.file.inode, quint64(status.st_ino));
    QCOMPARE(real.file.device, quint64(status.st_dev));
    QCOMPARE(real.file.size, 7);
    QCOMPARE(real.file.modified, QFileInfo(in("b.dwg")).lastModified());
    QCOMPARE(real.file.born, QFileInfo(in("b.dwg")).birthTime());
    QVERIFY(!textOf(store()).contains("drawing"));
}

void BookmarkStoreTest::isItsOwnersAlone_data()
{
    QTest::addColumn<int>("mode");

    QTest::newRow("new") << 0;
    QTest::newRow("readable by all before") << 0644;
    QTest::newRow("writable by all before") << 0666;
}

void BookmarkStoreTest::isItsOwnersAlone()
{
    QFETCH(int, mode);
    const QByteArray name = QFile::encodeName(store());
    if (mode != 0) {
        newFile("bookmarks.jsonl", storeText({"/a"}));
        QCOMPARE(chmod(name.constData(), static_cast<mode_t>(mode)), 0);
    }
    const mode_t mask = umask(0);
    CVyBookmarkList list(store());
    add(list, "/b");
    umask(mask);
    struct stat status = {};
    QCOMPARE(stat(name.constData(), &status), 0);
    QCOMPARE(status.st_mode & 07777, mode_t(0600));
}

void BookmarkStoreTest::makesItsFolder()
{
    CVyBookmarkList list(in("one/two/bookmarks.jsonl"));
    add(list, "/a");
    CVyBookmarkList again(in("one/two/bookmarks.jsonl"));
    QCOMPARE(paths(again), QStringList("/a"));
}

void BookmarkStoreTest::isEmptiedToo()
{
    CVyBookmarkList list(store());
    CVyBookmarkList other(store());
    add(list, "/a");
    add(other, "/b");
    list.clear();
    QCOMPARE(paths(list), QStringList());
    QCOMPARE(storedPaths(), QStringList());
    QVERIFY(!textOf(store()).contains("path"));
    // The other process does not bring back what was cleared.
    add(other, "/c");
    QCOMPARE(paths(other), QStringList("/c"));
    QCOMPARE(storedPaths(), QStringList("/c"));
}

void BookmarkStoreTest::isGoneWhenDeleted()
{
    CVyBookmarkList list(store());
    add(list, "/a");
    QVERIFY(QFile::remove(store()));
    add(list, "/b");
    QCOMPARE(paths(list), QStringList("/b"));
}

void BookmarkStoreTest::isWrittenThroughLinks_data()
{
    QTest::addColumn<bool>("isFolder");

    QTest::newRow("to the file") << false;
    QTest::newRow("to the folder") << true;
}

void BookmarkStoreTest::isWrittenThroughLinks()
{
    QFETCH(bool, isFolder);
    QVERIFY(QDir().mkpath(in("real")));
    newFile("real/bookmarks.jsonl", storeText({"/a"}));
    const QString linked = isFolder ? in("link/bookmarks.jsonl") : in("link");
    QVERIFY(QFile::link(isFolder ? in("real") : in("real/bookmarks.jsonl"), in("link")));
    CVyBookmarkList list(linked);
    add(list, "/b");
    QVERIFY(QFileInfo(in("link")).isSymLink());
    CVyBookmarkList real(in("real/bookmarks.jsonl"));
    QCOMPARE(paths(real), QStringList({"/b", "/a"}));
    QCOMPARE(names(), QStringList({"link", "real"}));
}

void BookmarkStoreTest::staysInMemoryAlone()
{
    CVyBookmarkList list{QString()};
    add(list, "/a");
    add(list, "/b");
    QCOMPARE(paths(list), QStringList({"/b", "/a"}));
    list.clear();
    QCOMPARE(paths(list), QStringList());
    QCOMPARE(names(), QStringList());
}

// Between writing and renaming.
void BookmarkStoreTest::ignoresWhatACrashLeaves()
{
    const QByteArray text = storeText({"/a"});
    newFile("bookmarks.jsonl", text);
    newFile("bookmarks.jsonl.QwErTy", storeText({"/b", "/a"}).left(100));
    CVyBookmarkList list(store());
    QCOMPARE(paths(list), QStringList("/a"));
    add(list, "/c");
    QCOMPARE(storedPaths(), QStringList({"/c", "/a"}));
    QCOMPARE(names(), QStringList({"bookmarks.jsonl", "bookmarks.jsonl.QwErTy"}));
}

void BookmarkStoreTest::refusesLongPaths()
{
    CVyBookmarkList list(store());
    add(list, QString(VyBookmarkLimits::path, 'x'));
    add(list, QString(VyBookmarkLimits::path + 1, 'y'));
    list.add({"/a", {}, QByteArray(VyBookmarkLimits::path + 1, '\xff')});
    QCOMPARE(storedPaths(), QStringList(QString(VyBookmarkLimits::path, 'x')));
    QCOMPARE(paths(list), storedPaths());
    QCOMPARE(takeMessages(), QStringList("VyHostKernel: bookmarks: a path of more than 8192 "
                                         "characters is not noted"));
}

QTEST_GUILESS_MAIN(BookmarkStoreTest)
#include "BookmarkStoreTest.moc"
