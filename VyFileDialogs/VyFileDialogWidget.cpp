// SPDX-License-Identifier: MIT
#include "VyFileDialogWidget.h"

#include "VyFileDialogQt.h"
#include "VyFileIcons.h"
#include "VyFileListModel.h"
#include "VyFileTypeList.h"
#include "VyPreviewReader.h"
#include "VyStandardIcons.h"

#include <QApplication>
#include <QComboBox>
#include <QFileSystemModel>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListView>
#include <QScreen>
#include <QSplitter>
#include <QToolButton>
#include <QUrl>

namespace {

// QFileDialog offers an entry for every separator of its filter, so the empty
// entry at the end of our list must not reach it.
QString offeredTypes(const CVyString& qtFilter)
{
    const QString separator = QStringLiteral(";;");
    return QString(qtFilter).split(separator, Qt::SkipEmptyParts).join(separator);
}

// The selected files as QFileDialog writes them into the name field.
QString selectedNames(const QListView& list)
{
    QStringList names;
    const QModelIndexList rows = list.selectionModel()->selectedRows();
    for (const QModelIndex& row : rows)
        names.append(row.data().toString());
    const QString joined = names.join(QLatin1String("\" \""));
    return names.size() > 1 ? QLatin1Char('"') + joined + QLatin1Char('"') : joined;
}

} // namespace

CVyFileDialogWidget::CVyFileDialogWidget(QWidget* parent, CVyFileDialogQt* owner, CVyString& title,
                                         CVyString& folder, CVyString& filter, bool previewAllowed)
    : QFileDialog(CVyStandardIcons(parent).parentOfDialog(), title, folder, offeredTypes(filter))
    , m_owner(owner)
{
    setObjectName(QStringLiteral("fileDialog"));
    // Where the desktop brings a dialog of its own, only this makes Qt's
    // widgets, which everything below rearranges.
    setOptions(QFileDialog::DontUseNativeDialog);
    m_model = findChild<QFileSystemModel*>(QStringLiteral("qt_filesystem_model"));

    addFileList();
    QWidget* contents = moveLayoutInside();
    if (previewAllowed)
        addPreviewPane();
    addPathBar(contents);
    onChangedDirectory();
    connectNavigation();
    makeRoom();
    connect(this, SIGNAL(filterSelected(QString)), this, SLOT(filterChanged(QString)));
    if (parent) // no slot: what the meta-object lists is fixed
        connect(parent, &QObject::destroyed, this, [this] { leaveParent(); });
}

CVyFileDialogWidget::~CVyFileDialogWidget()
{
    if (m_keptPlaces)
        setSidebarUrls(*m_keptPlaces);
    if (m_loop)
        m_loop->quit();
    // Freeing what a large folder has filled it with takes a while; the host has
    // its answer first.
    if (m_model) {
        m_model->setParent(qApp);
        m_model->deleteLater();
    }
}

// QDialog keeps a pointer to its event loop, which is left dangling when an
// exception leaves the loop. The pointer here clears itself.
int CVyFileDialogWidget::exec()
{
    const QPointer<CVyFileDialogWidget> guard(this);
    QEventLoop loop;
    m_loop = &loop; // cppcheck-suppress danglingLifetime ; it is a QPointer
    setAttribute(Qt::WA_ShowModal);
    setResult(QDialog::Rejected);
    show();
    loop.exec(QEventLoop::DialogExec);
    return guard ? result() : QDialog::Rejected;
}

void CVyFileDialogWidget::setVisible(bool visible)
{
    if (visible)
        orderTabs();
    QFileDialog::setVisible(visible);
    if (!visible && m_loop)
        m_loop->quit();
}

void CVyFileDialogWidget::onAccept()
{
    accept();
}

void CVyFileDialogWidget::onDone()
{
    done(QDialog::Accepted);
}

void CVyFileDialogWidget::addPlaces(const QList<QUrl>& places)
{
    m_keptPlaces = sidebarUrls();
    setSidebarUrls(*m_keptPlaces + places);
}

// Puts our list between the dialog's model and its views, and takes over from
// QFileDialog what it would do with the model alone.
void CVyFileDialogWidget::addFileList()
{
    auto* types = findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
    auto* name = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (!m_model || !types || !name)
        return;
    if (const auto* view = findChild<QListView*>(QStringLiteral("listView")))
        new CVyFileIcons(m_model, view->rootIndex());
    m_list = new CVyFileListModel(this);
    setProxyModel(m_list);

    disconnect(types, SIGNAL(activated(int)), this, SLOT(_q_useNameFilter(int)));
    disconnect(name, SIGNAL(textChanged(QString)), this, SLOT(_q_autoCompleteFileName(QString)));
    connect(name, &QLineEdit::textChanged, this,
            [this](const QString& text) { selectTyped(text); });
}

void CVyFileDialogWidget::selectType(const QString& filter)
{
    auto* types = findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
    const int index = types ? types->findText(filter) : -1;
    if (!m_list)
        selectNameFilter(filter);
    else if (index >= 0) {
        types->setCurrentIndex(index);
        m_list->setNameFilters(VyFileTypeList::patterns(filter));
    }
}

// Selects in the list what the user types. QFileDialog's own way takes a file that
// is both typed and selected already for one that is no longer typed, if there is
// a proxy model; so nothing is selected beforehand. And it asks the disk for every file,
// which may hold the dialog up, also when the name comes from the list.
void CVyFileDialogWidget::selectTyped(const QString& names)
{
    const auto* list = findChild<QListView*>(QStringLiteral("listView"));
    if (list && focusWidget() == sender())
        list->selectionModel()->clearSelection();
    else if (list && names == selectedNames(*list))
        return;
    QMetaObject::invokeMethod(this, "_q_autoCompleteFileName", Q_ARG(QString, names));
}

// Takes the layout of Qt's dialog away to a widget of its own, so that there is
// room for a row above it.
QWidget* CVyFileDialogWidget::moveLayoutInside()
{
    QLayout* grid = layout();
    auto* contents = new QWidget(this);
    contents->setObjectName(QStringLiteral("dialogContents"));
    contents->setLayout(grid);
    grid->setContentsMargins(0, 0, 0, 0); // the dialog's new layout has margins too
    return contents;
}

void CVyFileDialogWidget::addPreviewPane()
{
    auto* splitter = findChild<QSplitter*>(QStringLiteral("splitter"));
    if (!splitter)
        return;
    m_previewFrame = new QWidget(splitter);
    m_previewFrame->setObjectName(QStringLiteral("previewFrame"));
    m_preview = new CVyFileDialogPreview(m_previewFrame);
    m_preview->setAccessibleName(tr("Preview"));
    auto* caption = new QLabel(tr("Preview"), m_previewFrame);
    caption->setObjectName(QStringLiteral("previewCaption"));

    auto* rows = new QVBoxLayout;
    rows->addWidget(caption, 0);
    rows->addWidget(m_preview, 1);
    m_previewFrame->setLayout(rows);
    splitter->addWidget(m_previewFrame);
    m_previewFrame->hide();

    m_previews = new CVyPreviewReader(this);
    connect(m_previews, &CVyPreviewReader::found, m_preview, &CVyFileDialogPreview::setImage);
    connect(this, SIGNAL(currentChanged(QString)), this, SLOT(onCurrentFile(QString)));
}

void CVyFileDialogWidget::addPathBar(QWidget* contents)
{
    m_pathBar = new QHBoxLayout;
    m_pathBar->setObjectName(QStringLiteral("pathBar"));
    m_pathBar->setContentsMargins(0, 0, 0, 0);
    m_pathBar->setSpacing(0);
    m_pathBar->setAlignment(Qt::AlignLeft);

    auto* rows = new QVBoxLayout;
    rows->addLayout(m_pathBar, 0);
    rows->addWidget(contents, 1);
    setLayout(rows);
}

// The dialog announces the folders that the user enters in the list, but not
// those that are typed, set by code or reached through the history; the model
// announces every one. A folder announced twice is laid out once.
void CVyFileDialogWidget::connectNavigation()
{
    connect(this, SIGNAL(directoryEntered(QString)), this, SLOT(onChangedDirectory(QString)));
    for (const char* name : {"backButton", "forwardButton"}) {
        if (auto* button = findChild<QToolButton*>(QLatin1String(name)))
            connect(button, SIGNAL(clicked()), this, SLOT(onChangedDirectory()));
    }
    if (m_model)
        connect(m_model, SIGNAL(rootPathChanged(QString)), this, SLOT(onChangedDirectory()));
}

// QFileDialog has chosen a size without the row and the pane: adds theirs, as
// far as the dialog stays a window among others on the screen.
void CVyFileDialogWidget::makeRoom()
{
    QSize wanted = size().expandedTo(sizeHint());
    wanted.rheight() += m_pathBar->sizeHint().height();
    if (m_previewFrame)
        wanted.rwidth() += m_previewFrame->sizeHint().width();
    resize(wanted.boundedTo(screen()->availableSize() * 2 / 3).expandedTo(size()));
}

// The host deletes the window that the dialog belongs to. Going with it would
// take along a question that QFileDialog is asking from its stack.
void CVyFileDialogWidget::leaveParent()
{
    setParent(nullptr);
    const auto questions = findChildren<QDialog*>();
    for (QDialog* question : questions)
        question->reject();
    reject();
}

void CVyFileDialogWidget::onCurrentFile(const QString& path)
{
    if (!m_previewFrame)
        return;
    // The model knows without asking a share again.
    if (!m_model || !m_model->fileInfo(m_model->index(path)).isFile()) {
        m_previews->cancel();
        m_previewFrame->hide();
        return;
    }
    // A file without a preview leaves the last picture in place.
    m_previews->read(path);
    m_preview->update();
    m_previewFrame->show();
}

void CVyFileDialogWidget::onChangedDirectory(const QString& path)
{
    const bool allDrives = m_model && path == m_model->myComputer().toString();
    showFolder(allDrives ? QString() : path);
}

void CVyFileDialogWidget::onChangedDirectory()
{
    // Above the root directory() falls back to the process's own folder.
    const bool allDrives = m_model && m_model->rootPath().isEmpty();
    showFolder(allDrives ? QString() : directory().absolutePath());
}

void CVyFileDialogWidget::filterChanged(const QString& filter)
{
    if (m_list)
        m_list->setNameFilters(VyFileTypeList::patterns(filter));
    m_owner->onTypeChange(filter);
}

void CVyFileDialogWidget::onActionOpen()
{
    m_owner->onActionOpen();
}

void CVyFileDialogWidget::onActionOpenReadOnly()
{
    m_owner->onActionOpenReadOnly();
}

void CVyFileDialogWidget::onActionOpenWithEncoding()
{
    m_owner->onActionOpenWithEncoding();
}

void CVyFileDialogWidget::onActionNew()
{
    m_owner->onActionNew();
}

void CVyFileDialogWidget::onActionNewNoTemplateImperial()
{
    m_owner->onActionNewNoTemplateImperial();
}

void CVyFileDialogWidget::onActionNewNoTemplateMetric()
{
    m_owner->onActionNewNoTemplateMetric();
}
