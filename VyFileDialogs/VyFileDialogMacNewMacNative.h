// SPDX-License-Identifier: MIT
#pragma once

#include "VyFileDialogMacMacNativeBase.h"

/// The panel for a new drawing: picks a template, or none.
class CVyFileDialogMacNewMacNative : public CVyFileDialogMacMacNativeBase
{
public:
    CVyFileDialogMacNewMacNative();
};
