// SPDX-License-Identifier: MIT
#pragma once

#include "VyBookmarkFormat.h"

/// The file that bookmarks are kept in, as a file.
namespace VyBookmarkStore {

constexpr int mostKept = 5; ///< damaged files beside it

/// What is in \a file; of one that is no such file nothing, with the reason as
/// damage. A file that is not there is an empty one. Never blocks on a FIFO.
VyBookmarkFormat::Contents read(const QString& file);

struct Written
{
    QString problem;  ///< why nothing was changed; empty when it was written
    QString keptAs;   ///< where the old file is now; empty unless it was to be kept
    QString replaced; ///< which damaged file was deleted for that; empty for none
};

/// Replaces \a file, or what it is a link to, in one step. With \a keepOld the
/// old file, or the link, is kept beside the new one.
Written write(const QString& file, const QList<VyBookmarkEntry>& entries, bool keepOld);

/// Makes the folder that \a file is in, with those above it.
bool makeFolder(const QString& file);

} // namespace VyBookmarkStore
