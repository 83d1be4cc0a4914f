// SPDX-License-Identifier: MIT
#pragma once

#include <QIODevice>
#include <QMap>

/// A file of any size in which only some pieces are other than zero bytes. It
/// counts what is read of it.
class SparseDevice : public QIODevice
{
public:
    /// \a size bytes, of which those from \a readable on cannot be read.
    explicit SparseDevice(qint64 size, qint64 readable = std::numeric_limits<qint64>::max())
        : m_size(size)
        , m_readable(qMin(size, readable))
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    /// A file of \a bytes alone.
    explicit SparseDevice(const QByteArray& bytes)
        : SparseDevice(bytes.size())
    {
        put(0, bytes);
    }

    void put(qint64 at, const QByteArray& bytes) { m_pieces.insert(at, bytes); }

    qint64 size() const override { return m_size; }
    qint64 bytesRead() const { return m_bytesRead; }
    int reads() const { return m_reads; }
    qint64 largestRequest() const { return m_largestRequest; }

protected:
    qint64 readData(char* data, qint64 length) override
    {
        ++m_reads;
        m_largestRequest = qMax(m_largestRequest, length);
        const qint64 start = pos();
        const qint64 count = qMax(qint64(0), qMin(length, m_readable - start));
        std::fill(data, data + count, '\0');
        for (auto piece = m_pieces.cbegin(); piece != m_pieces.cend(); ++piece) {
            const qint64 first = qMax(start, piece.key());
            const qint64 end = qMin(start + count, piece.key() + piece->size());
            if (first < end)
                std::copy_n(piece->constData() + (first - piece.key()), end - first,
                            data + (first - start));
        }
        m_bytesRead += count;
        return count;
    }

    qint64 writeData(const char*, qint64) override { return -1; }

private:
    qint64 m_size;
    qint64 m_readable;
    qint64 m_bytesRead = 0;
    int m_reads = 0;
    qint64 m_largestRequest = 0;
    QMap<qint64, QByteArray> m_pieces;
};
