// SPDX-License-Identifier: MIT
// The files that the user chose in a native panel, as the panel hands them over.
#include "KernelUnderTest.h"

#include "VyMacDocumentController.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

VyMacDocumentController* controller()
{
    return [VyMacDocumentController sharedDocumentController];
}

NSString* nsString(const QString& text)
{
    return [NSString stringWithUTF8String:text.toUtf8().constData()];
}

} // namespace

/// A host remembers more than these tests hand over, so they look at the front of
/// its list alone.
class BookmarksContract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void haveOneController();
    void holdAFile_data();
    void holdAFile();
    void putTheLatestFirst();
    void holdAFileOnce();
    void holdAFileNotYetWritten();
    void ignoreWhatIsNoFile_data();
    void ignoreWhatIsNoFile();
    void outliveTheUrl();

private:
    QString makeFile(const QString& name);
    static void bookmark(const QString& path);
    static QStringList latest(int count)
    {
        return KernelUnderTest::bookmarkedPaths().mid(0, count);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    NSAutoreleasePool* m_pool = nil;
};

void BookmarksContract::init()
{
    m_pool = [[NSAutoreleasePool alloc] init];
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void BookmarksContract::cleanup()
{
    m_folder.reset();
    [m_pool drain];
}

QString BookmarksContract::makeFile(const QString& name)
{
    // A host may resolve links, of which there is one above macOS's temporary folder.
    const QString path = QDir(QDir(m_folder->path()).canonicalPath()).filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("no test file");
    return path;
}

void BookmarksContract::bookmark(const QString& path)
{
    [controller() createBookmark:[NSURL fileURLWithPath:nsString(path)]];
}

// The panels do not own it.
void BookmarksContract::haveOneController()
{
    QVERIFY(controller() != nil);
    NSAutoreleasePool* const pool = [[NSAutoreleasePool alloc] init];
    VyMacDocumentController* const first = controller();
    [pool drain];
    QVERIFY(first == controller());
    QVERIFY([first respondsToSelector:@selector(createBookmark:)]);
}

void BookmarksContract::holdAFile_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("plain") << "plan.dwg";
    QTest::newRow("no extension") << "plan";
    QTest::newRow("hidden") << ".plan.dwg";
    QTest::newRow("blanks") << " my plan .dwg";
    QTest::newRow("Cyrillic") << QStringLiteral("Чертёж №1.dwg");
    QTest::newRow("Japanese") << QStringLiteral("図面.dwg");
    QTest::newRow("beyond the basic plane") << QStringLiteral("\U0001F600.dwg");
    QTest::newRow("percent") << "100%.dwg";
    QTest::newRow("escaped percent") << "100%25.dwg";
    QTest::newRow("number sign and question mark") << "some:fi#le?.dwg";
    QTest::newRow("semicolon and ampersand") << "R&D;a=b.dwg";
    QTest::newRow("quotes and brackets") << "\"a\" 'b' [c] {d} <e>.dwg";
    QTest::newRow("line end") << "a\nb.dwg";
}

void BookmarksContract::holdAFile()
{
    QFETCH(QString, name);
    const QString path = makeFile(name);
    bookmark(path);
    QCOMPARE(latest(1), QStringList(path));
}

void BookmarksContract::putTheLatestFirst()
{
    const QString a = makeFile("a.dwg");
    const QString b = makeFile("b.dwg");
    const QString c = makeFile("c.dwg");
    for (const QString& path : {b, a, c})
        bookmark(path);
    QCOMPARE(latest(3), QStringList({c, a, b}));
}

void BookmarksContract::holdAFileOnce()
{
    const QString a = makeFile("a.dwg");
    const QString b = makeFile("b.dwg");
    for (const QString& path : {a, b, a, a})
        bookmark(path);
    QCOMPARE(latest(2), QStringList({a, b}));
    QCOMPARE(KernelUnderTest::bookmarkedPaths().count(a), 1);
}

// A save panel hands over a file before the host writes it. A host whose
// bookmarks are of files alone may leave it out; the panel must survive that.
void BookmarksContract::holdAFileNotYetWritten()
{
    const QString before = makeFile("before.dwg");
    bookmark(before);
    const QString path = m_folder->filePath("not yet.dwg");
    bookmark(path);
    QVERIFY(latest(1) == QStringList(path) || latest(1) == QStringList(before));
}

void BookmarksContract::ignoreWhatIsNoFile_data()
{
    QTest::addColumn<QString>("url");

    QTest::newRow("web") << "http://example.com/plans/a.dwg";
    QTest::newRow("mail") << "mailto:a@example.com";
    QTest::newRow("no scheme") << "/plans/a.dwg";
}

void BookmarksContract::ignoreWhatIsNoFile()
{
    QFETCH(QString, url);
    const QStringList before = KernelUnderTest::bookmarkedPaths();
    [controller() createBookmark:[NSURL URLWithString:nsString(url)]];
    QCOMPARE(KernelUnderTest::bookmarkedPaths(), before);
}

void BookmarksContract::outliveTheUrl()
{
    const QString path = makeFile("a.dwg");
    NSAutoreleasePool* const pool = [[NSAutoreleasePool alloc] init];
    bookmark(path);
    [pool drain];
    QCOMPARE(latest(1), QStringList(path));
}

QTEST_GUILESS_MAIN(BookmarksContract)
#include "BookmarksContract.moc"
