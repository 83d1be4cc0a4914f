// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <fcntl.h>
#include <unistd.h>

/// What this process reads from files while the object lives, as Linux counts it.
class ReadCount
{
public:
    /// Whether the system counts it.
    static bool isKnown() { return access(path, R_OK) == 0; }

    struct Reads
    {
        qint64 calls;
        qint64 bytes; ///< that they answered with
    };

    /// What has been read so far, without what it takes to ask.
    Reads reads() const
    {
        const QByteArray end = text();
        return {field(end, "syscr: ") - field(m_start, "syscr: ") - 1,
                field(end, "rchar: ") - field(m_start, "rchar: ") - m_start.size()};
    }

private:
    static constexpr const char* path = "/proc/self/io";

    static QByteArray text()
    {
        QByteArray bytes(512, '\0');
        const int handle = open(path, O_RDONLY | O_CLOEXEC);
        const ssize_t size = read(handle, bytes.data(), static_cast<size_t>(bytes.size()));
        close(handle);
        return bytes.left(static_cast<int>(size));
    }

    static qint64 field(const QByteArray& text, const QByteArray& name)
    {
        const int at = text.indexOf(name) + name.size();
        return text.mid(at, text.indexOf('\n', at) - at).toLongLong();
    }

    const QByteArray m_start = text();
};
