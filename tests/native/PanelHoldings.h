// SPDX-License-Identifier: MIT
#pragma once

#include "Holdings.h"

#import <AppKit/AppKit.h>

#include <QApplication>
#include <QtTest>

/// Counts the objects of our panels' classes that go, and text views and timers that stay.
class ObjectCount
{
public:
    /// To be called once, before there is any.
    static void install();

    /// Since the last start().
    static int freed(Class owner);
    static void start();

    /// Text views, or timers, that have not been freed yet.
    static int live(Class kind);
};

/// What the process holds with the AppKit's share, as far as ObjectCount knows it.
struct PanelHoldings : Holdings
{
    /// Counted when it is made.
    PanelHoldings();

    int panels;
    int panelWindows;    ///< all windows of the AppKit's
    int windowsOnScreen; ///< of all programs on the display, which is the test's own
    int textViews;
    int timers;
};

/// The main function of a program that tests with these.
template <typename Test>
int runCounted(int argc, char* argv[])
{
    Holdings::countObjects();
    QApplication application(argc, argv);
    NSAutoreleasePool* const pool = [[NSAutoreleasePool alloc] init];
    ObjectCount::install();
    [pool drain];
    Test test;
    return QTest::qExec(&test, argc, argv);
}
