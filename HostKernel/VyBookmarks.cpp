// SPDX-License-Identifier: MIT
#include "VyBookmarks.h"

#include <algorithm>

namespace {

constexpr int mostBookmarks = 100;

QList<VyBookmark>& bookmarks()
{
    static QList<VyBookmark> list;
    return list;
}

} // namespace

QList<VyBookmark> VyBookmarks()
{
    return bookmarks();
}

void VyAddBookmark(const QString& path)
{
    if (path.isEmpty())
        return;
    QList<VyBookmark>& list = bookmarks();
    list.erase(std::remove_if(list.begin(), list.end(),
                              [&path](const VyBookmark& known) { return known.path == path; }),
               list.end());
    list.prepend({path, QDateTime::currentDateTimeUtc()});
    while (list.size() > mostBookmarks)
        list.removeLast();
}

void VyClearBookmarks()
{
    bookmarks().clear();
}
