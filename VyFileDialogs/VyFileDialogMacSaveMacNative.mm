// SPDX-License-Identifier: MIT
#include "VyFileDialogMacSaveMacNative.h"

#include "VyCocoa.h"
#include "VyFileDialogMacSaveMacNativePrivate.h"
#include "VyNativeStrings.h"
#include "VyPanelConstruction.h"
#include "VyStartingType.h"
#include "VyViewFilterMacNative.h"

CVyFileDialogMacSaveMacNative::CVyFileDialogMacSaveMacNative()
    : CVyFileDialogMacMacNativeBase(std::make_unique<CVyFileDialogMacSaveMacNativePrivate>())
{}

id<VyPanelController> CVyFileDialogMacSaveMacNativePrivate::newPanelController()
{
    return [[CVyFileDialogMacSaveNativeCocoa alloc] initWithHeader:this];
}

@implementation CVyFileDialogMacSaveNativeCocoa

- (id)initWithHeader:(CVyFileDialogMacSaveMacNativePrivate*)header
{
    self = [super init];
    m_privateHeader = header;
    return self;
}

- (void)drawWidget
{
    NSSavePanel* const panel = [NSSavePanel savePanel];
    const VyPanelConstruction::Attachments attachments(panel);
    VyPanelConstruction::setCaption(panel, m_privateHeader->m_caption);
    if (VyCocoa::isNewerPlatform() && !m_privateHeader->m_defaultFileName.isEmpty())
        [panel setNameFieldStringValue:nsStringFromQString(m_privateHeader->m_defaultFileName)];
    CVyViewFilterMacNative* const view = VyPanelConstruction::addAccessoryView(
        panel, *m_privateHeader, nil,
        VyStartingType::forSave(m_privateHeader->m_listFilter, m_privateHeader->m_listFilterFileExt,
                                m_privateHeader->m_defSuffix, m_privateHeader->m_selectedFilter),
        nil, false);
    [view setDirectory:nsStringFromQString(m_privateHeader->m_directory)];

    if (!VyPanelConstruction::run(panel))
        return;
    NSURL* const url = [panel URL];
    if (!url)
        return;
    m_privateHeader->SetFileNames(QStringList(VyPanelConstruction::path(url)));
    m_privateHeader->m_selectedFilter = qStringfromNSString([view selectedFilter]);
    VyPanelConstruction::bookmark(url);
}

@end
