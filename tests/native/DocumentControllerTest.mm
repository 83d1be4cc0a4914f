// SPDX-License-Identifier: MIT
#include "NativeTest.h"

#include "VyBookmarks.h"
#include "VyMacDocumentController.h"
#include "VyNativeStrings.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {

VyMacDocumentController* controller()
{
    return [VyMacDocumentController sharedDocumentController];
}

NSURL* fileUrl(const QString& path)
{
    return [NSURL fileURLWithPath:nsStringFromQString(path)];
}

QStringList bookmarks()
{
    QStringList paths;
    const QList<VyBookmark> list = VyBookmarks();
    for (const VyBookmark& bookmark : list)
        paths += bookmark.path;
    return paths;
}

} // namespace

/// The native panels' way to the host's list of chosen files.
class DocumentControllerTest : public NativeTest
{
    Q_OBJECT

public:
    DocumentControllerTest() { VySetBookmarkFile(store()); }

private Q_SLOTS:
    void isOneForAll();
    void notesFiles_data();
    void notesFiles();
    void readsWrittenUrls_data();
    void readsWrittenUrls();
    void notesFolders();
    void ignoresOtherUrls_data();
    void ignoresOtherUrls();
    void putsTheLatestFirst();
    void keepsAHundred();
    void keepsThemForTheNextRun();
    void refusesALongPath();

private:
    QString store() const { return m_store.filePath("bookmarks.jsonl"); }

    QTemporaryDir m_store;
};

void DocumentControllerTest::isOneForAll()
{
    VyMacDocumentController* first = nil;
    {
        NSAutoreleasePool* const pool = [[NSAutoreleasePool alloc] init];
        first = controller();
        QVERIFY([first isKindOfClass:[VyMacDocumentController class]]);
        [pool drain];
    }
    // Not the caller's: it outlives the pool.
    QVERIFY(controller() == first);
    [controller() createBookmark:fileUrl("/plans/a.dwg")];
    [first createBookmark:fileUrl("/plans/b.dwg")];
    QCOMPARE(bookmarks(), QStringList({"/plans/b.dwg", "/plans/a.dwg"}));
}

void DocumentControllerTest::notesFiles_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("plain") << "/plans/a.dwg";
    QTest::newRow("Cyrillic") << QStringLiteral("/планы/Чертёж №1.dwg");
    QTest::newRow("Japanese") << QStringLiteral("/図面/図.dwg");
    QTest::newRow("beyond the basic plane") << QStringLiteral("/plans/\U0001F600.dwg");
    QTest::newRow("combining accent") << QStringLiteral("/plans/re\u0301seau.dwg");
    QTest::newRow("composed accent") << QStringLiteral("/plans/r\u00e9seau.dwg");
    QTest::newRow("blanks") << "/my plans/ my plan .dwg";
    QTest::newRow("percent") << "/plans/100%.dwg";
    QTest::newRow("escaped blank") << "/plans/a%20b.dwg";
    QTest::newRow("escaped percent") << "/plans/100%25.dwg";
    QTest::newRow("number sign") << "/plans/some:fi#le.dwg";
    QTest::newRow("question mark") << "/plans/what?.dwg";
    QTest::newRow("semicolon and ampersand") << "/plans/R&D;a=b.dwg";
    QTest::newRow("brackets and quotes") << "/plans/[a] {b} \"c\" 'd' <e>.dwg";
    QTest::newRow("backslash") << "/plans/a\\b.dwg";
    QTest::newRow("plus and tilde") << "/plans/~a+b.dwg";
    QTest::newRow("line end") << "/plans/a\nb.dwg";
    QTest::newRow("no extension") << "/plans/a";
    QTest::newRow("hidden") << "/plans/.a";
    QTest::newRow("long") << QString("/" + QString("x").repeated(5000) + ".dwg");
}

void DocumentControllerTest::notesFiles()
{
    QFETCH(QString, path);

    [controller() createBookmark:fileUrl(path)];
    QCOMPARE(bookmarks(), QStringList(path));
}

void DocumentControllerTest::readsWrittenUrls_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("path");

    QTest::newRow("plain") << "file:///plans/a.dwg"
                           << "/plans/a.dwg";
    QTest::newRow("with a host") << "file://localhost/plans/a.dwg"
                                 << "/plans/a.dwg";
    QTest::newRow("escaped blank") << "file:///plans/a%20b.dwg"
                                   << "/plans/a b.dwg";
    QTest::newRow("escaped percent") << "file:///plans/100%2525.dwg"
                                     << "/plans/100%25.dwg";
    QTest::newRow("escaped Cyrillic") << "file:///%D0%90.dwg" << QStringLiteral("/А.dwg");
}

void DocumentControllerTest::readsWrittenUrls()
{
    QFETCH(QString, url);
    QFETCH(QString, path);

    [controller() createBookmark:[NSURL URLWithString:nsStringFromQString(url)]];
    QCOMPARE(bookmarks(), QStringList(path));
}

// A panel that chooses folders would hand them over.
void DocumentControllerTest::notesFolders()
{
    addFolder("old plans");
    [controller() createBookmark:fileUrl(path("old plans"))];
    QCOMPARE(bookmarks(), QStringList(path("old plans")));
    [controller() createBookmark:[NSURL fileURLWithPath:nsStringFromQString(path("old plans"))
                                            isDirectory:YES]];
    QCOMPARE(bookmarks(), QStringList(path("old plans")));
    [controller() createBookmark:fileUrl("/")];
    QCOMPARE(bookmarks().constFirst(), QString("/"));
}

void DocumentControllerTest::ignoresOtherUrls_data()
{
    QTest::addColumn<QString>("url");

    QTest::newRow("nil") << QString();
    QTest::newRow("web") << "http://example.com/plans/a.dwg";
    QTest::newRow("secure web") << "https://example.com/a.dwg";
    QTest::newRow("transfer") << "ftp://example.com/a.dwg";
    QTest::newRow("mail") << "mailto:a@example.com";
    QTest::newRow("like a file") << "files:///plans/a.dwg";
    QTest::newRow("no scheme") << "/plans/a.dwg";
}

void DocumentControllerTest::ignoresOtherUrls()
{
    QFETCH(QString, url);

    NSURL* const other = url.isNull() ? nil : [NSURL URLWithString:nsStringFromQString(url)];
    QCOMPARE(other == nil, url.isNull());
    [controller() createBookmark:other];
    QCOMPARE(bookmarks(), QStringList());
    [controller() createBookmark:fileUrl("/plans/a.dwg")];
    [controller() createBookmark:other];
    QCOMPARE(bookmarks(), QStringList("/plans/a.dwg"));
}

void DocumentControllerTest::putsTheLatestFirst()
{
    for (const QString path : {"/a.dwg", "/b.dwg", "/c.dwg", "/a.dwg", "/a.dwg", "/b.dwg"})
        [controller() createBookmark:fileUrl(path)];
    QCOMPARE(bookmarks(), QStringList({"/b.dwg", "/a.dwg", "/c.dwg"}));
}

void DocumentControllerTest::keepsAHundred()
{
    QStringList latestFirst;
    for (int number = 1; number <= 130; ++number) {
        latestFirst.prepend(QStringLiteral("/plans/%1.dwg").arg(number));
        [controller() createBookmark:fileUrl(latestFirst.constFirst())];
    }
    QCOMPARE(bookmarks(), QStringList(latestFirst.mid(0, 100)));
}

void DocumentControllerTest::keepsThemForTheNextRun()
{
    addFile("a.dwg");
    [controller() createBookmark:fileUrl(path("a.dwg"))];
    QFile file(store());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = file.readAll().split('\n');
    QCOMPARE(lines.size(), 3);
    const QJsonObject entry = QJsonDocument::fromJson(lines[1]).object();
    QCOMPARE(entry.value("path").toString(), path("a.dwg"));
    QVERIFY(entry.value("file").toObject().contains("inode"));
}

void DocumentControllerTest::refusesALongPath()
{
    [controller() createBookmark:fileUrl(QString("/" + QString("x").repeated(8192)))];
    QCOMPARE(bookmarks(), QStringList());
    QCOMPARE(takeMessages().size(), 1);
}

QTEST_MAIN(DocumentControllerTest)
#include "DocumentControllerTest.moc"
