// SPDX-License-Identifier: MIT
#pragma once

#include "VyFileDialogImpl.h"

#include <QLineEdit>
#include <QList>
#include <QPointer>
#include <QString>

class CVyFileDialogWidget;

/// The back-end that shows a QFileDialog. Each show() makes one dialog widget,
/// runs it and deletes it; what the user chose is copied here before it goes.
/// A subclass fixes the kind of request, adds its controls and reacts to them.
class CVyFileDialogQt : public CVyFileDialogImpl
{
public:
    ~CVyFileDialogQt() override;

    int setTitle(const CVyString& title) override;
    int setDefaultExtension(const CVyString& extension) override;
    int setDefaultFolder(const CVyString& folder) override;
    /// Answers 0, alone among the setters; hosts are used to it.
    int setDefaultFileName(const CVyString& name) override;
    int setFileTypes(const CVyString& filter) override;
    int setFileTypeIndex(int index) override;
    /// Ignored, with 0: this dialog has no template name.
    int setDefaultTemplateName(const CVyString& name) override;

    int show(unsigned long long parentWindow) override;

    int getResult(CVyString* path) override;
    int getResults(std::vector<CVyString>* paths) override;
    int getFileTypeIndex(int* index) override;
    int getTemplateName(CVyString* name) override;
    int getNewMode() override;
    int getOpenMode() override;

    /// The user's expertise; from 2 on existing files are overwritten without
    /// asking.
    virtual void setExpert(int level);

    // Called by the dialog widget while it runs.

    /// The user chose the type with the entry \a filter: gives the typed name
    /// an extension of that type.
    virtual void onTypeChange(const QString& filter);
    /// The user chose an entry of the mode menu. Each does nothing here; the
    /// kind that offers the entry notes the mode and ends the dialog.
    virtual void onActionOpen();
    virtual void onActionOpenReadOnly();
    virtual void onActionOpenWithEncoding();
    virtual void onActionNew();
    virtual void onActionNewNoTemplateImperial();
    virtual void onActionNewNoTemplateMetric();

    /// Called by show() once the widget is configured: adds the controls of
    /// this kind of dialog.
    virtual void HandleDialogInitialization() = 0;

protected:
    /// The two arguments are QFileDialog::FileMode and QFileDialog::AcceptMode
    /// values.
    CVyFileDialogQt(int fileMode, int acceptMode);

    /// Moves the dialog to the host's template folder when the text of the
    /// chosen type holds ".dwt", in lower case.
    void switchToTemplateFolder(const QString& filter);
    /// Ends the dialog as its accept button does, if the selection is valid.
    void acceptDialog();
    /// Ends the dialog as accepted, whatever is selected.
    void closeAsAccepted();

    QPointer<CVyFileDialogWidget> m_widget; ///< alive during show() only
    CVyString m_title;
    CVyString m_qtFilter;       ///< see VyFileTypeList
    CVyString m_extensionLists; ///< see VyFileTypeList
    CVyString m_defaultExtension;
    CVyString m_defaultFolder;
    CVyString m_selectedFilter; ///< the entry to preselect, then the one chosen
    CVyString m_defaultFileName;
    QList<QString> m_results; ///< what the last accepted show() selected
    int m_fileMode;
    int m_acceptMode;
    int m_openMode = 0;
    int m_newMode = 0;
    bool m_previewAllowed = false;
    int m_expertLevel = 0;
    QPointer<QLineEdit> m_fileNameEdit;

private:
    void configureWidget();
};

/// Picks a template for a new drawing, or none.
class CVyFileDialogQtNew : public CVyFileDialogQt
{
public:
    /// \a showModeMenu: the accept button offers to start without template.
    explicit CVyFileDialogQtNew(bool showModeMenu);

    void onActionNew() override;
    void onActionNewNoTemplateImperial() override;
    void onActionNewNoTemplateMetric() override;
    void HandleDialogInitialization() override;

private:
    bool m_showModeMenu;
};

/// Picks one or several existing drawings.
class CVyFileDialogQtOpen : public CVyFileDialogQt
{
public:
    /// \param previewAllowed       show the preview pane; the mode menu needs it too
    /// \param multiSelect          several files may be chosen
    /// \param hideReadOnlyChoices  the mode menu offers "Open" alone
    /// \param showModeMenu         the accept button carries the mode menu
    /// \param templateFolderSwitch choosing a ".dwt" type goes to the template folder
    CVyFileDialogQtOpen(bool previewAllowed, bool multiSelect, bool hideReadOnlyChoices,
                        bool showModeMenu, bool templateFolderSwitch);

    /// Goes to the template folder where that is wanted; leaves the name alone.
    void onTypeChange(const QString& filter) override;
    void onActionOpen() override;
    void onActionOpenReadOnly() override;
    void onActionOpenWithEncoding() override;
    void HandleDialogInitialization() override;

private:
    bool m_showModeMenu;
    bool m_hideReadOnlyChoices;
    bool m_keepFolderOnTemplateFilter;
};

/// Picks a path to save to.
class CVyFileDialogQtSave : public CVyFileDialogQt
{
public:
    /// \a keepTitle: show the caller's title instead of "Save As".
    explicit CVyFileDialogQtSave(bool keepTitle);

    /// Adapts the name, then goes to the template folder for a ".dwt" type,
    /// provided that the type preselected before show() is one of the list.
    void onTypeChange(const QString& filter) override;
    void HandleDialogInitialization() override;

private:
    bool m_keepTitle;
};
