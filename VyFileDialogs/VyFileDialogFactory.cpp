// SPDX-License-Identifier: MIT
#include "VyFileDialogImpl.h"
#include "VyFileDialogQt.h"
#include "VySystemServices.h"

#include <memory>

CVyFileDialogImpl* CVyFileDialogImpl::createQt(CVyUserIO::_FileNameType type, bool multiple,
                                               bool modeChoices)
{
    switch (type & CVyUserIO::FileNameKindMask) {
    case CVyUserIO::FileNameNew:
        return new CVyFileDialogQtNew(modeChoices);
    case CVyUserIO::FileNameOpen:
        return new CVyFileDialogQtOpen((type & CVyUserIO::FileNameNoPreview) == 0, multiple,
                                       (type & CVyUserIO::FileNameOpenOnly) != 0, modeChoices,
                                       (type & CVyUserIO::FileNameNoTemplateFolder) == 0);
    case CVyUserIO::FileNameSave: {
        auto save = std::make_unique<CVyFileDialogQtSave>(modeChoices);
        save->setExpert(GetVySystemServices()->GetSettings().GetExpertLevel());
        return save.release();
    }
    default:
        return nullptr;
    }
}
