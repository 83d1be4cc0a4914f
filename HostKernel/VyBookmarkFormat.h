// SPDX-License-Identifier: MIT
#pragma once

#include "VyBookmarkEntry.h"

#include <QStringList>

/// The text of the file that bookmarks are kept in; VyBookmarks.h describes it.
namespace VyBookmarkFormat {

constexpr int version = 1;
constexpr qint64 mostFileBytes = 16LL * 1024 * 1024; ///< more than 100 longest lines
constexpr int mostLineBytes = 128 * 1024;            ///< more than the longest entry has
constexpr int mostLines = 1000;

struct Contents
{
    QList<VyBookmarkEntry> entries; ///< as in the file, also twice and out of order
    QStringList damage;             ///< what is wrong, each as the end of "the file ..."
};

QByteArray write(const QList<VyBookmarkEntry>& entries);

/// Reads all that can be read. \a text is at most mostFileBytes long.
Contents read(const QByteArray& text);

} // namespace VyBookmarkFormat
