// SPDX-License-Identifier: MIT
#include "NativeTest.h"

#include "VyNSOpenSavePanelDelegate.h"
#include "VyNativeStrings.h"

#include <QFile>

/// Which files the open panels' delegate shows and lets the user choose.
class DelegateTest : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void namesByType_data();
    void namesByType();
    void existingFilesByType_data();
    void existingFilesByType();
    void foldersAreShown_data();
    void foldersAreShown();
    void linksAreWhatTheyLeadTo();
    void brokenLinksAreNames();
    void emptyPathIsNeverShown_data();
    void emptyPathIsNeverShown();
    void newDelegateShowsEveryFile();
    void noTypesShowEveryFile();
    void newestTypesCount();
    void takesCopies();
    void urlsAreJudgedByTheirPath_data();
    void urlsAreJudgedByTheirPath();
    void missingUrlIsNotEnabled();
    void everyUrlIsValid();
    void enteredNamesStay();
    void otherMessagesChangeNothing();

private:
    CVyNSOpenSavePanelDelegate* delegate(const QStringList& types) const;
    static bool shows(CVyNSOpenSavePanelDelegate* delegate, const QString& path);
};

CVyNSOpenSavePanelDelegate* DelegateTest::delegate(const QStringList& types) const
{
    CVyNSOpenSavePanelDelegate* const result =
        [[[CVyNSOpenSavePanelDelegate alloc] init] autorelease];
    [result setAllowedFileTypes:[CVyViewFilterToolMacNative getArrayFilter:&types]];
    return result;
}

bool DelegateTest::shows(CVyNSOpenSavePanelDelegate* delegate, const QString& path)
{
    return [delegate panel:nil shouldShowFilename:nsStringFromQString(path)] == YES;
}

void DelegateTest::namesByType_data()
{
    QTest::addColumn<QStringList>("types");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("shown");

    const QStringList dwg{"dwg"};
    QTest::newRow("type") << dwg << "b.dwg" << true;
    QTest::newRow("type in capitals") << dwg << "b.DWG" << true;
    QTest::newRow("type in mixed case") << dwg << "b.DwG" << true;
    QTest::newRow("list in capitals") << QStringList{"DWG"} << "b.dwg" << true;
    QTest::newRow("other type") << dwg << "b.dxf" << false;
    QTest::newRow("no extension") << dwg << "b" << false;
    QTest::newRow("dot at the end") << dwg << "b." << false;
    QTest::newRow("beginning of the type") << dwg << "b.dw" << false;
    QTest::newRow("longer than the type") << dwg << "b.dwgs" << false;
    QTest::newRow("space behind") << dwg << "b.dwg " << false;
    QTest::newRow("name is the type") << dwg << "dwg" << false;
    QTest::newRow("dot and type alone") << dwg << ".dwg" << false;
    QTest::newRow("hidden file") << dwg << ".b.dwg" << true;
    QTest::newRow("last of two extensions") << dwg << "b.dxf.dwg" << true;
    QTest::newRow("first of two extensions") << dwg << "b.dwg.bak" << false;
    QTest::newRow("type in the folder's name") << dwg << "a.dwg/b.dxf" << false;
    QTest::newRow("type with a dot") << QStringList{".dwg"} << "b.dwg" << false;
    QTest::newRow("pattern") << QStringList{"*.dwg"} << "b.dwg" << false;
    QTest::newRow("joined types") << QStringList{"dwg;dxf"} << "b.dwg" << false;
    QTest::newRow("last of three") << QStringList{"dwt", "dxf", "dwg"} << "b.dwg" << true;
    QTest::newRow("none of three") << QStringList{"dwt", "dxf", "dwg"} << "b.pdf" << false;
    QTest::newRow("Cyrillic") << QStringList{"чер"} << "b.чер" << true;
    QTest::newRow("Cyrillic in capitals") << QStringList{"чер"} << "b.ЧЕР" << true;
    QTest::newRow("Cyrillic name") << dwg << "Чертёж.dwg" << true;
    QTest::newRow("name with a newline") << dwg << "a\nb.dwg" << true;

    QTest::newRow("any file") << QStringList{"*"} << "b.pdf" << true;
    QTest::newRow("any file first") << QStringList{"*", "dwg"} << "b.pdf" << true;
    QTest::newRow("any file last") << QStringList{"dwg", "*"} << "b.pdf" << true;
    QTest::newRow("any file between") << QStringList{"dwg", "*", "dxf"} << "b.pdf" << true;
    QTest::newRow("any file, no extension") << QStringList{"dwg", "*"} << "b" << true;
    QTest::newRow("any file, type too") << QStringList{"dwg", "*"} << "b.dwg" << true;
    QTest::newRow("two stars") << QStringList{"**"} << "b.dwg" << false;
    QTest::newRow("extension is a star") << dwg << "b.*" << false;
}

void DelegateTest::namesByType()
{
    QFETCH(QStringList, types);
    QFETCH(QString, name);
    QTEST(shows(delegate(types), path(name)), "shown");
    QTEST(shows(delegate(types), "/there/is/no/such/" + name), "shown");
}

void DelegateTest::existingFilesByType_data()
{
    namesByType_data();
}

// What is there is judged as what is being typed.
void DelegateTest::existingFilesByType()
{
    QFETCH(QStringList, types);
    QFETCH(QString, name);
    addFile(name);
    QTEST(shows(delegate(types), path(name)), "shown");
}

void DelegateTest::foldersAreShown_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("no extension") << "c";
    QTest::newRow("other type") << "c.dxf";
    QTest::newRow("type") << "c.dwg";
    QTest::newRow("hidden") << ".c";
    QTest::newRow("within another") << "a.dxf/c";
    QTest::newRow("slash behind") << "c.dxf/";
    QTest::newRow("Cyrillic") << "Чертежи.чер";
}

void DelegateTest::foldersAreShown()
{
    QFETCH(QString, name);
    for (const QStringList& types : {QStringList{}, {"dwg"}, {"dwg", "*"}}) {
        CVyNSOpenSavePanelDelegate* const filter = delegate(types);
        QCOMPARE(shows(filter, path(name)), types != QStringList("dwg") || name == "c.dwg");
        addFolder(name);
        QVERIFY(shows(filter, path(name)));
        QVERIFY(QDir(path()).removeRecursively());
        addFolder(".");
    }
}

void DelegateTest::linksAreWhatTheyLeadTo()
{
    addFolder("folder");
    addFile("plan.dwg");
    QVERIFY(QFile::link(path("folder"), path("folder.dxf")));
    QVERIFY(QFile::link(path("plan.dwg"), path("plan.dxf")));
    QVERIFY(QFile::link(path("plan.dwg"), path("link.dwg")));
    CVyNSOpenSavePanelDelegate* const filter = delegate({"dwg"});
    QVERIFY(shows(filter, path("folder.dxf")));
    QVERIFY(!shows(filter, path("plan.dxf")));
    QVERIFY(shows(filter, path("link.dwg")));
}

void DelegateTest::brokenLinksAreNames()
{
    QVERIFY(QFile::link(path("gone"), path("broken.dwg")));
    QVERIFY(QFile::link(path("gone"), path("broken.dxf")));
    CVyNSOpenSavePanelDelegate* const filter = delegate({"dwg"});
    QVERIFY(shows(filter, path("broken.dwg")));
    QVERIFY(!shows(filter, path("broken.dxf")));
}

void DelegateTest::emptyPathIsNeverShown_data()
{
    QTest::addColumn<QStringList>("types");

    QTest::newRow("no types") << QStringList();
    QTest::newRow("one type") << QStringList{"dwg"};
    QTest::newRow("any file") << QStringList{"*"};
}

void DelegateTest::emptyPathIsNeverShown()
{
    QFETCH(QStringList, types);
    CVyNSOpenSavePanelDelegate* const filter = delegate(types);
    QVERIFY(![filter panel:nil shouldShowFilename:@""]);
    QVERIFY(![filter panel:nil shouldShowFilename:nil]);
}

void DelegateTest::newDelegateShowsEveryFile()
{
    CVyNSOpenSavePanelDelegate* const filter =
        [[[CVyNSOpenSavePanelDelegate alloc] init] autorelease];
    QVERIFY(shows(filter, "/a/b.dxf"));
    QVERIFY(shows(filter, "/a/b"));
    QVERIFY(!shows(filter, ""));
}

void DelegateTest::noTypesShowEveryFile()
{
    for (NSArray* types : {static_cast<NSArray*>(nil), [NSArray array]}) {
        CVyNSOpenSavePanelDelegate* const filter = delegate({"dwg"});
        QVERIFY(!shows(filter, "/a/b.dxf"));
        [filter setAllowedFileTypes:types];
        QVERIFY(shows(filter, "/a/b.dxf"));
        QVERIFY(shows(filter, "/a/b"));
        QVERIFY(!shows(filter, ""));
    }
}

void DelegateTest::newestTypesCount()
{
    CVyNSOpenSavePanelDelegate* const filter = delegate({"dwg", "*"});
    QVERIFY(shows(filter, "/a/b.dxf"));
    [filter setAllowedFileTypes:[NSArray arrayWithObject:@"dwg"]];
    QVERIFY(shows(filter, "/a/b.dwg"));
    QVERIFY(!shows(filter, "/a/b.dxf"));
    [filter setAllowedFileTypes:[NSArray arrayWithObject:@"dxf"]];
    QVERIFY(!shows(filter, "/a/b.dwg"));
    QVERIFY(shows(filter, "/a/b.dxf"));
    [filter setAllowedFileTypes:nil];
    [filter setAllowedFileTypes:[NSArray arrayWithObject:@"dwg"]];
    QVERIFY(shows(filter, "/a/b.dwg"));
    QVERIFY(!shows(filter, "/a/b.dxf"));
}

void DelegateTest::takesCopies()
{
    NSMutableString* const type = [NSMutableString stringWithString:@"dwg"];
    NSMutableArray* const types = [NSMutableArray arrayWithObject:type];
    CVyNSOpenSavePanelDelegate* const filter = delegate({});
    [filter setAllowedFileTypes:types];

    [type setString:@"dxf"];
    QVERIFY(shows(filter, "/a/b.dwg"));
    QVERIFY(!shows(filter, "/a/b.dxf"));
    [types addObject:@"*"];
    QVERIFY(!shows(filter, "/a/b.dxf"));
    [types removeAllObjects];
    QVERIFY(shows(filter, "/a/b.dwg"));
    QVERIFY(!shows(filter, "/a/b.dxf"));
}

void DelegateTest::urlsAreJudgedByTheirPath_data()
{
    namesByType_data();
}

void DelegateTest::urlsAreJudgedByTheirPath()
{
    QFETCH(QStringList, types);
    QFETCH(QString, name);
    addFolder("c.dxf");
    CVyNSOpenSavePanelDelegate* const filter = delegate(types);
    const auto enables = [filter](const QString& file) {
        return [filter panel:nil
                   shouldEnableURL:[NSURL fileURLWithPath:nsStringFromQString(file)]] == YES;
    };
    QTEST(enables(path(name)), "shown");
    QVERIFY(enables(path("c.dxf")));
    QCOMPARE(enables(path("c.pdf")), shows(filter, path("c.pdf")));
}

void DelegateTest::missingUrlIsNotEnabled()
{
    QVERIFY(![delegate({}) panel:nil shouldEnableURL:nil]);
}

void DelegateTest::everyUrlIsValid()
{
    CVyNSOpenSavePanelDelegate* const filter = delegate({"dwg"});
    for (const QString& name : {"b.dwg", "b.dxf", "b"}) {
        NSURL* const url = [NSURL fileURLWithPath:nsStringFromQString(path(name))];
        NSError* error = nil;
        QVERIFY([filter panel:nil validateURL:url error:&error]);
        QVERIFY(!error);
        QVERIFY([filter panel:nil validateURL:url error:nullptr]);
    }
}

void DelegateTest::enteredNamesStay()
{
    CVyNSOpenSavePanelDelegate* const filter = delegate({"dwg"});
    for (NSString* name : {@"Plan 1.DWG", @"b.dxf", @"b", @"", @"some:fi#le"}) {
        QVERIFY([filter panel:nil userEnteredFilename:name confirmed:YES] == name);
        QVERIFY([filter panel:nil userEnteredFilename:name confirmed:NO] == name);
    }
    QVERIFY(![filter panel:nil userEnteredFilename:nil confirmed:YES]);
}

void DelegateTest::otherMessagesChangeNothing()
{
    NSOpenPanel* const panel = [NSOpenPanel openPanel];
    CVyNSOpenSavePanelDelegate* const filter = delegate({"dwg"});
    const QString folder = text([[panel directoryURL] path]);
    [filter panel:panel didChangeToDirectoryURL:[NSURL fileURLWithPath:@"/"]];
    [filter panel:panel willExpand:YES];
    [filter panel:panel willExpand:NO];
    [filter panelSelectionDidChange:panel];
    QCOMPARE(text([[panel directoryURL] path]), folder);
    QVERIFY(![panel delegate]);
    QVERIFY(shows(filter, "/a/b.dwg"));
    QVERIFY(!shows(filter, "/a/b.dxf"));
}

QTEST_MAIN(DelegateTest)
#include "DelegateTest.moc"
