// SPDX-License-Identifier: MIT
#pragma once

#include "VyFileDialogMacMacNativePrivate.h"

/// The record of an open panel.
class CVyFileDialogMacOpenMacNativePrivate : public CVyFileDialogMacMacNativePrivate
{
public:
    CVyFileDialogMacOpenMacNativePrivate(bool bNoOpenModes, bool bMultiSelect,
                                         bool bNoTemplateHandling);

    const bool m_bNoOpenModes;        ///< offer no "Open mode:"
    const bool m_bMultiSelect;        ///< several files; without it no "Open mode:" either
    const bool m_bNoTemplateHandling; ///< keep the folder when a "dwt" type is chosen

protected:
    id<VyPanelController> newPanelController() override;
};

/// Builds, runs and reads an open panel.
@interface CVyFileDialogMacOpenNativeCocoa : NSObject <VyPanelController> {
    CVyFileDialogMacOpenMacNativePrivate* m_privateHeader;
}
/// \a header is not owned and outlives the controller's run.
- (id)initWithHeader:(CVyFileDialogMacOpenMacNativePrivate*)header;
@end
