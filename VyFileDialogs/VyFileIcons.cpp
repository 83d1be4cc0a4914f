// SPDX-License-Identifier: MIT
#include "VyFileIcons.h"

#include <QFileInfo>
#include <QFileSystemModel>

namespace {

// What a model has asked the disk for already: to look at its file infos is free.
bool isPlainFile(const QFileInfo& info)
{
    return info.isFile() && !info.isSymLink();
}

} // namespace

CVyFileIcons::CVyFileIcons(QFileSystemModel* model, const QModelIndex& shown)
    : QObject(model)
    , m_provider(*model->iconProvider())
{
    for (QModelIndex index = shown; index.isValid(); index = index.parent())
        m_shown.insert(model->filePath(index), model->fileIcon(index));
    model->setIconProvider(this);
    m_shown.clear();
}

// A desktop's theme may have icons by a file's content. Where it has none for one
// file with a suffix, so it is with the others.
QIcon CVyFileIcons::icon(const QFileInfo& info) const
{
    const auto shown = m_shown.constFind(info.filePath());
    if (shown != m_shown.constEnd())
        return *shown;
    if (!isPlainFile(info))
        return m_provider.icon(info);
    const QString suffix = info.suffix();
    const auto known = m_icons.constFind(suffix);
    if (known != m_icons.constEnd())
        return *known;
    QIcon icon = m_provider.icon(info);
    if (icon.cacheKey() == m_provider.icon(File).cacheKey())
        m_icons.insert(suffix, icon);
    return icon;
}

// Qt's names a file's type after its suffix alone.
QString CVyFileIcons::type(const QFileInfo& info) const
{
    if (!isPlainFile(info))
        return m_provider.type(info);
    QString& type = m_types[info.suffix()];
    if (type.isNull())
        type = m_provider.type(info);
    return type;
}
