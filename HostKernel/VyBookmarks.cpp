// SPDX-License-Identifier: MIT
#include "VyBookmarks.h"

#include "VyBookmarkEntry.h"
#include "VyBookmarkList.h"
#include "VyFileSearch.h"
#include "VySystemBookmark.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <optional>

namespace {

std::optional<QString>& namedFile()
{
    static std::optional<QString> file;
    return file;
}

std::unique_ptr<CVyBookmarkList>& usedList()
{
    static std::unique_ptr<CVyBookmarkList> list;
    return list;
}

bool isFolderName(const QString& name)
{
    return name != QLatin1String(".") && name != QLatin1String("..") &&
           !name.contains(QLatin1Char('/'));
}

// Empty where there is no folder that is the application's own.
QString defaultFile()
{
    const QString application = QCoreApplication::applicationName();
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    if (application.isEmpty() || folder.isEmpty() || !isFolderName(application) ||
        !isFolderName(QCoreApplication::organizationName())) {
        qWarning("VyHostKernel: bookmarks: kept in memory alone, since the application has no "
                 "folder for its data that its name makes its own");
        return {};
    }
    if (!VyFileSearch::isOwn(QFile::encodeName(folder))) {
        qWarning("VyHostKernel: bookmarks: kept in memory alone, since %s belongs to another user",
                 qPrintable(folder));
        return {};
    }
    return folder + QStringLiteral("/bookmarks.jsonl");
}

CVyBookmarkList& list()
{
    std::unique_ptr<CVyBookmarkList>& used = usedList();
    if (!used)
        used = std::make_unique<CVyBookmarkList>(namedFile() ? *namedFile() : defaultFile());
    return *used;
}

} // namespace

bool VySetBookmarkFile(const QString& file)
{
    if (usedList()) {
        qWarning("VyHostKernel: bookmarks: the file is named too late, the list has been used");
        return false;
    }
    namedFile() = file.isEmpty() ? QString() : QDir::current().absoluteFilePath(file);
    return true;
}

QList<VyBookmark> VyBookmarks()
{
    return list().bookmarks();
}

void VyAddBookmark(const QString& path)
{
    list().add({path, {}, {}});
}

void VyAddBookmarkOfBytes(const QByteArray& path)
{
    list().add(vyBookmarkOfBytes(path));
}

void VyRemoveBookmark(const VyBookmark& bookmark)
{
    list().remove(bookmark);
}

void VyClearBookmarks()
{
    list().clear();
}

CVyBookmarkedFile::CVyBookmarkedFile(const VyBookmark& bookmark)
{
    const VyBookmark found = list().find(bookmark, m_access);
    m_path = found.path;
    m_bytes = found.bytes;
}

CVyBookmarkedFile::~CVyBookmarkedFile() = default;
