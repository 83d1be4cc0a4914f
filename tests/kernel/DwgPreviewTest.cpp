// SPDX-License-Identifier: MIT
#include "PreviewFiles.h"
#include "QuietTest.h"
#include "SparseDevice.h"
#include "VyDwgPreview.h"
#include "VyPreviewSource.h"

#include <QtTest>

#include <memory>

using namespace PreviewFiles;

namespace {

enum Code
{
    Title = 1,
    Bitmap = 2,
    Metafile = 3,
    Png = 6
};

constexpr qint64 gibibyte = 1024LL * 1024 * 1024;

QByteArray bitmap()
{
    return testDib(7, 5, 8).bytes();
}

Record title()
{
    return {Title, QByteArray(80, 0)};
}

// A file whose images would be found by their starts alone, not by their order.
Dwg apart(const std::vector<Record>& records)
{
    Dwg dwg;
    dwg.records = records;
    dwg.gap = QByteArray(50, 'x');
    return dwg;
}

Dwg startingAt(qint64 start)
{
    return apart({{Bitmap, bitmap(), start, -1}});
}

Dwg sized(qint64 size)
{
    return apart({{Bitmap, bitmap(), -1, size}});
}

QImage read(QIODevice& device)
{
    CVyPreviewSource source(device);
    return VyDwgPreview::read(source);
}

} // namespace

/// The preview section of DWG files, sound, odd and hostile.
class DwgPreviewTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void picture_data();
    void picture();
    void noPicture_data();
    void noPicture();
    void readsOnlyWhatItNeeds();
    void sectionAboveTwoGibibytes();
    void fileCutWhileRead();
    void triesFourPictures();
    void triesNoPictureTwice();
};

void DwgPreviewTest::picture_data()
{
    QTest::addColumn<QByteArray>("file");

    const Record good = {Bitmap, bitmap()};
    const Record asPng = {Png, testPng(7, 5)};
    const auto row = [](const char* name, const Dwg& dwg) { QTest::newRow(name) << dwg.bytes(); };

    for (const char* version : {"AC1012", "AC1013", "AC1014", "AC1015", "AC1018", "AC1021",
                                "AC1024", "AC1027", "AC1032", "AC1099"}) {
        Dwg dwg = apart({title(), good});
        dwg.version = version;
        row(version, dwg);
    }
    row("PNG", apart({title(), asPng}));
    row("picture before the title", apart({good, title()}));
    row("records of unknown kinds", apart({{0, "x"}, {4, "yy"}, {5, "zzz"}, {255, {}}, good}));
    row("first of two pictures", apart({good, {Bitmap, testDib(3, 3, 8).bytes()}}));
    row("bad picture, then a good one", apart({{Bitmap, QByteArray(500, 0)}, asPng}));
    row("picture outside the file, then a good one",
        apart({{Bitmap, bitmap(), 0xFFFFFFFF, -1}, good}));
    Dwg swapped = apart({{Title, bitmap(), -1, 80}, {Bitmap, QByteArray(80, 0), -1, -1}});
    swapped.records[1].start = swapped.imagesAt();
    swapped.records[1].size = bitmap().size();
    row("images in another order than records", swapped);
    for (const int at : {0x11, 0x58, 0xDC, 0x120, 0xD20, 0x10A0}) {
        Dwg dwg = apart({title(), good});
        dwg.sectionAt = at;
        row(qPrintable(QStringLiteral("section at %1").arg(at)), dwg);
    }
    for (const qint64 overall : {0ll, 5ll, 0xFFFFFFFFll}) {
        Dwg dwg = apart({title(), good});
        dwg.overall = overall;
        row(qPrintable(QStringLiteral("overall size %1").arg(overall)), dwg);
    }
    QTest::newRow("no sentinel at the end") << apart({title(), good}).bytesToLastImage();

    Dwg moved;
    moved.records = {{Title, QByteArray(80, 0), 5000, -1}, {Bitmap, bitmap(), 17, -1}};
    row("section moved, starts not corrected", moved);
    moved.records[1].start = 0;
    row("start 0", moved);
}

void DwgPreviewTest::picture()
{
    QFETCH(QByteArray, file);
    SparseDevice device(file);
    QCOMPARE(read(device).convertToFormat(QImage::Format_RGB32), testPicture(7, 5, 8));
}

void DwgPreviewTest::noPicture_data()
{
    QTest::addColumn<QByteArray>("file");

    const auto row = [](const char* name, const Dwg& dwg) { QTest::newRow(name) << dwg.bytes(); };
    const Dwg good = apart({title(), {Bitmap, bitmap()}});
    const QByteArray whole = good.bytesToLastImage();

    QTest::newRow("empty file") << QByteArray();
    for (const int size : {1, 5, 6, 16, 17, 20})
        QTest::addRow("cut after %d bytes", size) << whole.left(size);
    QTest::newRow("sentinel cut") << whole.left(good.sectionAt + 8);
    QTest::newRow("overall size cut") << whole.left(good.sectionAt + 18);
    QTest::newRow("count cut") << whole.left(good.sectionAt + 20);
    QTest::newRow("records cut") << whole.left(good.sectionAt + 21 + 17);
    QTest::newRow("images missing") << whole.left(good.imagesAt());
    QTest::newRow("last pixel missing") << whole.chopped(1);

    for (const qint64 seeker : {0ll, 0x0Dll, 1ll << 20, 0x80000000ll, 0xFFFFFFFFll}) {
        Dwg dwg = good;
        dwg.seeker = seeker;
        row(qPrintable(QStringLiteral("seeker %1").arg(seeker)), dwg);
    }
    for (const int bit : {0, 7, 60, 127}) {
        QByteArray file = whole;
        const int at = good.sectionAt + bit / 8;
        file[at] = static_cast<char>(file.at(at) ^ (1 << bit % 8));
        QTest::addRow("sentinel's bit %d wrong", bit) << file;
    }
    QTest::newRow("sentinel as the file's last bytes") << whole.left(good.sectionAt + 16);

    Dwg empty;
    row("no record", empty);
    empty.overall = 5;
    row("no record, overall size 5", empty);
    empty.count = 255;
    row("255 records, none there", empty);
    empty.gap = QByteArray(5000, 'j');
    row("255 records of junk", empty);
    empty.gap = QByteArray(5000, Bitmap);
    row("255 records of pictures nowhere", empty);

    row("title alone", apart({title()}));
    row("metafile alone", apart({{Metafile, bitmap()}}));
    row("PNG as bitmap", apart({{Bitmap, testPng(7, 5)}}));
    row("bitmap as PNG", apart({{Png, bitmap()}}));

    for (const qint64 size : {0ll, 39ll, 40ll, 30000000ll, 0x80000000ll, 0xFFFFFFFFll})
        row(qPrintable(QStringLiteral("image of %1 bytes").arg(size)), sized(size));
    const qint64 fileSize = startingAt(0).bytes().size();
    row("start at the highest place", startingAt(0xFFFFFFFF));
    Dwg behind = startingAt(0xFFFFFFFF);
    behind.gap.clear();
    row("start at the highest place, image in order", behind);
    row("start and size past 2^32", startingAt(0x100000000 - bitmap().size() + 1));
    row("start at the file's end", startingAt(fileSize));
    row("start one byte too late for the size", startingAt(fileSize - bitmap().size() + 1));
    row("start at the section itself", startingAt(Dwg().sectionAt));

    for (const char* version : {"AC1009", "AC1006", "AC1003", "AC2.10", "AC1.40", "AC10XX",
                                "XC1018", "ac1018", "AC1118"}) {
        Dwg dwg = good;
        dwg.version = version;
        row(version, dwg);
    }
}

void DwgPreviewTest::noPicture()
{
    QFETCH(QByteArray, file);
    SparseDevice device(file);
    QVERIFY(read(device).isNull());
    QVERIFY(device.largestRequest() <= file.size());
}

void DwgPreviewTest::readsOnlyWhatItNeeds()
{
    const QByteArray file = apart({title(), {Bitmap, bitmap()}}).bytes();
    SparseDevice device(gibibyte / 2);
    device.put(0, file);
    QVERIFY(!read(device).isNull());
    QCOMPARE(device.bytesRead(), qint64(17 + 21 + 2 * 9 + bitmap().size()));
}

void DwgPreviewTest::sectionAboveTwoGibibytes()
{
    const qint64 sectionAt = 5 * gibibyte / 2;
    const QByteArray records = char(Bitmap) + le32(sectionAt + 21 + 9) + le32(bitmap().size());
    SparseDevice device(3 * gibibyte);
    device.put(0, "AC1032" + QByteArray(7, 0) + le32(sectionAt));
    device.put(sectionAt, startSentinel + le32(0) + '\x01' + records + bitmap());
    QCOMPARE(read(device).size(), QSize(7, 5));
    QCOMPARE(device.bytesRead(), qint64(17 + 21 + 9 + bitmap().size()));
}

void DwgPreviewTest::fileCutWhileRead()
{
    const Dwg dwg = apart({{Bitmap, bitmap()}});
    const QByteArray file = dwg.bytes();
    for (const int readable : {0, 10, dwg.sectionAt + 5, dwg.sectionAt + 25, dwg.imagesAt() + 9}) {
        SparseDevice device(file.size(), readable);
        device.put(0, file);
        QVERIFY2(read(device).isNull(), qPrintable(QString::number(readable)));
    }
}

// A picture can be long in failing, so a file is not to have 255 of them tried.
void DwgPreviewTest::triesFourPictures()
{
    const QByteArray image = testDib(100, 100, 8).bytes().chopped(1);
    Dwg dwg;
    for (int i = 0; i < 255; ++i)
        dwg.records.push_back({Bitmap, QByteArray(), dwg.sectionAt + 21 + 255 * 9, image.size()});
    dwg.records.front().image = image;
    SparseDevice device(gibibyte / 1024);
    device.put(0, dwg.bytes());
    QVERIFY(read(device).isNull());
    QCOMPARE(device.bytesRead(), qint64(17 + 21 + 255 * 9 + 4 * image.size()));
}

void DwgPreviewTest::triesNoPictureTwice()
{
    Dwg dwg;
    dwg.records = {{Bitmap, bitmap().chopped(1)}};
    SparseDevice device(dwg.bytes());
    QVERIFY(read(device).isNull());
    QCOMPARE(device.bytesRead(), qint64(17 + 21 + 9 + bitmap().size() - 1));
}

QTEST_GUILESS_MAIN(DwgPreviewTest)
#include "DwgPreviewTest.moc"
