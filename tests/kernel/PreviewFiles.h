// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>

#include <vector>

/// Builds small files with previews in memory, sound ones unless a field says
/// otherwise, so that a test names exactly what is wrong with its file.
namespace PreviewFiles {

QByteArray le16(quint32 value);
QByteArray le32(qint64 value); ///< the low 32 bits
QByteArray be32(qint64 value); ///< the low 32 bits

/// A bitmap without file header, field by field.
struct Dib
{
    qint64 headerSize = 40;
    qint64 width = 0;
    qint64 height = 0;
    quint32 planes = 1;
    quint32 depth = 0;
    qint64 compression = 0;
    qint64 imageSize = 0;
    qint64 coloursUsed = 0;
    QByteArray masks;
    QByteArray palette;
    QByteArray pixels;

    QByteArray bytes() const;
};

/// A bitmap of \a width by \a height pixels that shows testPicture().
Dib testDib(int width, int height, int depth);
/// The same with the oldest header and its palette of three bytes a colour.
QByteArray testCoreDib(int width, int height, int depth);
/// A bitmap of 8 by 4 pixels in runs, \a compression 1 (8 bits) or 2 (4 bits).
Dib runLengthDib(int compression, const QByteArray& runs);
/// What testDib() shows: its pixels count through the colours of their depth.
QImage testPicture(int width, int height, int depth);

QByteArray pngChunk(const QByteArray& type, const QByteArray& data);
/// A PNG file made of \a chunks between signature and end.
QByteArray pngOf(const QByteArray& chunks);
QByteArray pngHeader(qint64 width, qint64 height, int depth, int colourType, int interlacing = 0);
/// The chunk with the pixels \a rows, a filter byte before each row.
QByteArray pngPixels(const QByteArray& rows);
/// A PNG file with 8-bit colours that shows testPicture() with depth 8.
QByteArray testPng(int width, int height);

/// One record of a DWG file's preview section; -1 stands for the true number.
struct Record
{
    int code = 0;
    QByteArray image;
    qint64 start = -1;
    qint64 size = -1;
};

/// The beginning of a DWG file with its preview section; -1 stands for the true
/// number.
struct Dwg
{
    QByteArray version = "AC1018";
    int sectionAt = 0x1C0;
    std::vector<Record> records;
    QByteArray gap; ///< between the records and the images
    qint64 seeker = -1;
    qint64 overall = -1;
    int count = -1;

    int imagesAt() const;
    QByteArray bytes() const;
    /// All but the sentinel at the end: the last byte is the last image's.
    QByteArray bytesToLastImage() const;
};

extern const QByteArray startSentinel;

/// A DXF file with \a body between a header section and the end.
QByteArray dxfOf(const QByteArray& body);
/// The section that spells \a bytes, \a perLine of them a line.
QByteArray thumbnailSection(const QByteArray& bytes, int perLine = 127);
/// The same with \a count for its number of bytes.
QByteArray thumbnailSection(const QByteArray& bytes, const QByteArray& count, int perLine = 127);

} // namespace PreviewFiles
