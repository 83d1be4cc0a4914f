// SPDX-License-Identifier: MIT
#include "PanelHoldings.h"

#include "NSOpenPanelExt.h"
#include "VyFileDialogMacNewMacNativePrivate.h"
#include "VyFileDialogMacOpenMacNativePrivate.h"
#include "VyFileDialogMacSaveMacNativePrivate.h"
#include "VyNSOpenSavePanelDelegate.h"
#include "VyViewFilterMacNative.h"

#import <objc/runtime.h>

#include <QProcess>
#include <QtTest>

#include <algorithm>
#include <map>
#include <set>

namespace {

std::map<Class, IMP> s_deallocs;
std::map<Class, int> s_freed;
std::set<void*> s_live; // text views and timers
IMP s_initTextView = nullptr;
IMP s_initTimer = nullptr;

// A text view's calls itself again.
void dealloc(id self, SEL selector)
{
    const Class owner = object_getClass(self);
    ++s_freed[owner];
    s_live.erase(self);
    reinterpret_cast<void (*)(id, SEL)>(s_deallocs[owner])(self, selector);
}

id initTextView(id self, SEL selector, NSRect frame, NSTextContainer* container)
{
    s_live.insert(self);
    return reinterpret_cast<id (*)(id, SEL, NSRect, NSTextContainer*)>(s_initTextView)(
        self, selector, frame, container);
}

id initTimer(id self, SEL selector, NSDate* date, NSTimeInterval interval, id target, SEL action,
             id userInfo, BOOL repeats)
{
    s_live.insert(self);
    return reinterpret_cast<id (*)(id, SEL, NSDate*, NSTimeInterval, id, SEL, id, BOOL)>(
        s_initTimer)(self, selector, date, interval, target, action, userInfo, repeats);
}

// An inherited method becomes the class's own.
IMP replace(Class owner, SEL selector, IMP replacement)
{
    const Method method = class_getInstanceMethod(owner, selector);
    const IMP original = method_getImplementation(method);
    if (!class_addMethod(owner, selector, replacement, method_getTypeEncoding(method)))
        method_setImplementation(method, replacement);
    return original;
}

// Windows of that kind; the list that is counted would keep them.
int liveWindows(Class kind)
{
    NSAutoreleasePool* const pool = [[NSAutoreleasePool alloc] init];
    int count = 0;
    for (NSWindow* window in [NSApp windows])
        count += [window isKindOfClass:kind];
    [pool drain];
    return count;
}

// The tool stumbles over a window that goes while it counts.
int windowsOnDisplay()
{
    QProcess tool;
    const bool told = QTest::qWaitFor([&tool] {
        tool.start("xwininfo", {"-root", "-tree"});
        return tool.waitForFinished() && tool.exitCode() == 0;
    });
    if (!told)
        QTest::qFail("xwininfo does not tell", __FILE__, __LINE__);
    return tool.readAllStandardOutput().count("0x");
}

} // namespace

// A subclass comes before its superclass, so that it keeps what it inherited.
void ObjectCount::install()
{
    for (Class owner : {[NSOpenPanelExtWithSelectAll class],
                        [NSOpenPanelExt class],
                        [CVyNSOpenSavePanelDelegate class],
                        [CVyViewFilterMacNative class],
                        [CVyFileDialogMacNewNativeCocoa class],
                        [CVyFileDialogMacOpenNativeCocoa class],
                        [CVyFileDialogMacSaveNativeCocoa class],
                        [NSTextView class],
                        [NSTimer class]})
        s_deallocs[owner] = replace(owner, @selector(dealloc), reinterpret_cast<IMP>(dealloc));
    s_initTextView = replace([NSTextView class], @selector(initWithFrame:textContainer:),
                             reinterpret_cast<IMP>(initTextView));
    s_initTimer = replace([NSTimer class],
                          @selector(initWithFireDate:interval:target:selector:userInfo:repeats:),
                          reinterpret_cast<IMP>(initTimer));
}

int ObjectCount::freed(Class owner)
{
    return s_freed[owner];
}

void ObjectCount::start()
{
    s_freed.clear();
}

int ObjectCount::live(Class kind)
{
    return static_cast<int>(std::count_if(s_live.begin(), s_live.end(), [kind](void* object) {
        return object_getClass(static_cast<id>(object)) == kind;
    }));
}

PanelHoldings::PanelHoldings()
    : panels(liveWindows([NSPanel class]))
    , panelWindows(liveWindows([NSWindow class]))
    , windowsOnScreen(windowsOnDisplay())
    , textViews(ObjectCount::live([NSTextView class]))
    , timers(ObjectCount::live([NSTimer class]))
{}
