// SPDX-License-Identifier: MIT
#include "PanelDriver.h"

#include "VyNativeStrings.h"

#import <objc/runtime.h>

#include <QtTest>

namespace {

constexpr NSTimeInterval tick = 0.05;
constexpr int patienceTicks = 400;

NSArray* panelMode()
{
    return [NSArray arrayWithObject:NSModalPanelRunLoopMode];
}

// A modal loop looks whether it has been stopped only when an event comes.
void wakeModalLoop()
{
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

NSBrowser* browser(NSView* view)
{
    if ([view isKindOfClass:[NSBrowser class]])
        return static_cast<NSBrowser*>(view);
    for (NSView* child in [view subviews]) {
        if (NSBrowser* const found = browser(child))
            return found;
    }
    return nil;
}

NSMatrix* lastColumn(NSSavePanel* panel)
{
    NSBrowser* const files = browser([panel contentView]);
    return [files matrixInColumn:[files lastColumn]];
}

// What is written in the view, and its button with that tag.
void readAlert(NSView* view, NSInteger tag, QString& words, NSButton*& button)
{
    for (NSView* child in [view subviews]) {
        readAlert(child, tag, words, button);
        if ([child isKindOfClass:[NSTextField class]])
            words += text([static_cast<NSTextField*>(child) stringValue]) + " ";
        if ([child isKindOfClass:[NSButton class]] && [child tag] == tag)
            button = static_cast<NSButton*>(child);
    }
}

} // namespace

@interface VyDriverTarget : NSObject {
@public
    PanelDriver* driver;
}
- (void)tick:(NSTimer*)timer;
@end

@implementation VyDriverTarget
- (void)tick:(NSTimer*)timer
{
    driver->look();
}
@end

PanelDriver::PanelDriver(std::vector<Step> steps)
    : m_steps(std::move(steps))
    , m_target([[VyDriverTarget alloc] init])
{
    m_target->driver = this;
    m_timer = [[NSTimer timerWithTimeInterval:tick
                                       target:m_target
                                     selector:@selector(tick:)
                                     userInfo:nil
                                      repeats:YES] retain];
    [[NSRunLoop currentRunLoop] addTimer:m_timer forMode:NSModalPanelRunLoopMode];
}

PanelDriver::~PanelDriver()
{
    [m_timer invalidate];
    [m_timer release];
    [m_target release];
    if (m_next < m_steps.size())
        QTest::qFail(
            qPrintable(
                QStringLiteral("step %1 of %2 was never made").arg(m_next + 1).arg(m_steps.size())),
            __FILE__, __LINE__);
}

void PanelDriver::look()
{
    wakeModalLoop();
    NSWindow* const window = [NSApp modalWindow];
    if (!window)
        return;
    if (m_next == m_steps.size()) {
        leaveForgotten();
        return;
    }
    m_idleTicks = 0;
    m_steps[m_next++](window);
}

void PanelDriver::leaveForgotten()
{
    if (++m_idleTicks < patienceTicks)
        return;
    if (m_idleTicks == patienceTicks)
        QTest::qFail("the panel was left open", __FILE__, __LINE__);
    [NSApp stopModalWithCode:0];
}

PanelDriver::Step onPanel(std::function<void(NSSavePanel*)> work)
{
    return [work](NSWindow* window) {
        if ([window isKindOfClass:[NSSavePanel class]])
            work(static_cast<NSSavePanel*>(window));
        else
            QTest::qFail("another window is modal", __FILE__, __LINE__);
    };
}

PanelDriver::Step accept()
{
    return onPanel([](NSSavePanel* panel) {
        [panel performSelector:@selector(ok:) withObject:nil afterDelay:0 inModes:panelMode()];
    });
}

PanelDriver::Step cancel()
{
    return onPanel([](NSSavePanel* panel) {
        [panel performSelector:@selector(cancel:) withObject:nil afterDelay:0 inModes:panelMode()];
    });
}

PanelDriver::Step answerAlert(NSInteger tag, const QString& word)
{
    return [=](NSWindow* window) {
        QVERIFY2(![window isKindOfClass:[NSSavePanel class]], "no alert came");
        QString words;
        NSButton* button = nil;
        readAlert([window contentView], tag, words, button);
        QVERIFY(button);
        QVERIFY2(words.contains(word), qPrintable(words));
        [NSApp sendAction:[button action] to:[button target] from:button];
    };
}

CVyViewFilterMacNative* accessoryView(NSSavePanel* panel)
{
    return static_cast<CVyViewFilterMacNative*>([panel accessoryView]);
}

NSPopUpButton* popup(NSSavePanel* panel, SEL action)
{
    for (NSView* view in [accessoryView(panel) subviews]) {
        if ([view isKindOfClass:[NSPopUpButton class]] &&
            sel_isEqual([static_cast<NSPopUpButton*>(view) action], action))
            return static_cast<NSPopUpButton*>(view);
    }
    return nil;
}

NSTextField* label(NSSavePanel* panel, NSPopUpButton* popup)
{
    for (NSView* view in [accessoryView(panel) subviews]) {
        if ([view isKindOfClass:[NSTextField class]] &&
            NSMinY([view frame]) == NSMinY([popup frame]) + 5)
            return static_cast<NSTextField*>(view);
    }
    return nil;
}

QStringList titles(NSPopUpButton* popup)
{
    return texts([popup itemTitles]);
}

void choose(NSPopUpButton* popup, NSInteger index)
{
    [popup selectItemAtIndex:index];
    [[popup menu] performActionForItemAtIndex:index];
}

QStringList shownNames(NSSavePanel* panel)
{
    QStringList names;
    for (NSBrowserCell* cell in [lastColumn(panel) cells])
        names += text([cell stringValue]);
    return names;
}

bool canEnter(NSSavePanel* panel, const QString& name)
{
    for (NSBrowserCell* cell in [lastColumn(panel) cells]) {
        if (text([cell stringValue]) == name)
            return ![cell isLeaf];
    }
    return false;
}

void selectNames(NSSavePanel* panel, const QStringList& names)
{
    NSMatrix* const column = lastColumn(panel);
    [column deselectAllCells];
    for (NSInteger row = 0; row < [column numberOfRows]; ++row) {
        if (names.contains(text([[column cellAtRow:row column:0] stringValue]))) {
            if (names.size() == 1)
                [column selectCellAtRow:row column:0];
            else
                [column setSelectionFrom:row to:row anchor:row highlight:YES];
        }
    }
    NSBrowser* const files = browser([panel contentView]);
    [files sendAction:[files action] to:[files target]];
}

PanelDriver::Step chooseType(NSInteger index)
{
    return onPanel(
        [index](NSSavePanel* panel) { choose(popup(panel, @selector(filterChanged:)), index); });
}

PanelDriver::Step click(const QStringList& names)
{
    return onPanel([names](NSSavePanel* panel) { selectNames(panel, names); });
}

PanelDriver::Step typeName(const QString& name)
{
    return onPanel(
        [name](NSSavePanel* panel) { [panel setNameFieldStringValue:nsStringFromQString(name)]; });
}

PanelDriver::Step sees(const QStringList& names)
{
    return onPanel([names](NSSavePanel* panel) { QCOMPARE(shownNames(panel), names); });
}

QString text(NSString* string)
{
    return qStringfromNSString(string);
}

QStringList texts(NSArray* strings)
{
    QStringList result;
    for (NSString* string in strings)
        result += text(string);
    return result;
}
