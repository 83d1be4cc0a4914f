// SPDX-License-Identifier: MIT
// createMac() where the native panels are not built.
#include "VyFileDialogImpl.h"

CVyFileDialogImpl* CVyFileDialogImpl::createMac(CVyUserIO::_FileNameType, bool, bool)
{
    return nullptr;
}
