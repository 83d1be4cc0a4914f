// SPDX-License-Identifier: MIT
#include "PreviewFiles.h"

#include <QtEndian>

namespace PreviewFiles {

const QByteArray startSentinel =
    QByteArrayLiteral("\x1F\x25\x6D\x07\xD4\x36\x28\x28\x9D\x57\xCA\x3F\x9D\x44\x10\x2B");

namespace {

// The colour with this number in a picture of this depth.
QRgb colour(int index)
{
    return qRgb(index * 37 % 256, 255 - index, index * 11 % 256);
}

int colourIndex(int x, int y, int width, int depth)
{
    return (x + y * width) % (1 << qMin(depth, 8));
}

QByteArray palette(int colours, int bytesPerColour)
{
    QByteArray result;
    for (int i = 0; i < colours; ++i)
        result += le32(colour(i)).left(3) + QByteArray(bytesPerColour - 3, 0);
    return result;
}

// One row, packed, padded to four bytes.
QByteArray dibRow(int y, int width, int depth)
{
    QByteArray row((width * depth + 31) / 32 * 4, 0);
    for (int x = 0; x < width; ++x) {
        const int index = colourIndex(x, y, width, depth);
        if (depth > 8) {
            row.replace(x * depth / 8, depth / 8, le32(colour(index) & 0xFFFFFF).left(depth / 8));
        } else {
            const int at = x * depth / 8;
            const int shift = 8 - depth - x * depth % 8;
            row[at] = static_cast<char>(row.at(at) | index << shift);
        }
    }
    return row;
}

quint32 crc(const QByteArray& bytes)
{
    quint32 sum = 0xFFFFFFFFu;
    for (const char byte : bytes) {
        sum ^= static_cast<uchar>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum >> 1) ^ ((sum & 1) != 0 ? 0xEDB88320u : 0u);
    }
    return ~sum;
}

qint64 orTrue(qint64 declared, qint64 real)
{
    return declared < 0 ? real : declared;
}

} // namespace

QByteArray le16(quint32 value)
{
    return le32(value).left(2);
}

QByteArray le32(qint64 value)
{
    QByteArray bytes(4, 0);
    qToLittleEndian(static_cast<quint32>(value), bytes.data());
    return bytes;
}

QByteArray be32(qint64 value)
{
    QByteArray bytes(4, 0);
    qToBigEndian(static_cast<quint32>(value), bytes.data());
    return bytes;
}

QByteArray Dib::bytes() const
{
    return le32(headerSize) + le32(width) + le32(height) + le16(planes) + le16(depth) +
           le32(compression) + le32(imageSize) + le32(0) + le32(0) + le32(coloursUsed) + le32(0) +
           masks + palette + pixels;
}

Dib testDib(int width, int height, int depth)
{
    Dib dib;
    dib.width = width;
    dib.height = height;
    dib.depth = static_cast<quint32>(depth);
    if (depth <= 8)
        dib.palette = palette(1 << depth, 4);
    for (int y = height; --y >= 0;)
        dib.pixels += dibRow(y, width, depth);
    return dib;
}

QByteArray testCoreDib(int width, int height, int depth)
{
    const QByteArray colours = depth <= 8 ? palette(1 << depth, 3) : QByteArray();
    return le32(12) + le16(static_cast<quint32>(width)) + le16(static_cast<quint32>(height)) +
           le16(1) + le16(static_cast<quint32>(depth)) + colours +
           testDib(width, height, depth).pixels;
}

Dib runLengthDib(int compression, const QByteArray& runs)
{
    Dib dib = testDib(8, 4, compression == 1 ? 8 : 4);
    dib.compression = compression;
    dib.pixels = runs;
    return dib;
}

QImage testPicture(int width, int height, int depth)
{
    QImage picture(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            picture.setPixel(x, y, colour(colourIndex(x, y, width, depth)));
    }
    return picture;
}

QByteArray pngChunk(const QByteArray& type, const QByteArray& data)
{
    return be32(data.size()) + type + data + be32(crc(type + data));
}

QByteArray pngOf(const QByteArray& chunks)
{
    return "\x89PNG\r\n\x1a\n" + chunks + pngChunk("IEND", {});
}

QByteArray pngHeader(qint64 width, qint64 height, int depth, int colourType, int interlacing)
{
    const char end[] = {static_cast<char>(depth), static_cast<char>(colourType), 0, 0,
                        static_cast<char>(interlacing)};
    return pngChunk("IHDR", be32(width) + be32(height) + QByteArray(end, sizeof end));
}

QByteArray pngPixels(const QByteArray& rows)
{
    return pngChunk("IDAT", qCompress(rows).mid(4));
}

QByteArray testPng(int width, int height)
{
    QByteArray rows;
    const QImage picture = testPicture(width, height, 8).convertToFormat(QImage::Format_RGB888);
    for (int y = 0; y < height; ++y) {
        rows += '\0';
        rows.append(reinterpret_cast<const char*>(picture.constScanLine(y)), 3 * width);
    }
    return pngOf(pngHeader(width, height, 8, 2) + pngPixels(rows));
}

int Dwg::imagesAt() const
{
    return sectionAt + 21 + 9 * static_cast<int>(records.size()) + gap.size();
}

QByteArray Dwg::bytesToLastImage() const
{
    QByteArray table;
    QByteArray images;
    for (const Record& record : records) {
        table += static_cast<char>(record.code);
        table += le32(orTrue(record.start, imagesAt() + images.size()));
        table += le32(orTrue(record.size, record.image.size()));
        images += record.image;
    }
    const QByteArray beginning = version + QByteArray(7, 0) + le32(orTrue(seeker, sectionAt));
    return beginning + QByteArray(sectionAt - beginning.size(), 0) + startSentinel +
           le32(orTrue(overall, 1 + table.size() + images.size())) +
           static_cast<char>(orTrue(count, static_cast<qint64>(records.size()))) + table + gap +
           images;
}

QByteArray Dwg::bytes() const
{
    QByteArray endSentinel = startSentinel;
    for (char& byte : endSentinel)
        byte = static_cast<char>(~byte);
    return bytesToLastImage() + endSentinel;
}

QByteArray dxfOf(const QByteArray& body)
{
    QByteArray file = "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1015\n  0\nENDSEC\n";
    file.append(body); // in one piece, where + takes byte after byte
    file.append("  0\nEOF\n");
    return file;
}

QByteArray thumbnailSection(const QByteArray& bytes, int perLine)
{
    return thumbnailSection(bytes, QByteArray::number(bytes.size()), perLine);
}

QByteArray thumbnailSection(const QByteArray& bytes, const QByteArray& count, int perLine)
{
    QByteArray section = "  0\nSECTION\n  2\nTHUMBNAILIMAGE\n 90\n" + count + "\n";
    // Piece by piece: adding what is still to be put together makes room each time.
    for (int at = 0; at < bytes.size(); at += perLine) {
        section += "310\n";
        section += bytes.mid(at, perLine).toHex().toUpper();
        section += "\n";
    }
    section += "  0\nENDSEC\n";
    return section;
}

} // namespace PreviewFiles
