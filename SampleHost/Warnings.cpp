// SPDX-License-Identifier: MIT
#include "Warnings.h"

#include "Answer.h"
#include "FileTypes.h"

#include <QDir>
#include <QFileInfo>

namespace {

QStringList aboutFilter(const QString& filter)
{
    QStringList lines;
    const std::vector<FileType> types = fileTypes(filter);
    if (types.empty())
        lines.append(QStringLiteral("the filter names no file type"));
    for (const FileType& type : types) {
        if (type.description.isEmpty())
            lines.append(
                QStringLiteral("the file type '%1' has no description").arg(type.patterns));
        if (type.patterns.isEmpty())
            lines.append(
                QStringLiteral("the file type '%1' has no patterns").arg(type.description));
    }
    return lines;
}

QStringList aboutTypeIndex(int index, const QString& filter)
{
    const int count = static_cast<int>(fileTypes(filter).size());
    if (index >= 0 && index < count)
        return {};
    return {QStringLiteral("there is no file type with index %1; the filter has %2")
                .arg(index)
                .arg(count)};
}

// An argument in another encoding has reached us with replacement characters.
bool isLegible(const QString& path)
{
    return isLocal(path) &&
           (!path.contains(QChar::ReplacementCharacter) || QFileInfo::exists(path));
}

// What is wrong with the start path, as the rest of a sentence; null when
// nothing is. A name to save under need not exist yet.
const char* faultOfStartPath(const QString& path, bool save)
{
    if (!isLegible(path))
        return "cannot be written in the local encoding of file names";
    const QFileInfo info(QDir::cleanPath(path));
    if (info.isSymLink() && !info.exists())
        return "is a link that leads nowhere";
    if (!info.exists())
        return save && QFileInfo(info.absolutePath()).isDir() ? nullptr : "does not exist";
    if (info.isDir())
        return info.isReadable() && info.isExecutable() ? nullptr
                                                        : "is a folder that cannot be read";
    return info.isFile() ? nullptr : "is neither a file nor a folder";
}

QStringList aboutStartPath(const QString& path, bool save)
{
    const char* const fault = faultOfStartPath(path, save);
    if (!fault)
        return {};
    return {QStringLiteral("the start path '%1' %2").arg(path, QLatin1String(fault))};
}

} // namespace

QStringList warnings(const Options& options)
{
    QStringList lines;
    if (options.filter)
        lines += aboutFilter(*options.filter);
    if (options.typeIndex)
        lines += aboutTypeIndex(*options.typeIndex, options.filter.value_or(QString()));
    if (!options.startPath.isEmpty())
        lines += aboutStartPath(options.startPath, (options.type & CVyUserIO::FileNameSave) != 0);
    if (!options.templateFolder.isEmpty() && !QFileInfo(options.templateFolder).isDir())
        lines +=
            QStringLiteral("the template folder '%1' is no folder").arg(options.templateFolder);
    return lines;
}
