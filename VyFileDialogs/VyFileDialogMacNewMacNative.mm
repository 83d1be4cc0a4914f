// SPDX-License-Identifier: MIT
#include "VyFileDialogMacNewMacNative.h"

#include "NSOpenPanelExt.h"
#include "VyFileDialogMacNewMacNativePrivate.h"
#include "VyNSOpenSavePanelDelegate.h"
#include "VyNativeStrings.h"
#include "VyPanelConstruction.h"
#include "VyStartingType.h"
#include "VyViewFilterMacNative.h"

CVyFileDialogMacNewMacNative::CVyFileDialogMacNewMacNative()
    : CVyFileDialogMacMacNativeBase(std::make_unique<CVyFileDialogMacNewMacNativePrivate>())
{}

id<VyPanelController> CVyFileDialogMacNewMacNativePrivate::newPanelController()
{
    return [[CVyFileDialogMacNewNativeCocoa alloc] initWithHeader:this];
}

@implementation CVyFileDialogMacNewNativeCocoa

- (id)initWithHeader:(CVyFileDialogMacNewMacNativePrivate*)header
{
    self = [super init];
    m_privateHeader = header;
    return self;
}

// The panel is given no folder here: the run sets folder and name.
- (void)drawWidget
{
    const VyStartingType type =
        VyStartingType::forNew(m_privateHeader->m_listFilter, m_privateHeader->m_listFilterFileExt);

    CVyNSOpenSavePanelDelegate* const delegate =
        [[[CVyNSOpenSavePanelDelegate alloc] init] autorelease];
    NSOpenPanel* const panel = [NSOpenPanelExt openPanel];
    const VyPanelConstruction::Attachments attachments(panel);
    VyPanelConstruction::chooseFilesOnly(panel);
    [panel setAllowsMultipleSelection:NO];
    [panel setDelegate:delegate];
    VyPanelConstruction::setCaption(panel, m_privateHeader->m_caption);
    CVyViewFilterMacNative* const view = VyPanelConstruction::addAccessoryView(
        panel, *m_privateHeader, delegate, type.description,
        VyPanelConstruction::modes(
            {QT_TRANSLATE_NOOP("CVyFileDialogs", "Open"),
             QT_TRANSLATE_NOOP("CVyFileDialogs", "Open with no Template - Imperial"),
             QT_TRANSLATE_NOOP("CVyFileDialogs", "Open with no Template - Metric")}),
        false);
    NSArray* const types = type.extensions.isEmpty()
                               ? nil
                               : [CVyViewFilterToolMacNative getArrayFilter:&type.extensions];
    [delegate setAllowedFileTypes:types];

    if (!VyPanelConstruction::run(panel, nsStringFromQString(m_privateHeader->m_directory),
                                  nsStringFromQString(m_privateHeader->m_defaultFileName), types))
        return;
    QStringList fileNames;
    if (NSURL* const url = [[panel URLs] firstObject]) {
        fileNames += VyPanelConstruction::path(url);
        VyPanelConstruction::bookmark(url);
    }
    m_privateHeader->SetFileNames(fileNames);
    m_privateHeader->m_openMode = qStringfromNSString([view selectedOpenMode]);
}

@end
