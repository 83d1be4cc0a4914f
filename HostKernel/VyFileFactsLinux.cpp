// SPDX-License-Identifier: MIT
// The facts of a file on Linux: statx(2) has the time of birth, stat(2) does not.
#include "VyFileFacts.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

static QDateTime dateTime(const statx_timestamp& time)
{
    return QDateTime::fromMSecsSinceEpoch(time.tv_sec * 1000 + time.tv_nsec / 1000000, Qt::UTC);
}

VyFileFacts vyFileFacts(const QByteArray& path)
{
    struct statx status = {};
    if (!path.startsWith('/') || path.contains('\0') ||
        statx(AT_FDCWD, path.constData(), AT_SYMLINK_NOFOLLOW, STATX_BASIC_STATS | STATX_BTIME,
              &status) != 0)
        return {};
    VyFileFacts facts;
    facts.device = makedev(status.stx_dev_major, status.stx_dev_minor);
    facts.inode = status.stx_ino;
    facts.size = static_cast<qint64>(status.stx_size);
    facts.modified = dateTime(status.stx_mtime);
    if (status.stx_mask & STATX_BTIME)
        facts.born = dateTime(status.stx_btime);
    return facts;
}
