// SPDX-License-Identifier: MIT
#pragma once

#include "VyFileDialogImpl.h"

#include <QString>
#include <QStringList>

#include <memory>

class CVyFileDialogMacMacNative;
class QFileDialog;
class QLineEdit;

/// The back-end that shows the operating system's own panel. It hands the
/// request to a native dialog object, runs that and reads the answer back; it
/// sees nothing of the panel itself. A subclass fixes the kind of request.
class CVyFileDialogMac : public CVyFileDialogImpl
{
public:
    ~CVyFileDialogMac() override;

    int setTitle(const CVyString& title) override;
    int setDefaultExtension(const CVyString& extension) override;
    int setDefaultFolder(const CVyString& folder) override;
    /// Shares its field with setDefaultTemplateName(): the later call counts.
    int setDefaultFileName(const CVyString& name) override;
    int setFileTypes(const CVyString& filter) override;
    int setFileTypeIndex(int index) override;
    /// Presets the file name: a panel has no template of its own.
    int setDefaultTemplateName(const CVyString& name) override;

    /// As the interface has it; a panel has no parent window, so
    /// \a parentWindow is ignored. While another native panel is up, or about to
    /// be, the answer is VyStatus::Cancelled at once. VyStatus::Failed, with a
    /// warning, where no panel can be shown (see VyCocoa::canShowPanels()).
    int show(unsigned long long parentWindow) override;

    int getResult(CVyString* path) override;
    int getResults(std::vector<CVyString>* paths) override;
    int getFileTypeIndex(int* index) override;
    int getTemplateName(CVyString* name) override;
    int getNewMode() override;
    int getOpenMode() override;

    // The panel tells of a change when it has closed, so nothing here calls the
    // following; they make this family answer what the Qt family answers.

    /// With a Qt dialog attached: gives the typed name an extension of the type
    /// with the entry \a filter.
    virtual void onTypeChange(const QString& filter);
    /// Each notes its mode in the kind of dialog that offers it, and does
    /// nothing in the others.
    virtual void onActionOpen();
    virtual void onActionOpenReadOnly();
    virtual void onActionOpenWithEncoding();
    virtual void onActionNew();
    virtual void onActionNewNoTemplateImperial();
    virtual void onActionNewNoTemplateMetric();

    /// CVyUtils::ConvertToQtFilter() under the name that this family knows.
    CVyString convertToQtFilter(const CVyString& filter) const;

protected:
    /// \a fileMode and \a acceptMode are QFileDialog::FileMode and
    /// QFileDialog::AcceptMode values.
    CVyFileDialogMac(int fileMode, int acceptMode, bool requestFlag,
                     std::unique_ptr<CVyFileDialogMacMacNative> nativeDialog);

    /// Moves the attached Qt dialog, if any, to the host's template folder.
    void switchToTemplateFolder();

    std::unique_ptr<CVyFileDialogMacMacNative> m_nativeDialog;
    QFileDialog* m_qtDialog = nullptr; ///< not owned; null unless a subclass attaches one
    CVyString m_title;
    CVyString m_qtFilter;       ///< see VyFileTypeList
    CVyString m_extensionLists; ///< see VyFileTypeList
    CVyString m_defaultExtension;
    CVyString m_defaultFolder;
    CVyString m_selectedFilter;  ///< the entry to preselect, then the one chosen
    CVyString m_defaultFileName; ///< or the template's name
    QStringList m_results;       ///< what the last accepted show() selected
    int m_fileMode;
    int m_acceptMode;
    int m_openMode = 0;
    int m_newMode = 0;
    bool m_hasPreview = false;
    QLineEdit* m_lineEdit = nullptr; ///< of the attached Qt dialog; not owned
    bool m_requestFlag;              ///< the mode-choices flag
    bool m_keepTypeFolder = false;
    bool m_noTemplateFolderSwitch = false;

private:
    void configureNativeDialog();
    void readModes();
};

/// Picks a template for a new drawing, or none.
class CVyFileDialogMacNew : public CVyFileDialogMac
{
public:
    /// \a modeChoices is kept only: the panel always offers to start without a
    /// template.
    explicit CVyFileDialogMacNew(bool modeChoices);

    void onActionNew() override;
    void onActionNewNoTemplateImperial() override;
    void onActionNewNoTemplateMetric() override;
};

/// Picks existing drawings.
class CVyFileDialogMacOpen : public CVyFileDialogMac
{
public:
    /// \param previewAllowed       passed on; the panels show no preview of ours
    /// \param multiSelect          kept as the file mode only
    /// \param openOnly             the panel offers no modes
    /// \param modeChoices          several files may be chosen, and the modes are
    ///                             offered
    /// \param templateFolderSwitch choosing a "dwt" type goes to the template folder
    CVyFileDialogMacOpen(bool previewAllowed, bool multiSelect, bool openOnly, bool modeChoices,
                         bool templateFolderSwitch);

    /// Goes to the template folder where that is wanted; leaves the name alone.
    void onTypeChange(const QString& filter) override;
    void onActionOpen() override;
    void onActionOpenReadOnly() override;
    void onActionOpenWithEncoding() override;
};

/// Picks a path to save to.
class CVyFileDialogMacSave : public CVyFileDialogMac
{
public:
    /// \a modeChoices is kept only.
    explicit CVyFileDialogMacSave(bool modeChoices);

    /// Adapts the name, then goes to the template folder when the selected
    /// type's whole description is "dwt", in any case.
    void onTypeChange(const QString& filter) override;
};
