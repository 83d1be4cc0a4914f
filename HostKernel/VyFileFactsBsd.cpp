// SPDX-License-Identifier: MIT
// The facts of a file on macOS and the BSDs, whose lstat(2) has the time of birth.
#include "VyFileFacts.h"

#include <sys/stat.h>

static QDateTime dateTime(const timespec& time)
{
    return QDateTime::fromMSecsSinceEpoch(qint64(time.tv_sec) * 1000 + time.tv_nsec / 1000000,
                                          Qt::UTC);
}

VyFileFacts vyFileFacts(const QByteArray& path)
{
    struct stat status = {};
    if (!path.startsWith('/') || path.contains('\0') || lstat(path.constData(), &status) != 0)
        return {};
    VyFileFacts facts;
    facts.device = static_cast<quint64>(status.st_dev);
    facts.inode = static_cast<quint64>(status.st_ino);
    facts.size = static_cast<qint64>(status.st_size);
    facts.modified = dateTime(status.st_mtimespec);
    // What a file system does not keep is 0 or -1.
    if (status.st_birthtimespec.tv_sec > 0)
        facts.born = dateTime(status.st_birthtimespec);
    return facts;
}
