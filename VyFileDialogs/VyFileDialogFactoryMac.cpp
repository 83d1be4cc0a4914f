// SPDX-License-Identifier: MIT
// createMac() where an AppKit was found.
#include "VyFileDialogImpl.h"
#include "VyFileDialogMac.h"

CVyFileDialogImpl* CVyFileDialogImpl::createMac(CVyUserIO::_FileNameType type, bool multiple,
                                                bool modeChoices)
{
    switch (type & CVyUserIO::FileNameKindMask) {
    case CVyUserIO::FileNameNew:
        return new CVyFileDialogMacNew(modeChoices);
    case CVyUserIO::FileNameOpen:
        return new CVyFileDialogMacOpen((type & CVyUserIO::FileNameNoPreview) == 0, multiple,
                                        (type & CVyUserIO::FileNameOpenOnly) != 0, modeChoices,
                                        (type & CVyUserIO::FileNameNoTemplateFolder) == 0);
    case CVyUserIO::FileNameSave:
        return new CVyFileDialogMacSave(modeChoices);
    default:
        return nullptr;
    }
}
