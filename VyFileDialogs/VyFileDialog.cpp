// SPDX-License-Identifier: MIT
#include "VyFileDialog.h"

#include "VyAppModalLock.h"
#include "VyDlgEncoding.h"
#include "VyFileDialogImpl.h"
#include "VyFileTypeList.h"
#include "VyStartPath.h"
#include "VyUtils.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <memory>
#include <optional>
#include <utility>

CVyFileDialog::_Style CVyFileDialog::s_Style;
CVyFileDialog::_Style CVyFileDialog::s_StyleTmp;

namespace {

using Impl = std::unique_ptr<CVyFileDialogImpl>;

constexpr int OpenWithEncoding = 2;

// What both requests are given.
struct Request
{
    CVyUserIO::_FileNameRetVal* mode;
    CVyUserIO::_FileNameType type;
    const CVyString& title;
    const CVyString& defaultExtension;
    const CVyString& filter;
    const CVyString& defaultPath;
    int* typeIndex;
    CVyString* templateName;
    CVyUserIO::_FileNameFlags flags;
    OdCodePageId** codePage;
};

// Brings the process's working directory back, also when an exception passes.
class WorkingDirectory
{
public:
    ~WorkingDirectory() { QDir::setCurrent(m_directory.absolutePath()); }

    WorkingDirectory() = default;
    Q_DISABLE_COPY(WorkingDirectory)

private:
    const QDir m_directory = QDir(QDir::currentPath());
};

Impl createImpl(const Request& request, bool multiple)
{
    return Impl(CVyFileDialog::CreateImpl(CVyFileDialog::s_Style, request.type, multiple,
                                          (request.flags & CVyUserIO::FileNameModeChoices) != 0));
}

void configure(CVyFileDialogImpl& impl, const Request& request, VyStartPath::Request kind)
{
    impl.setTitle(request.title);
    impl.setDefaultExtension(request.defaultExtension);
    impl.setFileTypes(request.filter);
    for (const VyStartPath::Preset& preset : VyStartPath::presets(request.defaultPath, kind))
        (impl.*preset.setter)(CVyString(preset.value));
    if (request.typeIndex)
        impl.setFileTypeIndex(*request.typeIndex);
    if (request.templateName)
        impl.setDefaultTemplateName(*request.templateName);
}

void writeMode(const Request& request, CVyFileDialogImpl& impl)
{
    if (request.mode)
        CVyFileDialog::GetMode(*request.mode, request.type, &impl);
}

// Gives a path to be saved the extension of its type. The suffix is compared
// with the type's whole extension list, and the whole list is appended: a type
// with several extensions asks for all of them on purpose.
void completeExtension(CVyString& path, const CVyString& filter, int type)
{
    if (type < 0)
        return;
    const std::vector<CVyString> lists =
        VyFileTypeList::extensionLists(CVyUtils::ConvertToQtFilter(filter));
    const auto position = static_cast<std::size_t>(type);
    if (position >= lists.size())
        return;
    const CVyString& extensions = lists[position];
    const CVyString suffix(QFileInfo(path).suffix());
    if (!suffix.equalNoCase(extensions))
        path = path + L"." + extensions;
}

// What follows once the paths of an accepted dialog are read. It is kept apart
// until all is known, so that an exception leaves the caller's outputs as they
// were.
struct Rest
{
    std::optional<CVyUserIO::_FileNameRetVal> mode;
    std::optional<OdCodePageId*> codePage;
};

// The second dialog of "Open with Encoding...". Cancelling it does not undo
// the first.
void askEncoding(const CVyString& fileName, Rest& rest)
{
    CVyDlgEncoding dialog(nullptr, fileName);
    if (dialog.exec() == QDialog::Accepted)
        rest.codePage = dialog.GetCodepage();
    rest.mode = dialog.IsReadOnly() ? CVyUserIO::OpenReadOnly : CVyUserIO::Open;
}

// The name that the encoding dialog shows.
CVyString encodingTitle(const std::vector<CVyString>& paths)
{
    if (paths.size() > 1)
        return CVyString(QCoreApplication::translate("CVyFileDialogs", "Multiple files"));
    return paths.empty() ? CVyString() : paths.front();
}

Rest readRest(const Request& request, CVyFileDialogImpl& impl, const CVyString& fileName)
{
    Rest rest;
    if (request.templateName)
        impl.getTemplateName(request.templateName);
    if (request.mode) {
        CVyUserIO::_FileNameRetVal mode{}; // none
        CVyFileDialog::GetMode(mode, request.type, &impl);
        if (mode)
            rest.mode = mode;
    }
    if (impl.getOpenMode() == OpenWithEncoding)
        askEncoding(fileName, rest);
    return rest;
}

void write(const Rest& rest, const Request& request) noexcept
{
    if (request.mode && rest.mode)
        *request.mode = *rest.mode;
    if (request.codePage && rest.codePage)
        *request.codePage = *rest.codePage;
}

} // namespace

void CVyFileDialog::Create()
{
    s_Style = StyleNative;
    s_StyleTmp = StyleNative;
}

bool CVyFileDialog::SetStyle(_Style style)
{
    s_Style = style;
    return true;
}

void CVyFileDialog::Destroy() {}

CVyFileDialogImpl* CVyFileDialog::CreateImpl(_Style style, CVyUserIO::_FileNameType type,
                                             bool multiple, bool modeChoices)
{
    switch (style) {
    case StyleQt:
        return CVyFileDialogImpl::createQt(type, multiple, modeChoices);
    case StyleNative:
        return CVyFileDialogImpl::createMac(type, multiple, modeChoices);
    }
    return nullptr;
}

void CVyFileDialog::GetMode(CVyUserIO::_FileNameRetVal& out, CVyUserIO::_FileNameType type,
                            CVyFileDialogImpl* impl)
{
    if (type & CVyUserIO::FileNameOpen) {
        out = impl->getOpenMode() == 1 ? CVyUserIO::OpenReadOnly : CVyUserIO::Open;
    } else if (type & CVyUserIO::FileNameSave) {
        out = CVyUserIO::Save;
    } else if (type & CVyUserIO::FileNameNew) {
        const int mode = impl->getNewMode();
        out = mode == 2   ? CVyUserIO::NewMetric
              : mode == 1 ? CVyUserIO::NewImperial
                          : CVyUserIO::NewFromTemplate;
    }
}

int CVyFileDialog::GetFileName(CVyUserIO::_FileNameRetVal* mode, CVyString* path,
                               unsigned long long parentWindow, CVyUserIO::_FileNameType type,
                               const CVyString& title, const CVyString& defaultExtension,
                               const CVyString& filter, const CVyString& defaultPath,
                               int* typeIndex, CVyString* templateName,
                               CVyUserIO::_FileNameFlags flags, OdCodePageId** codePage)
{
    const Request request{mode,      type,         title, defaultExtension, filter, defaultPath,
                          typeIndex, templateName, flags, codePage};
    const Impl impl = path ? createImpl(request, false) : nullptr;
    if (!impl)
        return VyStatus::Failed;

    auto workingDirectory = std::make_unique<const WorkingDirectory>();
    configure(*impl, request, VyStartPath::Request::SingleFile);
    if (templateName && type == CVyUserIO::FileNameNew)
        impl->setDefaultFileName(*templateName);

    CVyAppModalLock lock(nullptr);
    const int status = impl->show(parentWindow);
    lock.unlock();
    workingDirectory.reset();

    if (status != VyStatus::Accepted) {
        writeMode(request, *impl);
        return status;
    }
    CVyString chosen = *path;
    int chosenType = typeIndex ? *typeIndex : -1;
    const bool isChosen = impl->getResult(&chosen) == VyStatus::Accepted;
    if (typeIndex)
        impl->getFileTypeIndex(&chosenType);
    if (isChosen && type == CVyUserIO::FileNameSave)
        completeExtension(chosen, filter, chosenType);
    const Rest rest = readRest(request, *impl, chosen);

    *path = std::move(chosen);
    if (typeIndex)
        *typeIndex = chosenType;
    write(rest, request);
    return status;
}

int CVyFileDialog::GetFileNames(CVyUserIO::_FileNameRetVal* mode, std::vector<CVyString>* paths,
                                unsigned long long parentWindow, CVyUserIO::_FileNameType type,
                                const CVyString& title, const CVyString& defaultExtension,
                                const CVyString& filter, const CVyString& defaultPath,
                                int* typeIndex, CVyString* templateName,
                                CVyUserIO::_FileNameFlags flags, OdCodePageId** codePage)
{
    const Request request{mode,      type,         title, defaultExtension, filter, defaultPath,
                          typeIndex, templateName, flags, codePage};
    const Impl impl = paths ? createImpl(request, true) : nullptr;
    if (!impl)
        return VyStatus::Failed;

    configure(*impl, request, VyStartPath::Request::MultipleFiles);
    CVyAppModalLock lock(nullptr);
    const int status = impl->show(parentWindow);
    lock.unlock();

    if (status != VyStatus::Accepted) {
        writeMode(request, *impl);
        return status;
    }
    std::vector<CVyString> chosen = *paths;
    int chosenType = typeIndex ? *typeIndex : -1;
    const int result = impl->getResults(&chosen);
    if (typeIndex)
        impl->getFileTypeIndex(&chosenType);
    const Rest rest = readRest(request, *impl, encodingTitle(chosen));

    paths->swap(chosen);
    if (typeIndex)
        *typeIndex = chosenType;
    write(rest, request);
    return result;
}
