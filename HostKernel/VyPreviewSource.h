// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

class QIODevice;

/// A file as the preview readers see it: its size, read once, and pieces of it
/// that exist as a whole.
class CVyPreviewSource
{
public:
    /// Reads from \a device, which is open, can seek and outlives this object.
    explicit CVyPreviewSource(QIODevice& device);

    qint64 size() const { return m_size; }

    /// The \a length bytes at \a start; empty when not all of them lie inside
    /// the file or can be read. Nothing is allocated before that is known.
    QByteArray read(qint64 start, qint64 length);

private:
    QIODevice& m_device;
    const qint64 m_size;
};
