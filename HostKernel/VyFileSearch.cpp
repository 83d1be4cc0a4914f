// SPDX-License-Identifier: MIT
#include "VyFileSearch.h"

#include "VyFileFacts.h"

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <memory>

namespace {

struct CloseFolder
{
    void operator()(DIR* folder) const { closedir(folder); }
};

// With its separator at the end.
QByteArray folderOf(const QByteArray& path)
{
    return path.left(path.lastIndexOf('/') + 1);
}

bool isFile(const QByteArray& path, const VyFileFacts& facts)
{
    return vyIsSameFile(vyFileFacts(path), facts) && VyFileSearch::exists(path);
}

} // namespace

namespace VyFileSearch {

bool exists(const QByteArray& path)
{
    return !path.isEmpty() && !path.contains('\0') && access(path.constData(), F_OK) == 0;
}

QByteArray renamed(const QByteArray& path, const VyFileFacts& facts, int names)
{
    const QByteArray folder = folderOf(path);
    if (!facts.isKnown() || folder.isEmpty())
        return {};
    const std::unique_ptr<DIR, CloseFolder> entries(opendir(folder.constData()));
    if (!entries)
        return {};
    QByteArray found;
    for (int count = 0; count < names; ++count) {
        const dirent* const entry = readdir(entries.get());
        if (!entry)
            break;
        if (entry->d_ino != facts.inode)
            continue;
        const QByteArray candidate = folder + entry->d_name;
        if ((found.isEmpty() || candidate < found) && isFile(candidate, facts))
            found = candidate;
    }
    return found;
}

bool isOwn(const QByteArray& folder)
{
    struct stat status = {};
    QByteArray nearest = folder;
    while (stat(nearest.constData(), &status) != 0) {
        if (nearest == "/")
            return false;
        nearest = nearest.left(qMax(1, nearest.lastIndexOf('/')));
    }
    return status.st_uid == geteuid();
}

} // namespace VyFileSearch
