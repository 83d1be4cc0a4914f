// SPDX-License-Identifier: MIT
#include "VyCocoaGNUstepRun.h"

#include "VyCocoaHostEvents.h"

#import <GNUstepGUI/GSDisplayServer.h>

#include <QGuiApplication>
#include <QPointer>
#include <QWindow>

#include <algorithm>
#include <vector>

#include <X11/Xutil.h> // last: it defines common words as macros

@interface NSTextView (VyPrivate)
- (void)_stopInsertionTimer;
@end

namespace {

constexpr NSTimeInterval tickInterval = 0.02; // seconds
// How long a new panel asks for the focus, and how often. After that the user
// may have gone to another window.
constexpr unsigned ticksForFocus = 150;
constexpr unsigned ticksBetweenRequests = 5;
constexpr int pasteboardTries = 3;

Display* display()
{
    return static_cast<Display*>([GSCurrentServer() serverDevice]);
}

Window xWindow(NSWindow* window)
{
    return reinterpret_cast<Window>(
        [GSCurrentServer() windowDevice:static_cast<int>([window windowNumber])]);
}

// Asks the window manager for the focus, as a task bar does for its user.
void requestActivation(Window window)
{
    XEvent event = {};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = XInternAtom(display(), "_NET_ACTIVE_WINDOW", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = 2;
    XSendEvent(display(), DefaultRootWindow(display()), False,
               SubstructureNotifyMask | SubstructureRedirectMask, &event);
    XFlush(display());
}

// Whether keys go to the panel. If not, something is done about it: the server,
// the window manager and GNUstep each have their own idea of the active window,
// and when a panel opens soon after another window was used they disagree.
BOOL takeFocus(NSWindow* panel)
{
    const Window window = xWindow(panel);
    Window focused = None;
    int revertTo = RevertToNone;
    XGetInputFocus(display(), &focused, &revertTo);
    if (focused != window)
        requestActivation(window);
    else if (![panel isKeyWindow])
        [panel makeKeyWindow];
    return focused == window && [panel isKeyWindow];
}

// A window that does not know how to be closed is closed by ending its process.
void letBeClosed(Window window)
{
    Atom* protocols = nullptr;
    int count = 0;
    std::vector<Atom> all;
    if (XGetWMProtocols(display(), window, &protocols, &count)) {
        all.assign(protocols, protocols + count);
        XFree(protocols);
    }
    const Atom close = XInternAtom(display(), "WM_DELETE_WINDOW", False);
    if (std::find(all.begin(), all.end(), close) != all.end())
        return;
    all.push_back(close);
    XSetWMProtocols(display(), window, all.data(), static_cast<int>(all.size()));
}

// The host's window over which a panel stands; none where Qt draws no X windows.
Window hostWindow()
{
    const QWindow* const window = QGuiApplication::focusWindow();
    const bool isX = QGuiApplication::platformName() == QLatin1String("xcb");
    return window && isX ? static_cast<Window>(window->winId()) : None;
}

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

} // namespace

/// What happens from time to time while a panel runs.
@interface VyPanelTicker : NSObject {
    NSSavePanel* m_panel;
    Window m_owner;
    unsigned m_ticks;
    BOOL m_hasHadFocus;
}
- (id)initWithPanel:(NSSavePanel*)panel;
- (void)tick:(NSTimer*)timer;
@end

@implementation VyPanelTicker

- (id)initWithPanel:(NSSavePanel*)panel
{
    self = [super init];
    m_panel = panel;
    m_owner = hostWindow();
    return self;
}

// The panel, or an alert over it, tells the window manager whose it is, so that
// it stays in front of that, and that it can be closed. GNUstep now and then says
// otherwise.
- (void)introduce:(NSWindow*)window
{
    const Window owner = window == m_panel ? m_owner : xWindow(m_panel);
    if (owner != None)
        XSetTransientForHint(display(), xWindow(window), owner);
    letBeClosed(xWindow(window));
    XFlush(display());
}

// GNUstep's modal loops do not run Qt's. So that the host's windows are painted,
// its timers run, and its windows' input goes to the lock that is to swallow it
// instead of waiting for its end, Qt's events are run from here.
- (void)tick:(NSTimer*)timer
{
    if (m_ticks++ % ticksBetweenRequests == 0) {
        if (NSWindow* const window = [NSApp modalWindow])
            [self introduce:window];
        if (!m_hasHadFocus && m_ticks < ticksForFocus)
            m_hasHadFocus = takeFocus(m_panel);
    }
    if (!VyCocoaHostEvents::process())
        [self endRun];
}

// A modal loop looks whether it has been stopped when an event has come.
- (void)endRun
{
    [NSApp stopModalWithCode:0];
    [NSApp postEvent:[NSEvent otherEventWithType:NSApplicationDefined
                                        location:NSZeroPoint
                                   modifierFlags:0
                                       timestamp:0
                                    windowNumber:0
                                         context:nil
                                         subtype:0
                                           data1:0
                                           data2:0]
             atStart:NO];
}

@end

namespace {

class Ticking
{
public:
    explicit Ticking(NSSavePanel* panel)
        : m_ticker([[VyPanelTicker alloc] initWithPanel:panel])
        , m_timer([[NSTimer timerWithTimeInterval:tickInterval
                                           target:m_ticker
                                         selector:@selector(tick:)
                                         userInfo:nil
                                          repeats:YES] retain])
    {
        [[NSRunLoop currentRunLoop] addTimer:m_timer forMode:NSModalPanelRunLoopMode];
    }
    ~Ticking()
    {
        [m_timer invalidate];
        [m_timer release];
        [m_ticker release];
    }
    Q_DISABLE_COPY(Ticking)

private:
    VyPanelTicker* const m_ticker;
    NSTimer* const m_timer;
};

// GNUstep would lose the name that was set before the run. Selecting a text tells
// the pasteboard server; when that has ended meanwhile, the message raises, and
// the next one starts another server.
NSInteger runTicking(NSSavePanel* panel, NSView* nameField)
{
    const PopupsInKeyLoop keyLoop(panel, nameField);
    const Ticking ticking(panel);
    for (int tries = pasteboardTries;; --tries) {
        @try {
            return [panel runModalForDirectory:[panel directory] file:[panel nameFieldStringValue]];
        } @catch (NSException* exception) {
            if (tries <= 1 ||
                ![[exception name] isEqualToString:NSPasteboardCommunicationException])
                @throw;
        }
    }
}

// GNUstep forgets the timer of the name field's caret when the panel goes, and the
// timer keeps the text view. It is in a mode that no loop of Qt's runs: asked when
// its next timer is due, the mode lets go of those that have been stopped.
void stopCaret(NSSavePanel* panel)
{
    NSText* const editor = [panel fieldEditor:NO forObject:nil];
    if ([editor respondsToSelector:@selector(_stopInsertionTimer)])
        [static_cast<NSTextView*>(editor) _stopInsertionTimer];
    [[NSRunLoop currentRunLoop] limitDateForMode:NSDefaultRunLoopMode];
}

} // namespace

NSInteger VyCocoaGNUstep::run(NSSavePanel* panel, NSView* nameField)
{
    const NSInteger response = runTicking(panel, nameField);
    [panel orderOut:nil];
    stopCaret(panel);
    VyCocoaHostEvents::rethrow();
    return response;
}
