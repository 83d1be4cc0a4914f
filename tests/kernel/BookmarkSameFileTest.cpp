// SPDX-License-Identifier: MIT
// Which files are the same, so that the list holds each once.
#include "BookmarkTest.h"
#include "VySystemBookmark.h"

#include <cstdio>

#include <unistd.h>

Q_DECLARE_METATYPE(VyFileFacts)

namespace {

VyFileFacts facts(quint64 device, quint64 inode, qint64 size, int modified, int born)
{
    const QDateTime start({2024, 1, 1}, {}, Qt::UTC);
    VyFileFacts result;
    result.device = device;
    result.inode = inode;
    result.size = size;
    if (modified != 0)
        result.modified = start.addMSecs(modified);
    if (born != 0)
        result.born = start.addMSecs(born);
    return result;
}

} // namespace

class BookmarkSameFileTest : public BookmarkTest
{
    Q_OBJECT

private Q_SLOTS:
    void tellsFilesApart_data();
    void tellsFilesApart();
    void keepsAFileOnce_data();
    void keepsAFileOnce();
    void keepsTheBackupAndTheNew();
    void keepsFilesOfTwoFileSystems();

private:
    QByteArray native(const QString& name) const { return QFile::encodeName(in(name)); }
    bool rename(const QString& from, const QString& to) const;
};

bool BookmarkSameFileTest::rename(const QString& from, const QString& to) const
{
    return std::rename(native(from).constData(), native(to).constData()) == 0;
}

void BookmarkSameFileTest::tellsFilesApart_data()
{
    QTest::addColumn<bool>("same");
    QTest::addColumn<VyFileFacts>("one");
    QTest::addColumn<VyFileFacts>("other");

    const VyFileFacts born = facts(1, 2, 3, 4, 5);
    const VyFileFacts unborn = facts(1, 2, 3, 4, 0);
    QTest::newRow("equal") << true << born << facts(1, 2, 3, 4, 5);
    QTest::newRow("changed since") << true << born << facts(1, 2, 30, 40, 5);
    QTest::newRow("mounted again") << true << born << facts(10, 2, 3, 4, 5);
    QTest::newRow("another inode") << false << born << facts(1, 20, 3, 4, 5);
    QTest::newRow("inode used again") << false << born << facts(1, 2, 3, 4, 6);
    QTest::newRow("equal, birth unknown") << true << unborn << facts(1, 2, 3, 4, 0);
    QTest::newRow("equal, one birth unknown") << true << unborn << born;
    QTest::newRow("another inode, birth unknown") << false << unborn << facts(1, 20, 3, 4, 0);
    QTest::newRow("another size, birth unknown") << false << unborn << facts(1, 2, 30, 4, 0);
    QTest::newRow("changed, birth unknown") << false << unborn << facts(1, 2, 3, 40, 0);
    QTest::newRow("another device, birth unknown") << false << unborn << facts(10, 2, 3, 4, 0);
    QTest::newRow("changed, one birth unknown") << false << born << facts(1, 2, 3, 40, 0);
    QTest::newRow("one unknown") << false << born << VyFileFacts();
    QTest::newRow("both unknown") << false << VyFileFacts() << VyFileFacts();
}

void BookmarkSameFileTest::tellsFilesApart()
{
    QFETCH(bool, same);
    QFETCH(VyFileFacts, one);
    QFETCH(VyFileFacts, other);
    QCOMPARE(vyIsSameFile(one, other), same);
    QCOMPARE(vyIsSameFile(other, one), same);
}

void BookmarkSameFileTest::keepsAFileOnce_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("renamedTo");
    QTest::addColumn<QString>("second");
    QTest::addColumn<QStringList>("listed");

    QTest::newRow("twice") << "a"
                           << ""
                           << "a" << QStringList("a");
    QTest::newRow("renamed") << "a"
                             << "b"
                             << "b" << QStringList("b");
    QTest::newRow("renamed into another folder") << "a"
                                                 << "folder/b"
                                                 << "folder/b" << QStringList("folder/b");
    QTest::newRow("hard link") << "a"
                               << ""
                               << "hard" << QStringList("hard");
    QTest::newRow("through a linked folder")
        << "folder/inside"
        << ""
        << "linked folder/inside" << QStringList("linked folder/inside");
    QTest::newRow("link") << "a"
                          << ""
                          << "link" << QStringList({"link", "a"});
    QTest::newRow("what a link leads to") << "link"
                                          << ""
                                          << "a" << QStringList({"a", "link"});
    QTest::newRow("another file") << "a"
                                  << ""
                                  << "folder/inside" << QStringList({"folder/inside", "a"});
    QTest::newRow("not there") << "x"
                               << ""
                               << "y" << QStringList({"y", "x"});
}

void BookmarkSameFileTest::keepsAFileOnce()
{
    QFETCH(QString, first);
    QFETCH(QString, renamedTo);
    QFETCH(QString, second);
    QFETCH(QStringList, listed);

    QVERIFY(QDir().mkpath(in("folder")));
    newFile("a");
    newFile("folder/inside");
    QVERIFY(QFile::link("a", in("link")));
    QVERIFY(QFile::link("folder", in("linked folder")));
    if (second == "hard")
        QCOMPARE(link(native("a").constData(), native("hard").constData()), 0);
    CVyBookmarkList list(store());
    add(list, in(first));
    QVERIFY(renamedTo.isEmpty() || rename(first, renamedTo));
    add(list, in(second));
    QStringList expected;
    for (const QString& name : listed)
        expected.append(in(name));
    QCOMPARE(paths(list), expected);
    QCOMPARE(storedPaths(), expected);
}

// A program that saves keeps the last version under another name.
void BookmarkSameFileTest::keepsTheBackupAndTheNew()
{
    newFile("plan.dwg");
    CVyBookmarkList list(store());
    add(list, in("plan.dwg"));
    QVERIFY(rename("plan.dwg", "plan.bak"));
    newFile("plan.dwg", "new");
    add(list, in("plan.bak"));
    QCOMPARE(paths(list), QStringList({in("plan.bak"), in("plan.dwg")}));
    std::unique_ptr<CVySystemBookmark> access;
    QCOMPARE(list.find({in("plan.dwg"), {}, {}}, access).path, in("plan.dwg"));
}

// Numbers of inodes are no file system's own.
void BookmarkSameFileTest::keepsFilesOfTwoFileSystems()
{
    VyBookmarkEntry here;
    here.bookmark.path = in("a");
    here.bookmark.chosen = QDateTime::currentDateTimeUtc();
    here.file = facts(1, 2, 3, 4, 5);
    VyBookmarkEntry there = here;
    there.bookmark.path = "/other/a";
    QCOMPARE(vyMergedEntries({here}, {there}).size(), 1);
    there.file.device = 10;
    QCOMPARE(vyMergedEntries({here}, {there}).size(), 2);

    newFile("a");
    const quint64 device = vyFileFacts(native("a")).device;
    for (const QString& folder : {QStringLiteral("/dev/shm"), QDir::homePath()}) {
        const QTemporaryDir other(folder + "/BookmarkSameFileTest-XXXXXX");
        if (!other.isValid() || vyFileFacts(QFile::encodeName(other.path())).device == device)
            continue;
        QVERIFY(QFile::copy(in("a"), other.filePath("a")));
        CVyBookmarkList list(store());
        add(list, in("a"));
        add(list, other.filePath("a"));
        QCOMPARE(paths(list), QStringList({other.filePath("a"), in("a")}));
        QVERIFY(QFile::rename(other.filePath("a"), other.filePath("z")));
        std::unique_ptr<CVySystemBookmark> access;
        QCOMPARE(list.find({other.filePath("a"), {}, {}}, access).path, other.filePath("z"));
        return;
    }
    QSKIP("there is one file system alone");
}

QTEST_GUILESS_MAIN(BookmarkSameFileTest)
#include "BookmarkSameFileTest.moc"
