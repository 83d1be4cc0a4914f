// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QStringList>
#include <QUrl>

/// The places that a request adds to the dialog's sidebar.
namespace VySidebarPlaces {

/// In this order: \a startFolder, even when it is empty; each of \a mediaEntries
/// (names in /media) that is not hidden, as "file://media/NAME"; and
/// \a userFolders.
QList<QUrl> urls(const QString& startFolder, const QStringList& mediaEntries,
                 const QStringList& userFolders);

/// The same for this machine: its /media and the user's first folders for
/// documents, pictures and films, those that there are.
QList<QUrl> urls(const QString& startFolder);

} // namespace VySidebarPlaces
