// SPDX-License-Identifier: MIT
#include "VyPreviewImage.h"

#include "VyDibCheck.h"
#include "VyPngCheck.h"
#include "VyPreviewLimits.h"
#include "VyPreviewSource.h"
#include "VySvgCheck.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImageReader>
#include <QtEndian>

#include <algorithm>
#include <cstdlib>
#include <mutex>

namespace VyPreviewImage {

namespace {

// Takes the messages of this thread while it lives: decoders describe what is
// wrong with a picture in warnings, and a picture that is only half there comes
// with nothing else. The messages of other threads go where they went before.
class DecoderMessages
{
public:
    DecoderMessages()
        : m_turn(s_turn)
    {
        s_count = &m_count;
        const std::lock_guard<std::mutex> lock(s_previousMutex);
        const QtMessageHandler found = qInstallMessageHandler(take);
        if (found != take) // put back by somebody who had found it here
            s_previous = found;
    }
    ~DecoderMessages()
    {
        const QtMessageHandler current = qInstallMessageHandler(previous());
        if (current != take) // somebody else's, installed meanwhile
            qInstallMessageHandler(current);
        s_count = nullptr;
    }
    Q_DISABLE_COPY(DecoderMessages)

    bool any() const { return m_count > 0; }

private:
    static void take(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        if (s_count)
            ++*s_count;
        else
            previous()(type, context, text);
    }

    // Waits for the moment between take() being installed and its predecessor known.
    static QtMessageHandler previous()
    {
        const std::lock_guard<std::mutex> lock(s_previousMutex);
        return s_previous;
    }

    static inline std::mutex s_turn; // one decoder at a time
    static inline std::mutex s_previousMutex;
    static inline QtMessageHandler s_previous = nullptr;
    static inline thread_local int* s_count = nullptr; // the decoding thread's m_count

    std::lock_guard<std::mutex> m_turn;
    int m_count = 0;
};

// The picture, unless it has a pixel whose colour is none of the first \a colours
// of its palette; 0 stands for a picture without palette.
QImage withinPalette(const QImage& picture, int colours)
{
    constexpr int byte = 8; // the depth of all pictures with a palette but those of one bit
    if (colours == 0 || picture.depth() > byte || colours >= 1 << picture.depth())
        return picture;
    const QImage indices =
        picture.depth() == byte ? picture : picture.convertToFormat(QImage::Format_Indexed8);
    for (int y = 0; y < indices.height(); ++y) {
        const uchar* row = indices.constScanLine(y);
        if (std::any_of(row, row + indices.width(),
                        [colours](uchar index) { return index >= colours; }))
            return {};
    }
    return picture;
}

// In the size that the picture declares, or in \a drawnSize for one that can be
// drawn in any.
QImage decoded(QByteArray bytes, const char* format, QSize drawnSize = {})
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    const DecoderMessages messages;
    // A top-down bitmap's height is negative here.
    const QSize size(reader.size().width(), std::abs(reader.size().height()));
    if (!VyPreviewLimits::allowsPicture(size.width(), size.height()))
        return {};
    if (drawnSize.isValid())
        reader.setScaledSize(drawnSize);
    // Qt decodes into a picture of the right kind that it is given. A run-length
    // bitmap can jump over pixels, which would show what the memory held before.
    QImage picture(drawnSize.isValid() ? drawnSize : size, reader.imageFormat());
    picture.fill(0);
    return reader.read(&picture) && !messages.any() ? picture : QImage();
}

constexpr int bmpHeaderSize = 14;
constexpr int bmpOffsetAt = 10;

QByteArray bmpHeader(qint64 pixelOffset)
{
    QByteArray header(bmpHeaderSize, '\0');
    header.replace(0, 2, "BM");
    qToLittleEndian(static_cast<quint32>(bmpHeaderSize + pixelOffset), header.data() + bmpOffsetAt);
    return header;
}

// Only when the pixels stand where they are expected, without a gap.
QImage fromBmp(const QByteArray& bmp)
{
    const QByteArray dib = bmp.mid(bmpHeaderSize);
    const auto declared = qFromLittleEndian<quint32>(bmp.constData() + bmpOffsetAt);
    return declared == bmpHeaderSize + VyDibCheck::pixelOffset(dib) ? fromDib(dib) : QImage();
}

QImage fromJpeg(const QByteArray& jpeg)
{
    const QByteArray scan = "\xFF\xDA"; // each goes over all of a progressive picture's pixels
    const QByteArray end = "\xFF\xD9";
    const bool isWhole = jpeg.lastIndexOf(end) > jpeg.lastIndexOf(scan);
    return isWhole && jpeg.count(scan) <= VyPreviewLimits::mostScans ? decoded(jpeg, "jpeg")
                                                                     : QImage();
}

// Null also where Qt has no plug-in for it.
QImage fromSvg(const QByteArray& svg)
{
    const VySvgCheck::Drawing drawing = VySvgCheck::check(svg);
    const bool hasFonts = qobject_cast<QGuiApplication*>(QCoreApplication::instance());
    if (drawing.size.isEmpty() || (drawing.hasText && !hasFonts))
        return {};
    return decoded(svg, "svg", drawing.size);
}

// Whether a file of \a size bytes that begins with \a beginning is worth reading: the
// signatures of some kinds are letters that texts may begin with, too.
bool isPicture(const QByteArray& /*beginning*/, qint64 /*size*/)
{
    return true;
}

bool isBmp(const QByteArray& beginning, qint64 size)
{
    return VyDibCheck::canBegin(beginning.mid(bmpHeaderSize), size - bmpHeaderSize);
}

struct PictureKind
{
    const char* signature;
    bool (*isKind)(const QByteArray& beginning, qint64 size);
    QImage (*read)(const QByteArray& file);
};

constexpr PictureKind pictureKinds[] = {{"\x89PNG\r\n\x1a\n", isPicture, fromPng},
                                        {"\xFF\xD8\xFF", isPicture, fromJpeg},
                                        {"BM", isBmp, fromBmp},
                                        {"<svg", VySvgCheck::canBegin, fromSvg},
                                        {"<?xm", VySvgCheck::canBegin, fromSvg},
                                        {"<!--", VySvgCheck::canBegin, fromSvg},
                                        {"\xEF\xBB\xBF<", VySvgCheck::canBegin, fromSvg}};

constexpr qint64 beginningSize = 4096;

// The whole of \a file, of which \a beginning is there already.
QByteArray whole(CVyPreviewSource& file, const QByteArray& beginning)
{
    const qint64 left = file.size() - beginning.size();
    const QByteArray rest = file.read(beginning.size(), left);
    return rest.size() == left ? beginning + rest : QByteArray();
}

} // namespace

QImage fromDib(const QByteArray& dib)
{
    const qint64 pixelOffset = VyDibCheck::pixelOffset(dib);
    if (pixelOffset == 0)
        return {};
    const QImage picture = decoded(bmpHeader(pixelOffset) + dib, "bmp");
    return withinPalette(picture, picture.colorCount());
}

QImage fromPng(const QByteArray& png)
{
    const VyPngCheck::Essentials essentials = VyPngCheck::essentials(png);
    if (essentials.file.isEmpty())
        return {};
    return withinPalette(decoded(essentials.file, "png"), essentials.colours);
}

QImage fromPictureFile(CVyPreviewSource& file)
{
    if (!VyPreviewLimits::allowsImage(file.size()))
        return {};
    const QByteArray beginning = file.read(0, std::min(beginningSize, file.size()));
    for (const PictureKind& kind : pictureKinds) {
        if (beginning.startsWith(kind.signature))
            return kind.isKind(beginning, file.size()) ? kind.read(whole(file, beginning))
                                                       : QImage();
    }
    return {};
}

} // namespace VyPreviewImage
