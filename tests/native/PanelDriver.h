// SPDX-License-Identifier: MIT
#pragma once

#import <AppKit/AppKit.h>

#include "VyViewFilterMacNative.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

@class VyDriverTarget;

/// Works the native panel that a blocking call shows, from a timer of the
/// panel's own modal run loop: Qt's timers stand still there. One step is made
/// at a time, each with the window that is modal by then: the panel, or an alert
/// over it. A panel that no step ends is left after a while and fails the test.
class PanelDriver
{
public:
    using Step = std::function<void(NSWindow*)>;

    explicit PanelDriver(std::vector<Step> steps);
    /// Fails the test when a step had no window.
    ~PanelDriver();
    Q_DISABLE_COPY(PanelDriver)

    /// For the timer.
    void look();

private:
    void leaveForgotten();

    std::vector<Step> m_steps;
    std::size_t m_next = 0;
    int m_idleTicks = 0;
    VyDriverTarget* m_target;
    NSTimer* m_timer;
};

/// A step for the panel.
PanelDriver::Step onPanel(std::function<void(NSSavePanel*)> work);

/// Steps that press the panel's OK and Cancel buttons, as far as the panel is
/// concerned, after the step has returned.
PanelDriver::Step accept();
PanelDriver::Step cancel();

/// A step that presses the button with that tag (NSAlertDefaultReturn for the
/// first) of an alert that mentions \a word.
PanelDriver::Step answerAlert(NSInteger tag, const QString& word);

/// The panel's accessory view.
CVyViewFilterMacNative* accessoryView(NSSavePanel* panel);

/// The popup with that action, nil if there is none; and its label.
NSPopUpButton* popup(NSSavePanel* panel, SEL action);
NSTextField* label(NSSavePanel* panel, NSPopUpButton* popup);

/// The titles of the popup's items.
QStringList titles(NSPopUpButton* popup);

/// Chooses the item as a click on it does.
void choose(NSPopUpButton* popup, NSInteger index);

/// Names shown in the panel's last column, and whether one of them is a folder
/// that can be entered.
QStringList shownNames(NSSavePanel* panel);
bool canEnter(NSSavePanel* panel, const QString& name);

/// Selects the names in the last column, as clicks do.
void selectNames(NSSavePanel* panel, const QStringList& names);

/// Steps for the panel: choose the file type with that index, or names in the last
/// column, as clicks do; fill the name field; fail the test unless the names are
/// those that are shown.
PanelDriver::Step chooseType(NSInteger index);
PanelDriver::Step click(const QStringList& names);
PanelDriver::Step typeName(const QString& name);
PanelDriver::Step sees(const QStringList& names);

/// Text of a platform string, and a list of them.
QString text(NSString* string);
QStringList texts(NSArray* strings);
