// SPDX-License-Identifier: MIT
#pragma once

#import <AppKit/AppKit.h>

#include <QString>

#include <initializer_list>

class CVyFileDialogMacMacNativePrivate;
@class CVyNSOpenSavePanelDelegate;
@class CVyViewFilterMacNative;

/// What the three panel controllers have in common.
namespace VyPanelConstruction {

/// Takes off a panel, before it goes, what it does not own and what points at
/// the run that is over.
class Attachments
{
public:
    explicit Attachments(NSSavePanel* panel)
        : m_panel(panel)
    {}
    ~Attachments();
    Q_DISABLE_COPY(Attachments)

private:
    NSSavePanel* const m_panel;
};

/// Sets the panel's title; an empty one leaves the system's.
void setCaption(NSSavePanel* panel, const QString& caption);

/// Makes an open panel choose files.
void chooseFilesOnly(NSOpenPanel* panel);

/// The labels of modes in the user's language, in order.
NSArray* modes(std::initializer_list<const char*> labels);

/// Gives the panel its accessory view, with the types of \a record, of which the
/// one with \a description (null for the first) is selected, and with \a modes,
/// of which the first is; nil for no modes. \a delegate may be nil.
/// \a noTemplateHandling keeps the folder when a template type is picked.
CVyViewFilterMacNative* addAccessoryView(NSSavePanel* panel,
                                         const CVyFileDialogMacMacNativePrivate& record,
                                         CVyNSOpenSavePanelDelegate* delegate,
                                         const QString& description, NSArray* modes,
                                         bool noTemplateHandling);

/// Runs the panel, with the host's floating windows hidden meanwhile. True when
/// the user accepted.
bool run(NSSavePanel* panel);
/// The same in the style of systems before macOS 10.6, which also sets folder,
/// file name (may be nil) and allowed types (nil for any).
bool run(NSSavePanel* panel, NSString* directory, NSString* fileName, NSArray* fileTypes);

/// The path of a file URL.
QString path(NSURL* url);

/// Notes with the host that the user chose the file.
void bookmark(NSURL* url);

} // namespace VyPanelConstruction
