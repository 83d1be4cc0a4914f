// SPDX-License-Identifier: MIT
#pragma once

#include "VyHostKernelExport.h"

#include <QDateTime>
#include <QList>
#include <QString>

/// A file that the user chose in a native panel.
struct VyBookmark
{
    QString path; ///< absolute, with native separators
    QDateTime chosen;
};

/// The bookmarks of this process, the latest first, one a path, at most 100.
/// On the user-interface thread alone, as all of them.
VY_HOSTKERNEL_EXPORT QList<VyBookmark> VyBookmarks();

/// Puts \a path first in the list. An empty path is ignored.
VY_HOSTKERNEL_EXPORT void VyAddBookmark(const QString& path);

/// Empties the list.
VY_HOSTKERNEL_EXPORT void VyClearBookmarks();
