// SPDX-License-Identifier: MIT
#pragma once

/// \file
/// The numbers of requests, flags and results.

/// The vocabulary in which a host asks for file names and reads the answer.
/// The module receives and writes these values; the enumerations only name
/// them, so every 32-bit value is a valid object of its type.
struct CVyUserIO
{
    /// Request kind (low byte, exactly one of the three) with qualifier bits
    /// that only an open request reads.
    enum _FileNameType : unsigned int
    {
        FileNameNew = 0x1,         ///< pick a template, or start a drawing without one
        FileNameOpen = 0x2,        ///< open existing drawings
        FileNameSave = 0x4,        ///< choose a target path
        FileNameKindMask = 0xff,   ///< the bits of the kind
        FileNameNoPreview = 0x100, ///< open: no preview pane and, in the Qt dialog, no mode menu
        FileNameOpenOnly = 0x200,  ///< open: no mode but "Open" is offered
        FileNameNoTemplateFolder = 0x400, ///< open: a ".dwt" type does not change the folder
    };

    /// Flag word of a request.
    enum _FileNameFlags : unsigned int
    {
        FileNameNoFlags = 0x0,     ///< none
        FileNameModeChoices = 0x1, ///< new and open: offer modes; save: keep the caller's title
    };

    /// What the user wants done with the answer.
    enum _FileNameRetVal : unsigned int
    {
        NewFromTemplate = 0x1, ///< start a drawing from the template that was chosen
        NewImperial = 0x2,     ///< without template, Imperial units
        NewMetric = 0x3,       ///< without template, Metric units
        Open = 0x100,          ///< open to change
        OpenReadOnly = 0x300,  ///< open to look at
        Save = 0x10000,        ///< save under the path
    };
};
