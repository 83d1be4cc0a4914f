// SPDX-License-Identifier: MIT
// The list's model against QFileSystemModel's own name filters: the same rows in
// the same order, while files come and go.
#include "DrawingFolder.h"
#include "VyFileListModel.h"

#include <QFileSystemModel>
#include <QtTest>

#include <memory>
#include <utility>

namespace {

const QStringList s_names{"b.dwg",  "a.dwg",  "A2.DWG", "a10.dwg", "c.dxf",   "d.dwt",  "e",
                          ".f.dwg", "g.dwg~", "h dwg",  "i.DxF",   "j\n.dwg", "k.dwg.", "l.tar.gz"};

// A folder as QFileSystemModel lists it alone, and as it does under our model.
class TwoLists
{
public:
    explicit TwoLists(const QString& path)
    {
        for (QFileSystemModel* files : {&m_bare, &m_files}) {
            files->setNameFilterDisables(false);
            files->setReadOnly(false);
            files->setRootPath(path);
        }
        m_list.setSourceModel(&m_files);
    }

    void setPatterns(const QStringList& patterns)
    {
        m_bare.setNameFilters(patterns);
        m_list.setNameFilters(patterns);
    }
    void sort(int column, Qt::SortOrder order)
    {
        m_bare.sort(column, order);
        m_list.sort(column, order);
    }
    void showHidden()
    {
        for (QFileSystemModel* files : {&m_bare, &m_files})
            files->setFilter(files->filter() | QDir::Hidden);
    }
    QStringList expected() const { return names(m_bare, m_bare.index(m_bare.rootPath())); }
    QStringList listed() const { return names(m_list, folder()); }
    QModelIndex folder() const { return m_list.mapFromSource(m_files.index(m_files.rootPath())); }
    QModelIndex file(const QString& name) const
    {
        return m_list.mapFromSource(m_files.index(m_files.rootPath() + '/' + name));
    }
    bool agree() const { return listed() == expected(); }

    QFileSystemModel& files() { return m_files; }
    CVyFileListModel& list() { return m_list; }

private:
    static QStringList names(const QAbstractItemModel& model, const QModelIndex& folder)
    {
        QStringList result;
        for (int row = 0; row < model.rowCount(folder); ++row)
            result.append(model.index(row, 0, folder).data().toString());
        return result;
    }

    QFileSystemModel m_bare;
    QFileSystemModel m_files;
    CVyFileListModel m_list;
};

// Counts the look-ups of rows, each of which Qt does by name.
class CountedModel : public QFileSystemModel
{
public:
    using QFileSystemModel::index;
    QModelIndex index(int row, int column, const QModelIndex& parent) const override
    {
        ++m_lookUps;
        return QFileSystemModel::index(row, column, parent);
    }
    int takeLookUps() { return std::exchange(m_lookUps, 0); }

private:
    mutable int m_lookUps = 0;
};

class FilledFolder : public DrawingFolder
{
public:
    FilledFolder()
    {
        for (const QString& name : s_names)
            addFile(name, name.toUtf8());
        addFolder("folder");
        addFolder("folder.dxf");
        addFile("folder/inside.dwg");
        addFile("folder/inside.txt");
    }
};

} // namespace

class FileListModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsAsQtDoes_data();
    void listsAsQtDoes();
    void followsTheFolder();
    void rowsMoveUpAtOnce();
    void rowsElsewhereGoUnseen();
    void fileBecomesFolder();
    void changedFileStaysWhereItIs();
    void takesOverQtsNameFilters();
    void sorts_data();
    void sorts();
    void keepsIndexesThroughATypeChange();
    void anotherTypeAsksForNothing();
    void aRowIsLookedUpOnce();
    void newFolderIsListedAtOnce();
    void renames();
    void visitedFoldersFollowTheType();
    void removedFolderIsForgotten();
    void withoutModel();
};

void FileListModelTest::listsAsQtDoes_data()
{
    QTest::addColumn<QStringList>("patterns");
    QTest::newRow("one") << QStringList{"*.dwg"};
    QTest::newRow("two") << QStringList{"*.dwg", "*.dxf"};
    QTest::newRow("all") << QStringList{"*"};
    QTest::newRow("with a dot") << QStringList{"*.*"};
    QTest::newRow("expressions") << QStringList{"[ab]*.dwg", "?.dxf"};
    QTest::newRow("nothing") << QStringList{"*.none"};
    QTest::newRow("no pattern") << QStringList{};
    QTest::newRow("broken") << QStringList{"*.[dwg"};
}

void FileListModelTest::listsAsQtDoes()
{
    QFETCH(QStringList, patterns);
    FilledFolder folder;
    TwoLists lists(folder.path());
    QTRY_COMPARE(lists.expected().size(), s_names.size() + 1);
    lists.setPatterns(patterns);
    QTRY_COMPARE(lists.listed(), lists.expected());
    QTRY_VERIFY(lists.listed().contains("folder.dxf"));
    lists.showHidden();
    QTRY_VERIFY(lists.expected().contains(".f.dwg") || !patterns.contains("*.dwg"));
    QTRY_COMPARE(lists.listed(), lists.expected());
}

void FileListModelTest::followsTheFolder()
{
    FilledFolder folder;
    TwoLists lists(folder.path());
    lists.setPatterns({"*.dwg"});
    QTRY_VERIFY(lists.listed().contains("a.dwg") && lists.agree());
    folder.addFile("new.dwg");
    folder.addFile("new.txt");
    folder.addFolder("new");
    QTRY_VERIFY(lists.listed().contains("new.dwg") && lists.listed().contains("new"));
    QTRY_COMPARE(lists.listed(), lists.expected());
    QVERIFY(QFile::remove(folder.filePath("a.dwg")) && QFile::remove(folder.filePath("new.txt")));
    QTRY_VERIFY(!lists.listed().contains("a.dwg"));
    QTRY_COMPARE(lists.listed(), lists.expected());
    for (const QString& name : lists.listed())
        QCOMPARE(lists.file(name).data(QFileSystemModel::FileNameRole).toString(), name);
    lists.setPatterns({"*"});
    QTRY_VERIFY(!lists.listed().contains("new.txt") && lists.listed().contains("e"));
    QTRY_COMPARE(lists.listed(), lists.expected());
}

// Views ask again while they are told that a row has gone.
void FileListModelTest::rowsMoveUpAtOnce()
{
    FilledFolder folder;
    TwoLists lists(folder.path());
    lists.setPatterns({"*.dwg"});
    QTRY_VERIFY(lists.listed().contains("a.dwg") && lists.agree());
    QStringList before;
    QStringList after;
    connect(&lists.list(), &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [&] { before = lists.listed(); });
    connect(&lists.list(), &QAbstractItemModel::rowsRemoved, this, [&] { after = lists.listed(); });
    QVERIFY(QFile::remove(folder.filePath("a.dwg")));
    QTRY_VERIFY(!after.isEmpty());
    QVERIFY(before.removeOne("a.dwg") && before.contains("b.dwg"));
    QCOMPARE(after, before);
}

// Qt's model knows folders of which nobody has asked this one.
void FileListModelTest::rowsElsewhereGoUnseen()
{
    FilledFolder folder;
    TwoLists lists(folder.path());
    lists.setPatterns({"*.dwg"});
    QTRY_VERIFY(lists.listed().contains("a.dwg") && lists.agree());
    const QPersistentModelIndex elsewhere = lists.files().index(folder.filePath("folder"));
    lists.files().fetchMore(elsewhere);
    QTRY_COMPARE(lists.files().rowCount(elsewhere), 2);
    QSignalSpy removals(&lists.list(), &QAbstractItemModel::rowsRemoved);
    QVERIFY(QFile::remove(folder.filePath("a.dwg")));
    QTRY_COMPARE(removals.size(), 1);
    QVERIFY(QFile::remove(folder.filePath("folder/inside.dwg")));
    QTRY_COMPARE(lists.files().rowCount(elsewhere), 1);
    QCOMPARE(removals.size(), 1);
}

void FileListModelTest::fileBecomesFolder()
{
    FilledFolder folder;
    TwoLists lists(folder.path());
    lists.setPatterns({"*.dwg"});
    QTRY_VERIFY(lists.listed().contains("a.dwg"));
    QVERIFY(!lists.listed().contains("e"));
    QVERIFY(QFile::remove(folder.filePath("e")));
    folder.addFolder("e");
    QTRY_VERIFY(lists.listed().contains("e"));
}

// A view keeps what it knows of all other files, and where it stands.
void FileListModelTest::changedFileStaysWhereItIs()
{
    FilledFolder folder;
    TwoLists lists(folder.path());
    lists.setPatterns({"*.dwg"});
    QTRY_VERIFY(lists.listed().contains("a.dwg") && lists.agree());
    QSignalSpy changes(&lists.list(), &QAbstractItemModel::dataChanged);
    QSignalSpy layouts(&lists.list(), &QAbstractItemModel::layoutChanged);
    const QModelIndex file = lists.list().mapToSource(lists.file("a.dwg"));
    Q_EMIT lists.files().dataChanged(file, file);
    QCOMPARE(layouts.size(), 0);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.constFirst().at(0).toModelIndex(), lists.file("a.dwg"));
    QCOMPARE(changes.constFirst().at(1).toModelIndex().row(), lists.file("a.dwg").row());
}

void FileListModelTest::takesOverQtsNameFilters()
{
    FilledFolder folder;
    TwoLists lists(folder.path());
    lists.files().setNameFilters({"*.dxf"});
    QTRY_VERIFY(lists.listed().contains("c.dxf"));
    QTRY_VERIFY(!lists.listed().contains("a.dwg"));
    QTRY_VERIFY(lists.files().nameFilters().isEmpty());
}

void FileListModelTest::sorts_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<Qt::SortOrder>("order");
    QTest::newRow("name, descending") << 0 << Qt::DescendingOrder;
    QTest::newRow("size") << 1 << Qt::AscendingOrder;
    QTest::newRow("size, descending") << 1 << Qt::DescendingOrder;
    QTest::newRow("type") << 2 << Qt::AscendingOrder;
}

void FileListModelTest::sorts()
{
    QFETCH(int, column);
    QFETCH(Qt::SortOrder, order);
    FilledFolder folder;
    TwoLists lists(folder.path());
    lists.setPatterns({"*.dwg", "*.dxf"});
    QTRY_VERIFY(lists.listed().contains("a.dwg") && lists.agree());
    const QStringList before = lists.listed();
    lists.sort(column, order);
    QTRY_VERIFY(lists.listed() != before);
    QTRY_COMPARE(lists.listed(), lists.expected());
    folder.addFile("0.dwg", "first by name");
    QTRY_VERIFY(lists.listed().contains("0.dwg"));
    QTRY_COMPARE(lists.listed(), lists.expected());
}

void FileListModelTest::keepsIndexesThroughATypeChange()
{
    FilledFolder folder;
    TwoLists lists(folder.path());
    lists.setPatterns({"*.dwg"});
    QTRY_VERIFY(lists.listed().contains("b.dwg"));
    const QPersistentModelIndex stays = lists.file("b.dwg");
    const QPersistentModelIndex goes = lists.file("a.dwg");
    QVERIFY(stays.isValid() && goes.isValid());
    lists.setPatterns({"[b-e]*"});
    QVERIFY(!goes.isValid());
    QCOMPARE(stays.data().toString(), QStringLiteral("b.dwg"));
    QCOMPARE(QModelIndex(stays), lists.file("b.dwg"));
}

// The model below neither filters nor sorts again.
void FileListModelTest::anotherTypeAsksForNothing()
{
    FilledFolder folder;
    TwoLists lists(folder.path());
    lists.setPatterns({"*.dwg"});
    QTRY_VERIFY(lists.listed().contains("b.dwg"));
    QTest::qWait(50);
    QSignalSpy sorted(&lists.files(), &QAbstractItemModel::layoutChanged);
    QSignalSpy changed(&lists.list(), &QAbstractItemModel::layoutChanged);
    lists.list().setNameFilters({"*.dxf"});
    lists.list().setNameFilters({"*.dxf"});
    QVERIFY(lists.listed().contains("c.dxf") && !lists.listed().contains("b.dwg"));
    QTest::qWait(50);
    QCOMPARE(sorted.size(), 0);
    QCOMPARE(changed.size(), 1);
}

// A view asks for the flags of each row whenever it arranges its rows.
void FileListModelTest::aRowIsLookedUpOnce()
{
    constexpr int Rows = 500;
    DrawingFolder folder;
    for (int number = 0; number < Rows; ++number)
        folder.addFile(QStringLiteral("%1.dwg").arg(number));
    CountedModel files;
    CVyFileListModel list;
    list.setSourceModel(&files);
    list.setNameFilters({"*.dwg"});
    files.setRootPath(folder.path());
    const auto shown = [&] { return list.mapFromSource(files.index(folder.path())); };
    QTRY_COMPARE(list.rowCount(shown()), Rows);
    QTest::qWait(50);
    const auto arrange = [&] {
        for (int row = 0; row < list.rowCount(shown()); ++row)
            list.flags(list.index(row, 0, shown()));
    };
    files.takeLookUps();
    arrange();
    QCOMPARE(files.takeLookUps(), 0);
    list.setNameFilters({"*"});
    QVERIFY2(files.takeLookUps() >= Rows, "nothing is counted");
    arrange();
    arrange();
    QCOMPARE(files.takeLookUps(), 0);
    QVERIFY(QFile::remove(folder.filePath("0.dwg")));
    QTRY_COMPARE(list.rowCount(shown()), Rows - 1);
    arrange();
    QCOMPARE(list.index(0, 0, shown()).data().toString(), QStringLiteral("1.dwg"));
    files.takeLookUps();
    arrange();
    QCOMPARE(files.takeLookUps(), 0);
}

void FileListModelTest::newFolderIsListedAtOnce()
{
    FilledFolder folder;
    TwoLists lists(folder.path());
    lists.setPatterns({"*.dwg"});
    QTRY_VERIFY(lists.listed().contains("b.dwg"));
    QSignalSpy inserted(&lists.list(), &QAbstractItemModel::rowsInserted);
    const QModelIndex made = lists.files().mkdir(lists.files().index(folder.path()), "New Folder");
    QCOMPARE(inserted.size(), 1);
    QCOMPARE(lists.list().mapFromSource(made).data().toString(), QStringLiteral("New Folder"));
}

void FileListModelTest::renames()
{
    FilledFolder folder;
    TwoLists lists(folder.path());
    lists.setPatterns({"*.dwg"});
    QTRY_VERIFY(lists.listed().contains("b.dwg"));
    QVERIFY(lists.list().flags(lists.file("b.dwg")) & Qt::ItemIsEditable);
    QVERIFY(lists.list().setData(lists.file("b.dwg"), "z.dwg"));
    QVERIFY(QFile::exists(folder.filePath("z.dwg")));
    QTRY_COMPARE(lists.listed().contains("z.dwg"), true);
    QTRY_COMPARE(lists.listed().contains("b.dwg"), false);
}

void FileListModelTest::visitedFoldersFollowTheType()
{
    FilledFolder folder;
    TwoLists lists(folder.path());
    lists.setPatterns({"*.dwg"});
    lists.files().setRootPath(folder.filePath("folder"));
    QTRY_COMPARE(lists.listed(), QStringList{"inside.dwg"});
    lists.files().setRootPath(folder.path());
    lists.setPatterns({"*.txt"});
    const QModelIndex visited = lists.file("folder");
    QCOMPARE(lists.list().rowCount(visited), 1);
    QCOMPARE(lists.list().index(0, 0, visited).data().toString(), QStringLiteral("inside.txt"));
}

void FileListModelTest::removedFolderIsForgotten()
{
    FilledFolder folder;
    TwoLists lists(folder.path());
    lists.setPatterns({"*.dwg"});
    // What is kept of a folder must not be taken for that of one in its place.
    for (const char* name : {"first", "second", "third", "fourth", "fifth", "sixth"}) {
        const QString file = QLatin1String(name) + QStringLiteral(".dwg");
        folder.addFolder(name);
        folder.addFile(QLatin1String(name) + '/' + file);
        QTRY_VERIFY(lists.listed().contains(name));
        lists.files().setRootPath(folder.filePath(name));
        QTRY_COMPARE(lists.listed(), QStringList{file});
        lists.files().setRootPath(folder.path());
        QVERIFY(QDir(folder.filePath(name)).removeRecursively());
        QTRY_VERIFY(!lists.listed().contains(name));
    }
    lists.setPatterns({"*"});
    QTRY_COMPARE(lists.listed(), lists.expected());
}

void FileListModelTest::withoutModel()
{
    CVyFileListModel list;
    QCOMPARE(list.rowCount(), 0);
    QCOMPARE(list.columnCount(), 0);
    QVERIFY(!list.index(0, 0).isValid() && !list.hasChildren());
    list.setNameFilters({"*.dwg"});
    QFileSystemModel files;
    list.setSourceModel(&files);
    list.setSourceModel(nullptr);
    QCOMPARE(list.rowCount(), 0);
}

QTEST_MAIN(FileListModelTest)
#include "FileListModelTest.moc"
