// SPDX-License-Identifier: MIT
#include "VyDibCheck.h"

#include "VyPreviewLimits.h"

#include <QtEndian>

#include <algorithm>
#include <array>

namespace VyDibCheck {

namespace {

constexpr qint64 coreHeaderSize = 12; // the oldest header, with 16-bit sizes
constexpr qint64 infoHeaderSize = 40; // the usual one; the later ones begin with it
constexpr std::array<qint64, 4> headerSizes = {coreHeaderSize, infoHeaderSize, 108, 124};

enum Compression : quint32
{
    None = 0,
    RunLength8 = 1,
    RunLength4 = 2,
    Masks = 3
};

struct Header
{
    qint64 size;
    qint64 width;
    qint64 height; // negative: rows from top to bottom
    int planes;
    int depth;
    quint32 compression;
    qint64 coloursUsed;
};

template <typename Integer>
Integer number(const QByteArray& bytes, qint64 at)
{
    return qFromLittleEndian<Integer>(bytes.constData() + at);
}

Header readHeader(const QByteArray& dib)
{
    const qint64 size = number<quint32>(dib, 0);
    if (size == coreHeaderSize) {
        return {size,
                number<quint16>(dib, 4),
                number<quint16>(dib, 6),
                number<quint16>(dib, 8),
                number<quint16>(dib, 10),
                None,
                0};
    }
    return {size,
            number<qint32>(dib, 4),
            number<qint32>(dib, 8),
            number<quint16>(dib, 12),
            number<quint16>(dib, 14),
            number<quint32>(dib, 16),
            number<quint32>(dib, 32)};
}

bool isRunLength(const Header& header)
{
    return header.compression == RunLength8 || header.compression == RunLength4;
}

bool isCompressionSound(const Header& header)
{
    switch (header.compression) {
    case None:
        return true;
    case RunLength8:
        return header.depth == 8 && header.height > 0;
    case RunLength4:
        return header.depth == 4 && header.height > 0;
    case Masks:
        return header.depth == 16 || header.depth == 32;
    default:
        return false;
    }
}

bool isSound(const Header& header)
{
    static constexpr std::array<int, 6> depths = {1, 4, 8, 16, 24, 32};
    const qint64 mostColours = header.depth <= 8 ? 1 << header.depth : 256;
    return std::find(headerSizes.begin(), headerSizes.end(), header.size) != headerSizes.end() &&
           std::find(depths.begin(), depths.end(), header.depth) != depths.end() &&
           VyPreviewLimits::allowsPicture(header.width, std::abs(header.height)) &&
           header.planes == 1 && header.coloursUsed <= mostColours && isCompressionSound(header);
}

// The masks of red, green and blue stand behind the usual header and at the
// same place inside the later ones.
bool haveMasks(const QByteArray& dib)
{
    return dib.size() >= infoHeaderSize + 12 && number<quint32>(dib, infoHeaderSize) != 0 &&
           number<quint32>(dib, infoHeaderSize + 4) != 0 &&
           number<quint32>(dib, infoHeaderSize + 8) != 0;
}

qint64 paletteSize(const Header& header)
{
    const qint64 colours =
        header.coloursUsed == 0 && header.depth <= 8 ? 1 << header.depth : header.coloursUsed;
    return colours * (header.size == coreHeaderSize ? 3 : 4);
}

// Follows the runs of a run-length picture, which may declare any size in a few
// bytes: true when all of them stay inside the picture up to its end mark.
class Runs
{
public:
    Runs(const QByteArray& dib, qint64 start, const Header& header)
        : m_dib(dib)
        , m_at(start)
        , m_header(header)
    {}

    bool stayInside()
    {
        bool ended = false;
        while (!ended && has(2)) {
            const qint64 count = byte();
            const qint64 value = byte();
            ended = count == 0 && value == 1;
            if (!ended && !(count > 0 ? pixels(count) : escape(value)))
                return false;
        }
        return ended;
    }

private:
    bool has(qint64 bytes) const { return bytes <= m_dib.size() - m_at; }
    qint64 byte() { return static_cast<uchar>(m_dib.at(static_cast<int>(m_at++))); }

    bool pixels(qint64 count)
    {
        m_x += count;
        return m_x <= m_header.width && m_y < m_header.height;
    }

    bool escape(qint64 value)
    {
        if (value == 0) {
            m_x = 0;
            return ++m_y <= m_header.height;
        }
        return value == 2 ? jump() : literal(value);
    }

    bool jump()
    {
        if (!has(2))
            return false;
        const qint64 right = byte();
        m_y += byte();
        return pixels(right);
    }

    // So many single pixels, padded to an even number of bytes.
    bool literal(qint64 count)
    {
        m_at += (count * m_header.depth + 15) / 16 * 2;
        return pixels(count);
    }

    const QByteArray& m_dib;
    qint64 m_at;
    const Header& m_header;
    qint64 m_x = 0;
    qint64 m_y = 0;
};

// Where the pixels of a bitmap of \a size bytes begin that begins with \a dib; 0 for
// one whose header is not sound or that has no place for them.
qint64 pixelOffset(const QByteArray& dib, qint64 size)
{
    if (dib.size() < infoHeaderSize)
        return 0;
    const Header header = readHeader(dib);
    if (!isSound(header) || (header.compression == Masks && !haveMasks(dib)))
        return 0;
    const bool masksFollow = header.compression == Masks && header.size == infoHeaderSize;
    const qint64 pixels = header.size + (masksFollow ? 12 : 0) + paletteSize(header);
    const qint64 stride = (header.width * header.depth + 31) / 32 * 4;
    const qint64 rows = isRunLength(header) ? 0 : stride * std::abs(header.height);
    return rows <= size - pixels ? pixels : 0;
}

} // namespace

qint64 pixelOffset(const QByteArray& dib)
{
    const qint64 pixels = pixelOffset(dib, dib.size());
    if (pixels == 0)
        return 0;
    const Header header = readHeader(dib);
    return !isRunLength(header) || Runs(dib, pixels, header).stayInside() ? pixels : 0;
}

bool canBegin(const QByteArray& beginning, qint64 size)
{
    return pixelOffset(beginning, size) != 0;
}

} // namespace VyDibCheck
