// SPDX-License-Identifier: MIT
// GNUstep as the AppKit: what it lacks and what it does otherwise, measured with
// its release 0.29. None of this is known elsewhere.
#include "VyCocoa.h"

#include "NSOpenPanelExt.h"
#include "VyCocoaGNUstepRun.h"

#import <AppKit/AppKit.h>

#include <csignal>
#include <iterator>

#include <X11/Xlib.h> // last: it defines common words as macros

// GNUstep's own, which it does not declare.
extern "C" const char* GSPathHandling(const char* mode);

@interface NSSavePanel (VyPrivate)
- (void)_resetDefaults;
- (void)browser:(NSBrowser*)browser
    createRowsForColumn:(NSInteger)column
               inMatrix:(NSMatrix*)matrix;
@end

/// A list of extensions that compares them without case and in which "*" equals
/// any of them, also "", by which GNUstep asks whether others may be saved.
@interface VyExtensionArray : NSArray {
    NSArray* m_extensions;
}
+ (NSArray*)arrayWithExtensions:(NSArray*)extensions;
@end

@implementation VyExtensionArray

+ (NSArray*)arrayWithExtensions:(NSArray*)extensions
{
    if (!extensions)
        return nil;
    VyExtensionArray* const array = [[[self alloc] init] autorelease];
    array->m_extensions = [[NSArray alloc] initWithArray:extensions copyItems:YES];
    return array;
}

- (void)dealloc
{
    [m_extensions release];
    [super dealloc];
}

- (NSUInteger)count
{
    return [m_extensions count];
}

- (id)objectAtIndex:(NSUInteger)index
{
    return [m_extensions objectAtIndex:index];
}

- (NSUInteger)indexOfObject:(id)wanted
{
    NSUInteger index = 0;
    for (NSString* extension in m_extensions) {
        if ([extension isEqualToString:@"*"] ||
            [extension caseInsensitiveCompare:wanted] == NSOrderedSame)
            return index;
        ++index;
    }
    return NSNotFound;
}

- (BOOL)containsObject:(id)wanted
{
    return [self indexOfObject:wanted] != NSNotFound;
}

@end

namespace {

BOOL isFolder(NSString* path)
{
    BOOL isDirectory = NO;
    return [[NSFileManager defaultManager] fileExistsAtPath:path isDirectory:&isDirectory] &&
           isDirectory;
}

// GNUstep ignores what is not a folder. A file is shown in its folder, selected;
// what does not exist is looked for as far as it does, but not while the user
// sees the panel: it then stays where it is.
void showPath(NSSavePanel* panel, NSString* path)
{
    NSString* folder = path;
    while (!isFolder(folder) && [folder length] > 1 && ![panel isVisible])
        folder = [folder stringByDeletingLastPathComponent];
    [panel setDirectory:folder];
    if (!isFolder(path) && [[NSFileManager defaultManager] fileExistsAtPath:path])
        [panel setNameFieldStringValue:[path lastPathComponent]];
}

// GNUstep reads the folder again for each list that it is given.
BOOL isOtherList(NSArray* types, NSArray* present)
{
    return [types count] ? ![types isEqualToArray:present] : present != nil;
}

// GNUstep takes a folder with an allowed extension for a package.
void openFolders(NSMatrix* matrix, NSString* path)
{
    for (NSBrowserCell* cell in [matrix cells]) {
        NSString* const entry = [path stringByAppendingPathComponent:[cell stringValue]];
        if ([cell isLeaf] && isFolder(entry) &&
            ![[NSWorkspace sharedWorkspace] isFilePackageAtPath:entry])
            [cell setLeaf:NO];
    }
}

} // namespace

// GNUstep hands out one shared open panel, of the plain class; ours are new ones.
@implementation NSOpenPanelExt (VyGNUstep)

+ (NSOpenPanel*)openPanel
{
    NSOpenPanelExt* const panel = [[[self alloc] init] autorelease];
    [panel setReleasedWhenClosed:NO];
    [panel _resetDefaults];
    [panel setCanChooseDirectories:NO];
    return panel;
}

// GNUstep tells keys by the X server's codes, among which that of macOS's Escape
// key is a letter's.
- (void)sendEvent:(NSEvent*)event
{
    const BOOL hasEscapeCode = [event type] == NSKeyUp && [event keyCode] == 53;
    if (!hasEscapeCode || [[event characters] isEqualToString:@"\033"])
        [super sendEvent:event];
}

// GNUstep goes up to the folder of which an entry has vanished.
- (void)validateVisibleColumns
{
    NSString* const path = [_browser path];
    [super validateVisibleColumns];
    if (![[_browser path] isEqualToString:path])
        [_browser setPath:path];
}

// GNUstep takes a file's name that begins with "~" for a path.
- (NSArray*)filenames
{
    NSMutableArray* const paths = [NSMutableArray array];
    NSString* const folder = [[self directory] isEqualToString:@"/"] ? @"" : [self directory];
    for (NSBrowserCell* cell in [_browser selectedCells]) {
        if ([cell isLeaf])
            [paths addObject:[NSString stringWithFormat:@"%@/%@", folder, [cell stringValue]]];
    }
    return [paths count] ? paths : [super filenames];
}

- (NSInteger)runModal
{
    return VyCocoaGNUstep::run(self, _form);
}

- (void)setDirectoryURL:(NSURL*)url
{
    showPath(self, [url path]);
}

- (void)performClose:(id)sender
{
    [self cancel:sender];
}

- (void)setAllowedFileTypes:(NSArray*)types
{
    if (isOtherList(types, [self allowedFileTypes]))
        [super setAllowedFileTypes:[VyExtensionArray arrayWithExtensions:types]];
}

- (void)browser:(NSBrowser*)browser createRowsForColumn:(NSInteger)column inMatrix:(NSMatrix*)matrix
{
    [super browser:browser createRowsForColumn:column inMatrix:matrix];
    openFolders(matrix, [browser pathToColumn:column]);
}

@end

/// What +savePanel gives. It stays the shared one, brought to a panel's defaults
/// before each run.
@interface VySavePanel : NSSavePanel
@end

@implementation VySavePanel

- (void)_resetDefaults
{
    [super _resetDefaults];
    [self setNameFieldStringValue:@""];
    [self setShowsHiddenFiles:NO];
    [self setCanSelectHiddenExtension:NO];
    [self setExtensionHidden:NO];
}

// GNUstep takes a name that begins with "~" for a path, which "~/" only is. It
// would save a name with a backslash under another, in another folder: refused.
- (void)ok:(id)sender
{
    NSString* const name = [self nameFieldStringValue];
    if ([name rangeOfString:@"\\"].location != NSNotFound) {
        NSBeep();
        return;
    }
    if ([name hasPrefix:@"~"] && ![name hasPrefix:@"~/"])
        [self setNameFieldStringValue:[@"./" stringByAppendingString:name]];
    [super ok:sender];
}

- (NSInteger)runModal
{
    return VyCocoaGNUstep::run(self, _form);
}

- (void)setDirectoryURL:(NSURL*)url
{
    showPath(self, [url path]);
}

- (void)performClose:(id)sender
{
    [self cancel:sender];
}

- (void)setAllowedFileTypes:(NSArray*)types
{
    if (isOtherList(types, [self allowedFileTypes]))
        [super setAllowedFileTypes:[VyExtensionArray arrayWithExtensions:types]];
}

- (void)browser:(NSBrowser*)browser createRowsForColumn:(NSInteger)column inMatrix:(NSMatrix*)matrix
{
    [super browser:browser createRowsForColumn:column inMatrix:matrix];
    openFolders(matrix, [browser pathToColumn:column]);
}

@end

namespace VyCocoa {

namespace {

bool displayAnswers()
{
    Display* const display = XOpenDisplay(nullptr);
    if (display)
        XCloseDisplay(display);
    return display != nullptr;
}

// GNUstep takes over the signals that end a process, and the one that tells of a
// child's end, by which Qt knows its own; the host keeps what it has.
class SignalsKept
{
public:
    SignalsKept()
    {
        for (std::size_t i = 0; i < std::size(signals); ++i)
            sigaction(signals[i], nullptr, &m_actions[i]);
    }
    ~SignalsKept()
    {
        for (std::size_t i = 0; i < std::size(signals); ++i)
            sigaction(signals[i], &m_actions[i], nullptr);
    }
    Q_DISABLE_COPY(SignalsKept)

private:
    static constexpr int signals[] = {SIGTERM, SIGINT, SIGCHLD};
    struct sigaction m_actions[std::size(signals)];
};

// GNUstep's event loop, which is not ours, would finish launching the
// application object; without that it would not hear which window is the key
// window, and drop keys.
void listenToWindows(NSApplication* application)
{
    NSDictionary* const handlers = [NSDictionary
        dictionaryWithObjectsAndKeys:@"_windowDidBecomeKey:", NSWindowDidBecomeKeyNotification,
                                     @"_windowDidResignKey:", NSWindowDidResignKeyNotification,
                                     @"_windowDidBecomeMain:", NSWindowDidBecomeMainNotification,
                                     @"_windowDidResignMain:", NSWindowDidResignMainNotification,
                                     @"_windowWillClose:", NSWindowWillCloseNotification, nil];
    for (NSString* name in handlers) {
        const SEL handler = NSSelectorFromString([handlers objectForKey:name]);
        if ([application respondsToSelector:handler])
            [[NSNotificationCenter defaultCenter] addObserver:application
                                                     selector:handler
                                                         name:name
                                                       object:nil];
    }
}

const char* bringUp()
{
    const SignalsKept signals;
    NSAutoreleasePool* const pool = [[NSAutoreleasePool alloc] init];
    const char* reason = nullptr;
    @try {
        // Qt's windows have icons; there is no second application to show one for.
        [[NSUserDefaults standardUserDefaults]
            registerDefaults:[NSDictionary dictionaryWithObject:@"YES"
                                                         forKey:@"GSSuppressAppIcon"]];
        [NSTask class]; // takes its signal when it is first used: now
        // Else ":" and "\\" in a name would count as separators.
        GSPathHandling("unix");
        if (![[NSApplication sharedApplication] isRunning])
            listenToWindows(NSApp);
        NSSavePanel* const savePanel = [NSSavePanel savePanel];
        if ([savePanel isMemberOfClass:[NSSavePanel class]])
            object_setClass(savePanel, [VySavePanel class]);
    } @catch (NSException* exception) {
        reason = "GNUstep found no back-end that works with this display";
    }
    [pool drain];
    return reason;
}

} // namespace

// GNUstep does not recover from a failed attempt, so the display is asked first.
const char* bringUpAppKit()
{
    if (!displayAnswers())
        return "no X display answers; see DISPLAY";
    static const char* const reason = bringUp();
    return reason;
}

} // namespace VyCocoa
