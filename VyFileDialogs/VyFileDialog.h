// SPDX-License-Identifier: MIT
#pragma once

#include "OdCodePageId.h"
#include "VyFileDialogsExport.h"
#include "VyStatus.h"
#include "VyString.h"
#include "VyUserIO.h"

#include <QLocale>

#include <vector>

class CVyFileDialogImpl;

/// \file
/// The requests of a host.

/// Asks the user for file names: the one header a host includes.
///
///     CVyFileDialog::Create();
///     CVyFileDialog::SetStyle(CVyFileDialog::StyleQt);
///     CVyString path;
///     int type = 0;
///     CVyUserIO::_FileNameRetVal mode;
///     OdCodePageId* codePage = nullptr;
///     if (CVyFileDialog::GetFileName(&mode, &path, window->winId(), CVyUserIO::FileNameOpen,
///                                    L"Open Drawing", L"dwg", L"Drawings&*.dwg;*.dxf", L"", &type,
///                                    nullptr, CVyUserIO::FileNameModeChoices, &codePage)
///         == VyStatus::Accepted) ...
///
/// Every member is called on the user-interface thread of a process that has a
/// QApplication. A request shows a modal dialog and returns when it has closed.
class CVyFileDialog
{
public:
    /// Which back-end serves the requests. Any other value serves none.
    enum _Style : int
    {
        StyleQt = 2,     ///< the Qt dialog
        StyleNative = 3, ///< the operating system's panels
    };

    /// Chooses the native panels. A host calls it once at start-up; until then,
    /// or until SetStyle(), every request fails with VyStatus::Failed.
    VY_FILEDIALOGS_EXPORT static void Create();

    /// Stores \a style, unchecked, for the requests that follow; a request that
    /// is running keeps its own. Always true.
    VY_FILEDIALOGS_EXPORT static bool SetStyle(_Style style);

    /// The counterpart of Create(); does nothing.
    VY_FILEDIALOGS_EXPORT static void Destroy();

    /// Gives the dialogs the language of \a locale: installs their texts in the
    /// application and, for the rest of the Qt dialog, Qt's own catalogue, in place
    /// of those of an earlier call. A host calls it once its QApplication is there,
    /// and again when its user chooses another language; dialogs that are up keep
    /// theirs.
    ///
    /// \param locale  the language; a country for which there are no texts gets
    ///                those of another with the same script
    /// \param folder  where the host keeps VyFileDialogs_*.qm and qtbase_*.qm; empty
    ///                for where these libraries and Qt were installed
    ///
    /// \return whether there are texts of the dialogs in that language; else they
    /// are English. Of Qt's catalogue nothing is told: a host may have installed it
    /// itself. False without a QCoreApplication.
    VY_FILEDIALOGS_EXPORT static bool LoadTranslations(const QLocale& locale = QLocale(),
                                                       const CVyString& folder = CVyString());

    /// Asks for one path.
    ///
    /// \param mode            out, may be null: what the user wants done with
    ///                        the answer. Also written when the user cancels.
    /// \param path            out, must not be null: the chosen path, absolute.
    ///                        When saving with \a typeIndex, a path whose suffix
    ///                        is not the type's extension list gets that list
    ///                        appended.
    /// \param parentWindow    native identifier of the owning window (as
    ///                        QWidget::winId() gives it); 0 for none. A native
    ///                        panel belongs to the active window instead.
    /// \param type            request kind with qualifier bits
    /// \param title           window title; when saving without the mode-choices
    ///                        flag the Qt dialog shows "Save As" instead
    /// \param defaultExtension suffix given to names typed without one, without
    ///                        a dot. A native panel gives none; without \a typeIndex
    ///                        it chooses the type to start with.
    /// \param filter          the file types, see CVyUtils::ConvertToQtFilter()
    /// \param defaultPath     a folder, a file, or a path that need not exist:
    ///                        start folder and preset file name; empty for none
    /// \param typeIndex       in/out, may be null: 0-based index of the file
    ///                        type; in: preselected, clamped into the list; out:
    ///                        chosen
    /// \param templateName    in/out, may be null: template to preselect; both
    ///                        back-ends leave it as it was
    /// \param flags           the mode-choices bit
    /// \param codePage        out, may be null: the page chosen after "Open with
    ///                        Encoding..."; written only when one was. It points
    ///                        to an object of the host kernel that outlives the
    ///                        request.
    ///
    /// \return VyStatus::Accepted; VyStatus::Cancelled; VyStatus::Failed for an
    /// unknown style or request kind, a null \a path, or where no dialog can be
    /// shown. Apart from \a mode, outputs are written only when accepted.
    ///
    /// The process's working directory is afterwards what it was before. An
    /// exception thrown by the host's own code while the dialog is up passes
    /// through, with everything released and no output written; so does
    /// std::bad_alloc. Qt warns about either on the log.
    VY_FILEDIALOGS_EXPORT static int
    GetFileName(CVyUserIO::_FileNameRetVal* mode, CVyString* path, unsigned long long parentWindow,
                CVyUserIO::_FileNameType type, const CVyString& title,
                const CVyString& defaultExtension, const CVyString& filter,
                const CVyString& defaultPath, int* typeIndex, CVyString* templateName,
                CVyUserIO::_FileNameFlags flags, OdCodePageId** codePage);

    /// Asks for one or more paths: an open request lets the user choose several
    /// files. As GetFileName(), except that saved paths get no extension, a
    /// template name is not preset as file name, and the working directory is left
    /// as the dialog leaves it.
    ///
    /// \param paths  out, must not be null: the chosen paths are appended in the
    ///               dialog's order; what the vector holds stays
    /// \param mode,parentWindow,type,title,defaultExtension  as in GetFileName()
    /// \param filter,defaultPath,typeIndex,templateName,flags,codePage  the same
    ///
    /// \return as GetFileName(), but after an accepted dialog
    /// VyStatus::NothingSelected when it had no selection
    VY_FILEDIALOGS_EXPORT static int
    GetFileNames(CVyUserIO::_FileNameRetVal* mode, std::vector<CVyString>* paths,
                 unsigned long long parentWindow, CVyUserIO::_FileNameType type,
                 const CVyString& title, const CVyString& defaultExtension, const CVyString& filter,
                 const CVyString& defaultPath, int* typeIndex, CVyString* templateName,
                 CVyUserIO::_FileNameFlags flags, OdCodePageId** codePage);

    /// The back-end that \a style shows for \a type, or null for an unknown
    /// style or kind; the caller owns it. \a multiple lets an open dialog choose
    /// several files, \a modeChoices is the mode-choices flag. Inside the module.
    static CVyFileDialogImpl* CreateImpl(_Style style, CVyUserIO::_FileNameType type, bool multiple,
                                         bool modeChoices);

    /// Translates the mode that \a impl reports for a request of \a type. The
    /// first of the bits open, save, new that is set decides; with none of them
    /// \a out stays as it was. \a impl may be null for a save. Inside the module.
    static void GetMode(CVyUserIO::_FileNameRetVal& out, CVyUserIO::_FileNameType type,
                        CVyFileDialogImpl* impl);

    /// The style of the next request; no back-end until Create() or SetStyle().
    VY_FILEDIALOGS_EXPORT static _Style s_Style;
    /// What Create() chose; kept for the host, never read by the module.
    VY_FILEDIALOGS_EXPORT static _Style s_StyleTmp;
};
