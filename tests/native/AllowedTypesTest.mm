// SPDX-License-Identifier: MIT
#include "NativeTest.h"

#include "AccessoryParts.h"
#include "NSOpenPanelExt.h"
#include "VyUtilsMacNative.h"

/// Takes what is sent to a panel when types are applied. It is no NSOpenPanel,
/// as a panel in another process is not, and may go by a name.
@interface VyFakePanel : NSObject {
@public
    NSString* name;
    QStringList types; // as sent, "nil" and "none" for those
    bool canSelectHiddenExtension;
    bool allowsOthers;
    bool hidesExtension;
    bool entersPackages;
    bool showsHiddenFiles;
    int hiddenFilesSent;
}
@end

@implementation VyFakePanel
- (NSString*)className
{
    return name ? name : [super className];
}
- (void)setAllowedFileTypes:(NSArray*)sent
{
    types += !sent ? QString("nil") : [sent count] ? texts(sent).join(';') : QString("none");
}
- (BOOL)canSelectHiddenExtension
{
    return canSelectHiddenExtension;
}
- (void)setCanSelectHiddenExtension:(BOOL)flag
{
    canSelectHiddenExtension = flag;
}
- (void)setAllowsOtherFileTypes:(BOOL)flag
{
    allowsOthers = flag;
}
- (void)setExtensionHidden:(BOOL)flag
{
    hidesExtension = flag;
}
- (void)setTreatsFilePackagesAsDirectories:(BOOL)flag
{
    entersPackages = flag;
}
- (BOOL)showsHiddenFiles
{
    return showsHiddenFiles;
}
- (void)setShowsHiddenFiles:(BOOL)flag
{
    showsHiddenFiles = flag;
    ++hiddenFilesSent;
}
@end

/// The same with a list of files.
@interface VyFakeListPanel : VyFakePanel {
@public
    int validations;
}
@end

@implementation VyFakeListPanel
- (void)validateVisibleColumns
{
    ++validations;
}
@end

namespace {

constexpr int olderPlatform = 7; // before macOS 10.6
constexpr int macOS10_7 = 100700;

} // namespace

/// What a choice of type does to a panel.
class AllowedTypesTest : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void restrictsPanels_data();
    void restrictsPanels();
    void sendsTypes_data();
    void sendsTypes();
    void listsFilesAgain();
    void entersPackagesOfPanelsElsewhere();
    void templateFolder_data();
    void templateFolder();
    void templateFolderOfASavePanel();
    void goesToFolders();
    void flipsHiddenFiles();

private:
    NSOpenPanel* openPanelAt(const QString& folder);
    static QString folderOf(NSSavePanel* panel);
};

NSOpenPanel* AllowedTypesTest::openPanelAt(const QString& folder)
{
    addFolder(folder);
    NSOpenPanel* const panel = [NSOpenPanelExt openPanel];
    [panel setDirectoryURL:[NSURL fileURLWithPath:nsStringFromQString(path(folder))]];
    return panel;
}

QString AllowedTypesTest::folderOf(NSSavePanel* panel)
{
    return QDir(text([[panel directoryURL] path])).canonicalPath();
}

void AllowedTypesTest::restrictsPanels_data()
{
    QTest::addColumn<QStringList>("types");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<bool>("anyFile");
    QTest::addColumn<bool>("packages");

    const auto row = [](const char* name, const QStringList& types, const QStringList& names,
                        bool anyFile, bool packages) {
        QTest::newRow(name) << types << names << anyFile << packages;
    };
    row("one", {"dwg"}, {"a.dwg"}, false, false);
    row("two", {"dwg", "dxf"}, {"a.dwg", "b.dxf"}, false, false);
    row("capitals", {"DWT"}, {"d.dwt", "e.DWT"}, false, false);
    row("none", {}, everyName, false, false);
    row("any file", {"*"}, everyName, true, false);
    row("any file first", {"*", "dwg"}, everyName, true, false);
    row("any file last", {"dwg", "*"}, everyName, true, false);
    row("star in an extension", {"d*"}, {}, false, false);
    row("library", {"dylib"}, {}, false, true);
    row("library in capitals", {"dwg", "DYLIB"}, {"a.dwg"}, false, true);
    row("tx", {"tx"}, {}, false, true);
    row("Tx", {"dwg", "dxf", "Tx"}, {"a.dwg", "b.dxf"}, false, true);
    row("tX first", {"tX", "dwg"}, {"a.dwg"}, false, true);
    row("both", {"tx", "dylib"}, {}, false, true);
    row("library and any file", {"dylib", "*"}, everyName, true, true);
    row("txt", {"txt"}, {}, false, false);
    row("part of a library", {"dyli"}, {}, false, false);
}

void AllowedTypesTest::restrictsPanels()
{
    QFETCH(QStringList, types);
    QFETCH(QStringList, names);
    QFETCH(bool, anyFile);
    QFETCH(bool, packages);
    NSArray* const array = [CVyViewFilterToolMacNative getArrayFilter:&types];
    CVyNSOpenSavePanelDelegate* const delegate = newDelegate();
    NSSavePanel* const panels[] = {
        [NSOpenPanelExt openPanel], [NSOpenPanel openPanel], [NSSavePanel savePanel]};
    for (NSSavePanel* panel : panels) {
        const bool opens = [panel isKindOfClass:[NSOpenPanel class]];
        for (const BOOL before : {NO, YES}) {
            [panel setCanSelectHiddenExtension:before];
            [panel setAllowsOtherFileTypes:before];
            [panel setExtensionHidden:before];
            [panel setTreatsFilePackagesAsDirectories:before];
            [panel setAllowedFileTypes:[NSArray arrayWithObject:@"from before"]];
            setAllowedFileTypes(panel, opens ? delegate : nil, array);
            QCOMPARE([panel canSelectHiddenExtension] != NO, before || anyFile);
            QCOMPARE([panel allowsOtherFileTypes] != NO, anyFile);
            QCOMPARE([panel isExtensionHidden] != NO, !anyFile);
            QCOMPARE([panel treatsFilePackagesAsDirectories] != NO, opens && packages);
            QCOMPARE([panel allowedFileTypes] != nil, !anyFile && !types.isEmpty());
            if (!anyFile)
                QCOMPARE(texts([panel allowedFileTypes]), types);
            if (opens)
                QCOMPARE(shown(delegate), names);
        }
    }
}

void AllowedTypesTest::sendsTypes_data()
{
    QTest::addColumn<bool>("older");
    QTest::addColumn<bool>("withDelegate");
    QTest::addColumn<QStringList>("types");
    QTest::addColumn<QStringList>("sent");

    const QStringList any{"dwg", "*"};
    QTest::newRow("delegate") << false << true << QStringList{"dwg"} << QStringList{"dwg"};
    QTest::newRow("no delegate") << false << false << QStringList{"dwg"} << QStringList{"dwg"};
    QTest::newRow("older, delegate") << true << true << QStringList{"dwg"} << QStringList();
    QTest::newRow("older, no delegate")
        << true << false << QStringList{"dwg"} << QStringList{"dwg"};
    QTest::newRow("any file, delegate") << false << true << any << QStringList{"dwg;*", "nil"};
    QTest::newRow("any file, no delegate") << false << false << any << QStringList{"dwg;*", "nil"};
    QTest::newRow("older, any file, delegate") << true << true << any << QStringList();
    QTest::newRow("older, any file, no delegate")
        << true << false << any << QStringList{"dwg;*", "nil"};
    // An AppKit may raise at an empty array.
    QTest::newRow("none, delegate") << false << true << QStringList() << QStringList{"nil"};
    QTest::newRow("none, no delegate") << false << false << QStringList() << QStringList{"nil"};
}

void AllowedTypesTest::sendsTypes()
{
    QFETCH(bool, older);
    QFETCH(bool, withDelegate);
    QFETCH(QStringList, types);
    QFETCH(QStringList, sent);
    if (older)
        VyCocoa::setMacintoshVersion(olderPlatform);
    VyFakePanel* const panel = [[[VyFakePanel alloc] init] autorelease];
    CVyNSOpenSavePanelDelegate* const delegate = newDelegate();
    setAllowedFileTypes(static_cast<id>(panel), withDelegate ? delegate : nil,
                        [CVyViewFilterToolMacNative getArrayFilter:&types]);
    QCOMPARE(panel->types, sent);
    QCOMPARE(panel->allowsOthers, types.contains("*"));
    QCOMPARE(panel->canSelectHiddenExtension, types.contains("*"));
    QCOMPARE(panel->hidesExtension, !types.contains("*"));
    QCOMPARE(shown(delegate),
             withDelegate && types == QStringList("dwg") ? QStringList("a.dwg") : everyName);
}

void AllowedTypesTest::listsFilesAgain()
{
    VyFakeListPanel* const panel = [[[VyFakeListPanel alloc] init] autorelease];
    NSArray* const types = [NSArray arrayWithObject:@"dwg"];
    setAllowedFileTypes(static_cast<id>(panel), nil, types);
    QCOMPARE(panel->validations, 0);
    setAllowedFileTypes(static_cast<id>(panel), newDelegate(), types);
    QCOMPARE(panel->validations, 1);
}

void AllowedTypesTest::entersPackagesOfPanelsElsewhere()
{
    VyFakePanel* const panel = [[[VyFakePanel alloc] init] autorelease];
    NSArray* const types = [NSArray arrayWithObjects:@"dwg", @"TX", nil];
    setAllowedFileTypes(static_cast<id>(panel), nil, types);
    QVERIFY(!panel->entersPackages);
    panel->name = @"NSRemoteSavePanel";
    setAllowedFileTypes(static_cast<id>(panel), nil, types);
    QVERIFY(!panel->entersPackages);
    panel->name = @"NSRemoteOpenPanel";
    setAllowedFileTypes(static_cast<id>(panel), nil, types);
    QVERIFY(panel->entersPackages);
    setAllowedFileTypes(static_cast<id>(panel), nil, [NSArray arrayWithObject:@"dwg"]);
    QVERIFY(!panel->entersPackages);
}

void AllowedTypesTest::templateFolder_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<bool>("noTemplateHandling");
    QTest::addColumn<bool>("moved");

    QTest::newRow("template") << "dwt" << false << true;
    QTest::newRow("template, not to be followed") << "dwt" << true << false;
    QTest::newRow("template among others") << "dwg;dwt;dxf" << false << true;
    QTest::newRow("template and any file") << "*;dwt" << false << true;
    QTest::newRow("template in capitals") << "DWT" << false << false;
    QTest::newRow("template in mixed case") << "Dwt" << false << false;
    QTest::newRow("begins like a template") << "dwtx" << false << false;
    QTest::newRow("drawing") << "dwg" << false << false;
    QTest::newRow("any file") << "*" << false << false;
    QTest::newRow("none") << "" << false << false;
}

void AllowedTypesTest::templateFolder()
{
    QFETCH(QString, list);
    QFETCH(bool, noTemplateHandling);
    QFETCH(bool, moved);
    addFolder("templates");
    for (const int system : {0xffff, olderPlatform}) {
        VyCocoa::setMacintoshVersion(system);
        NSOpenPanel* const panel = openPanelAt("drawings");
        Parts parts;
        parts.descriptions = QStringList{"First", "Picked"};
        parts.lists = QStringList{"dwt", list};
        parts.templatePath = path("templates");
        parts.noTemplateHandling = noTemplateHandling;
        CVyViewFilterMacNative* const view = build(panel, newDelegate(), parts);
        QCOMPARE(folderOf(panel), QDir(path("drawings")).canonicalPath());
        choose(typePopup(view), 1);
        QCOMPARE(folderOf(panel), QDir(path(moved ? "templates" : "drawings")).canonicalPath());
        QCOMPARE(text([view selectedFilter]), QString("Picked"));
    }
}

void AllowedTypesTest::templateFolderOfASavePanel()
{
    addFolder("drawings");
    addFolder("templates");
    NSSavePanel* const panel = [NSSavePanel savePanel];
    [panel setDirectoryURL:[NSURL fileURLWithPath:nsStringFromQString(path("drawings"))]];
    Parts parts;
    parts.templatePath = path("templates");
    parts.withModes = false;
    CVyViewFilterMacNative* const view = build(panel, nil, parts);
    QCOMPARE(folderOf(panel), QDir(path("drawings")).canonicalPath());
    choose(typePopup(view), 2);
    QCOMPARE(folderOf(panel), QDir(path("templates")).canonicalPath());
}

void AllowedTypesTest::goesToFolders()
{
    addFolder(QStringLiteral("Чертежи"));
    NSOpenPanel* const panel = openPanelAt("drawings");
    CVyViewFilterMacNative* const view = build(panel, nil, Parts());
    for (const QString& name : {QStringLiteral("Чертежи"), QStringLiteral("drawings")}) {
        [view setDirectory:nsStringFromQString(path(name))];
        QCOMPARE(folderOf(panel), QDir(path(name)).canonicalPath());
    }
}

// Of a system that is no macOS, nothing is asked.
void AllowedTypesTest::flipsHiddenFiles()
{
    const bool flips = CVyUtilsMacNative::getSystemVersion() >= macOS10_7;
    VyFakePanel* const panel = [[[VyFakePanel alloc] init] autorelease];
    CVyViewFilterMacNative* const view = build(panel, newDelegate(), Parts());
    QCOMPARE(panel->hiddenFilesSent, 0);
    for (const int times : {1, 2, 3}) {
        choose(typePopup(view), times % 2);
        QCOMPARE(panel->hiddenFilesSent, flips ? 2 * times : 0);
        QCOMPARE(panel->showsHiddenFiles, flips && times % 2 == 1);
    }
}

QTEST_MAIN(AllowedTypesTest)
#include "AllowedTypesTest.moc"
