// SPDX-License-Identifier: MIT
#pragma once

#include "QuietTest.h"
#include "VyBookmarkList.h"

#include <QTemporaryDir>
#include <QtTest>

/// A test of lists of bookmarks that are kept in files, with a folder of its
/// own for each function. Two lists of one file stand for two processes.
class BookmarkTest : public QuietTest
{
    Q_OBJECT

protected:
    QString in(const QString& name) const { return m_folder->filePath(name); }
    QString store() const { return in(QStringLiteral("bookmarks.jsonl")); }
    /// The file beside the store that a damaged one is kept as.
    QString kept(int number = 1) const;

    /// Makes a file in the folder.
    QString newFile(const QString& name, const QByteArray& text = QByteArray()) const;
    static QByteArray textOf(const QString& file);
    /// The names in the folder, hidden ones, too.
    QStringList names() const;

    static void add(CVyBookmarkList& list, const QString& path);
    static QStringList paths(CVyBookmarkList& list);
    /// What a new process reads of the store.
    QStringList storedPaths() const;

    /// The text of a store with an entry for each path, as chosen in the year.
    static QByteArray storeText(const QStringList& paths, int year = 2024);
    static QByteArray entryLine(const QString& path, int year = 2024);

protected Q_SLOTS:
    void init();
    void cleanup();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};
