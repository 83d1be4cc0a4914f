// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDateTime>

/// What tells a file from others whatever its name is: taken once and compared
/// later, it says whether a file of another name is the one that was renamed.
struct VyFileFacts
{
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = 0;    ///< in bytes
    QDateTime modified; ///< UTC, in whole milliseconds; invalid where nothing is known
    QDateTime born;     ///< as modified; invalid on file systems that do not keep it

    bool isKnown() const { return modified.isValid(); }
};

/// The facts of what lies under \a path, in the system's own bytes: of a
/// symbolic link itself, not of what it leads to, because a renamed link is
/// found by its own facts. Nothing is known of what is not there, of a path
/// that is not absolute and of one with a zero byte.
VyFileFacts vyFileFacts(const QByteArray& path);

/// Whether both are of one file. The number of an inode is used again after a
/// file was deleted, so the time of birth must be equal, too; where one of them
/// has none, device, size and time of modification must be. A file that was
/// changed there is then not recognised, rather than another one taken for it.
/// With a time of birth the device does not count: its number may be another
/// one after each mount. Two files of one inode that were born in the same tick
/// of the file system's clock, a few milliseconds, cannot be told apart.
bool vyIsSameFile(const VyFileFacts& one, const VyFileFacts& other);
