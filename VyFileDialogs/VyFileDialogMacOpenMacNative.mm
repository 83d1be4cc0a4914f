// SPDX-License-Identifier: MIT
#include "VyFileDialogMacOpenMacNative.h"

#include "NSOpenPanelExt.h"
#include "VyCocoa.h"
#include "VyFileDialogMacOpenMacNativePrivate.h"
#include "VyNSOpenSavePanelDelegate.h"
#include "VyNativeStrings.h"
#include "VyPanelConstruction.h"
#include "VyPanelMessages.h"
#include "VyStartingType.h"
#include "VyViewFilterMacNative.h"

CVyFileDialogMacOpenMacNative::CVyFileDialogMacOpenMacNative(bool bNoOpenModes, bool bMultiSelect,
                                                             bool bNoTemplateHandling)
    : CVyFileDialogMacMacNativeBase(std::make_unique<CVyFileDialogMacOpenMacNativePrivate>(
          bNoOpenModes, bMultiSelect, bNoTemplateHandling))
{}

void CVyFileDialogMacOpenMacNative::SetDefaultFileName(QString) {}

CVyFileDialogMacOpenMacNativePrivate::CVyFileDialogMacOpenMacNativePrivate(bool bNoOpenModes,
                                                                           bool bMultiSelect,
                                                                           bool bNoTemplateHandling)
    : m_bNoOpenModes(bNoOpenModes)
    , m_bMultiSelect(bMultiSelect)
    , m_bNoTemplateHandling(bNoTemplateHandling)
{}

id<VyPanelController> CVyFileDialogMacOpenMacNativePrivate::newPanelController()
{
    return [[CVyFileDialogMacOpenNativeCocoa alloc] initWithHeader:this];
}

namespace {

// A popup item and its extensions are found by one index, so lists of different
// length are a programming error that must not lead to a wrong file.
void requireEqualLengths(const QStringList& listFilter, const QStringList& listFilterFileExt)
{
    if (listFilterFileExt.length() != listFilter.length())
        qt_assert("listFilterFileExt.length() == listFilter.length()",
                  "VyFileDialogs/VyFileDialogMacOpenMacNative", __LINE__);
}

} // namespace

@implementation CVyFileDialogMacOpenNativeCocoa

- (id)initWithHeader:(CVyFileDialogMacOpenMacNativePrivate*)header
{
    self = [super init];
    m_privateHeader = header;
    return self;
}

- (NSArray*)modes
{
    if (m_privateHeader->m_bNoOpenModes || !m_privateHeader->m_bMultiSelect)
        return nil;
    return VyPanelConstruction::modes(
        {QT_TRANSLATE_NOOP("CVyFileDialogs", "Open"),
         QT_TRANSLATE_NOOP("CVyFileDialogs", "Open Read-Only"),
         QT_TRANSLATE_NOOP("CVyFileDialogs", "Open with Encoding...")});
}

- (NSOpenPanel*)panelWithDelegate:(CVyNSOpenSavePanelDelegate*)delegate
{
    NSOpenPanel* const panel = [NSOpenPanelExtWithSelectAll openPanel];
    VyPanelConstruction::chooseFilesOnly(panel);
    [panel setAllowsMultipleSelection:m_privateHeader->m_bMultiSelect];
    [panel setDelegate:delegate];
    VyPanelConstruction::setCaption(panel, m_privateHeader->m_caption);
    return panel;
}

- (void)drawWidget
{
    requireEqualLengths(m_privateHeader->m_listFilter, m_privateHeader->m_listFilterFileExt);
    const VyStartingType type =
        VyStartingType::forOpen(m_privateHeader->m_listFilter, m_privateHeader->m_listFilterFileExt,
                                m_privateHeader->m_defSuffix, m_privateHeader->m_selectedFilter);

    CVyNSOpenSavePanelDelegate* const delegate =
        [[[CVyNSOpenSavePanelDelegate alloc] init] autorelease];
    NSOpenPanel* const panel = [self panelWithDelegate:delegate];
    const VyPanelConstruction::Attachments attachments(panel);
    CVyViewFilterMacNative* const view = VyPanelConstruction::addAccessoryView(
        panel, *m_privateHeader, delegate, type.description, [self modes],
        m_privateHeader -> m_bNoTemplateHandling);
    NSString* const directory = nsStringFromQString(m_privateHeader->m_directory);
    [view setDirectory:directory];
    NSArray* const types = type.extensions.isEmpty()
                               ? nil
                               : [CVyViewFilterToolMacNative getArrayFilter:&type.extensions];
    [delegate setAllowedFileTypes:types];
    VyPanelMessages::allowedFileTypes(panel, types);

    const bool accepted = VyCocoa::isNewerPlatform()
                              ? VyPanelConstruction::run(panel)
                              : VyPanelConstruction::run(panel, directory, nil, types);
    if (!accepted)
        return;
    QStringList fileNames;
    for (NSURL* url in [panel URLs]) {
        fileNames += VyPanelConstruction::path(url);
        VyPanelConstruction::bookmark(url);
    }
    m_privateHeader->SetFileNames(fileNames);
    m_privateHeader->m_openMode = qStringfromNSString([view selectedOpenMode]);
}

@end
