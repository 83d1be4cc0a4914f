// SPDX-License-Identifier: MIT
#include "VyPanelConstruction.h"

#include "VyFileDialogMacDoModal.h"
#include "VyFileDialogMacMacNativePrivate.h"
#include "VyFloatingWindows.h"
#include "VyMacDocumentController.h"
#include "VyNativeStrings.h"
#include "VyViewFilterMacNative.h"

#include <QCoreApplication>
#include <QStringList>

// Open panels have it since macOS 10.11.
@protocol VyAccessoryDisclosure
- (void)setAccessoryViewDisclosed:(BOOL)disclosed;
@end

namespace VyPanelConstruction {

namespace {

constexpr int okButton = 1; // NSModalResponseOK, under each of its names

// Hides the host's floating windows, also while an exception passes.
class FloatingWindowsHidden
{
public:
    ~FloatingWindowsHidden() { ShowFloatingWindows(m_token); }

    FloatingWindowsHidden() = default;
    Q_DISABLE_COPY(FloatingWindowsHidden)

private:
    const decltype(HideFloatingWindows()) m_token = HideFloatingWindows();
};

} // namespace

Attachments::~Attachments()
{
    [m_panel setDelegate:nil];
    [m_panel setAccessoryView:nil];
}

void setCaption(NSSavePanel* panel, const QString& caption)
{
    if (!caption.isEmpty())
        [panel setTitle:nsStringFromQString(caption)];
}

// No panel known answers to canChooseDirectories: with a colon, so that each
// keeps its own default.
void chooseFilesOnly(NSOpenPanel* panel)
{
    [panel setCanChooseFiles:YES];
    if ([panel respondsToSelector:NSSelectorFromString(@"canChooseDirectories:")])
        [panel setCanChooseDirectories:NO];
}

NSArray* modes(std::initializer_list<const char*> labels)
{
    QStringList translations;
    for (const char* label : labels)
        translations += QCoreApplication::translate("CVyFileDialogs", label);
    return [CVyViewFilterToolMacNative getArrayFilter:&translations];
}

// Systems that fold the view away behind an "Options" button are asked to show it.
CVyViewFilterMacNative* addAccessoryView(NSSavePanel* panel,
                                         const CVyFileDialogMacMacNativePrivate& record,
                                         CVyNSOpenSavePanelDelegate* delegate,
                                         const QString& description, NSArray* modes,
                                         bool noTemplateHandling)
{
    CVyViewFilterMacNative* const view = [[[CVyViewFilterMacNative alloc]
               initWithFilter:[CVyViewFilterToolMacNative getArrayFilter:&record.m_listFilter]
             setFilterFileExt:[CVyViewFilterToolMacNative
                                  getArrayFilter:&record.m_listFilterFileExt]
              setDefaultValue:description.isNull() ? nil : nsStringFromQString(description)
                     setPanel:panel
             setPanelDelegate:delegate
                  setOpenMode:modes
           setDefaultOpenMode:modes ? [modes objectAtIndex:0] : nil
           setTemplateDWGPath:nsStringFromQString(record.m_templateDWGPath)
        setNoTemplateHandling:noTemplateHandling] autorelease];
    [panel setAccessoryView:view];
    if ([panel respondsToSelector:@selector(setAccessoryViewDisclosed:)])
        [(id<VyAccessoryDisclosure>)panel setAccessoryViewDisclosed:YES];
    return view;
}

bool run(NSSavePanel* panel)
{
    const FloatingWindowsHidden hidden;
    return CVyFileDialogMacDoModal().doModal(panel) == okButton;
}

bool run(NSSavePanel* panel, NSString* directory, NSString* fileName, NSArray* fileTypes)
{
    const FloatingWindowsHidden hidden;
    return CVyFileDialogMacDoModal().doModal(panel, directory, fileName, fileTypes) == okButton;
}

QString path(NSURL* url)
{
    return qStringfromNSString([url path]);
}

void bookmark(NSURL* url)
{
    [[VyMacDocumentController sharedDocumentController] createBookmark:url];
}

} // namespace VyPanelConstruction
