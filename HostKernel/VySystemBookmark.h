// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// The system's own record of a file, which leads to the file wherever on its
/// volume it was moved. macOS has one; elsewhere none is made and none is
/// resolved. Paths are in the system's own bytes.
///
/// In a sandboxed application the record is security-scoped: it carries the
/// user's leave to open the file over to later runs.
class CVySystemBookmark
{
public:
    /// A record of what lies under \a path; empty where the system makes none.
    static QByteArray of(const QByteArray& path);

    /// Resolves \a record, without asking the user and without mounting
    /// volumes. Where the application is sandboxed, it may open the file as long
    /// as this object lives.
    explicit CVySystemBookmark(const QByteArray& record);
    ~CVySystemBookmark();
    Q_DISABLE_COPY(CVySystemBookmark)

    /// Where the file is now; empty where it was not found.
    QByteArray path() const { return m_path; }
    /// Whether the system asks for a new record to be made in its place.
    bool isStale() const { return m_isStale; }

private:
    QByteArray m_path;
    bool m_isStale = false;
    void* m_url = nullptr; // an NSURL that this object owns and has been given access to
};
