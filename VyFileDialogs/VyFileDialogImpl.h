// SPDX-License-Identifier: MIT
#pragma once

#include "VyStatus.h"
#include "VyString.h"
#include "VyUserIO.h"

#include <vector>

/// A dialog back-end, as the front drives it: configured by the setters, shown
/// once or more, read by the getters. The front owns it for one request.
///
/// The order of the virtual operations is fixed: the back-end families keep it
/// and append their own.
class CVyFileDialogImpl
{
public:
    virtual ~CVyFileDialogImpl() = default;

    // The setters store their value for show(); their status carries no news.

    /// The window's caption.
    virtual int setTitle(const CVyString& title) = 0;
    /// The suffix for names typed without one.
    virtual int setDefaultExtension(const CVyString& extension) = 0;
    /// The start folder, with native separators.
    virtual int setDefaultFolder(const CVyString& folder) = 0;
    /// The preset file name, with native separators.
    virtual int setDefaultFileName(const CVyString& name) = 0;
    /// The file types, in the form that CVyUtils::ConvertToQtFilter() reads.
    virtual int setFileTypes(const CVyString& filter) = 0;
    /// The preselected file type, 0-based; clamped into the list.
    virtual int setFileTypeIndex(int index) = 0;
    /// The template to preselect, for a back-end that has such a thing.
    virtual int setDefaultTemplateName(const CVyString& name) = 0;

    /// Runs the dialog modally over the window with the native identifier
    /// \a parentWindow (0, or one that names no window: over none).
    /// VyStatus::Accepted when the user accepted, else VyStatus::Cancelled;
    /// VyStatus::Failed where no dialog can be shown.
    virtual int show(unsigned long long parentWindow) = 0;

    /// Writes the first selected path. VyStatus::NothingSelected, with \a path
    /// untouched, when there is none; VyStatus::Failed when \a path is null.
    virtual int getResult(CVyString* path) = 0;
    /// Appends every selected path, in selection order. Status as getResult().
    virtual int getResults(std::vector<CVyString>* paths) = 0;
    /// Writes the 0-based index of the selected file type. VyStatus::Failed,
    /// with \a index untouched, when it is null or the selection is no type.
    virtual int getFileTypeIndex(int* index) = 0;
    /// For a back-end that reports a template; both families leave \a name
    /// untouched and answer 0.
    virtual int getTemplateName(CVyString* name) = 0;

    /// 0 with template, 1 without in Imperial units, 2 without in metric units.
    virtual int getNewMode() = 0;
    /// 0 open, 1 open read-only, 2 open with an encoding still to be chosen.
    virtual int getOpenMode() = 0;

    /// The Qt dialog for the request kind in the low byte of \a type, or null
    /// when that is no kind; the caller owns it. \a multiple lets an open dialog
    /// choose several files; \a modeChoices is the mode-choices flag.
    static CVyFileDialogImpl* createQt(CVyUserIO::_FileNameType type, bool multiple,
                                       bool modeChoices);
    /// The native panel for the request, or null when there is none; as
    /// createQt() otherwise.
    static CVyFileDialogImpl* createMac(CVyUserIO::_FileNameType type, bool multiple,
                                        bool modeChoices);

protected:
    CVyFileDialogImpl() = default;

private:
    Q_DISABLE_COPY(CVyFileDialogImpl)
};
