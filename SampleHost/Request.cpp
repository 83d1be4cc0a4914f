// SPDX-License-Identifier: MIT
#include "Request.h"

#include "VySystemServices.h"
#include "VyUtils.h"

#include <QFileInfo>

namespace {

// Both requests take the same arguments but for the place of their paths.
template <typename Paths>
using GetPaths = int (*)(CVyUserIO::_FileNameRetVal*, Paths*, unsigned long long,
                         CVyUserIO::_FileNameType, const CVyString&, const CVyString&,
                         const CVyString&, const CVyString&, int*, CVyString*,
                         CVyUserIO::_FileNameFlags, OdCodePageId**);

void tellServices(const Options& options)
{
    CVySystemServices* services = GetVySystemServices();
    if (options.expertLevel)
        services->GetSettings().SetExpertLevel(*options.expertLevel);
    if (!options.templateFolder.isEmpty())
        services->SetTemplateFolder(QFileInfo(options.templateFolder).absoluteFilePath());
}

// Without types there is none to choose. A save that is given an index all the
// same would complete names with an empty extension.
bool hasTypes(const QString& filter)
{
    return CVyUtils::ConvertToQtFilter(filter) != CVyUtils::ConvertToQtFilter(QString());
}

template <typename Paths>
Answer request(GetPaths<Paths> get, Paths& paths, const Options& options)
{
    const QString filter = options.filter.value_or(QString());
    int typeIndex = options.typeIndex.value_or(0);
    int* const typeIndexOrNone = hasTypes(filter) ? &typeIndex : nullptr;
    CVyString templateName(options.templateName.value_or(QString()));
    OdCodePageId* codePage = nullptr;

    Answer answer;
    answer.status = get(&answer.mode, &paths, options.parentWindow, options.type, options.title,
                        options.defaultExtension, filter, options.startPath, typeIndexOrNone,
                        options.templateName ? &templateName : nullptr, options.flags, &codePage);
    if (exitStatus(answer.status) == ExitAccepted && typeIndexOrNone)
        answer.typeIndex = typeIndex;
    if (codePage)
        answer.codePage = *codePage;
    if (options.templateName)
        answer.templateName = templateName;
    return answer;
}

} // namespace

Answer ask(const Options& options)
{
    tellServices(options);
    CVyFileDialog::Create();
    CVyFileDialog::SetStyle(options.style);
    std::vector<CVyString> paths;
    Answer answer;
    if (options.multiple) {
        answer = request(&CVyFileDialog::GetFileNames, paths, options);
    } else {
        paths.resize(1);
        answer = request(&CVyFileDialog::GetFileName, paths.front(), options);
    }
    CVyFileDialog::Destroy();
    for (const CVyString& path : paths) {
        if (!path.isEmpty())
            answer.paths.append(path);
    }
    return answer;
}
