// SPDX-License-Identifier: MIT
// macOS. Written from its documentation; not compiled there yet.
#include "VyWindowManager.h"

#include <QGuiApplication>

#import <AppKit/AppKit.h>

namespace VyWindowManager {

namespace {

bool isCocoa()
{
    return QGuiApplication::platformName() == QLatin1String("cocoa");
}

WId idOf(NSWindow* window)
{
    return reinterpret_cast<WId>([window contentView]);
}

// Looked up, as a view may have gone since its number was noted.
NSWindow* windowOf(WId window)
{
    for (NSWindow* candidate in [NSApp windows]) {
        if (idOf(candidate) == window)
            return candidate;
    }
    return nil;
}

} // namespace

// -[NSApplication orderedWindows] would leave out panels, which tool windows are.
Order current()
{
    if (!isCocoa())
        return creationOrder();
    Order order;
    for (NSNumber* number in [NSWindow windowNumbersWithOptions:0]) {
        NSWindow* const window = [NSApp windowWithWindowNumber:[number integerValue]];
        if (window)
            order.prepend(idOf(window));
    }
    return order;
}

Notes notes(const QWindow&)
{
    return {};
}

void prepare(const QWindow&, const Notes&) {}

void place(const Order& placed, const Order& order, QWindow* active)
{
    if (!isCocoa())
        return keepActive(active);
    for (int i = 1; i < order.size(); ++i) {
        NSWindow* const below = windowOf(order.at(i - 1));
        if (below && placed.contains(order.at(i)))
            [windowOf(order.at(i)) orderWindow:NSWindowAbove relativeTo:[below windowNumber]];
    }
}

} // namespace VyWindowManager
