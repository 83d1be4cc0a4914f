// SPDX-License-Identifier: MIT
#include "VyPreviewFile.h"

#include <QFile>

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

static_assert(sizeof(off_t) == sizeof(qint64), "drawings may have more than 2 GiB");

CVyPreviewFile::CVyPreviewFile(const QString& path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat status = {};
    if (stat(name.constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return;
    // It may have become a FIFO since then, which O_NONBLOCK does not wait for.
    m_handle = ::open(name.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (m_handle < 0 || fstat(m_handle, &status) != 0 || !S_ISREG(status.st_mode))
        return;
    m_size = status.st_size;
    QIODevice::open(ReadOnly | Unbuffered);
}

CVyPreviewFile::~CVyPreviewFile()
{
    if (m_handle >= 0)
        ::close(m_handle);
}

qint64 CVyPreviewFile::readData(char* data, qint64 length)
{
    const qint64 start = pos();
    if (start < beginningSize && m_beginning.isEmpty()) {
        m_beginning.resize(static_cast<int>(std::min(beginningSize, m_size)));
        m_beginning.truncate(static_cast<int>(readAt(0, m_beginning.data(), m_beginning.size())));
    }
    const qint64 kept = std::clamp(m_beginning.size() - start, qint64(0), length);
    std::copy_n(m_beginning.constData() + (kept > 0 ? start : 0), kept, data);
    return kept + readAt(start + kept, data + kept, length - kept);
}

qint64 CVyPreviewFile::writeData(const char*, qint64)
{
    return -1;
}

// How many bytes could be read, up to the file's end or an error. A file system may
// answer with a part of what is asked.
qint64 CVyPreviewFile::readAt(qint64 start, char* data, qint64 length) const
{
    qint64 done = 0;
    while (done < length) {
        const ssize_t count = pread(m_handle, data + done, static_cast<size_t>(length - done),
                                    static_cast<off_t>(start + done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            break;
        done += count;
    }
    return done;
}
