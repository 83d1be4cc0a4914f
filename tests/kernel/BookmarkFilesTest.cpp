// SPDX-License-Identifier: MIT
// Where a file of the list is that was renamed.
#include "BookmarkTest.h"
#include "VyFileSearch.h"
#include "VySystemBookmark.h"

#include <QScopeGuard>

#include <cstdio>

#include <sys/stat.h>
#include <unistd.h>

class BookmarkFilesTest : public BookmarkTest
{
    Q_OBJECT

private Q_SLOTS:
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
