// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QIODevice>

/// A regular file that is read for its preview, with as few system calls as that
/// takes: on a slow network share each of them costs a round trip. It is looked at,
/// opened, asked for its size, and read with one call for each piece.
class CVyPreviewFile : public QIODevice
{
public:
    /// How much of the beginning is read with the first piece that lies in it, and
    /// kept: what the readers know their files by stands there, and of a DWG file
    /// nearly always all that leads to the picture.
    static constexpr qint64 beginningSize = 4096;

    /// Opens the regular file, or link to one, at \a path for reading; isOpen()
    /// answers whether that succeeded. What is no regular file is not opened: that
    /// could block until somebody writes. \a path has no NUL in it.
    explicit CVyPreviewFile(const QString& path);
    ~CVyPreviewFile() override;

    /// The size that the file had when it was opened.
    qint64 size() const override { return m_size; }

protected:
    qint64 readData(char* data, qint64 length) override;
    qint64 writeData(const char* data, qint64 length) override;

private:
    qint64 readAt(qint64 start, char* data, qint64 length) const;

    int m_handle = -1;
    qint64 m_size = 0;
    QByteArray m_beginning; // empty until it is needed
};
