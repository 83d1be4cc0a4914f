// SPDX-License-Identifier: MIT
#include "VyStartPath.h"

#include <QDir>
#include <QFileInfo>

namespace VyStartPath {

namespace {

Preset folderPreset(const QString& folder)
{
    return {&CVyFileDialogImpl::setDefaultFolder, QDir::toNativeSeparators(folder)};
}

Preset namePreset(const QString& name)
{
    return {&CVyFileDialogImpl::setDefaultFileName, QDir::toNativeSeparators(name)};
}

std::vector<Preset> missingPath(const QFileInfo& info)
{
    std::vector<Preset> result;
    if (QFileInfo::exists(info.absolutePath()))
        result.push_back(folderPreset(info.absolutePath()));
    if (!info.fileName().isEmpty())
        result.push_back(namePreset(info.fileName()));
    return result;
}

} // namespace

std::vector<Preset> presets(const QString& path, Request request)
{
    if (path.isEmpty() || path.contains(QChar(QChar::Null)))
        return {}; // no path; about a zero QFileInfo would warn on the host's log
    const QFileInfo info(QDir::toNativeSeparators(QDir::cleanPath(path)));
    // In this order one question to the disk answers all of them.
    if (info.isDir())
        return {folderPreset(info.absoluteFilePath())};
    if (!info.isFile())
        return info.exists() ? std::vector<Preset>() : missingPath(info);
    if (request == Request::MultipleFiles)
        return {namePreset(info.absoluteFilePath())};
    return {namePreset(info.fileName()), folderPreset(info.absolutePath())};
}

} // namespace VyStartPath
