// SPDX-License-Identifier: MIT
#pragma once

#include "VyFileDialogMacMacNativeBase.h"

/// The panel that picks a path to save to.
class CVyFileDialogMacSaveMacNative : public CVyFileDialogMacMacNativeBase
{
public:
    CVyFileDialogMacSaveMacNative();
};
