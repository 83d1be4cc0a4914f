// SPDX-License-Identifier: MIT
#include "NativeTest.h"

#include "NSOpenPanelExt.h"
#include "VyNSOpenSavePanelDelegate.h"
#include "VyNativeStrings.h"
#include "VyStatus.h"

namespace {

constexpr unsigned short escape = 53;
constexpr unsigned short letterA = 0;

constexpr unsigned capsLock = 0x10000;
constexpr unsigned shift = 0x20000;
constexpr unsigned control = 0x40000;
constexpr unsigned alternate = 0x80000;
constexpr unsigned command = 0x100000;
constexpr unsigned numericPad = 0x200000;
constexpr unsigned allModifiers = 0xffffffff;

NSEvent* keyEvent(NSEventType type, unsigned modifiers, const QString& plain, unsigned short code,
                  NSWindow* window)
{
    NSString* const characters = nsStringFromQString(plain);
    return [NSEvent keyEventWithType:type
                            location:NSZeroPoint
                       modifierFlags:modifiers
                           timestamp:0
                        windowNumber:[window windowNumber]
                             context:nil
                          characters:characters
         charactersIgnoringModifiers:plain.isNull() ? nil : characters
                           isARepeat:NO
                             keyCode:code];
}

NSEvent* released(unsigned short code, unsigned modifiers = 0, NSWindow* window = nil,
                  const QString& characters = QStringLiteral("\033"))
{
    return keyEvent(NSKeyUp, modifiers, characters, code, window);
}

NSEvent* pressed(unsigned modifiers, const QString& plain, NSWindow* window = nil)
{
    return keyEvent(NSKeyDown, modifiers, plain, letterA, window);
}

} // namespace

/// Notes whether it is cancelled; it can be deaf to that.
@interface VyCancelPanel : NSOpenPanelExt {
@public
    int cancelled;
    id sender;
    BOOL deaf;
}
@end

@implementation VyCancelPanel
- (void)cancel:(id)from
{
    ++cancelled;
    sender = from;
}
- (BOOL)respondsToSelector:(SEL)selector
{
    return !(deaf && sel_isEqual(selector, @selector(cancel:))) &&
           [super respondsToSelector:selector];
}
@end

/// What a panel hands keys on to that it does not take.
@interface VyKeyResponder : NSResponder {
@public
    int keys;
}
@end

@implementation VyKeyResponder
- (void)keyUp:(NSEvent*)event
{
    ++keys;
}
@end

/// A part of a panel that keys reach, and that answers to key equivalents.
@interface VyKeyView : NSView {
@public
    BOOL answer;
    int equivalents;
}
@end

@implementation VyKeyView
- (BOOL)acceptsFirstResponder
{
    return YES;
}
- (BOOL)performKeyEquivalent:(NSEvent*)event
{
    ++equivalents;
    return answer;
}
@end

/// One whose content can be selected.
@interface VySelectView : VyKeyView {
@public
    int selections;
    id sender;
}
@end

@implementation VySelectView
- (void)selectAll:(id)from
{
    ++selections;
    sender = from;
}
@end

namespace {

template <typename View>
View* addFirstResponder(NSWindow* window)
{
    View* const view = [[[View alloc] initWithFrame:NSMakeRect(0, 0, 10, 10)] autorelease];
    [[window contentView] addSubview:view];
    [window makeFirstResponder:view];
    return view;
}

NSMatrix* fileList(NSView* view)
{
    if ([view isKindOfClass:[NSBrowser class]]) {
        NSBrowser* const browser = static_cast<NSBrowser*>(view);
        return [browser matrixInColumn:[browser lastColumn]];
    }
    for (NSView* child in [view subviews]) {
        if (NSMatrix* const found = fileList(child))
            return found;
    }
    return nil;
}

} // namespace

/// The panels' own classes: the keys that they take, and how they are made.
class PanelKeysTest : public NativeTest
{
    Q_OBJECT

private Q_SLOTS:
    void releasedKeys_data();
    void releasedKeys();
    void escapeOfADeafPanelIsDropped();
    void escapeLeavesALivePanel();
    void otherKeysLeaveALivePanelOpen();
    void selectAll_data();
    void selectAll();
    void selectAllWithoutSelectableResponder();
    void plainPanelSelectsNothing();
    void selectAllInTheFileList();
    void panelsAreOfTheirClass();
    void panelsAreNew();
    void panelsStartWithDefaults();
    void panelsOutliveTheirDelegate();
    void savePanelStartsAfresh();
    void goesToTheFolderOfAPath_data();
    void goesToTheFolderOfAPath();
};

void PanelKeysTest::releasedKeys_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<unsigned>("modifiers");
    QTest::addColumn<bool>("cancels");

    QTest::newRow("Escape") << 53 << 0U << true;
    QTest::newRow("Shift-Escape") << 53 << shift << true;
    QTest::newRow("Command-Escape") << 53 << command << true;
    QTest::newRow("next lower code") << 52 << 0U << false;
    QTest::newRow("next higher code") << 54 << 0U << false;
    QTest::newRow("A") << 0 << 0U << false;
    QTest::newRow("Return") << 36 << 0U << false;
    QTest::newRow("Command-A") << 0 << command << false;
    QTest::newRow("same low byte") << 0x135 << 0U << false;
    QTest::newRow("highest code") << 0xffff << 0U << false;
}

void PanelKeysTest::releasedKeys()
{
    QFETCH(int, code);
    QFETCH(unsigned, modifiers);
    QFETCH(bool, cancels);
    VyKeyResponder* const next = [[[VyKeyResponder alloc] init] autorelease];
    VyCancelPanel* const panel = static_cast<VyCancelPanel*>([VyCancelPanel openPanel]);
    [panel setNextResponder:next];
    [panel keyUp:released(static_cast<unsigned short>(code), modifiers)];
    [panel setNextResponder:nil];
    QCOMPARE(panel->cancelled, cancels ? 1 : 0);
    QCOMPARE(panel->sender == panel, cancels);
    QCOMPARE(next->keys, cancels ? 0 : 1);
}

void PanelKeysTest::escapeOfADeafPanelIsDropped()
{
    VyKeyResponder* const next = [[[VyKeyResponder alloc] init] autorelease];
    VyCancelPanel* const panel = static_cast<VyCancelPanel*>([VyCancelPanel openPanel]);
    panel->deaf = YES;
    [panel setNextResponder:next];
    [panel keyUp:released(escape)];
    [panel setNextResponder:nil];
    QCOMPARE(panel->cancelled, 0);
    QCOMPARE(next->keys, 0);
}

void PanelKeysTest::escapeLeavesALivePanel()
{
    addFile("plan.dwg");
    for (const unsigned type : {CVyUserIO::FileNameOpen, CVyUserIO::FileNameNew}) {
        HostRequest host = request(type);
        run(host, {onPanel([](NSSavePanel* panel) {
                selectNames(panel, {"plan.dwg"});
                [NSApp postEvent:released(escape, 0, panel) atStart:NO];
            })});
        QCOMPARE(host.status, VyStatus::Cancelled);
        QCOMPARE(host.paths, QStringList());
    }
}

void PanelKeysTest::otherKeysLeaveALivePanelOpen()
{
    addFile("plan.dwg");
    HostRequest open = request(CVyUserIO::FileNameOpen);
    run(open, {onPanel([](NSSavePanel* panel) {
                   [NSApp sendEvent:released(escape - 1, 0, panel)];
                   [NSApp sendEvent:released(escape + 1, 0, panel)];
                   // The code of a letter on other systems.
                   [NSApp sendEvent:released(escape, 0, panel, "x")];
               }),
               onPanel([](NSSavePanel* panel) { selectNames(panel, {"plan.dwg"}); }), accept()});
    QCOMPARE(open.status, VyStatus::Accepted);
    QCOMPARE(open.paths, QStringList(path("plan.dwg")));
}

void PanelKeysTest::selectAll_data()
{
    QTest::addColumn<unsigned>("modifiers");
    QTest::addColumn<QString>("characters");
    QTest::addColumn<bool>("selects");

    QTest::newRow("Command-A") << command << "a" << true;
    QTest::newRow("and Shift, with a small letter") << (command | shift) << "a" << true;
    QTest::newRow("and Alternate") << (command | alternate) << "a" << true;
    QTest::newRow("and Control") << (command | control) << "a" << true;
    QTest::newRow("and Caps Lock") << (command | capsLock) << "a" << true;
    QTest::newRow("and the keypad") << (command | numericPad) << "a" << true;
    QTest::newRow("and the left key's own bit") << (command | 0x8) << "a" << true;
    QTest::newRow("all modifiers") << allModifiers << "a" << true;

    QTest::newRow("Command-Shift-A") << (command | shift) << "A" << false;
    QTest::newRow("Command-A as a capital") << command << "A" << false;
    QTest::newRow("A") << 0U << "a" << false;
    QTest::newRow("Shift-A") << shift << "a" << false;
    QTest::newRow("Control-A") << control << "a" << false;
    QTest::newRow("Alternate-A") << alternate << "a" << false;
    QTest::newRow("Caps Lock and A") << capsLock << "a" << false;
    QTest::newRow("bit above Command") << numericPad << "a" << false;
    QTest::newRow("all but Command") << (allModifiers & ~command) << "a" << false;
    QTest::newRow("Command-B") << command << "b" << false;
    QTest::newRow("Command-Q") << command << "q" << false;
    QTest::newRow("two letters") << command << "aa" << false;
    QTest::newRow("accent") << command << QStringLiteral("\u00e1") << false;
    QTest::newRow("combining accent") << command << QStringLiteral("a\u0301") << false;
    QTest::newRow("Cyrillic letter of the same look") << command << QStringLiteral("а") << false;
    QTest::newRow("dead key") << command << "" << false;
    QTest::newRow("no characters") << command << QString() << false;
}

void PanelKeysTest::selectAll()
{
    QFETCH(unsigned, modifiers);
    QFETCH(QString, characters);
    QFETCH(bool, selects);
    NSOpenPanel* const panel = [NSOpenPanelExtWithSelectAll openPanel];
    VySelectView* const view = addFirstResponder<VySelectView>(panel);
    int asked = 0;
    for (const BOOL answer : {NO, YES}) {
        view->selections = 0;
        view->sender = nil;
        view->answer = answer;
        const bool taken = [panel performKeyEquivalent:pressed(modifiers, characters)] == YES;
        QCOMPARE(view->selections, selects ? 1 : 0);
        QCOMPARE(view->sender == panel, selects);
        QCOMPARE(taken, selects || answer);
        QCOMPARE(view->equivalents, selects ? 0 : ++asked);
    }
}

void PanelKeysTest::selectAllWithoutSelectableResponder()
{
    NSOpenPanel* const panel = [NSOpenPanelExtWithSelectAll openPanel];
    VyKeyView* const view = addFirstResponder<VyKeyView>(panel);
    QVERIFY([panel performKeyEquivalent:pressed(command, "a")]);
    [panel makeFirstResponder:nil];
    QVERIFY([panel performKeyEquivalent:pressed(command, "a")]);
    QCOMPARE(view->equivalents, 0);
}

void PanelKeysTest::plainPanelSelectsNothing()
{
    NSOpenPanel* const panel = [NSOpenPanelExt openPanel];
    VySelectView* const view = addFirstResponder<VySelectView>(panel);
    QVERIFY(![panel performKeyEquivalent:pressed(command, "a")]);
    QCOMPARE(view->selections, 0);
    QCOMPARE(view->equivalents, 1);
}

void PanelKeysTest::selectAllInTheFileList()
{
    addFile("a.dwg");
    addFile("b.dwg");
    addFile("c.pdf");
    HostRequest open = request(CVyUserIO::FileNameOpen);
    open.flags = CVyUserIO::FileNameModeChoices;
    runSeveral(open, {onPanel([](NSSavePanel* panel) {
                          NSMatrix* const list = fileList([panel contentView]);
                          QVERIFY([panel makeFirstResponder:list]);
                          QVERIFY([panel performKeyEquivalent:pressed(command, "a", panel)]);
                          QCOMPARE([[list selectedCells] count], NSUInteger(2));
                      }),
                      accept()});
    QCOMPARE(open.status, VyStatus::Accepted);
    QCOMPARE(open.paths, QStringList({path("a.dwg"), path("b.dwg")}));
}

void PanelKeysTest::panelsAreOfTheirClass()
{
    QVERIFY([[NSOpenPanelExt openPanel] isMemberOfClass:[NSOpenPanelExt class]]);
    QVERIFY([[NSOpenPanelExtWithSelectAll openPanel]
        isMemberOfClass:[NSOpenPanelExtWithSelectAll class]]);
    QVERIFY([[VyCancelPanel openPanel] isMemberOfClass:[VyCancelPanel class]]);
    QVERIFY(![[NSOpenPanel openPanel] isKindOfClass:[NSOpenPanelExt class]]);
}

void PanelKeysTest::panelsAreNew()
{
    for (Class kind : {[NSOpenPanelExt class], [NSOpenPanelExtWithSelectAll class]}) {
        NSOpenPanel* const first = [kind openPanel];
        NSOpenPanel* const second = [kind openPanel];
        QVERIFY(first != second);
        [first setTitle:@"First"];
        QVERIFY(![[second title] isEqualToString:@"First"]);
    }
}

void PanelKeysTest::panelsStartWithDefaults()
{
    CVyNSOpenSavePanelDelegate* const delegate =
        [[[CVyNSOpenSavePanelDelegate alloc] init] autorelease];
    for (Class kind : {[NSOpenPanelExt class], [NSOpenPanelExtWithSelectAll class]}) {
        QString title;
        for (int round = 0; round < 2; ++round) {
            NSOpenPanel* const panel = [kind openPanel];
            QVERIFY([panel canChooseFiles]);
            QVERIFY(![panel canChooseDirectories]);
            QVERIFY(![panel allowsMultipleSelection]);
            QVERIFY(![panel delegate]);
            QVERIFY(![panel accessoryView]);
            QVERIFY(![panel allowedFileTypes]);
            QVERIFY(![panel allowsOtherFileTypes]);
            QVERIFY(![panel treatsFilePackagesAsDirectories]);
            QVERIFY(![panel showsHiddenFiles]);
            QVERIFY(![panel canSelectHiddenExtension]);
            QVERIFY(![panel isExtensionHidden]);
            QVERIFY(![panel isVisible]);
            QCOMPARE(text([panel nameFieldStringValue]), QString());
            if (round == 0)
                title = text([panel title]);
            QCOMPARE(text([panel title]), title);

            [panel setTitle:@"Choose"];
            [panel setCanChooseFiles:NO];
            [panel setCanChooseDirectories:YES];
            [panel setAllowsMultipleSelection:YES];
            [panel setDelegate:delegate];
            [panel setAccessoryView:[[[NSView alloc] init] autorelease]];
            [panel setAllowedFileTypes:[NSArray arrayWithObject:@"dwg"]];
            [panel setAllowsOtherFileTypes:YES];
            [panel setTreatsFilePackagesAsDirectories:YES];
            [panel setShowsHiddenFiles:YES];
            [panel setCanSelectHiddenExtension:YES];
            [panel setExtensionHidden:YES];
            [panel setNameFieldStringValue:@"plan.dwg"];
        }
    }
}

void PanelKeysTest::panelsOutliveTheirDelegate()
{
    CVyNSOpenSavePanelDelegate* const delegate = [[CVyNSOpenSavePanelDelegate alloc] init];
    NSOpenPanel* const panel = [NSOpenPanelExt openPanel];
    [panel setDelegate:delegate];
    [delegate release]; // the panel keeps none
    NSOpenPanel* const next = [NSOpenPanelExt openPanel];
    QVERIFY(![next delegate]);
    [panel setDelegate:nil];
    QVERIFY(![panel delegate]);
}

void PanelKeysTest::savePanelStartsAfresh()
{
    for (int round = 0; round < 2; ++round) {
        NSSavePanel* const panel = [NSSavePanel savePanel];
        QVERIFY(![panel isKindOfClass:[NSOpenPanel class]]);
        QVERIFY(![panel delegate]);
        QVERIFY(![panel accessoryView]);
        QVERIFY(![panel allowedFileTypes]);
        QVERIFY(![panel allowsOtherFileTypes]);
        QVERIFY(![panel showsHiddenFiles]);
        QVERIFY(![panel canSelectHiddenExtension]);
        QVERIFY(![panel isExtensionHidden]);
        QCOMPARE(text([panel nameFieldStringValue]), QString());

        [panel setAccessoryView:[[[NSView alloc] init] autorelease]];
        [panel setAllowedFileTypes:[NSArray arrayWithObject:@"dwg"]];
        [panel setAllowsOtherFileTypes:YES];
        [panel setShowsHiddenFiles:YES];
        [panel setCanSelectHiddenExtension:YES];
        [panel setExtensionHidden:YES];
        [panel setNameFieldStringValue:@"plan.dwg"];
    }
    [NSSavePanel savePanel];
}

void PanelKeysTest::goesToTheFolderOfAPath_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("selected");

    QTest::newRow("folder") << "plans"
                            << "plans"
                            << "";
    QTest::newRow("folder with an extension") << "plans/a.dwg"
                                              << "plans/a.dwg"
                                              << "";
    QTest::newRow("file") << "plans/b.dwg"
                          << "plans"
                          << "b.dwg";
    QTest::newRow("missing file") << "plans/c.dwg"
                                  << "plans"
                                  << "";
    QTest::newRow("missing folder") << "plans/gone/deeper/d.dwg"
                                    << "plans"
                                    << "";
    QTest::newRow("below a file") << "plans/b.dwg/e"
                                  << "plans"
                                  << "";
}

void PanelKeysTest::goesToTheFolderOfAPath()
{
    QFETCH(QString, name);
    addFolder("plans/a.dwg");
    addFile("plans/b.dwg");
    NSSavePanel* const panels[] = {[NSOpenPanelExt openPanel], [NSSavePanel savePanel]};
    for (NSSavePanel* panel : panels) {
        [panel setDirectoryURL:[NSURL fileURLWithPath:nsStringFromQString(path(name))]];
        QTEST(QDir(path()).relativeFilePath(text([[panel directoryURL] path])), "folder");
        QTEST(text([panel nameFieldStringValue]), "selected");
    }
}

QTEST_MAIN(PanelKeysTest)
#include "PanelKeysTest.moc"
