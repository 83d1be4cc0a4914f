// SPDX-License-Identifier: MIT
// GNUstep as the AppKit: what it lacks and what it does otherwise, measured with
// its release 0.29. None of this is known elsewhere.
#include "VyCocoa.h"

#include "NSOpenPanelExt.h"

#import <AppKit/AppKit.h>

#include <QCoreApplication>

#include <csignal>

#include <X11/Xlib.h> // last: it defines common words as macros

// GNUstep's own, which it does not declare.
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

/// Runs Qt's events from a timer.
@interface VyHostEventsTarget : NSObject
+ (void)process:(NSTimer*)timer;
@end

@implementation VyHostEventsTarget

+ (void)process:(NSTimer*)timer
{
    QCoreApplication::processEvents();
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

// GNUstep's modal loops do not run Qt's. So that the host's windows are painted,
// its timers run, and its windows' input goes to the lock that is to swallow it
// instead of waiting for its end, they are made to.
constexpr NSTimeInterval hostInterval = 0.02; // seconds

class HostEvents
{
public:
    HostEvents()
        : m_timer([[NSTimer timerWithTimeInterval:hostInterval
                                           target:[VyHostEventsTarget class]
                                         selector:@selector(process:)
                                         userInfo:nil
                                          repeats:YES] retain])
    {
        [[NSRunLoop currentRunLoop] addTimer:m_timer forMode:NSModalPanelRunLoopMode];
    }
    ~HostEvents()
    {
        [m_timer invalidate];
        [m_timer release];
    }
    Q_DISABLE_COPY(HostEvents)

private:
    NSTimer* const m_timer;
};

// While it lives, the Tab key comes from the name field to the popups of the
// accessory view, from top to bottom, before it goes on.
class PopupsInKeyLoop
{
public:
    PopupsInKeyLoop(NSSavePanel* panel, NSView* nameField)
        : m_nameField(nameField)
        , m_next([nameField nextKeyView])
    {
        NSView* last = nameField;
        for (NSView* view in [[panel accessoryView] subviews]) {
            if (![view isKindOfClass:[NSPopUpButton class]])
                continue;
            [last setNextKeyView:view];
            last = view;
        }
        [last setNextKeyView:m_next];
    }
    ~PopupsInKeyLoop() { [m_nameField setNextKeyView:m_next]; }
    Q_DISABLE_COPY(PopupsInKeyLoop)

private:
    NSView* const m_nameField;
    NSView* const m_next;
};

// GNUstep would lose the name that was set before the run.
NSInteger run(NSSavePanel* panel, NSView* nameField)
{
    const PopupsInKeyLoop keyLoop(panel, nameField);
    const HostEvents events;
    return [panel runModalForDirectory:[panel directory] file:[panel nameFieldStringValue]];
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

- (NSInteger)runModal
{
    return run(self, _form);
}

- (void)setDirectoryURL:(NSURL*)url
{
    showPath(self, [url path]);
}

- (void)setAllowedFileTypes:(NSArray*)types
{
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

- (NSInteger)runModal
{
    return run(self, _form);
}

- (void)setDirectoryURL:(NSURL*)url
{
    showPath(self, [url path]);
}

- (void)setAllowedFileTypes:(NSArray*)types
{
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

// GNUstep's back-end takes over the signals that end a process; the host keeps
// its own ways.
class SignalsKept
{
public:
    SignalsKept()
    {
        sigaction(SIGTERM, nullptr, &m_terminate);
        sigaction(SIGINT, nullptr, &m_interrupt);
    }
    ~SignalsKept()
    {
        sigaction(SIGTERM, &m_terminate, nullptr);
        sigaction(SIGINT, &m_interrupt, nullptr);
    }
    Q_DISABLE_COPY(SignalsKept)

private:
    struct sigaction m_terminate;
    struct sigaction m_interrupt;
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
    if (!displayAnswers())
        return "no X display answers; see DISPLAY";
    const SignalsKept signals;
    NSAutoreleasePool* const pool = [[NSAutoreleasePool alloc] init];
    const char* reason = nullptr;
    @try {
        // Qt's windows have icons; there is no second application to show one for.
        [[NSUserDefaults standardUserDefaults]
            registerDefaults:[NSDictionary dictionaryWithObject:@"YES"
                                                         forKey:@"GSSuppressAppIcon"]];
        listenToWindows([NSApplication sharedApplication]);
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

// GNUstep does not recover from a failed attempt.
const char* bringUpAppKit()
{
    static const char* const reason = bringUp();
    return reason;
}

} // namespace VyCocoa
