// SPDX-License-Identifier: MIT
#pragma once

#include "VyBookmarks.h"
#include "VyFileFacts.h"

/// A bookmark with what its file is found again by.
struct VyBookmarkEntry
{
    VyBookmark bookmark;
    VyFileFacts file;
    QByteArray system; ///< CVySystemBookmark's record; empty for none

    /// Where the file was until it was found to have been renamed; empty else.
    /// Not stored: it takes the entry of the old path out of the list.
    VyBookmark former;
};

/// What an entry may have in it.
namespace VyBookmarkLimits {
constexpr int entries = 100;
constexpr int path = 8192;          ///< UTF-16 code units, and bytes
constexpr int systemRecord = 12288; ///< bytes; 16384 characters of base64
} // namespace VyBookmarkLimits

/// The path in the system's bytes; empty where the text of the path cannot be
/// said in the encoding that this process takes file names in.
QByteArray vyNativePath(const VyBookmark& bookmark);

/// The path without a time, of bytes from the system.
VyBookmark vyBookmarkOfBytes(const QByteArray& path);

/// Whether both have the same path.
bool vyIsSamePath(const VyBookmark& one, const VyBookmark& other);

/// The entry for what lies under the path of \a bookmark now.
VyBookmarkEntry vyBookmarkEntry(const VyBookmark& bookmark);

/// One list of both, in the order of choice, without those that a later one
/// stands for, and cut to VyBookmarkLimits::entries. Of two chosen at the same
/// time that of \a latest comes first. Looks at a file only where two entries
/// have the same facts.
QList<VyBookmarkEntry> vyMergedEntries(const QList<VyBookmarkEntry>& latest,
                                       const QList<VyBookmarkEntry>& known);
