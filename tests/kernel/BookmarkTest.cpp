// SPDX-License-Identifier: MIT
#include "BookmarkTest.h"

#include "VySystemBookmark.h"

void BookmarkTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    QuietTest::init();
}

void BookmarkTest::cleanup()
{
    QuietTest::cleanup();
    m_folder.reset();
}

QString BookmarkTest::kept(int number) const
{
    return store() + QStringLiteral(".damaged-%1").arg(number);
}

QString BookmarkTest::newFile(const QString& name, const QByteArray& text) const
{
    QFile file(in(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("no test file");
    return file.fileName();
}

QByteArray BookmarkTest::textOf(const QString& file)
{
    QFile device(file);
    return device.open(QIODevice::ReadOnly) ? device.readAll() : QByteArray();
}

QStringList BookmarkTest::names() const
{
    return QDir(m_folder->path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

void BookmarkTest::add(CVyBookmarkList& list, const QString& path)
{
    list.add({path, {}, {}});
}

QStringList BookmarkTest::paths(CVyBookmarkList& list)
{
    QStringList result;
    const QList<VyBookmark> bookmarks = list.bookmarks();
    for (const VyBookmark& bookmark : bookmarks)
        result.append(bookmark.path);
    return result;
}

QStringList BookmarkTest::storedPaths() const
{
    CVyBookmarkList list(store());
    return paths(list);
}

QByteArray BookmarkTest::entryLine(const QString& path, int year)
{
    return QStringLiteral("{\"chosen\":\"%1-05-17T09:30:00.000Z\",\"path\":\"%2\"}\n")
        .arg(year)
        .arg(path)
        .toUtf8();
}

QByteArray BookmarkTest::storeText(const QStringList& paths, int year)
{
    QByteArray text = "{\"entries\":" + QByteArray::number(paths.size()) +
                      ",\"format\":\"bookmarks\",\"version\":1}\n";
    for (const QString& path : paths)
        text += entryLine(path, year);
    return text;
}

#include "moc_BookmarkTest.cpp"
