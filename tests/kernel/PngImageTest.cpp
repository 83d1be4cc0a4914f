// SPDX-License-Identifier: MIT
#include "PreviewFiles.h"
#include "QuietTest.h"
#include "VyPreviewImage.h"

#include <QTemporaryFile>
#include <QtTest>

#include <memory>
#include <thread>

#include <unistd.h>

using namespace PreviewFiles;

namespace {

constexpr int megabyte = 1024 * 1024;

// A picture of the one colour whose bits are all 0, whatever its size and kind.
QByteArray plainRows(int width, int height, int bitsPerPixel)
{
    return QByteArray(height * ((width * bitsPerPixel + 7) / 8 + 1), 0);
}

QByteArray plainPng(int width, int height, int depth, int colourType, int channels)
{
    const QByteArray palette = colourType == 3 ? pngChunk("PLTE", QByteArray(6, '\x40')) : "";
    return pngOf(pngHeader(width, height, depth, colourType) + palette +
                 pngPixels(plainRows(width, height, depth * channels)));
}

// 4 by 4 pixels of 8-bit grey.
QByteArray grey(const QByteArray& moreChunks)
{
    return pngOf(pngHeader(4, 4, 8, 0) + moreChunks);
}

QByteArray greyRows()
{
    return plainRows(4, 4, 8);
}

// Grey pixels that count from 10, row by row, in the order of their seven passes.
QByteArray interlacedRows(int width, int height)
{
    struct Pass
    {
        int left, top, stepRight, stepDown;
    };
    QByteArray rows;
    for (const Pass& pass : {Pass{0, 0, 8, 8}, Pass{4, 0, 8, 8}, Pass{0, 4, 4, 8}, Pass{2, 0, 4, 4},
                             Pass{0, 2, 2, 4}, Pass{1, 0, 2, 2}, Pass{0, 1, 1, 2}}) {
        for (int y = pass.top; y < height && pass.left < width; y += pass.stepDown) {
            rows += '\0';
            for (int x = pass.left; x < width; x += pass.stepRight)
                rows += static_cast<char>(10 + y * width + x);
        }
    }
    return rows;
}

QByteArray withWrongSum(QByteArray chunk)
{
    chunk[chunk.size() - 1] = static_cast<char>(chunk.at(chunk.size() - 1) ^ 1);
    return chunk;
}

// What this process writes to its standard error output while it lives.
class ErrorOutput
{
public:
    ErrorOutput()
        : m_saved(dup(STDERR_FILENO))
    {
        m_file.open();
        dup2(m_file.handle(), STDERR_FILENO);
    }
    ~ErrorOutput()
    {
        dup2(m_saved, STDERR_FILENO);
        close(m_saved);
    }
    Q_DISABLE_COPY(ErrorOutput)

    QByteArray text()
    {
        m_file.seek(0);
        return m_file.readAll();
    }

private:
    QTemporaryFile m_file;
    const int m_saved;
};

} // namespace

/// PNG files as drawings store them, and as damage or malice would.
class PngImageTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void pixels();
    void palette();
    void kinds_data();
    void kinds();
    void interlaced();
    void transparent();
    void superfluous_data();
    void superfluous();
    void pixelsInSeveralChunks();
    void hostKeepsItsLog();
    void refused_data();
    void refused();
};

void PngImageTest::pixels()
{
    const QImage read = VyPreviewImage::fromPng(testPng(7, 5));
    QVERIFY(!read.hasAlphaChannel());
    QCOMPARE(read.convertToFormat(QImage::Format_RGB32), testPicture(7, 5, 8));
}

void PngImageTest::palette()
{
    const QByteArray colours("\x10\x20\x30\xA0\xB0\xC0", 6);
    const QImage read = VyPreviewImage::fromPng(pngOf(
        pngHeader(2, 1, 8, 3) + pngChunk("PLTE", colours) + pngPixels(QByteArray("\0\1\0", 3))));
    QCOMPARE(read.size(), QSize(2, 1));
    QCOMPARE(read.pixel(0, 0), qRgb(0xA0, 0xB0, 0xC0));
    QCOMPARE(read.pixel(1, 0), qRgb(0x10, 0x20, 0x30));
}

void PngImageTest::kinds_data()
{
    QTest::addColumn<int>("depth");
    QTest::addColumn<int>("colourType");
    QTest::addColumn<int>("channels");

    for (const int depth : {1, 2, 4, 8, 16})
        QTest::addRow("grey, %d bits", depth) << depth << 0 << 1;
    for (const int depth : {1, 2, 4, 8})
        QTest::addRow("palette, %d bits", depth) << depth << 3 << 1;
    for (const int depth : {8, 16}) {
        QTest::addRow("colours, %d bits", depth) << depth << 2 << 3;
        QTest::addRow("grey with alpha, %d bits", depth) << depth << 4 << 2;
        QTest::addRow("colours with alpha, %d bits", depth) << depth << 6 << 4;
    }
}

void PngImageTest::kinds()
{
    QFETCH(int, depth);
    QFETCH(int, colourType);
    QFETCH(int, channels);
    const QImage read = VyPreviewImage::fromPng(plainPng(7, 5, depth, colourType, channels));
    QCOMPARE(read.size(), QSize(7, 5));
    QCOMPARE(read.hasAlphaChannel(), colourType >= 4);
    QCOMPARE(qRed(read.pixel(6, 4)), colourType == 3 ? 0x40 : 0);
}

void PngImageTest::interlaced()
{
    const QByteArray rows = interlacedRows(7, 5);
    const QByteArray header = pngHeader(7, 5, 8, 0, 1);
    const QImage read = VyPreviewImage::fromPng(pngOf(header + pngPixels(rows)));
    QCOMPARE(read.size(), QSize(7, 5));
    for (int i = 0; i < 7 * 5; ++i)
        QCOMPARE(qRed(read.pixel(i % 7, i / 7)), 10 + i);
    QVERIFY(VyPreviewImage::fromPng(pngOf(header + pngPixels(rows.chopped(1)))).isNull());
    QCOMPARE(
        VyPreviewImage::fromPng(pngOf(pngHeader(1, 1, 8, 0, 1) + pngPixels(interlacedRows(1, 1))))
            .size(),
        QSize(1, 1));
}

void PngImageTest::transparent()
{
    const QImage read = VyPreviewImage::fromPng(
        pngOf(pngHeader(1, 1, 8, 3) + pngChunk("PLTE", "abc") +
              pngChunk("tRNS", QByteArray(1, '\x7F')) + pngPixels(QByteArray(2, 0))));
    QCOMPARE(qAlpha(read.pixel(0, 0)), 0x7F);
}

void PngImageTest::superfluous_data()
{
    QTest::addColumn<QByteArray>("chunks");

    const QByteArray bomb =
        QByteArray("name\0\0", 6) + qCompress(QByteArray(64 * megabyte, 0)).mid(4);
    QTest::newRow("64 MB of text") << pngChunk("zTXt", bomb);
    QTest::newRow("64 MB of colour profile") << pngChunk("iCCP", bomb);
    QTest::newRow("palette of a grey picture") << pngChunk("PLTE", "abc");
    QTest::newRow("resolution") << pngChunk("pHYs", QByteArray(9, 1));
    QByteArray many;
    for (int i = 0; i < 20000; ++i)
        many += pngChunk("tEXt", QByteArray("a\0b", 3));
    QTest::newRow("20000 small chunks") << many;
}

void PngImageTest::superfluous()
{
    QFETCH(QByteArray, chunks);
    const QByteArray png = grey(chunks + pngPixels(greyRows()) + pngChunk("tIME", "late"));
    QCOMPARE(VyPreviewImage::fromPng(png).size(), QSize(4, 4));
}

void PngImageTest::pixelsInSeveralChunks()
{
    const QByteArray packed = qCompress(greyRows()).mid(4);
    const QByteArray png = grey(pngChunk("IDAT", packed.left(5)) + pngChunk("IDAT", {}) +
                                pngChunk("IDAT", packed.mid(5)));
    QCOMPARE(VyPreviewImage::fromPng(png).size(), QSize(4, 4));
}

// Decoding keeps its own messages off the log, but nobody else's.
void PngImageTest::hostKeepsItsLog()
{
    const QByteArray png = testPng(64, 64);
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&png] {
            for (int n = 0; n < 100; ++n)
                VyPreviewImage::fromPng(png);
        });
    }
    constexpr int count = 1000;
    for (int i = 0; i < count; ++i)
        qWarning("of the host");
    for (std::thread& thread : threads)
        thread.join();
    qWarning("of the host");
    const QStringList messages = takeMessages();
    QCOMPARE(messages.count(QStringLiteral("of the host")), count + 1);
    QCOMPARE(messages.size(), count + 1);
}

void PngImageTest::refused_data()
{
    QTest::addColumn<QByteArray>("png");

    const QByteArray pixels = pngPixels(greyRows());
    const QByteArray good = grey(pixels);
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("signature alone") << good.left(8);
    QTest::newRow("header cut") << good.left(20);
    QTest::newRow("pixels cut") << good.chopped(20);
    QTest::newRow("end cut") << good.chopped(5);
    QTest::newRow("end missing") << good.chopped(12);
    QTest::newRow("pixels missing") << grey({});
    QTest::newRow("no pixel in the pixels' chunk") << grey(pngChunk("IDAT", {}));
    QTest::newRow("pixels before the header") << pngOf(pixels + pngHeader(4, 4, 8, 0));
    QTest::newRow("second header") << grey(pngHeader(4, 4, 8, 0) + pixels);
    QTest::newRow("header too short") << pngOf(pngChunk("IHDR", QByteArray(12, 1)) + pixels);

    const auto sized = [&](const char* name, qint64 width, qint64 height) {
        QTest::newRow(name) << pngOf(pngHeader(width, height, 8, 0) + pixels);
    };
    sized("no width", 0, 4);
    sized("no height", 4, 0);
    sized("largest square", 2147483647, 2147483647);
    sized("0xFFFFFFFF wide", 0xFFFFFFFF, 1);
    sized("60000x20000 with few rows", 60000, 20000);
    QTest::newRow("30000 square, whole") << plainPng(30000, 30000, 1, 0, 1);
    QTest::newRow("one pixel too wide") << plainPng(8193, 1, 1, 0, 1);
    QTest::newRow("too many pixels") << plainPng(8192, 2049, 1, 0, 1);

    const auto kind = [&](const char* name, int depth, int colourType, int interlacing) {
        QTest::newRow(name) << pngOf(pngHeader(4, 4, depth, colourType, interlacing) + pixels);
    };
    kind("3 bits", 3, 0, 0);
    kind("colours in 4 bits", 4, 2, 0);
    kind("palette of 16 bits", 16, 3, 0);
    kind("unknown colour type", 8, 1, 0);
    kind("negative colour type", 8, 255, 0);
    kind("unknown interlacing", 8, 0, 2);
    QTest::newRow("unknown compression")
        << pngOf(pngChunk("IHDR", be32(4) + be32(4) + QByteArray("\x08\0\1\0\0", 5)) + pixels);
    QTest::newRow("unknown filter method")
        << pngOf(pngChunk("IHDR", be32(4) + be32(4) + QByteArray("\x08\0\0\1\0", 5)) + pixels);

    QTest::newRow("header's sum wrong") << pngOf(withWrongSum(pngHeader(4, 4, 8, 0)) + pixels);
    QTest::newRow("pixels' sum wrong") << grey(withWrongSum(pixels));
    QTest::newRow("pixels not packed") << grey(pngChunk("IDAT", greyRows()));
    QTest::newRow("packed pixels' sum wrong")
        << grey(pngChunk("IDAT", withWrongSum(qCompress(greyRows()).mid(4))));
    QTest::newRow("packed pixels cut")
        << grey(pngChunk("IDAT", qCompress(greyRows()).mid(4).chopped(4)));
    QTest::newRow("too few pixels") << grey(pngPixels(greyRows().chopped(1)));
    QTest::newRow("one pixel too many") << grey(pngPixels(greyRows() + '\0'));
    QTest::newRow("30 MB too many pixels")
        << grey(pngPixels(greyRows() + QByteArray(30 * megabyte, 0)));
    QTest::newRow("bytes behind the packed pixels")
        << grey(pngChunk("IDAT", qCompress(greyRows()).mid(4) + "more"));
    const QByteArray packed = qCompress(greyRows()).mid(4);
    QTest::newRow("pixels in two places")
        << grey(pngChunk("IDAT", packed.left(5)) + pngChunk("tEXt", QByteArray("a\0b", 3)) +
                pngChunk("IDAT", packed.mid(5)));
    QTest::newRow("filter 9") << grey(pngPixels('\x09' + greyRows().mid(1)));
    QTest::newRow("unknown chunk that is needed") << grey(pngChunk("ABCD", {}) + pixels);
    QTest::newRow("chunk length 0xFFFFFFFF") << grey(be32(0xFFFFFFFF) + "tEXt" + pixels);

    const auto coloured = [&](const char* name, const QByteArray& palette) {
        QTest::newRow(name) << pngOf(pngHeader(4, 4, 8, 3) + palette + pixels);
    };
    coloured("palette missing", {});
    coloured("palette empty", pngChunk("PLTE", {}));
    coloured("palette cut", pngChunk("PLTE", "abcd"));
    coloured("257 colours", pngChunk("PLTE", QByteArray(3 * 257, 'a')));
    coloured("two palettes", pngChunk("PLTE", "abc") + pngChunk("PLTE", "abc"));
    QTest::newRow("palette behind the pixels")
        << pngOf(pngHeader(4, 4, 8, 3) + pixels + pngChunk("PLTE", "abc"));
    for (const char index : {'\1', '\2', '\xFF'}) {
        QByteArray rows = greyRows();
        rows[7] = index;
        QTest::addRow("colour %d of 1", index & 0xFF)
            << pngOf(pngHeader(4, 4, 8, 3) + pngChunk("PLTE", "abc") + pngPixels(rows));
    }
    QTest::newRow("colour 1 of 1, 1 bit") << pngOf(pngHeader(4, 4, 1, 3) + pngChunk("PLTE", "abc") +
                                                   pngPixels(QByteArray("\0\x80", 2).repeated(4)));
}

// Qt's decoder would report much of this on the standard error output.
void PngImageTest::refused()
{
    QFETCH(QByteArray, png);
    ErrorOutput output;
    const QImage read = VyPreviewImage::fromPng(png);
    QCOMPARE(output.text(), QByteArray());
    QVERIFY(read.isNull());
}

QTEST_GUILESS_MAIN(PngImageTest)
#include "PngImageTest.moc"
