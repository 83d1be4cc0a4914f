// SPDX-License-Identifier: MIT
#pragma once

#include "VyHostKernelExport.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>

#include <memory>

class CVySystemBookmark;

/// \file
/// The files that the user chose in native panels, kept from one run of the
/// application to the next. All of this is for the user-interface thread alone.
///
/// The list
/// --------
/// holds at most 100 files, the latest choice first. A file is in it once:
/// choosing it again moves it to the front, under the name that it was chosen
/// by now. A file that was renamed, a second hard link and another way through
/// linked folders are the same file; a symbolic link and what it leads to are
/// two, since the link may lead elsewhere tomorrow. Nothing is taken for the
/// same file while another file lies under the older path: of "plan.bak", which
/// was "plan.dwg", and the new "plan.dwg" both stay.
///
/// The store
/// ---------
/// The list is kept in a file, which is read when the list is first asked for
/// or changed, not when the library is loaded. Each change is written at once:
/// the file is locked, what other processes have changed meanwhile is read, the
/// change is put on top of it and the result replaces the file in one step. So
/// no process loses the entries of another, and a crash or a full disk leaves
/// the file as it was. Others' changes are seen after the first change of one's
/// own. Waiting for another process takes a second at most, and after that no
/// time until it has let go.
///
/// Where the file cannot be written (a folder without the right, a full disk,
/// another process that does not let go) the list goes on in memory, one warning
/// says so, and the next change tries again to write all that was not. Warnings
/// go through Qt's logging and begin with "VyHostKernel: bookmarks: ".
///
/// The file
/// --------
/// is named by VySetBookmarkFile(), else it is "bookmarks.jsonl" in
/// QStandardPaths::AppDataLocation, whose folder is made when something is
/// first written. The list is kept in memory alone, and one warning says so,
/// where that folder is not the application's own: without an application
/// name, with an application or organisation name that is "." or ".." or has a
/// separator in it, and where it belongs to another user, as it may under sudo.
///
/// It is UTF-8 with one JSON object (RFC 8259) in each line, so that a damaged
/// line takes no other one with it and a cut file still has the lines before
/// the cut. Its mode is 0600. The first line says what it is:
///
///     {"entries":2,"format":"bookmarks","version":1}
///
///   format   "bookmarks".
///   version  1. A file of a later version is not read.
///   entries  the number of lines that follow; may be left out. When fewer
///            follow, the file is cut.
///
/// Every other line is an entry, the latest first (shown in several lines here):
///
///     {"chosen":"2024-05-17T09:30:00.125Z",
///      "file":{"born":"2024-05-02T07:00:00.250Z","device":"65024","inode":"9007199254740993",
///              "modified":"2024-05-16T15:12:44.000Z","size":48213},
///      "path":"/plans/gear.dwg"}
///
///   path      the path that was chosen, as text: at most 8192 UTF-16 code
///             units. What is no character (a surrogate alone) is written \uXXXX.
///   chosen    when: ISO 8601, UTC, milliseconds. Always after the entry below,
///             whatever the clock says, which may have been set back.
///   bytes     only where the text cannot name the file: the path in the
///             system's bytes, at most 8192, percent-encoded (RFC 3986) but
///             for "/".
///   file      what the file is told by when it was renamed; left out where
///             nothing was known, for example for a file not yet written:
///     device, inode  numbers, as decimal text because JSON's lose digits
///     size           in bytes
///     modified       as chosen
///     born           as chosen; left out where the file system does not keep it
///   bookmark  only on macOS: NSURL's bookmark data in base64, at most 16384
///             characters; security-scoped where the application is sandboxed.
///
/// Other fields are ignored and are gone after the next change. Empty lines are
/// ignored. Lines end in "\n"; the last one may do without.
///
/// A damaged file
/// --------------
/// A line that is no entry is dropped; of an entry whose "file", "bytes" or
/// "bookmark" is wrong only that. Nothing is read of a file that is larger than
/// 16 MiB, of a later version, unreadable, not a regular file or a link that
/// leads nowhere; of lines, nothing of one longer than 128 KiB and of those after
/// the first 1000. In all these cases a warning says what was lost, and the
/// file is kept as it was beside the new one, which is written at once: with
/// ".damaged-1" after its name, where an earlier one has become ".damaged-2", and
/// so on up to 5; a warning says when the fifth is deleted to make room. A link
/// to an intact file is written through; one to a damaged file is itself what is
/// kept, and the file that it leads to is left alone. A process that still has
/// the list in memory loses nothing. No such file, or an intact one without
/// entries, is an empty list.
///
/// Beside the file, or the link, there is another one with ".lock" after its name
/// while it is being written; all processes should therefore take the same path.
/// After a crash in that moment there may be one with a dot and six letters, which
/// nothing reads.

/// A file that the user chose.
struct VyBookmark
{
    QString path;     ///< absolute, with native separators, as it was chosen
    QDateTime chosen; ///< UTC
    /// The path in the system's bytes where \c path cannot say it, because they
    /// are no valid text in the encoding of file names; else empty. Qt cannot
    /// open such a file, open(2) can.
    QByteArray bytes;
};

/// Names the file that the list is kept in, before the list is first asked for
/// or changed; the empty string keeps it in memory alone. A relative path is
/// taken from the folder that is current now. Its folder is made when something
/// is first written, and may be another user's: that is the host's to know.
///
/// Answers false, changes nothing and warns when the list has been used.
VY_HOSTKERNEL_EXPORT bool VySetBookmarkFile(const QString& file);

/// The list, the latest choice first. The files themselves are not looked at:
/// a file that was deleted or renamed is still listed under the path it was
/// chosen by. CVyBookmarkedFile says where it is.
VY_HOSTKERNEL_EXPORT QList<VyBookmark> VyBookmarks();

/// Puts \a path first in the list. An empty path is ignored, one of more than
/// 8192 UTF-16 code units with a warning. A path that is not absolute is kept,
/// but its file is not found again when it was renamed.
VY_HOSTKERNEL_EXPORT void VyAddBookmark(const QString& path);

/// As VyAddBookmark(), for a path in the system's own bytes, as readdir(3) or
/// -[NSURL fileSystemRepresentation] have it, whose text may be lossy. At most
/// 8192 bytes.
VY_HOSTKERNEL_EXPORT void VyAddBookmarkOfBytes(const QByteArray& path);

/// Takes the file of \a bookmark out of the list and its file, whenever it was
/// chosen. One that is not in the list is ignored.
VY_HOSTKERNEL_EXPORT void VyRemoveBookmark(const VyBookmark& bookmark);

/// Empties the list and its file. What was kept of damaged files stays.
VY_HOSTKERNEL_EXPORT void VyClearBookmarks();

/// Where a file of the list is now, and, in a sandboxed application, the leave
/// to open it while this object lives.
///
/// - What lies under the path of the entry is the file, even when it is
///   another one by now: the path is what the user chose.
/// - Else the file is looked for: on macOS by the system, wherever on its
///   volume it was moved; then, and elsewhere, in the folder of the path alone,
///   of which the first 10,000 names are read. Without a time of birth (some
///   network and removable file systems), a file that was also changed is not found.
/// - Else it is not found, and the entry stays as it is.
///
/// What was found is noted: the entry has the file's path of now, and its facts.
class VY_HOSTKERNEL_EXPORT CVyBookmarkedFile
{
public:
    /// Looks for the file of \a bookmark. One that is not in the list is only
    /// looked for under its path.
    explicit CVyBookmarkedFile(const VyBookmark& bookmark);
    ~CVyBookmarkedFile();
    Q_DISABLE_COPY(CVyBookmarkedFile)

    /// The path of now, as VyBookmark::path; empty when the file was not found.
    QString path() const { return m_path; }
    /// As VyBookmark::bytes.
    QByteArray bytes() const { return m_bytes; }

private:
    QString m_path;
    QByteArray m_bytes;
    std::unique_ptr<CVySystemBookmark> m_access;
};
