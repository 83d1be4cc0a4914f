// SPDX-License-Identifier: MIT
#include "VyFileDialogsNative.h"

CVyFileDialogImpl* VyCreateNativeDialog(CVyUserIO::_FileNameType type, bool multiple,
                                        bool modeChoices)
{
    return CVyFileDialogImpl::createMac(type, multiple, modeChoices);
}
