// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

struct VyFileFacts;

/// Questions about files under paths in the system's own bytes, because not
/// every name of a file has a text.
namespace VyFileSearch {

/// How many names of a folder are read at most.
constexpr int mostNames = 10000;

/// Whether there is a file or folder. A link that leads nowhere is none.
bool exists(const QByteArray& path);

/// The path, in the folder of \a path alone, of the file with \a facts; the
/// first in the order of bytes where it has several names, empty where it has
/// none. Of a folder with more than \a names names those that the system lists
/// first are looked at. Only names whose number of inode fits cost more than the
/// reading of the folder.
QByteArray renamed(const QByteArray& path, const VyFileFacts& facts, int names = mostNames);

/// Whether \a folder, or where it is not there yet the nearest folder above
/// that is, belongs to the user who runs the process. \a folder is absolute.
bool isOwn(const QByteArray& folder);

} // namespace VyFileSearch
