// SPDX-License-Identifier: MIT
#include "VyBookmarkStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cstdio>

namespace {

bool isThere(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

// QFile::rename() does not rename a link that leads nowhere.
bool rename(const QString& from, const QString& to)
{
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

QString keptName(const QString& file, int number)
{
    return file + QStringLiteral(".damaged-%1").arg(number);
}

// Frees the first name for a damaged file: the names up to the first free one
// move on by one, and the last goes when all are taken. A folder goes only
// when it is empty.
bool makeRoom(const QString& file, QString& replaced)
{
    int free = 1;
    while (free <= VyBookmarkStore::mostKept && isThere(keptName(file, free)))
        ++free;
    if (free > VyBookmarkStore::mostKept) {
        free = VyBookmarkStore::mostKept;
        const QString last = keptName(file, free);
        if (std::remove(QFile::encodeName(last).constData()) != 0)
            return false;
        replaced = last;
    }
    for (; free > 1; --free) {
        if (!rename(keptName(file, free - 1), keptName(file, free)))
            return false;
    }
    return true;
}

// Why the file cannot hold what we read; empty when it can.
QString obstacle(const QFileInfo& info)
{
    if (!info.exists())
        return QStringLiteral("is a link that leads nowhere");
    if (info.isDir())
        return QStringLiteral("is a folder");
    if (!info.isFile())
        return QStringLiteral("is not a regular file");
    if (info.size() > VyBookmarkFormat::mostFileBytes)
        return QStringLiteral("is larger than %1 MiB")
            .arg(VyBookmarkFormat::mostFileBytes / 1024 / 1024);
    return {};
}

bool save(const QString& file, const QByteArray& text, QString& problem)
{
    QSaveFile save(file);
    bool isSaved = save.open(QIODevice::WriteOnly);
    if (isSaved) {
        // Before there is anything to read. Some file systems have no modes.
        save.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        // commit() alone does not notice when the disk is full before the end.
        isSaved = save.write(text) == text.size() && save.flush() && save.commit();
    }
    if (!isSaved)
        problem = save.errorString();
    return isSaved;
}

} // namespace

namespace VyBookmarkStore {

VyBookmarkFormat::Contents read(const QString& file)
{
    if (!isThere(file))
        return {};
    VyBookmarkFormat::Contents contents;
    const QString reason = obstacle(QFileInfo(file));
    if (!reason.isEmpty()) {
        contents.damage += reason;
        return contents;
    }
    QFile device(file);
    if (!device.open(QIODevice::ReadOnly)) {
        contents.damage += QStringLiteral("cannot be read: ") + device.errorString();
        return contents;
    }
    const QByteArray text = device.read(VyBookmarkFormat::mostFileBytes);
    contents = VyBookmarkFormat::read(text);
    if (device.error() != QFileDevice::NoError)
        contents.damage += QStringLiteral("cannot be read to its end: ") + device.errorString();
    return contents;
}

Written write(const QString& file, const QList<VyBookmarkEntry>& entries, bool keepOld)
{
    Written written;
    const bool keeps = keepOld && isThere(file);
    if (keeps) {
        // Of a link, itself: what it leads to may be anybody's file.
        const QString kept = keptName(file, 1);
        if (!makeRoom(file, written.replaced) || !rename(file, kept)) {
            written.problem = QStringLiteral("the damaged file cannot be kept beside it");
            return written;
        }
        written.keptAs = kept;
    }
    if (!save(file, VyBookmarkFormat::write(entries), written.problem) && keeps) {
        rename(written.keptAs, file);
        written.keptAs.clear();
    }
    return written;
}

bool makeFolder(const QString& file)
{
    return QDir().mkpath(QFileInfo(file).absolutePath());
}

} // namespace VyBookmarkStore
