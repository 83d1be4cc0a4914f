// SPDX-License-Identifier: MIT
#pragma once

#include "VyFileDialogMacMacNativePrivate.h"

/// The record of the panel for a new drawing.
class CVyFileDialogMacNewMacNativePrivate : public CVyFileDialogMacMacNativePrivate
{
protected:
    id<VyPanelController> newPanelController() override;
};

/// Builds, runs and reads the panel for a new drawing.
@interface CVyFileDialogMacNewNativeCocoa : NSObject <VyPanelController> {
    CVyFileDialogMacNewMacNativePrivate* m_privateHeader;
}
/// \a header is not owned and outlives the controller's run.
- (id)initWithHeader:(CVyFileDialogMacNewMacNativePrivate*)header;
@end
