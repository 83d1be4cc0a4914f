// SPDX-License-Identifier: MIT
#pragma once

#include "VyDirPushButton.h"
#include "VyFileDialogPreview.h"
#include "VyString.h"

#include <QEventLoop>
#include <QFileDialog>
#include <QPointer>

#include <optional>

class CVyFileDialogQt;
class CVyFileListModel;
class CVyPreviewReader;
class QFileSystemModel;
class QHBoxLayout;

/// The dialog that the Qt back-end shows: Qt's own file dialog with a row of
/// folder buttons above it and, where wanted, a preview pane beside the list.
/// It forwards the user's menu choices and changes of type to the back-end.
class CVyFileDialogWidget : public QFileDialog
{
    Q_OBJECT

public:
    /// \param owner          the back-end, not null; outlives the widget
    /// \param title          window caption
    /// \param folder         start folder; empty for Qt's choice
    /// \param filter         Qt filter string, see VyFileTypeList
    /// \param previewAllowed make a preview pane
    CVyFileDialogWidget(QWidget* parent, CVyFileDialogQt* owner, CVyString& title,
                        CVyString& folder, CVyString& filter, bool previewAllowed);
    ~CVyFileDialogWidget() override;

    /// Runs the dialog modally and returns its result; QDialog::Rejected also
    /// when the dialog is deleted meanwhile. Unlike QDialog's own, it lets an
    /// exception pass that is thrown while the dialog runs.
    int exec() override;
    void setVisible(bool visible) override;

    /// Accepts the dialog if its selection is valid.
    void onAccept();
    /// Closes the dialog as accepted, whatever is selected.
    void onDone();

    /// Appends \a places to the sidebar for the life of this dialog: they are
    /// taken away again before QFileDialog saves the sidebar.
    void addPlaces(const QList<QUrl>& places);

    /// Selects the type whose entry is \a filter, as the user can, and lists its
    /// files; does nothing if there is no such type.
    void selectType(const QString& filter);

    /// Lays out the row for the absolute \a path, keeping what it can.
    void layoutDirSelector(const QString& path);

protected:
    void resizeEvent(QResizeEvent* event) override;

private Q_SLOTS:
    void onCurrentFile(const QString& path);
    void onChangedDirectory(const QString& path);
    void onChangedDirectory();
    void dirButtonPressed(QPushButton* button);
    void filterChanged(const QString& filter);
    void onActionOpen();
    void onActionOpenReadOnly();
    void onActionOpenWithEncoding();
    void onActionNew();
    void onActionNewNoTemplateImperial();
    void onActionNewNoTemplateMetric();

private:
    void addFileList();
    QWidget* moveLayoutInside();
    void addPreviewPane();
    void addPathBar(QWidget* contents);
    void connectNavigation();
    void makeRoom();
    void leaveParent();

    void selectTyped(const QString& names);
    void showFolder(const QString& path);
    QStringList folderNames() const;
    void removeFolderButtons(int from);
    void addFolderButton(const QString& name);
    void showFolderButtons(int from);
    void markCurrent(const CVyDirPushButton* current);
    void takeFocusFromPathBar();
    void orderTabs();

    QHBoxLayout* m_pathBar = nullptr;
    QList<CVyDirPushButton*> m_folderButtons; ///< from the root on
    CVyFileDialogQt* const m_owner;
    CVyFileDialogPreview* m_preview = nullptr;
    QWidget* m_previewFrame = nullptr;
    CVyPreviewReader* m_previews = nullptr;

    QFileSystemModel* m_model = nullptr;     ///< the dialog's own
    CVyFileListModel* m_list = nullptr;      ///< what it lists of m_model
    QString m_shownFolder;                   ///< what the row was last laid out for
    std::optional<QList<QUrl>> m_keptPlaces; ///< the sidebar before addPlaces()
    QPointer<QEventLoop> m_loop;             ///< while exec() runs
};
