// SPDX-License-Identifier: MIT
#pragma once

/// The words of a request. Acme had none for them, so these are the numbers of the
/// stand-alone kernel.
struct CVyUserIO
{
    /// What is asked for, and how.
    enum _FileNameType : unsigned int
    {
        FileNameNew = 1,
        FileNameOpen = 2,
        FileNameSave = 4,
        FileNameKindMask = 255,             ///< one of these three, and with "open" any of:
        FileNameNoPreview = 1 << 8,         ///< neither pictures nor modes
        FileNameOpenOnly = 1 << 9,          ///< "Open" is the only mode
        FileNameNoTemplateFolder = 1 << 10, ///< the folder stays when the type is "dwt"
    };

    /// What may be chosen besides.
    enum _FileNameFlags : unsigned int
    {
        FileNameNoFlags = 0,
        FileNameModeChoices = 1, ///< what is done with the file
    };

    /// What is to be done with the file.
    enum _FileNameRetVal : unsigned int
    {
        NewFromTemplate = 1,
        NewImperial = 2,
        NewMetric = 3,
        Open = 1 << 8,
        OpenReadOnly = 3 << 8,
        Save = 1 << 16,
    };
};
