// SPDX-License-Identifier: MIT
#include "DrawingRequest.h"
#include "VyFileDialog.h"

namespace {

QString filterString(const DrawingRequest& request)
{
    QStringList pairs;
    for (const FileType& type : request.types)
        pairs << type.description << type.patterns.join(';');
    return pairs.join('&');
}

} // namespace

// With all that an ordinary request of a host has: preview, modes, path bar. It stays
// in its folder when a type with templates is chosen, as the floor does.
QString askSubject(const DrawingRequest& request)
{
    CVyFileDialog::SetStyle(CVyFileDialog::StyleQt);
    CVyUserIO::_FileNameRetVal mode{};
    CVyString path;
    int type = 0;
    OdCodePageId* codePage = nullptr;
    const auto kind = static_cast<CVyUserIO::_FileNameType>(CVyUserIO::FileNameOpen |
                                                            CVyUserIO::FileNameNoTemplateFolder);
    CVyFileDialog::GetFileName(&mode, &path, 0, kind, CVyString(L"Open Drawing"), CVyString(L"dwg"),
                               CVyString(filterString(request)), CVyString(request.folder), &type,
                               nullptr, CVyUserIO::FileNameModeChoices, &codePage);
    return path;
}
