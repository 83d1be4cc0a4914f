// SPDX-License-Identifier: MIT
#include "VySidebarPlaces.h"

#include <QDir>
#include <QStandardPaths>

namespace VySidebarPlaces {

namespace {

// A path may hold what would otherwise end the path of a URL.
QUrl place(const QString& path)
{
    QString escaped = path;
    escaped.replace(QLatin1Char('%'), QLatin1String("%25"))
        .replace(QLatin1Char('#'), QLatin1String("%23"))
        .replace(QLatin1Char('?'), QLatin1String("%3F"));
    return QUrl(QStringLiteral("file://") + escaped, QUrl::TolerantMode);
}

} // namespace

QList<QUrl> urls(const QString& startFolder, const QStringList& mediaEntries,
                 const QStringList& userFolders)
{
    QList<QUrl> result{place(startFolder)};
    for (const QString& entry : mediaEntries) {
        if (!entry.isEmpty() && !entry.startsWith(QLatin1Char('.')))
            result.append(place(QStringLiteral("media/") + entry));
    }
    for (const QString& folder : userFolders)
        result.append(place(folder));
    return result;
}

QList<QUrl> urls(const QString& startFolder)
{
    QStringList userFolders;
    for (const auto location : {QStandardPaths::DocumentsLocation, QStandardPaths::PicturesLocation,
                                QStandardPaths::MoviesLocation})
        userFolders += QStandardPaths::standardLocations(location).mid(0, 1);
    return urls(startFolder, QDir(QStringLiteral("/media")).entryList(), userFolders);
}

} // namespace VySidebarPlaces
