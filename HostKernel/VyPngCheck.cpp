// SPDX-License-Identifier: MIT
#include "VyPngCheck.h"

#include "VyPreviewLimits.h"

#include <QtEndian>

#include <vector>

#define ZLIB_CONST
#include <zlib.h>

namespace VyPngCheck {

namespace {

const QByteArray signature = QByteArrayLiteral("\x89PNG\r\n\x1a\n");
constexpr int headerSize = 13;
constexpr int chunkFrame = 12; // length, type and sum around a chunk's data

enum ColourType : uchar
{
    Grey = 0,
    Rgb = 2,
    Palette = 3,
    GreyAlpha = 4,
    RgbAlpha = 6
};

struct Header
{
    qint64 width;
    qint64 height;
    int depth;
    int colourType;
    int compression;
    int filter;
    int interlacing; // 1: in seven passes
};

// What the chunks of a file hold that make its picture.
struct Parts
{
    QByteArray header;
    QByteArray palette;
    QByteArray transparency;
    QByteArray pixels;
    bool ended = false;
};

struct Chunk
{
    QByteArray type;
    QByteArray data;
};

quint32 number(const QByteArray& bytes, int at)
{
    return qFromBigEndian<quint32>(bytes.constData() + at);
}

quint32 sum(const QByteArray& bytes)
{
    const auto* data = reinterpret_cast<const Bytef*>(bytes.constData());
    return static_cast<quint32>(crc32(0, data, static_cast<uInt>(bytes.size())));
}

// The chunk at \a at, which moves behind it; one without a type when it is not
// whole or its sum is wrong. It refers to the bytes of \a png.
Chunk takeChunk(const QByteArray& png, int& at)
{
    const int left = png.size() - at - chunkFrame;
    if (left < 0 || number(png, at) > static_cast<quint32>(left))
        return {};
    const int length = static_cast<int>(number(png, at));
    const QByteArray summed = QByteArray::fromRawData(png.constData() + at + 4, length + 4);
    at += chunkFrame + length;
    if (sum(summed) != number(png, at - 4))
        return {};
    return {summed.left(4), QByteArray::fromRawData(summed.constData() + 4, length)};
}

// Adds \a chunk to \a parts; false when it has no place there.
bool addChunk(Parts& parts, const Chunk& chunk, bool followsPixels)
{
    if (parts.header.isEmpty()) {
        parts.header = chunk.data;
        return chunk.type == "IHDR" && chunk.data.size() == headerSize;
    }
    if (chunk.type == "IDAT") {
        const bool inOrder = parts.pixels.isEmpty() || followsPixels;
        parts.pixels += chunk.data;
        return inOrder;
    }
    const bool beforePixels = parts.pixels.isEmpty();
    if (chunk.type == "PLTE") {
        const bool isFirst = parts.palette.isEmpty();
        parts.palette = chunk.data;
        return isFirst && beforePixels;
    }
    if (chunk.type == "tRNS" && beforePixels)
        parts.transparency = chunk.data;
    parts.ended = chunk.type == "IEND";
    const bool canBeLeftOut = !chunk.type.isEmpty() && (chunk.type.at(0) & 0x20) != 0;
    return parts.ended || canBeLeftOut;
}

Parts takeParts(const QByteArray& png)
{
    Parts parts;
    int at = signature.size();
    bool followsPixels = false;
    while (!parts.ended) {
        const Chunk chunk = takeChunk(png, at);
        if (!addChunk(parts, chunk, followsPixels))
            return {};
        followsPixels = chunk.type == "IDAT";
    }
    return parts;
}

Header readHeader(const QByteArray& data)
{
    return {number(data, 0), number(data, 4), data.at(8), data.at(9),
            data.at(10),     data.at(11),     data.at(12)};
}

bool isColourSound(const Header& header, const Parts& parts)
{
    const bool isByte = header.depth == 8 || header.depth == 16;
    const bool isPart = header.depth == 1 || header.depth == 2 || header.depth == 4;
    const int colours = parts.palette.size() / 3;
    switch (header.colourType) {
    case Grey:
        return isByte || isPart;
    case Palette:
        return (header.depth == 8 || isPart) && parts.palette.size() % 3 == 0 && colours > 0 &&
               colours <= 1 << header.depth;
    case Rgb:
    case GreyAlpha:
    case RgbAlpha:
        return isByte;
    default:
        return false;
    }
}

bool isSound(const Header& header, const Parts& parts)
{
    return VyPreviewLimits::allowsPicture(header.width, header.height) &&
           isColourSound(header, parts) && header.compression == 0 && header.filter == 0 &&
           (header.interlacing == 0 || header.interlacing == 1);
}

// One of the pictures that follow each other in the pixels: the picture itself
// or, interlaced, its pixels in some places of each eight by eight.
struct Pass
{
    qint64 left, top, stepRight, stepDown;
};

const std::vector<Pass>& passes(const Header& header)
{
    static const std::vector<Pass> plain = {{0, 0, 1, 1}};
    static const std::vector<Pass> interlaced = {{0, 0, 8, 8}, {4, 0, 8, 8}, {0, 4, 4, 8},
                                                 {2, 0, 4, 4}, {0, 2, 2, 4}, {1, 0, 2, 2},
                                                 {0, 1, 1, 2}};
    return header.interlacing == 1 ? interlaced : plain;
}

int channels(const Header& header)
{
    switch (header.colourType) {
    case GreyAlpha:
        return 2;
    case Rgb:
        return 3;
    case RgbAlpha:
        return 4;
    default:
        return 1;
    }
}

// Unpacks the pixels piece by piece, so that a row is all that it ever holds.
class Unpacker
{
public:
    explicit Unpacker(const QByteArray& packed)
    {
        m_stream.next_in = reinterpret_cast<const Bytef*>(packed.constData());
        m_stream.avail_in = static_cast<uInt>(packed.size());
        m_ready = inflateInit2(&m_stream, 0) == Z_OK; // 0: the window that the data declare
    }
    ~Unpacker()
    {
        if (m_ready)
            inflateEnd(&m_stream);
    }
    Q_DISABLE_COPY(Unpacker)

    // Fills \a row with what comes next; false when there is not as much.
    bool fill(QByteArray& row)
    {
        const int result = unpack(row);
        return (result == Z_OK || result == Z_STREAM_END) && m_stream.avail_out == 0;
    }

    // Whether nothing comes any more and the sum at the end is right.
    bool atEnd()
    {
        QByteArray row(1, 0);
        return unpack(row) == Z_STREAM_END && m_stream.avail_in == 0;
    }

private:
    int unpack(QByteArray& row)
    {
        m_stream.next_out = reinterpret_cast<Bytef*>(row.data());
        m_stream.avail_out = static_cast<uInt>(row.size());
        return m_ready ? inflate(&m_stream, Z_NO_FLUSH) : Z_STREAM_ERROR;
    }

    z_stream m_stream = {};
    bool m_ready = false;
};

bool hasRows(Unpacker& unpacker, const Header& header, const Pass& pass)
{
    const qint64 columns = (header.width - pass.left + pass.stepRight - 1) / pass.stepRight;
    const qint64 rows = (header.height - pass.top + pass.stepDown - 1) / pass.stepDown;
    if (columns <= 0)
        return true;
    const qint64 bits = columns * channels(header) * header.depth;
    QByteArray row(static_cast<int>((bits + 7) / 8) + 1, 0);
    for (qint64 i = 0; i < rows; ++i) {
        constexpr char lastFilter = 4;
        if (!unpacker.fill(row) || static_cast<uchar>(row.at(0)) > lastFilter)
            return false;
    }
    return true;
}

bool hasPixels(const QByteArray& packed, const Header& header)
{
    Unpacker unpacker(packed);
    for (const Pass& pass : passes(header)) {
        if (!hasRows(unpacker, header, pass))
            return false;
    }
    return unpacker.atEnd();
}

QByteArray chunk(const QByteArray& type, const QByteArray& data)
{
    QByteArray bytes(4, 0);
    qToBigEndian(static_cast<quint32>(data.size()), bytes.data());
    const QByteArray summed = type + data;
    QByteArray end(4, 0);
    qToBigEndian(sum(summed), end.data());
    return bytes + summed + end;
}

} // namespace

Essentials essentials(const QByteArray& png)
{
    const Parts parts = png.startsWith(signature) ? takeParts(png) : Parts();
    if (!parts.ended)
        return {};
    const Header header = readHeader(parts.header);
    if (!isSound(header, parts) || !hasPixels(parts.pixels, header))
        return {};
    Essentials result{signature + chunk("IHDR", parts.header)};
    if (header.colourType == Palette) {
        result.file += chunk("PLTE", parts.palette.leftJustified(3 << header.depth, '\0'));
        result.colours = parts.palette.size() / 3;
    }
    if (!parts.transparency.isEmpty())
        result.file += chunk("tRNS", parts.transparency);
    result.file += chunk("IDAT", parts.pixels) + chunk("IEND", {});
    return result;
}

} // namespace VyPngCheck
