// SPDX-License-Identifier: MIT
#include "VyBookmarkEntry.h"

#include "VySystemBookmark.h"

#include <QFile>

#include <algorithm>

namespace {

// Whether the file of the older entry is that of the newer by now. It is not
// when another file was written under the old path, as programs do that keep
// the last version under the name of a backup.
bool isSameFile(const VyBookmarkEntry& newer, const VyBookmarkEntry& older)
{
    if (newer.file.device != older.file.device || !vyIsSameFile(newer.file, older.file))
        return false;
    const VyFileFacts now = vyFileFacts(vyNativePath(older.bookmark));
    return !now.isKnown() || vyIsSameFile(now, newer.file);
}

bool standsFor(const VyBookmarkEntry& newer, const VyBookmarkEntry& older)
{
    return vyIsSamePath(newer.bookmark, older.bookmark) ||
           vyIsSamePath(newer.former, older.bookmark) || isSameFile(newer, older);
}

} // namespace

QByteArray vyNativePath(const VyBookmark& bookmark)
{
    if (!bookmark.bytes.isEmpty())
        return bookmark.bytes;
    QByteArray bytes = QFile::encodeName(bookmark.path);
    // macOS composes and decomposes accents on the way.
    const auto form = QString::NormalizationForm_C;
    if (QFile::decodeName(bytes).normalized(form) != bookmark.path.normalized(form))
        return {};
    return bytes;
}

VyBookmark vyBookmarkOfBytes(const QByteArray& path)
{
    VyBookmark bookmark;
    bookmark.path = QFile::decodeName(path);
    if (QFile::encodeName(bookmark.path) != path)
        bookmark.bytes = path;
    return bookmark;
}

bool vyIsSamePath(const VyBookmark& one, const VyBookmark& other)
{
    return one.path == other.path && one.bytes == other.bytes;
}

VyBookmarkEntry vyBookmarkEntry(const VyBookmark& bookmark)
{
    VyBookmarkEntry entry;
    entry.bookmark = bookmark;
    const QByteArray path = vyNativePath(bookmark);
    entry.file = vyFileFacts(path);
    if (entry.file.isKnown())
        entry.system = CVySystemBookmark::of(path);
    if (entry.system.size() > VyBookmarkLimits::systemRecord)
        entry.system.clear();
    return entry;
}

QList<VyBookmarkEntry> vyMergedEntries(const QList<VyBookmarkEntry>& latest,
                                       const QList<VyBookmarkEntry>& known)
{
    QList<VyBookmarkEntry> all = latest + known;
    std::stable_sort(all.begin(), all.end(),
                     [](const VyBookmarkEntry& one, const VyBookmarkEntry& other) {
                         return one.bookmark.chosen > other.bookmark.chosen;
                     });
    QList<VyBookmarkEntry> merged;
    for (const VyBookmarkEntry& entry : qAsConst(all)) {
        if (merged.size() == VyBookmarkLimits::entries)
            break;
        const bool isKnown =
            std::any_of(merged.cbegin(), merged.cend(),
                        [&entry](const VyBookmarkEntry& newer) { return standsFor(newer, entry); });
        if (!isKnown)
            merged.append(entry);
    }
    return merged;
}
