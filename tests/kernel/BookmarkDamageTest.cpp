// SPDX-License-Identifier: MIT
// A damaged store loses nothing but what was damaged, says so, and is kept.
#include "BookmarkTest.h"
#include "PlainUser.h"

#include <sys/stat.h>

namespace {

const QString prefix = QStringLiteral("VyHostKernel: bookmarks: ");

} // namespace

class BookmarkDamageTest : public BookmarkTest
{
    Q_OBJECT

private Q_SLOTS:
    void keepsWhatWasThere_data();
    void keepsWhatWasThere();
    void reportsOnce();
    void keepsWhatIsNoFile_data();
    void keepsWhatIsNoFile();
    void leavesTheGoalsOfLinks_data();
    void leavesTheGoalsOfLinks();
    void keepsAnUnreadableFile();
    void keepsAFileTooLarge();
    void losesNothingThatAProcessHas();
    void keepsFive();
    void closesGaps();
    void doesNotDeleteAFolder();
    void reportsWhereNothingCanBeWritten();
    void clearsADamagedFile();
};

void BookmarkDamageTest::keepsWhatWasThere_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("left");
    QTest::addColumn<QString>("damage");

    const QByteArray whole = storeText({"/a", "/b", "/c"});
    QTest::newRow("a line that is no entry")
        << QByteArray(whole).replace("\"/b\"", "\"/b") << QStringList({"/a", "/c"})
        << "has 1 lines that are no entries";
    QTest::newRow("cut in an entry") << whole.left(whole.size() - 9) << QStringList({"/a", "/b"})
                                     << "has 1 lines that are no entries";
    QTest::newRow("cut after an entry") << whole.left(whole.size() - entryLine("/c").size())
                                        << QStringList({"/a", "/b"}) << "is cut by 1 entries";
    QTest::newRow("empty") << QByteArray() << QStringList() << "is empty";
    QTest::newRow("zero bytes") << QByteArray(whole.size(), '\0') << QStringList()
                                << "does not begin as a file of bookmarks, has 1 lines that are "
                                   "no entries";
    QTest::newRow("no JSON") << QByteArray("Dear Sir,\nhello\n") << QStringList()
                             << "does not begin as a file of bookmarks, has 2 lines that are "
                                "no entries";
    QTest::newRow("later version") << QByteArray(whole).replace("\"version\":1", "\"version\":2")
                                   << QStringList() << "is of version 2, which is not known yet";
}

void BookmarkDamageTest::keepsWhatWasThere()
{
    QFETCH(QByteArray, text);
    QFETCH(QStringList, left);
    QFETCH(QString, damage);

    newFile("bookmarks.jsonl", text);
    CVyBookmarkList list(store());
    QCOMPARE(paths(list), left);
    QCOMPARE(takeMessages(), QStringList(prefix + store() + " " + damage +
                                         "; what could be read of it is taken over, the file is "
                                         "kept as " +
                                         kept()));
    QCOMPARE(textOf(kept()), text);
    QCOMPARE(storedPaths(), left);
    QCOMPARE(names(), QStringList({"bookmarks.jsonl", "bookmarks.jsonl.damaged-1"}));
}

// What was put right is right, for this process and the next.
void BookmarkDamageTest::reportsOnce()
{
    newFile("bookmarks.jsonl", storeText({"/a"}) + "damaged\n");
    CVyBookmarkList list(store());
    add(list, "/b");
    QCOMPARE(takeMessages().size(), 1);
    add(list, "/c");
    QCOMPARE(paths(list), QStringList({"/c", "/b", "/a"}));
    QCOMPARE(storedPaths(), QStringList({"/c", "/b", "/a"}));
    QVERIFY(!QFile::exists(kept(2)));
}

void BookmarkDamageTest::keepsWhatIsNoFile_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("damage");

    QTest::newRow("folder") << "folder"
                            << "is a folder";
    QTest::newRow("FIFO") << "fifo"
                          << "is not a regular file";
    QTest::newRow("dangling link") << "dangling"
                                   << "is a link that leads nowhere";
    QTest::newRow("looping link") << "loop"
                                  << "is a link that leads nowhere";
    QTest::newRow("link to a folder") << "link to folder"
                                      << "is a folder";
    QTest::newRow("link to a FIFO") << "link to fifo"
                                    << "is not a regular file";
}

void BookmarkDamageTest::keepsWhatIsNoFile()
{
    QFETCH(QString, kind);
    QFETCH(QString, damage);

    if (kind == "folder")
        QVERIFY(QDir().mkpath(store() + "/inside"));
    if (kind == "fifo")
        QCOMPARE(mkfifo(QFile::encodeName(store()).constData(), 0600), 0);
    if (kind == "dangling")
        QVERIFY(QFile::link(in("gone"), store()));
    if (kind == "loop")
        QVERIFY(QFile::link(store(), store()));
    // Nothing of the machine's: the test may run as the superuser.
    QVERIFY(QDir().mkpath(in("goal/folder")));
    QCOMPARE(mkfifo(QFile::encodeName(in("goal/fifo")).constData(), 0600), 0);
    if (kind == "link to folder")
        QVERIFY(QFile::link(in("goal/folder"), store()));
    if (kind == "link to fifo")
        QVERIFY(QFile::link(in("goal/fifo"), store()));

    CVyBookmarkList list(store());
    add(list, "/a");
    QCOMPARE(takeMessages(), QStringList(prefix + store() + " " + damage +
                                         "; what could be read of it is taken over, the file is "
                                         "kept as " +
                                         kept()));
    QCOMPARE(storedPaths(), QStringList("/a"));
    QVERIFY(!QFileInfo(store()).isSymLink());
    QCOMPARE(names(), QStringList({"bookmarks.jsonl", "bookmarks.jsonl.damaged-1", "goal"}));
    QCOMPARE(QDir(in("goal")).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot),
             QStringList({"fifo", "folder"}));
    struct stat status = {};
    QCOMPARE(lstat(QFile::encodeName(kept()).constData(), &status), 0);
    if (kind == "folder")
        QVERIFY(QFile::exists(kept() + "/inside"));
    else if (kind == "fifo")
        QVERIFY(S_ISFIFO(status.st_mode));
    else
        QVERIFY(S_ISLNK(status.st_mode));
}

void BookmarkDamageTest::leavesTheGoalsOfLinks_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("left");

    QTest::newRow("another text") << QByteArray("Dear Sir,\n") << QStringList("/b");
    QTest::newRow("an entry that is wrong")
        << QByteArray(storeText({"/a"}) + "damaged\n") << QStringList({"/b", "/a"});
}

// It may be anybody's file that the link leads to by mistake.
void BookmarkDamageTest::leavesTheGoalsOfLinks()
{
    QFETCH(QByteArray, text);
    QFETCH(QStringList, left);
    QVERIFY(QDir().mkpath(in("goal")));
    newFile("goal/file", text);
    QVERIFY(QFile::link(in("goal/file"), store()));
    CVyBookmarkList list(store());
    add(list, "/b");
    QCOMPARE(takeMessages().size(), 1);
    QCOMPARE(textOf(in("goal/file")), text);
    QCOMPARE(QDir(in("goal")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList("file"));
    QVERIFY(QFileInfo(kept()).isSymLink());
    QVERIFY(!QFileInfo(store()).isSymLink());
    QCOMPARE(storedPaths(), left);
}

void BookmarkDamageTest::keepsAnUnreadableFile()
{
    const QByteArray text = storeText({"/a"});
    newFile("bookmarks.jsonl", text);
    QCOMPARE(chmod(QFile::encodeName(store()).constData(), 0), 0);
    QCOMPARE(chmod(QFile::encodeName(in(".")).constData(), 0777), 0);
    {
        const PlainUser user;
        CVyBookmarkList list(store());
        add(list, "/b");
        QCOMPARE(storedPaths(), QStringList("/b"));
    }
    const QStringList messages = takeMessages();
    QCOMPARE(messages.size(), 1);
    QVERIFY(messages[0].contains("cannot be read: "));
    QCOMPARE(chmod(QFile::encodeName(kept()).constData(), 0600), 0);
    QCOMPARE(textOf(kept()), text);
}

void BookmarkDamageTest::keepsAFileTooLarge()
{
    newFile("bookmarks.jsonl", storeText({"/a"}));
    QVERIFY(QFile::resize(store(), VyBookmarkFormat::mostFileBytes + 1));
    CVyBookmarkList list(store());
    QCOMPARE(paths(list), QStringList());
    QVERIFY(takeMessages().join("\n").contains("is larger than 16 MiB"));
    QCOMPARE(QFileInfo(kept()).size(), VyBookmarkFormat::mostFileBytes + 1);
    QVERIFY(QFileInfo(store()).size() < 100);
}

void BookmarkDamageTest::losesNothingThatAProcessHas()
{
    CVyBookmarkList list(store());
    add(list, "/a");
    add(list, "/b");
    newFile("bookmarks.jsonl", "damaged");
    add(list, "/c");
    QCOMPARE(takeMessages().size(), 1);
    QCOMPARE(storedPaths(), QStringList({"/c", "/b", "/a"}));
    QCOMPARE(textOf(kept()), QByteArray("damaged"));
}

// The latest first; the sixth goes, which is said.
void BookmarkDamageTest::keepsFive()
{
    for (int number = 1; number <= 7; ++number) {
        newFile("bookmarks.jsonl", QByteArray::number(number));
        QCOMPARE(storedPaths(), QStringList());
        const QStringList messages = takeMessages();
        QCOMPARE(messages.size(), number > 5 ? 2 : 1);
        if (number > 5)
            QCOMPARE(messages[1], prefix + kept(5) + " was deleted to make room");
    }
    for (int number = 1; number <= 5; ++number)
        QCOMPARE(textOf(kept(number)), QByteArray::number(8 - number));
    QCOMPARE(names().size(), 6);
}

void BookmarkDamageTest::closesGaps()
{
    newFile("bookmarks.jsonl", "new");
    newFile("bookmarks.jsonl.damaged-1", "one");
    newFile("bookmarks.jsonl.damaged-2", "two");
    newFile("bookmarks.jsonl.damaged-4", "four");
    QCOMPARE(storedPaths(), QStringList());
    QCOMPARE(takeMessages().size(), 1);
    QCOMPARE(textOf(kept(1)), QByteArray("new"));
    QCOMPARE(textOf(kept(2)), QByteArray("one"));
    QCOMPARE(textOf(kept(3)), QByteArray("two"));
    QCOMPARE(textOf(kept(4)), QByteArray("four"));
}

// There is no room then: all stays as it is, and the list in memory.
void BookmarkDamageTest::doesNotDeleteAFolder()
{
    newFile("bookmarks.jsonl", "damaged");
    for (int number = 1; number <= 5; ++number)
        QVERIFY(QDir().mkpath(kept(number) + "/inside"));
    CVyBookmarkList list(store());
    add(list, "/a");
    add(list, "/b");
    QCOMPARE(paths(list), QStringList({"/b", "/a"}));
    const QStringList messages = takeMessages();
    QCOMPARE(messages.size(), 2);
    QVERIFY(messages[0].endsWith("does not begin as a file of bookmarks, has 1 lines that are no "
                                 "entries; what could be read of it is taken over, the file is "
                                 "left as it is"));
    QVERIFY(messages[1].endsWith("the damaged file cannot be kept beside it"));
    QCOMPARE(textOf(store()), QByteArray("damaged"));
    for (int number = 1; number <= 5; ++number)
        QVERIFY(QFile::exists(kept(number) + "/inside"));
}

void BookmarkDamageTest::reportsWhereNothingCanBeWritten()
{
    newFile("bookmarks.jsonl", storeText({"/a"}) + "damaged\n");
    QCOMPARE(chmod(QFile::encodeName(store()).constData(), 0644), 0);
    QCOMPARE(chmod(QFile::encodeName(in(".")).constData(), 0555), 0);
    {
        const PlainUser user;
        CVyBookmarkList list(store());
        QCOMPARE(paths(list), QStringList("/a"));
        add(list, "/b");
        QCOMPARE(paths(list), QStringList({"/b", "/a"}));
    }
    QCOMPARE(chmod(QFile::encodeName(in(".")).constData(), 0755), 0);
    const QStringList messages = takeMessages();
    QCOMPARE(messages.size(), 2);
    QVERIFY(messages[0].endsWith("its folder cannot be written to"));
    QVERIFY(messages[1].contains("has 1 lines that are no entries"));
}

void BookmarkDamageTest::clearsADamagedFile()
{
    CVyBookmarkList list(store());
    add(list, "/a");
    newFile("bookmarks.jsonl", storeText({"/b", "/a"}) + "damaged\n");
    list.clear();
    QCOMPARE(takeMessages().size(), 1);
    QCOMPARE(paths(list), QStringList());
    QCOMPARE(storedPaths(), QStringList());
    QVERIFY(textOf(kept()).contains("/b"));
}

QTEST_GUILESS_MAIN(BookmarkDamageTest)
#include "BookmarkDamageTest.moc"
