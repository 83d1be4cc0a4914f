// SPDX-License-Identifier: MIT
#include "VyFileDialogQt.h"

#include "VyDocument.h"
#include "VyFileDialogResults.h"
#include "VyFileDialogWidget.h"
#include "VyFileTypeList.h"
#include "VySidebarPlaces.h"
#include "VyUtils.h"

#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QPointer>
#include <QThread>

#include <utility>

namespace {

// A widget outside the thread of a QApplication would end the host.
bool canShowWidgets()
{
    return qobject_cast<QApplication*>(QCoreApplication::instance()) &&
           QThread::currentThread() == qApp->thread();
}

QWidget* activeView()
{
    const CVyDocument* document = ACTIVE_DOCUMENT();
    return document ? document->GetViewWidget() : nullptr;
}

// Shows an arrow over the active document's view, where the application may
// have a cursor of its own. The document is asked anew at the end: the host may
// have made another one active.
class ViewCursor
{
public:
    ViewCursor()
    {
        if (QWidget* view = activeView()) {
            m_saved = view->cursor();
            if (!view->testAttribute(Qt::WA_SetCursor))
                m_follower = view;
            view->setCursor(Qt::ArrowCursor);
        }
    }
    // Where an exception has ended the dialog, another one would end the host.
    ~ViewCursor()
    {
        try {
            restore();
        } catch (...) {
        }
    }
    Q_DISABLE_COPY(ViewCursor)

    // The first call does it. The host may throw when it is asked for its document.
    void restore()
    {
        if (std::exchange(m_isRestored, true))
            return;
        QWidget* const view = activeView();
        if (!view)
            return;
        if (view == m_follower)
            view->unsetCursor();
        else
            view->setCursor(m_saved);
    }

private:
    bool m_isRestored = false;
    QCursor m_saved;
    QPointer<QWidget> m_follower; ///< a view that has its window's cursor
};

// Deletes the dialog widget however show() ends.
class WidgetOwner
{
public:
    explicit WidgetOwner(const QPointer<CVyFileDialogWidget>& widget)
        : m_widget(widget)
    {}
    ~WidgetOwner() { delete m_widget; }
    Q_DISABLE_COPY(WidgetOwner)

private:
    const QPointer<CVyFileDialogWidget> m_widget;
};

int runOverView(CVyFileDialogWidget& widget)
{
    ViewCursor cursor;
    const int result = widget.exec();
    cursor.restore();
    return result;
}

} // namespace

CVyFileDialogQt::CVyFileDialogQt(int fileMode, int acceptMode)
    : m_fileMode(fileMode)
    , m_acceptMode(acceptMode)
{}

CVyFileDialogQt::~CVyFileDialogQt() = default;

int CVyFileDialogQt::setTitle(const CVyString& title)
{
    m_title = title;
    return VyStatus::Accepted;
}

int CVyFileDialogQt::setDefaultExtension(const CVyString& extension)
{
    m_defaultExtension = extension;
    return VyStatus::Accepted;
}

int CVyFileDialogQt::setDefaultFolder(const CVyString& folder)
{
    m_defaultFolder = CVyString(QDir::toNativeSeparators(folder));
    return VyStatus::Accepted;
}

int CVyFileDialogQt::setDefaultFileName(const CVyString& name)
{
    m_defaultFileName = name;
    return 0;
}

int CVyFileDialogQt::setFileTypes(const CVyString& filter)
{
    const VyFileTypeList::Types types =
        VyFileTypeList::fromConverted(CVyUtils::ConvertToQtFilter(filter));
    m_qtFilter = types.qtFilter;
    m_extensionLists = types.extensionLists;
    return VyStatus::Accepted;
}

int CVyFileDialogQt::setFileTypeIndex(int index)
{
    m_selectedFilter = VyFileTypeList::entryAt(m_qtFilter, index);
    return VyStatus::Accepted;
}

int CVyFileDialogQt::setDefaultTemplateName(const CVyString&)
{
    return 0;
}

void CVyFileDialogQt::setExpert(int level)
{
    m_expertLevel = level;
}

int CVyFileDialogQt::show(unsigned long long parentWindow)
{
    if (!canShowWidgets())
        return VyStatus::Failed;
    QWidget* parent = QWidget::find(static_cast<WId>(parentWindow));
    auto* const widget = new CVyFileDialogWidget(parent, this, m_title, m_defaultFolder, m_qtFilter,
                                                 m_previewAllowed);
    m_widget = widget;
    const WidgetOwner owner(m_widget);
    configureWidget();
    widget->addPlaces(VySidebarPlaces::urls(m_defaultFolder));

    // The widget is gone when the host deleted its parent meanwhile.
    if (runOverView(*widget) == QDialog::Rejected || !m_widget)
        return VyStatus::Cancelled;
    m_results = m_widget->selectedFiles();
    m_selectedFilter = CVyString(m_widget->selectedNameFilter());
    return VyStatus::Accepted;
}

// The order matters: the accept mode names the buttons that the subclass looks
// for, and a file can be selected only once the mode allows it.
void CVyFileDialogQt::configureWidget()
{
    if (m_expertLevel >= 2)
        m_widget->setOption(QFileDialog::DontConfirmOverwrite, true);
    m_widget->setDefaultSuffix(m_defaultExtension);
    m_widget->selectType(m_selectedFilter);
    m_widget->setFileMode(static_cast<QFileDialog::FileMode>(m_fileMode));
    m_widget->setAcceptMode(static_cast<QFileDialog::AcceptMode>(m_acceptMode));
    HandleDialogInitialization();
    m_fileNameEdit = m_widget->findChildren<QLineEdit*>().value(0);
    m_widget->selectFile(m_defaultFileName);
}

int CVyFileDialogQt::getResult(CVyString* path)
{
    return VyFileDialogResults::first(m_results, path);
}

int CVyFileDialogQt::getResults(std::vector<CVyString>* paths)
{
    return VyFileDialogResults::all(m_results, paths);
}

int CVyFileDialogQt::getFileTypeIndex(int* index)
{
    return VyFileDialogResults::typeIndex(m_qtFilter, m_selectedFilter, index);
}

int CVyFileDialogQt::getTemplateName(CVyString*)
{
    return 0;
}

int CVyFileDialogQt::getNewMode()
{
    return m_newMode;
}

int CVyFileDialogQt::getOpenMode()
{
    return m_openMode;
}

void CVyFileDialogQt::onTypeChange(const QString& filter)
{
    if (!m_widget)
        return;
    m_widget->selectType(filter);

    const QStringList entries = VyFileTypeList::entries(m_qtFilter);
    const QStringList lists = VyFileTypeList::splitLists(m_extensionLists);
    const int type = entries.indexOf(filter);
    if (type < 0 || entries.size() != lists.size())
        return;
    const QStringList extensions = VyFileTypeList::splitExtensions(lists.at(type));
    if (!extensions.isEmpty())
        m_widget->setDefaultSuffix(extensions.constFirst());
    const QString typedName = m_fileNameEdit ? m_fileNameEdit->text() : QString();
    if (!typedName.isEmpty() && !m_widget->selectedFiles().isEmpty())
        m_fileNameEdit->setText(
            VyFileTypeList::nameForType(m_widget->directory(), typedName, extensions));
}

void CVyFileDialogQt::onActionOpen() {}
void CVyFileDialogQt::onActionOpenReadOnly() {}
void CVyFileDialogQt::onActionOpenWithEncoding() {}
void CVyFileDialogQt::onActionNew() {}
void CVyFileDialogQt::onActionNewNoTemplateImperial() {}
void CVyFileDialogQt::onActionNewNoTemplateMetric() {}
