// SPDX-License-Identifier: MIT
#pragma once

#include "VyBookmarkFormat.h"

#include <QSet>

#include <functional>
#include <memory>

class CVySystemBookmark;

/// The list of bookmarks and its store, as VyBookmarks.h describes them. The
/// functions there are those of the process's one list.
class CVyBookmarkList
{
public:
    /// How long another process is waited for, in milliseconds.
    static constexpr int longestWait = 1000;

    /// The list that is kept in \a file, an absolute path; empty for a list in
    /// memory alone. Nothing is read yet.
    explicit CVyBookmarkList(const QString& file);

    QList<VyBookmark> bookmarks();
    /// \a bookmark needs no time yet.
    void add(const VyBookmark& bookmark);
    /// \a bookmark is found by its path.
    void remove(const VyBookmark& bookmark);
    void clear();

    /// Where the file of \a bookmark is now; with an empty path where it was not
    /// found. \a access is what has to live while the file is used; null where
    /// nothing has to.
    VyBookmark find(const VyBookmark& bookmark, std::unique_ptr<CVySystemBookmark>& access);

private:
    void load();
    bool update(const std::function<void()>& change);
    QString saveChange(const std::function<void()>& change);
    void takeOver(const VyBookmarkFormat::Contents& contents);
    void put(const VyBookmarkEntry& entry);
    QDateTime timeOfChoice() const;
    void warnOfDamage(const VyBookmarkFormat::Contents& contents, const QString& keptAs);
    void warnOnce(const QString& text);

    const QString m_file;
    bool m_isLoaded = false;
    bool m_othersLetGo = true;
    QList<VyBookmarkEntry> m_entries;
    QList<VyBookmarkEntry> m_unsaved; ///< of m_entries, those that are not in the file
    QDateTime m_cleared;              ///< when, unless that is in the file
    QList<VyBookmark> m_removed;      ///< with the time of that, unless it is in the file
    QSet<QString> m_warnings;         ///< since the file was last written
};
