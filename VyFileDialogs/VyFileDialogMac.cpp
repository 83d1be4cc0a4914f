// SPDX-License-Identifier: MIT
#include "VyFileDialogMac.h"

#include "VyCocoa.h"
#include "VyFileDialogMacMacNative.h"
#include "VyFileDialogResults.h"
#include "VyFileTypeList.h"
#include "VySystemServices.h"
#include "VyUtils.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>

namespace {

// There is one panel at a time. A request made while another one's panel is up,
// or while its run is being started, gets none: from a timer, say, or from the
// second click of a double click.
class Turn
{
public:
    Turn()
        : m_mine(!s_taken)
    {
        if (m_mine)
            s_taken = true;
    }
    ~Turn()
    {
        if (m_mine)
            s_taken = false;
    }
    Q_DISABLE_COPY(Turn)

    bool isMine() const { return m_mine; }

private:
    const bool m_mine;
    static bool s_taken;
};

bool Turn::s_taken = false;

QString templateFolder()
{
    return GetVySystemServices()->GetTemplateFolder();
}

// The suffix to hand on: a wildcard is none.
QString defaultSuffix(const QString& extension)
{
    const bool isWildcard = extension == QLatin1String("*") || extension == QLatin1String("*.*");
    return isWildcard ? QString() : extension;
}

bool isModeLabel(const QString& label, const char* text)
{
    return label == QCoreApplication::translate("CVyFileDialogs", text);
}

} // namespace

CVyFileDialogMac::CVyFileDialogMac(int fileMode, int acceptMode, bool requestFlag,
                                   std::unique_ptr<CVyFileDialogMacMacNative> nativeDialog)
    : m_nativeDialog(std::move(nativeDialog))
    , m_fileMode(fileMode)
    , m_acceptMode(acceptMode)
    , m_requestFlag(requestFlag)
{}

CVyFileDialogMac::~CVyFileDialogMac() = default;

int CVyFileDialogMac::setTitle(const CVyString& title)
{
    m_title = title;
    return VyStatus::Accepted;
}

int CVyFileDialogMac::setDefaultExtension(const CVyString& extension)
{
    m_defaultExtension = extension;
    return VyStatus::Accepted;
}

int CVyFileDialogMac::setDefaultFolder(const CVyString& folder)
{
    m_defaultFolder = CVyString(QDir::toNativeSeparators(folder));
    return VyStatus::Accepted;
}

int CVyFileDialogMac::setDefaultFileName(const CVyString& name)
{
    m_defaultFileName = name;
    return VyStatus::Accepted;
}

int CVyFileDialogMac::setFileTypes(const CVyString& filter)
{
    const VyFileTypeList::Types types = VyFileTypeList::fromConverted(convertToQtFilter(filter));
    m_qtFilter = types.qtFilter;
    m_extensionLists = types.extensionLists;
    return VyStatus::Accepted;
}

int CVyFileDialogMac::setFileTypeIndex(int index)
{
    m_selectedFilter = VyFileTypeList::entryAt(m_qtFilter, index);
    return VyStatus::Accepted;
}

int CVyFileDialogMac::setDefaultTemplateName(const CVyString& name)
{
    m_defaultFileName = name;
    return VyStatus::Accepted;
}

int CVyFileDialogMac::show(unsigned long long)
{
    if (!VyCocoa::canShowPanels())
        return VyStatus::Failed;
    const Turn turn;
    if (!turn.isMine())
        return VyStatus::Cancelled;

    configureNativeDialog();
    m_nativeDialog->DoModal();

    m_nativeDialog->GetFileNames(m_results);
    QString selectedFilter = m_selectedFilter;
    m_nativeDialog->GetSelectedFilter(selectedFilter);
    if (!selectedFilter.isEmpty())
        m_selectedFilter = CVyString(selectedFilter);
    readModes();
    return m_results.isEmpty() ? VyStatus::Cancelled : VyStatus::Accepted;
}

void CVyFileDialogMac::configureNativeDialog()
{
    m_nativeDialog->SetListFilter(VyFileTypeList::entries(m_qtFilter));
    m_nativeDialog->SetListFilterFileExt(VyFileTypeList::splitLists(m_extensionLists));
    m_nativeDialog->SetDefSuffix(defaultSuffix(m_defaultExtension));
    m_nativeDialog->SetSelectedFilter(m_selectedFilter);
    m_nativeDialog->SetDirectory(m_defaultFolder);
    m_nativeDialog->SetTemplateDWGPath(templateFolder());
    m_nativeDialog->SetCaption(m_title);
    m_nativeDialog->SetDefaultFileName(m_defaultFileName);
    m_nativeDialog->SetHasPreview(m_hasPreview);
}

// The panel answers with the label of the mode. Two modes may share a label, as
// both "Open" do; in a translation where more do, the later one counts.
void CVyFileDialogMac::readModes()
{
    QString label;
    m_nativeDialog->GetOpenMode(label);
    m_openMode = 0;
    if (isModeLabel(label, "Open Read-Only"))
        m_openMode = 1;
    if (isModeLabel(label, "Open with Encoding..."))
        m_openMode = 2;
    if (isModeLabel(label, "Open"))
        m_newMode = 0;
    if (isModeLabel(label, "Open with no Template - Imperial"))
        m_newMode = 1;
    if (isModeLabel(label, "Open with no Template - Metric"))
        m_newMode = 2;
}

int CVyFileDialogMac::getResult(CVyString* path)
{
    return VyFileDialogResults::first(m_results, path);
}

int CVyFileDialogMac::getResults(std::vector<CVyString>* paths)
{
    return VyFileDialogResults::all(m_results, paths);
}

int CVyFileDialogMac::getFileTypeIndex(int* index)
{
    return VyFileDialogResults::typeIndex(m_qtFilter, m_selectedFilter, index);
}

int CVyFileDialogMac::getTemplateName(CVyString*)
{
    return 0;
}

int CVyFileDialogMac::getNewMode()
{
    return m_newMode;
}

int CVyFileDialogMac::getOpenMode()
{
    return m_openMode;
}

CVyString CVyFileDialogMac::convertToQtFilter(const CVyString& filter) const
{
    return CVyUtils::ConvertToQtFilter(filter);
}

void CVyFileDialogMac::onTypeChange(const QString& filter)
{
    const QStringList entries = VyFileTypeList::entries(m_qtFilter);
    const QStringList lists = VyFileTypeList::splitLists(m_extensionLists);
    const int type = entries.indexOf(filter);
    if (type < 0 || entries.size() != lists.size())
        return;
    if (!m_qtDialog || m_qtDialog->selectedFiles().isEmpty() || !m_lineEdit ||
        m_lineEdit->text().isEmpty())
        return;
    m_lineEdit->setText(
        VyFileTypeList::nameForType(m_qtDialog->directory(), m_lineEdit->text(),
                                    VyFileTypeList::splitExtensions(lists.at(type))));
}

void CVyFileDialogMac::switchToTemplateFolder()
{
    if (m_qtDialog)
        m_qtDialog->setDirectory(templateFolder());
}

void CVyFileDialogMac::onActionOpen() {}
void CVyFileDialogMac::onActionOpenReadOnly() {}
void CVyFileDialogMac::onActionOpenWithEncoding() {}
void CVyFileDialogMac::onActionNew() {}
void CVyFileDialogMac::onActionNewNoTemplateImperial() {}
void CVyFileDialogMac::onActionNewNoTemplateMetric() {}
