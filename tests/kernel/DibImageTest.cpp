// SPDX-License-Identifier: MIT
#include "PreviewFiles.h"
#include "QuietTest.h"
#include "VyPreviewImage.h"

#include <QtTest>

#include <memory>

using namespace PreviewFiles;

namespace {

constexpr qint64 lowest = std::numeric_limits<qint32>::min();
constexpr qint64 highest = std::numeric_limits<qint32>::max();

QByteArray masks(qint64 red, qint64 green, qint64 blue)
{
    return le32(red) + le32(green) + le32(blue);
}

// Rows from bottom to top become rows from top to bottom.
QByteArray reversedRows(const Dib& dib)
{
    const int stride = dib.pixels.size() / static_cast<int>(dib.height);
    QByteArray result;
    for (int at = dib.pixels.size(); (at -= stride) >= 0;)
        result += dib.pixels.mid(at, stride);
    return result;
}

} // namespace

/// Bitmaps as drawings store them, and as damage or malice would.
class DibImageTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void soundBitmap_data();
    void soundBitmap();
    void runLengthPicture();
    void jumpedPixelsAreTheFirstColour();
    void maskedBitmap_data();
    void maskedBitmap();
    void badHeader_data();
    void badHeader();
    void incomplete_data();
    void incomplete();
    void badRuns_data();
    void badRuns();
};

void DibImageTest::soundBitmap_data()
{
    QTest::addColumn<QByteArray>("dib");
    QTest::addColumn<QImage>("picture");

    for (const int depth : {1, 4, 8, 24, 32}) {
        // Seven pixels need padding in a row of each depth below 32.
        QTest::addRow("%d bits", depth) << testDib(7, 5, depth).bytes() << testPicture(7, 5, depth);
    }
    for (const int depth : {1, 4, 8, 24}) {
        QTest::addRow("%d bits with the oldest header", depth)
            << testCoreDib(17, 9, depth) << testPicture(17, 9, depth);
    }
    QTest::newRow("one pixel") << testDib(1, 1, 8).bytes() << testPicture(1, 1, 8);
    QTest::newRow("largest side") << testDib(8192, 2, 1).bytes() << testPicture(8192, 2, 1);

    const QImage picture = testPicture(7, 5, 8);
    Dib topDown = testDib(7, 5, 8);
    topDown.height = -5;
    topDown.pixels = reversedRows(testDib(7, 5, 8));
    QTest::newRow("top-down") << topDown.bytes() << picture;

    Dib dib = testDib(4, 4, 8);
    dib.coloursUsed = 17;
    dib.palette.truncate(4 * 17);
    QTest::newRow("17 colours") << dib.bytes() << testPicture(4, 4, 8);
    dib = testDib(7, 5, 8);
    dib.imageSize = 0xFFFFFFFF;
    QTest::newRow("declared image size too large") << dib.bytes() << picture;
    dib.imageSize = 464 + dib.pixels.size();
    QTest::newRow("declared image size 464 too large") << dib.bytes() << picture;
    QTest::newRow("bytes after the pixels") << dib.bytes() + QByteArray(99, 'x') << picture;
    dib = testDib(7, 5, 24);
    dib.coloursUsed = 3;
    dib.palette = QByteArray(12, 'x');
    QTest::newRow("24 bits with a palette") << dib.bytes() << testPicture(7, 5, 24);
    for (const int headerSize : {108, 124}) {
        dib = testDib(7, 5, 24);
        dib.headerSize = headerSize;
        dib.masks = QByteArray(headerSize - 40, 0);
        QTest::addRow("header of %d bytes", headerSize) << dib.bytes() << testPicture(7, 5, 24);
    }
}

void DibImageTest::soundBitmap()
{
    QFETCH(QByteArray, dib);
    QFETCH(QImage, picture);
    const QImage read = VyPreviewImage::fromDib(dib);
    QVERIFY(!read.hasAlphaChannel());
    QCOMPARE(read.convertToFormat(QImage::Format_RGB32), picture);
}

void DibImageTest::runLengthPicture()
{
    const QByteArray runs8 = QByteArray::fromHex("0801 0000"           // eight of colour 1
                                                 "0003 02030400 0505"  // three single ones, five
                                                 "0000 0002 0201 0106" // two right, one up, one
                                                 "0001");
    const QImage read = VyPreviewImage::fromDib(runLengthDib(1, runs8).bytes());
    QCOMPARE(read.size(), QSize(8, 4));
    QCOMPARE(read.pixelIndex(7, 3), 1);
    QCOMPARE(read.pixelIndex(1, 2), 3);
    QCOMPARE(read.pixelIndex(7, 2), 5);
    QCOMPARE(read.pixelIndex(2, 0), 6);

    const QByteArray runs4 = QByteArray::fromHex("0812 0000 0005 345670 00 0311 0001");
    const QImage read4 = VyPreviewImage::fromDib(runLengthDib(2, runs4).bytes());
    QCOMPARE(read4.size(), QSize(8, 4));
    QCOMPARE(read4.pixelIndex(1, 3), 2);
    QCOMPARE(read4.pixelIndex(4, 2), 7);
}

void DibImageTest::jumpedPixelsAreTheFirstColour()
{
    const QImage read =
        VyPreviewImage::fromDib(runLengthDib(1, QByteArray("\x02\x07\x00\x01", 4)).bytes());
    QCOMPARE(read.pixelIndex(1, 3), 7);
    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < 8; ++x)
            QCOMPARE(read.pixelIndex(x, y), 0);
    }
}

void DibImageTest::maskedBitmap_data()
{
    QTest::addColumn<int>("depth");
    QTest::addColumn<int>("headerSize");
    QTest::addColumn<QByteArray>("masks");

    QTest::newRow("16 bits, 5-6-5") << 16 << 40 << masks(0xF800, 0x07E0, 0x001F);
    QTest::newRow("32 bits, masks behind the header") << 32 << 40 << masks(0xFF0000, 0xFF00, 0xFF);
    QTest::newRow("32 bits, masks inside the header")
        << 32 << 108 << masks(0xFF0000, 0xFF00, 0xFF) + QByteArray(56, 0);
}

void DibImageTest::maskedBitmap()
{
    QFETCH(int, depth);
    Dib dib = testDib(7, 5, depth);
    QFETCH(int, headerSize);
    dib.headerSize = headerSize;
    QFETCH(QByteArray, masks);
    dib.masks = masks;
    dib.compression = 3;
    const QImage read = VyPreviewImage::fromDib(dib.bytes());
    QCOMPARE(read.size(), QSize(7, 5));
    if (depth == 32)
        QCOMPARE(read.convertToFormat(QImage::Format_RGB32), testPicture(7, 5, 32));
}

void DibImageTest::badHeader_data()
{
    QTest::addColumn<qint64>("width");
    QTest::addColumn<qint64>("height");
    QTest::addColumn<int>("depth");
    QTest::addColumn<int>("planes");
    QTest::addColumn<qint64>("headerSize");
    QTest::addColumn<qint64>("coloursUsed");
    QTest::addColumn<qint64>("compression");

    const auto size = [](const char* name, qint64 width, qint64 height, int depth, qint64 runs) {
        QTest::newRow(name) << width << height << depth << 1 << qint64(40) << qint64(0) << runs;
    };
    size("65535 square, 8 bits", 65535, 65535, 8, 0);
    size("65535 square, 32 bits", 65535, 65535, 32, 0);
    size("65535 square, run-length", 65535, 65535, 8, 1);
    size("one pixel too wide", 8193, 1, 1, 0);
    size("one pixel too high", 1, 8193, 1, 0);
    size("one pixel too high, top-down", 1, -8193, 1, 0);
    size("top-down, run-length", 4, -4, 8, 1);
    size("too many pixels", 8192, 2049, 1, 0);
    size("too many pixels, run-length", 8192, 2049, 8, 1);
    size("largest width", highest, 1, 8, 0);
    size("largest height", 1, highest, 8, 0);
    size("lowest height", 1, lowest, 8, 0);
    size("no width", 0, 4, 8, 0);
    size("no height", 4, 0, 8, 0);
    size("negative width", -4, 4, 8, 0);
    size("row size wraps", 0x08000001, 1, 32, 0);
    size("area wraps", 0x10001, 0x10000, 8, 0);

    const auto field = [](const char* name, int depth, int planes, qint64 headerSize,
                          qint64 coloursUsed, qint64 compression) {
        QTest::newRow(name) << qint64(4) << qint64(4) << depth << planes << headerSize
                            << coloursUsed << compression;
    };
    for (const int depth : {0, 2, 3, 7, 64, 65535})
        field(qPrintable(QStringLiteral("%1 bits").arg(depth)), depth, 1, 40, 0, 0);
    field("no plane", 8, 0, 40, 0, 0);
    field("three planes", 8, 3, 40, 0, 0);
    for (const qint64 headerSize : {0ll, 12ll, 39ll, 41ll, 5000ll, 0xFFFFFFFFll})
        field(qPrintable(QStringLiteral("header of %1 bytes").arg(headerSize)), 8, 1, headerSize, 0,
              0);
    for (const qint64 colours : {257ll, 0x40000001ll, 0xFFFFFFFFll}) {
        field(qPrintable(QStringLiteral("%1 colours").arg(colours)), 8, 1, 40, colours, 0);
        field(qPrintable(QStringLiteral("%1 colours, 24 bits").arg(colours)), 24, 1, 40, colours,
              0);
    }
    field("17 colours, 4 bits", 4, 1, 40, 17, 0);
    for (const qint64 compression : {4ll, 5ll, 6ll, 99ll, 0xFFFFFFFFll})
        field(qPrintable(QStringLiteral("compression %1").arg(compression)), 24, 1, 40, 0,
              compression);
    field("8-bit runs in 4 bits", 4, 1, 40, 0, 1);
    field("4-bit runs in 8 bits", 8, 1, 40, 0, 2);
    field("masks in 8 bits", 8, 1, 40, 0, 3);
}

void DibImageTest::badHeader()
{
    QFETCH(qint64, width);
    QFETCH(qint64, height);
    QFETCH(int, depth);
    QFETCH(int, planes);
    QFETCH(qint64, headerSize);
    QFETCH(qint64, coloursUsed);
    QFETCH(qint64, compression);
    Dib dib = testDib(4, 4, depth == 4 || depth == 24 || depth == 32 ? depth : 8);
    dib.width = width;
    dib.height = height;
    dib.depth = static_cast<quint32>(depth);
    dib.planes = static_cast<quint32>(planes);
    dib.headerSize = headerSize;
    dib.coloursUsed = coloursUsed;
    dib.compression = compression;
    if (compression == 1 || compression == 2)
        dib.pixels = QByteArray("\0\1", 2); // the end mark, sound whatever the size
    else
        dib.pixels += QByteArray(1 << 22, 0); // so that the header alone is at fault
    if (compression == 3)
        dib.masks = masks(0xFF0000, 0xFF00, 0xFF);
    QVERIFY(VyPreviewImage::fromDib(dib.bytes()).isNull());
}

void DibImageTest::incomplete_data()
{
    QTest::addColumn<QByteArray>("dib");

    const QByteArray whole = testDib(7, 5, 8).bytes();
    QTest::newRow("nothing") << QByteArray();
    Dib colourless = testDib(4, 4, 8);
    colourless.coloursUsed = 15;
    colourless.palette.truncate(4 * 15);
    QTest::newRow("colour missing") << colourless.bytes();
    for (const int size : {4, 20, 39})
        QTest::addRow("header cut after %d bytes", size) << whole.left(size);
    QTest::newRow("header alone") << whole.left(40);
    QTest::newRow("palette cut") << whole.left(40 + 100);
    QTest::newRow("pixels missing") << whole.left(40 + 1024);
    QTest::newRow("last pixel missing") << whole.chopped(1);
    QTest::newRow("24 bits, last pixel missing") << testDib(7, 5, 24).bytes().chopped(1);
    QTest::newRow("oldest header, last pixel missing") << testCoreDib(17, 9, 8).chopped(1);
    Dib topDown = testDib(7, 5, 8);
    topDown.height = -5;
    QTest::newRow("top-down, last pixel missing") << topDown.bytes().chopped(1);
    Dib masked = testDib(1, 1, 32);
    masked.compression = 3;
    QTest::newRow("masks missing") << masked.bytes();
    masked.masks = masks(0, 0, 0);
    QTest::newRow("masks of 0") << masked.bytes();
    masked.masks = masks(0xFF0000, 0xFF00, 0);
    QTest::newRow("blue mask 0") << masked.bytes();
    masked.masks = masks(0xFF0000, 0xFF00, 0xFF);
    QTest::newRow("pixels behind masks missing") << masked.bytes().chopped(4);
}

void DibImageTest::incomplete()
{
    QFETCH(QByteArray, dib);
    QVERIFY(VyPreviewImage::fromDib(dib).isNull());
}

void DibImageTest::badRuns_data()
{
    QTest::addColumn<int>("compression");
    QTest::addColumn<QByteArray>("runs");

    const auto row = [](const char* name, int compression, const char* hex) {
        QTest::newRow(name) << compression << QByteArray::fromHex(hex);
    };
    row("no runs", 1, "");
    row("end mark cut", 1, "00");
    row("no end mark", 1, "0801 0000 0801 0000 0801 0000 0801 0000");
    row("run past the row", 1, "0901 0001");
    row("second run past the row", 1, "0501 0501 0001");
    row("4-bit run past the row", 2, "0912 0001");
    row("run above the top", 1, "0000 0000 0000 0000 0101 0001");
    row("row above the top", 1, "0000 0000 0000 0000 0000 0001");
    row("jump past the row", 1, "0002 0900 0001");
    row("jump above the top", 1, "0002 0004 0001");
    row("largest jump", 1, "0002 FFFF 0001");
    row("jump cut", 1, "0002 01");
    row("single pixels past the row", 1, "0009 010203040506070809 00 0001");
    row("single pixels cut", 1, "0008 0102");
    row("single pixels without padding and end", 1, "0003 010203");
    row("4-bit single pixels cut", 2, "0008 1234");
}

void DibImageTest::badRuns()
{
    QFETCH(int, compression);
    QFETCH(QByteArray, runs);
    QVERIFY(VyPreviewImage::fromDib(runLengthDib(compression, runs).bytes()).isNull());
}

QTEST_GUILESS_MAIN(DibImageTest)
#include "DibImageTest.moc"
