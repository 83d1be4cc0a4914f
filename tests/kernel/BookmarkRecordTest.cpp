// SPDX-License-Identifier: MIT
// The list on a system that has records of files of its own: this one is played
// here, so that what the list does with them is seen on every system.
#include "BookmarkTest.h"
#include "VySystemBookmark.h"

#include <QMap>

namespace {

// What the system knows: where the file of each record is now.
struct
{
    QMap<QByteArray, QByteArray> paths;
    bool isStale = false;
    bool makesNone = false;
    int recordSize = 0; ///< as long as they come for 0
    int made = 0;
    int open = 0;
} s_system;

} // namespace

QByteArray CVySystemBookmark::of(const QByteArray& path)
{
    if (s_system.makesNone)
        return {};
    QByteArray record = "record " + QByteArray::number(++s_system.made);
    record = record.leftJustified(s_system.recordSize, '.');
    s_system.paths.insert(record, path);
    return record;
}

CVySystemBookmark::CVySystemBookmark(const QByteArray& record)
    : m_path(s_system.paths.value(record))
    , m_isStale(s_system.isStale)
{
    m_url = &++s_system.open;
}

CVySystemBookmark::~CVySystemBookmark()
{
    --*static_cast<int*>(m_url);
}

class BookmarkRecordTest : public BookmarkTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void isStored();
    void isNotMadeOfNothing();
    void isLeftOutWhenTooLong();
    void findsAFileInAnotherFolder();
    void comesAfterThePath();
    void comesBeforeTheFolder();
    void leadsToAFolderThatIsGone();
    void isRenewed_data();
    void isRenewed();
    void isOpenWhileTheFileIsUsed();

private:
    void add(const QString& name);
    QByteArray storedRecord() const;
    QString find(const QString& name);
};

void BookmarkRecordTest::init()
{
    BookmarkTest::init();
    s_system = {};
    QVERIFY(QDir().mkpath(in("folder")));
    newFile("a");
}

void BookmarkRecordTest::add(const QString& name)
{
    CVyBookmarkList list(store());
    BookmarkTest::add(list, in(name));
}

QByteArray BookmarkRecordTest::storedRecord() const
{
    const auto contents = VyBookmarkFormat::read(textOf(store()));
    return contents.entries.isEmpty() ? QByteArray() : contents.entries.constFirst().system;
}

QString BookmarkRecordTest::find(const QString& name)
{
    CVyBookmarkList list(store());
    std::unique_ptr<CVySystemBookmark> access;
    return list.find({in(name), {}, {}}, access).path;
}

void BookmarkRecordTest::isStored()
{
    add("a");
    QCOMPARE(storedRecord(), QByteArray("record 1"));
    QCOMPARE(s_system.paths.value("record 1"), QFile::encodeName(in("a")));
}

void BookmarkRecordTest::isNotMadeOfNothing()
{
    add("gone");
    QCOMPARE(s_system.made, 0);
}

void BookmarkRecordTest::isLeftOutWhenTooLong()
{
    s_system.recordSize = VyBookmarkLimits::systemRecord;
    add("a");
    QCOMPARE(storedRecord().size(), VyBookmarkLimits::systemRecord);
    s_system.recordSize = VyBookmarkLimits::systemRecord + 1;
    add("a");
    QCOMPARE(storedRecord(), QByteArray());
    QCOMPARE(storedPaths(), QStringList(in("a")));
}

void BookmarkRecordTest::findsAFileInAnotherFolder()
{
    add("a");
    QVERIFY(QFile::rename(in("a"), in("folder/b")));
    s_system.paths["record 1"] = QFile::encodeName(in("folder/b"));
    QCOMPARE(find("a"), in("folder/b"));
    QCOMPARE(storedPaths(), QStringList(in("folder/b")));
    QCOMPARE(storedRecord(), QByteArray("record 2"));
}

void BookmarkRecordTest::comesAfterThePath()
{
    add("a");
    QVERIFY(QFile::rename(in("a"), in("folder/b")));
    newFile("a");
    s_system.paths["record 1"] = QFile::encodeName(in("folder/b"));
    QCOMPARE(find("a"), in("a"));
}

void BookmarkRecordTest::comesBeforeTheFolder()
{
    add("a");
    QVERIFY(QFile::rename(in("a"), in("b")));
    newFile("folder/b");
    s_system.paths["record 1"] = QFile::encodeName(in("folder/b"));
    QCOMPARE(find("a"), in("folder/b"));
    QCOMPARE(storedPaths(), QStringList(in("folder/b")));
}

void BookmarkRecordTest::leadsToAFolderThatIsGone()
{
    add("a");
    QVERIFY(QFile::rename(in("a"), in("b")));
    s_system.paths["record 1"] = QFile::encodeName(in("elsewhere/b"));
    QCOMPARE(find("a"), in("b"));
}

void BookmarkRecordTest::isRenewed_data()
{
    QTest::addColumn<bool>("isStale");
    QTest::addColumn<QByteArray>("record");

    QTest::newRow("stale") << true << QByteArray("record 2");
    QTest::newRow("fresh") << false << QByteArray("record 1");
}

void BookmarkRecordTest::isRenewed()
{
    QFETCH(bool, isStale);
    QFETCH(QByteArray, record);
    add("a");
    s_system.isStale = isStale;
    QCOMPARE(find("a"), in("a"));
    QCOMPARE(storedRecord(), record);
    QCOMPARE(storedPaths(), QStringList(in("a")));
}

void BookmarkRecordTest::isOpenWhileTheFileIsUsed()
{
    add("a");
    CVyBookmarkList list(store());
    {
        std::unique_ptr<CVySystemBookmark> access;
        list.find(list.bookmarks().constFirst(), access);
        QVERIFY(access);
        QCOMPARE(s_system.open, 1);
    }
    QCOMPARE(s_system.open, 0);
}

QTEST_GUILESS_MAIN(BookmarkRecordTest)
#include "BookmarkRecordTest.moc"
