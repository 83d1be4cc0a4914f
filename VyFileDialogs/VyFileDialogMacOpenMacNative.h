// SPDX-License-Identifier: MIT
#pragma once

#include "VyFileDialogMacMacNativeBase.h"

/// The panel that picks existing drawings.
class CVyFileDialogMacOpenMacNative : public CVyFileDialogMacMacNativeBase
{
public:
    /// \param bNoOpenModes        the panel offers no "Open mode:"
    /// \param bMultiSelect        several files may be chosen; without it there
    ///                            is no "Open mode:" either
    /// \param bNoTemplateHandling choosing a "dwt" type keeps the folder
    CVyFileDialogMacOpenMacNative(bool bNoOpenModes, bool bMultiSelect, bool bNoTemplateHandling);

    /// Ignored: an open panel starts with no name.
    void SetDefaultFileName(QString name) override;
};
