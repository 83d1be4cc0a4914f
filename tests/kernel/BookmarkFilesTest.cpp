// SPDX-License-Identifier: MIT
// The files of the list: which are the same, and where one is that was renamed.
#include "BookmarkTest.h"
#include "VyFileSearch.h"
#include "VySystemBookmark.h"

#include <QScopeGuard>

#include <cstdio>

#include <sys/stat.h>
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

class BookmarkFilesTest : public BookmarkTest
{
    Q_OBJECT

private Q_SLOTS:
    void tellsFilesApart_data();
    void tellsFilesApart();
    void findsFiles_data();
    void findsFiles();
    void findsOddNames_data();
    void findsOddNames();
    void knowsNothingOfRelativePaths();
    void looksAtSoManyNames();
    void endsInALargeFolder();
    void takesTheFirstOfSeveralNames();
    void notesTheNewPath();
    void notesTheNewFile();
    void keepsAFileOnce_data();
    void keepsAFileOnce();
    void keepsTheBackupAndTheNew();
    void keepsFilesOfTwoFileSystems();
    void listsWhatIsGone();
    void looksForWhatIsNotListed();

private:
    QByteArray native(const QString& name) const { return QFile::encodeName(in(name)); }
    bool rename(const QString& from, const QString& to) const;
    bool replace(const QString& name) const;
    QString find(const QString& name) const;
};

bool BookmarkFilesTest::rename(const QString& from, const QString& to) const
{
    return std::rename(native(from).constData(), native(to).constData()) == 0;
}

// As programs do that write a new file and then rename it.
bool BookmarkFilesTest::replace(const QString& name) const
{
    newFile(name + ".new", "new");
    return rename(name + ".new", name);
}

// The name that a new process finds the file under.
QString BookmarkFilesTest::find(const QString& name) const
{
    CVyBookmarkList list(store());
    std::unique_ptr<CVySystemBookmark> access;
    const QString path = list.find({in(name), {}, {}}, access).path;
    return path.isEmpty() ? path : QDir(in(".")).relativeFilePath(path);
}

void BookmarkFilesTest::tellsFilesApart_data()
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

void BookmarkFilesTest::tellsFilesApart()
{
    QFETCH(bool, same);
    QFETCH(VyFileFacts, one);
    QFETCH(VyFileFacts, other);
    QCOMPARE(vyIsSameFile(one, other), same);
    QCOMPARE(vyIsSameFile(other, one), same);
}

void BookmarkFilesTest::findsFiles_data()
{
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("happening");
    QTest::addColumn<QString>("found");

    QTest::newRow("as it was") << "a"
                               << "nothing"
                               << "a";
    QTest::newRow("renamed") << "a"
                             << "rename"
                             << "z";
    QTest::newRow("renamed and changed") << "a"
                                         << "rename and change"
                                         << "z";
    QTest::newRow("renamed, another file under the path") << "a"
                                                          << "rename and replace"
                                                          << "a";
    QTest::newRow("replaced") << "a"
                              << "replace"
                              << "a";
    QTest::newRow("deleted") << "a"
                             << "delete"
                             << "";
    QTest::newRow("deleted, a new file beside") << "a"
                                                << "delete and make"
                                                << "";
    QTest::newRow("moved to a folder below") << "a"
                                             << "move down"
                                             << "";
    QTest::newRow("its folder renamed") << "folder/a"
                                        << "rename folder"
                                        << "";
    QTest::newRow("a folder, renamed") << "folder"
                                       << "rename"
                                       << "z";
    QTest::newRow("a link") << "link"
                            << "nothing"
                            << "link";
    QTest::newRow("a link, renamed") << "link"
                                     << "rename"
                                     << "z";
    QTest::newRow("a link, what it leads to renamed") << "link"
                                                      << "rename a"
                                                      << "";
    QTest::newRow("a link, what it leads to deleted") << "link"
                                                      << "delete a"
                                                      << "";
    QTest::newRow("a link, renamed and leading nowhere") << "link"
                                                         << "rename and delete a"
                                                         << "";
    QTest::newRow("a dangling link") << "dangling"
                                     << "nothing"
                                     << "";
    QTest::newRow("a looping link") << "loop"
                                    << "nothing"
                                    << "";
    QTest::newRow("a hard link, the other renamed") << "hard"
                                                    << "rename a"
                                                    << "hard";
    QTest::newRow("a hard link, deleted") << "hard"
                                          << "delete"
                                          << "a";
    QTest::newRow("through a linked folder") << "linked folder/inside"
                                             << "rename inside"
                                             << "linked folder/z";
    QTest::newRow("not there when it was chosen") << "later"
                                                  << "nothing"
                                                  << "";
    QTest::newRow("written after it was chosen") << "later"
                                                 << "make later"
                                                 << "later";
}

void BookmarkFilesTest::findsFiles()
{
    QFETCH(QString, chosen);
    QFETCH(QString, happening);
    QFETCH(QString, found);

    QVERIFY(QDir().mkpath(in("folder")));
    QVERIFY(QDir().mkpath(in("empty")));
    for (const QString name : {"a", "b", "folder/a", "folder/inside"})
        newFile(name, "drawing");
    QVERIFY(QFile::link("a", in("link")));
    QVERIFY(QFile::link("gone", in("dangling")));
    QVERIFY(QFile::link("loop", in("loop")));
    QVERIFY(QFile::link("folder", in("linked folder")));
    if (chosen == "hard")
        QCOMPARE(link(native("a").constData(), native("hard").constData()), 0);
    {
        CVyBookmarkList list(store());
        add(list, in(chosen));
    }
    if (happening.startsWith("rename a"))
        QVERIFY(happening == "rename a" ? rename("a", "z") : rename(chosen, "z"));
    else if (happening == "rename folder")
        QVERIFY(rename("folder", "other folder"));
    else if (happening == "rename inside")
        QVERIFY(rename("folder/inside", "folder/z"));
    else if (happening == "rename")
        QVERIFY(rename(chosen, "z"));
    if (happening == "rename and change")
        newFile("z", "another and longer drawing");
    if (happening == "rename and replace" || happening == "replace")
        QVERIFY(replace(chosen));
    if (happening == "rename and delete a" || happening == "delete a")
        QVERIFY(QFile::remove(in("a")));
    if (happening.startsWith("delete") && happening != "delete a")
        QVERIFY(QFile::remove(in(chosen)));
    if (happening == "delete and make") {
        QTest::qSleep(50); // file systems' clocks tick every few milliseconds
        newFile("z", "drawing");
    }
    if (happening == "move down")
        QVERIFY(rename(chosen, "empty/a"));
    if (happening == "make later")
        newFile("later");
    QCOMPARE(find(chosen), found);
}

void BookmarkFilesTest::findsOddNames_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");

    QTest::newRow("Cyrillic") << QByteArray("Чертёж №1.dwg") << QByteArray("Деталь.dwg");
    QTest::newRow("line end") << QByteArray("a\nb.dwg") << QByteArray("\n");
    QTest::newRow("combining accent")
        << QByteArray("re\xcc\x81seau") << QByteArray("r\xc3\xa9seau");
    QTest::newRow("no UTF-8") << QByteArray("a\xff.dwg") << QByteArray("b\xff.dwg");
    QTest::newRow("repaired name") << QByteArray("a\xff.dwg") << QByteArray("a.dwg");
    QTest::newRow("broken name") << QByteArray("a.dwg") << QByteArray("a\xff.dwg");
    QTest::newRow("quotes and backslash") << QByteArray("\"a\\") << QByteArray("'b'");
    QTest::newRow("hidden") << QByteArray("a.dwg") << QByteArray(".a.dwg");
    QTest::newRow("longest") << QByteArray(255, 'a') << QByteArray(255, 'b');
}

void BookmarkFilesTest::findsOddNames()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);

    const QByteArray folder = native(".") + '/';
    FILE* const file = std::fopen(QByteArray(folder + from).constData(), "w");
    QVERIFY(file);
    std::fclose(file);
    // QTemporaryDir cannot remove names without a text.
    const auto removal = qScopeGuard([&] {
        std::remove(QByteArray(folder + from).constData());
        std::remove(QByteArray(folder + to).constData());
    });
    const VyBookmark chosen = vyBookmarkOfBytes(folder + from);
    {
        CVyBookmarkList list(store());
        list.add(chosen);
    }
    CVyBookmarkList list(store());
    QCOMPARE(list.bookmarks().constFirst().path, QFile::decodeName(folder + from));
    std::unique_ptr<CVySystemBookmark> access;
    QCOMPARE(vyNativePath(list.find(chosen, access)), QByteArray(folder + from));
    QCOMPARE(
        std::rename(QByteArray(folder + from).constData(), QByteArray(folder + to).constData()), 0);
    QCOMPARE(vyNativePath(list.find(chosen, access)), QByteArray(folder + to));
    CVyBookmarkList again(store());
    QCOMPARE(again.bookmarks().size(), 1);
    QCOMPARE(vyNativePath(again.bookmarks().constFirst()), QByteArray(folder + to));
}

void BookmarkFilesTest::knowsNothingOfRelativePaths()
{
    newFile("a");
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(in(".")));
    CVyBookmarkList list(store());
    add(list, "a");
    add(list, "a");
    QVERIFY(!textOf(store()).contains("inode"));
    std::unique_ptr<CVySystemBookmark> access;
    QCOMPARE(list.find({"a", {}, {}}, access).path, QString("a"));
    QVERIFY(rename("a", "z"));
    QCOMPARE(list.find({"a", {}, {}}, access).path, QString());
    QVERIFY(QDir::setCurrent(before));
}

void BookmarkFilesTest::looksAtSoManyNames()
{
    newFile("a");
    const VyFileFacts known = vyFileFacts(native("a"));
    QVERIFY(known.isKnown());
    for (int number = 0; number < 20; ++number)
        newFile(QString::number(number));
    QVERIFY(rename("a", "z"));
    const int all = names().size() + 2; // with "." and ".."
    QCOMPARE(VyFileSearch::renamed(native("a"), known, all), native("z"));
    QCOMPARE(VyFileSearch::renamed(native("a"), known, 0), QByteArray());
    int needed = 0;
    while (VyFileSearch::renamed(native("a"), known, needed).isEmpty())
        ++needed;
    QVERIFY2(needed >= 1 && needed <= all, QByteArray::number(needed));
}

void BookmarkFilesTest::endsInALargeFolder()
{
    QVERIFY(QDir().mkpath(in("large")));
    newFile("name"); // first, so that it does not get the inode of the other
    newFile("large/a");
    CVyBookmarkList list(store());
    add(list, in("large/a"));
    QVERIFY(QFile::remove(in("large/a")));
    for (int number = 0; number < 2 * VyFileSearch::mostNames; ++number)
        QCOMPARE(link(native("name").constData(),
                      native("large/" + QString::number(number)).constData()),
                 0);
    QElapsedTimer timer;
    timer.start();
    std::unique_ptr<CVySystemBookmark> access;
    QCOMPARE(list.find({in("large/a"), {}, {}}, access).path, QString());
    QVERIFY2(timer.elapsed() < 1000, QByteArray::number(timer.elapsed()));
}

void BookmarkFilesTest::takesTheFirstOfSeveralNames()
{
    newFile("a");
    CVyBookmarkList list(store());
    add(list, in("a"));
    for (const QString name : {"m", "c", "x"})
        QCOMPARE(link(native("a").constData(), native(name).constData()), 0);
    QVERIFY(QFile::remove(in("a")));
    QCOMPARE(find("a"), QString("c"));
}

void BookmarkFilesTest::notesTheNewPath()
{
    newFile("a");
    CVyBookmarkList list(store());
    add(list, in("a"));
    add(list, "/later");
    const QDateTime chosen = list.bookmarks().constLast().chosen;
    QVERIFY(rename("a", "b"));
    QCOMPARE(find("a"), QString("b"));
    QVERIFY(rename("b", "c"));
    QCOMPARE(find("b"), QString("c"));
    CVyBookmarkList again(store());
    QCOMPARE(paths(again), QStringList({"/later", in("c")}));
    QCOMPARE(again.bookmarks().constLast().chosen, chosen);
    // The process that has the old path in memory learns of it.
    add(list, "/latest");
    QCOMPARE(paths(list), QStringList({"/latest", "/later", in("c")}));
}

// The one that is under the path now is found when that is renamed.
void BookmarkFilesTest::notesTheNewFile()
{
    newFile("a");
    CVyBookmarkList list(store());
    add(list, in("a"));
    QVERIFY(replace("a"));
    const QByteArray before = textOf(store());
    QCOMPARE(find("a"), QString("a"));
    QVERIFY(textOf(store()) != before);
    QVERIFY(rename("a", "b"));
    QCOMPARE(find("a"), QString("b"));
}

void BookmarkFilesTest::keepsAFileOnce_data()
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

void BookmarkFilesTest::keepsAFileOnce()
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
void BookmarkFilesTest::keepsTheBackupAndTheNew()
{
    newFile("plan.dwg");
    CVyBookmarkList list(store());
    add(list, in("plan.dwg"));
    QVERIFY(rename("plan.dwg", "plan.bak"));
    newFile("plan.dwg", "new");
    add(list, in("plan.bak"));
    QCOMPARE(paths(list), QStringList({in("plan.bak"), in("plan.dwg")}));
    QCOMPARE(find("plan.dwg"), QString("plan.dwg"));
}

// Numbers of inodes are no file system's own.
void BookmarkFilesTest::keepsFilesOfTwoFileSystems()
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
        const QTemporaryDir other(folder + "/BookmarkFilesTest-XXXXXX");
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

// It may come back: a drive that is not there now.
void BookmarkFilesTest::listsWhatIsGone()
{
    newFile("a");
    CVyBookmarkList list(store());
    add(list, in("a"));
    QVERIFY(QFile::remove(in("a")));
    const QByteArray before = textOf(store());
    QCOMPARE(find("a"), QString());
    QCOMPARE(storedPaths(), QStringList(in("a")));
    QCOMPARE(textOf(store()), before);
}

void BookmarkFilesTest::looksForWhatIsNotListed()
{
    newFile("a");
    QCOMPARE(find("a"), QString("a"));
    QCOMPARE(find("b"), QString());
    QVERIFY(!QFile::exists(store()));
}

QTEST_GUILESS_MAIN(BookmarkFilesTest)
#include "BookmarkFilesTest.moc"
