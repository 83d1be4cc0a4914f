// SPDX-License-Identifier: MIT
#include "NativeTest.h"

#include "AllocationCount.h"
#include "PathCalls.h"
#include "VyNSOpenSavePanelDelegate.h"
#include "VyNativeStrings.h"

#include <QFile>

/// What a panel pays for each name that it asks the open panels' delegate about:
/// on a network volume a look at the file system can take longer than everything
/// else that the panel does for the name.
class DelegateCostTest : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void counterCounts();
    void systemCalls_data();
    void systemCalls();
    void urlsCostTheSame_data();
    void urlsCostTheSame();
    void manyTypesNeedNoMoreMemory();

private:
    static CVyNSOpenSavePanelDelegate* delegate(const QStringList& types);
    void make(const QString& what, const QString& name) const;
};

CVyNSOpenSavePanelDelegate* DelegateCostTest::delegate(const QStringList& types)
{
    CVyNSOpenSavePanelDelegate* const result =
        [[[CVyNSOpenSavePanelDelegate alloc] init] autorelease];
    [result setAllowedFileTypes:[CVyViewFilterToolMacNative getArrayFilter:&types]];
    return result;
}

void DelegateCostTest::make(const QString& what, const QString& name) const
{
    if (what == "file")
        QVERIFY(QFile(path(name)).open(QIODevice::WriteOnly));
    else if (what == "folder")
        QVERIFY(QDir(path()).mkdir(name));
    else if (what == "link to a folder")
        QVERIFY(QFile::link(path(), path(name)));
    else if (what == "broken link")
        QVERIFY(QFile::link(path("gone"), path(name)));
}

// Lest all be well because nothing is counted.
void DelegateCostTest::counterCounts()
{
    const int before = PathCalls::total();
    BOOL isFolder = NO;
    QVERIFY([[NSFileManager defaultManager] fileExistsAtPath:nsStringFromQString(path())
                                                 isDirectory:&isFolder]);
    QCOMPARE(PathCalls::total() - before, 1);
}

void DelegateCostTest::systemCalls_data()
{
    QTest::addColumn<QStringList>("types");
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("shown");
    QTest::addColumn<int>("calls");

    const QStringList three{"dwg", "dxf", "dwt"};
    QTest::newRow("allowed") << three << "file"
                             << "a.dwg" << true << 0;
    QTest::newRow("last of the allowed") << three << "file"
                                         << "a.dwt" << true << 0;
    QTest::newRow("allowed, in capitals") << three << "file"
                                          << "a.DXF" << true << 0;
    QTest::newRow("allowed, not there") << three << ""
                                        << "a.dwg" << true << 0;
    QTest::newRow("folder with an allowed extension") << three << "folder"
                                                      << "a.dwg" << true << 0;
    QTest::newRow("broken link, allowed") << three << "broken link"
                                          << "a.dwg" << true << 0;
    QTest::newRow("other") << three << "file"
                           << "a.pdf" << false << 1;
    QTest::newRow("other, not there") << three << ""
                                      << "a.pdf" << false << 1;
    QTest::newRow("no extension") << three << "file"
                                  << "a" << false << 1;
    QTest::newRow("folder") << three << "folder"
                            << "a" << true << 1;
    QTest::newRow("folder with another extension") << three << "folder"
                                                   << "a.pdf" << true << 1;
    QTest::newRow("link to a folder") << three << "link to a folder"
                                      << "a" << true << 1;
    QTest::newRow("broken link") << three << "broken link"
                                 << "a" << false << 1;
    QTest::newRow("no types, file") << QStringList() << "file"
                                    << "a.pdf" << true << 0;
    QTest::newRow("no types, folder") << QStringList() << "folder"
                                      << "a" << true << 0;
    QTest::newRow("no types, not there") << QStringList() << ""
                                         << "a" << true << 0;
    QTest::newRow("any file") << QStringList{"*"} << "file"
                              << "a.pdf" << true << 0;
    QTest::newRow("any file last") << QStringList{"dwg", "*"} << "file"
                                   << "a.pdf" << true << 0;
    QTest::newRow("any file, folder") << QStringList{"dwg", "*"} << "folder"
                                      << "a" << true << 0;
}

void DelegateCostTest::systemCalls()
{
    QFETCH(QStringList, types);
    QFETCH(QString, what);
    QFETCH(QString, name);
    make(what, name);
    CVyNSOpenSavePanelDelegate* const filter = delegate(types);
    NSString* const file = nsStringFromQString(path(name));

    const int before = PathCalls::total();
    const bool shown = [filter panel:nil shouldShowFilename:file];
    const int calls = PathCalls::total() - before;
    QTEST(shown, "shown");
    QTEST(calls, "calls");
}

void DelegateCostTest::urlsCostTheSame_data()
{
    systemCalls_data();
}

void DelegateCostTest::urlsCostTheSame()
{
    QFETCH(QStringList, types);
    QFETCH(QString, what);
    QFETCH(QString, name);
    make(what, name);
    CVyNSOpenSavePanelDelegate* const filter = delegate(types);
    NSURL* const url = [NSURL fileURLWithPath:nsStringFromQString(path(name))];

    const int before = PathCalls::total();
    const bool shown = [filter panel:nil shouldEnableURL:url];
    const int calls = PathCalls::total() - before;
    QTEST(shown, "shown");
    QTEST(calls, "calls");
}

void DelegateCostTest::manyTypesNeedNoMoreMemory()
{
    QStringList types;
    while (types.size() < 1000)
        types.append(QStringLiteral("x%1").arg(types.size()));
    types.append("dwg");
    CVyNSOpenSavePanelDelegate* const one = delegate({"dwg"});
    CVyNSOpenSavePanelDelegate* const many = delegate(types);
    const auto blocksFor = [](CVyNSOpenSavePanelDelegate* filter, NSString* name) {
        [filter panel:nil shouldShowFilename:name]; // once for what is set up but once
        return AllocationCount::during([&] { [filter panel:nil shouldShowFilename:name]; }).blocks;
    };
    QCOMPARE(blocksFor(many, @"/a/b.pdf"), blocksFor(one, @"/a/b.pdf"));
    QCOMPARE(blocksFor(many, @"/a/b.dwg"), blocksFor(one, @"/a/b.dwg"));
    QVERIFY(blocksFor(many, @"/a/b.dwg") <= 2); // the extension's text
}

QTEST_MAIN(DelegateCostTest)
#include "DelegateCostTest.moc"
