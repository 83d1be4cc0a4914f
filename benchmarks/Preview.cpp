// SPDX-License-Identifier: MIT
// How long the preview of a file takes, beside the bare reading of the bytes it is
// made of. The file is made first, of the asked kind and, with a hole, size.
#include "support/Measurement.h"

#include "PreviewFiles.h"
#include "VyPreviewBitmap.h"

#include <QFile>

#include <fcntl.h>
#include <unistd.h>

#include <memory>

namespace {

using Measurement::Clock;
using namespace PreviewFiles;

constexpr qint64 WindowAtEnd = 8LL * 1024 * 1024; ///< of a DXF file, searched for its picture

struct Sample
{
    QByteArray head;
    QByteArray tail;      ///< at the end, where the size is made up by a hole before it
    qint64 pictureAt = 0; ///< in the head, or from the end when negative
    qint64 pictureSize = 0;
};

Sample drawing(int code, const QByteArray& image)
{
    Dwg dwg;
    dwg.records.push_back({code, image});
    return {dwg.bytes(), {}, dwg.imagesAt(), image.size()};
}

// The window at the end of a large one is text, before which there may be a hole.
Sample exchange(const QByteArray& section, qint64 size)
{
    const QByteArray all = dxfOf(section);
    const int ending = section.size() + 8; // "  0\nEOF\n"
    QByteArray entities;
    while (size > WindowAtEnd && entities.size() < WindowAtEnd)
        entities += "  0\nLINE\n  8\nWALLS\n 10\n1204.5\n 20\n-33.25\n 11\n1310.0\n 21\n-33.25\n";
    return {all.left(all.size() - ending), entities + all.right(ending), -ending, ending};
}

Sample sampleOf(const QString& kind, qint64 size)
{
    const QByteArray dib = testDib(256, 192, 8).bytes();
    const QByteArray png = testPng(256, 192);
    if (kind == QLatin1String("dwg-dib"))
        return drawing(2, dib);
    if (kind == QLatin1String("dwg-png"))
        return drawing(6, png);
    if (kind == QLatin1String("dxf"))
        return exchange(thumbnailSection(dib), size);
    if (kind == QLatin1String("dxf-without"))
        return exchange({}, size);
    return {png, {}, 0, png.size()};
}

qint64 write(QFile& file, const Sample& sample, qint64 size)
{
    const qint64 all = qMax<qint64>(size, sample.head.size() + sample.tail.size());
    if (!file.open(QIODevice::WriteOnly) || file.write(sample.head) < 0 || !file.resize(all) ||
        !file.seek(all - sample.tail.size()) || file.write(sample.tail) < 0)
        qFatal("the file cannot be written");
    file.close();
    return all;
}

void readBare(const QByteArray& path, qint64 start, qint64 size)
{
    QByteArray bytes(int(size), Qt::Uninitialized);
    const auto begin = Clock::now();
    const int file = open(path.constData(), O_RDONLY | O_CLOEXEC);
    const ssize_t count = pread(file, bytes.data(), std::size_t(size), start);
    close(file);
    Measurement::report("floor", "preview", Measurement::millisecondsSince(begin) * 1000);
    if (count != size)
        qFatal("the file cannot be read");
}

void readPreview(const QString& path, bool hasPreview)
{
    const auto begin = Clock::now();
    const std::unique_ptr<CVyPreviewBitmap> bitmap(CVyPreviewBitmap::Create());
    const bool found = bitmap->ReadPreview(CVyString(path));
    QImage image;
    bitmap->CopyTo(image);
    Measurement::report("subject", "preview", Measurement::millisecondsSince(begin) * 1000);
    if (found != hasPreview)
        qFatal("the preview was not as expected");
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QString kind = Measurement::argument("kind");
    const qint64 wanted = Measurement::argument("size").toLongLong();
    const Sample sample = sampleOf(kind, wanted);
    QFile file(Measurement::argument("file"));
    const qint64 size = write(file, sample, wanted);
    const bool hasPreview = kind != QLatin1String("dxf-without");
    qint64 start = sample.pictureAt < 0 ? size + sample.pictureAt : sample.pictureAt;
    qint64 length = sample.pictureSize;
    if (!hasPreview) { // only the whole window tells that there is none
        length = qMin(size, WindowAtEnd);
        start = size - length;
    }
    for (int round = 0; round < Measurement::number("rounds", 20); ++round) {
        if (round % 2)
            readBare(QFile::encodeName(file.fileName()), start, length);
        readPreview(file.fileName(), hasPreview);
        if (round % 2 == 0)
            readBare(QFile::encodeName(file.fileName()), start, length);
    }
    file.remove();
}
