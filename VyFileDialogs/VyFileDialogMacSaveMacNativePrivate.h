// SPDX-License-Identifier: MIT
#pragma once

#include "VyFileDialogMacMacNativePrivate.h"

/// The record of a save panel.
class CVyFileDialogMacSaveMacNativePrivate : public CVyFileDialogMacMacNativePrivate
{
protected:
    id<VyPanelController> newPanelController() override;
};

/// Builds, runs and reads a save panel.
@interface CVyFileDialogMacSaveNativeCocoa : NSObject <VyPanelController> {
    CVyFileDialogMacSaveMacNativePrivate* m_privateHeader;
}
/// \a header is not owned and outlives the controller's run.
- (id)initWithHeader:(CVyFileDialogMacSaveMacNativePrivate*)header;
@end
