// SPDX-License-Identifier: MIT
#include "PreviewFiles.h"
#include "QuietTest.h"
#include "SparseDevice.h"
#include "VyDxfPreview.h"
#include "VyPreviewSource.h"

#include <QtTest>

#include <memory>

using namespace PreviewFiles;

namespace {

QByteArray bitmap()
{
    return testDib(7, 5, 8).bytes();
}

QImage read(QIODevice& device)
{
    CVyPreviewSource source(device);
    return VyDxfPreview::read(source);
}

// The word where it is no section: a text, a layer's name, a comment, a block.
QByteArray wordInTexts()
{
    return "  0\nSECTION\n  2\nENTITIES\n  0\nTEXT\n  1\nTHUMBNAILIMAGE\n"
           "  0\nLAYER\n  2\nTHUMBNAILIMAGE\n  1\nSECTION\n  2\nTHUMBNAILIMAGE\n"
           "  0\nSECTION\n  1\nTHUMBNAILIMAGE\n  0\nSECTION\n999\n  2\n999\nTHUMBNAILIMAGE\n"
           "  0\nSECTION\n  2\nTHUMBNAILIMAGES\n  0\nSECTION\n  2\nMYTHUMBNAILIMAGE\n"
           "  0\nENDSEC\n";
}

QByteArray section()
{
    return thumbnailSection(bitmap());
}

} // namespace

/// The thumbnail section of text DXF files, sound, odd and hostile.
class DxfPreviewTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void picture_data();
    void picture();
    void noPicture_data();
    void noPicture();
    void readsOnlyTheEnd_data();
    void readsOnlyTheEnd();
    void fileCutWhileRead();
};

void DxfPreviewTest::picture_data()
{
    QTest::addColumn<QByteArray>("file");

    QTest::newRow("section before the end") << dxfOf(section());
    QTest::newRow("CR LF") << dxfOf(section()).replace("\n", "\r\n");
    QTest::newRow("lower case") << dxfOf(
        section().replace(bitmap().toHex().toUpper().left(254), bitmap().toHex().left(254)));
    for (const int bytes : {1, 16, 127, 512, 1024, 100000})
        QTest::addRow("%d bytes a line", bytes) << dxfOf(thumbnailSection(bitmap(), bytes));
    QTest::newRow("comment in front") << "999\nmade by hand\n" + dxfOf(section());
    QTest::newRow("comment inside") << dxfOf(section().replace("310\n", "999\nabc\n310\n"));
    QTest::newRow("blanks around codes and digits")
        << dxfOf(section().replace("310\n", "  310 \n").replace("\n 90\n", "\n 90\n    "));
    QTest::newRow("word in texts before") << dxfOf(wordInTexts() + section());
    QTest::newRow("word in texts behind") << dxfOf(section() + wordInTexts());
    QTest::newRow("last of two sections")
        << dxfOf(thumbnailSection(testDib(3, 3, 8).bytes()) + section());
    QTest::newRow("end of file missing") << section();
}

void DxfPreviewTest::picture()
{
    QFETCH(QByteArray, file);
    SparseDevice device(file);
    QCOMPARE(read(device).convertToFormat(QImage::Format_RGB32), testPicture(7, 5, 8));
}

void DxfPreviewTest::noPicture_data()
{
    QTest::addColumn<QByteArray>("file");

    QTest::newRow("empty file") << QByteArray();
    QTest::newRow("no section") << dxfOf({});
    QTest::newRow("empty section") << dxfOf("  0\nSECTION\n  2\nTHUMBNAILIMAGE\n  0\nENDSEC\n");
    QTest::newRow("section without data") << dxfOf(thumbnailSection({}));
    QTest::newRow("word in texts only") << dxfOf(wordInTexts());
    QTest::newRow("section not in a DXF file") << "A letter\n" + dxfOf(section());
    QTest::newRow("name in the first line") << QByteArray("THUMBNAILIMAGE\n90\n4\n");
    QTest::newRow("binary DXF") << QByteArray("Program Binary DXF\r\n\x1a\0", 22) + section();

    QTest::newRow("odd number of digits") << dxfOf(section().replace("\n310\n2", "\n310\n"));
    QTest::newRow("last digit missing")
        << dxfOf(section().replace("0\n  0\nENDSEC", "\n  0\nENDSEC"));
    QTest::newRow("letters") << dxfOf(section().replace("\n310\n28", "\n310\nXY"));
    QTest::newRow("blank between digits") << dxfOf(section().replace("\n310\n28", "\n310\n2 "));
    QTest::newRow("NUL between digits")
        << dxfOf(section().replace("\n310\n28", QByteArray("\n310\n2\0", 7)));
    QByteArray pixels = section();
    pixels[pixels.lastIndexOf("\n  0\nENDSEC") - 4] = ' ';
    QTest::newRow("blank between the digits of a pixel") << dxfOf(pixels);
    pixels = thumbnailSection(bitmap() + 'x', QByteArray::number(bitmap().size()));
    QTest::newRow("half a byte more than counted")
        << dxfOf(pixels.remove(pixels.lastIndexOf("\n  0\nENDSEC") - 1, 1));
    QTest::newRow("code that is no number") << dxfOf(section().replace("310\n", "3x0\n"));
    QTest::newRow("code missing") << dxfOf(section().replace("\n310\n28", "\n28"));

    for (const char* count : {"-1", "4294967295", "many", "0", "1103", "1105", "", "1.104e3"})
        QTest::addRow("count \"%s\"", count) << dxfOf(thumbnailSection(bitmap(), count));
    QTest::newRow("count missing") << dxfOf(section().replace(" 90\n1104\n", ""));
    Dib giant = testDib(7, 5, 8);
    giant.width = 65535;
    giant.height = 65535;
    QTest::newRow("giant bitmap") << dxfOf(thumbnailSection(giant.bytes()));
    QTest::newRow("less than a header") << dxfOf(thumbnailSection(bitmap().left(39)));
    const QByteArray repeated = QByteArray("\x1F\x25\x6D\x07", 4).repeated(4000);
    QTest::newRow("another section's bytes, repeated")
        << dxfOf(thumbnailSection(repeated, QByteArray::number(repeated.size() + 116)));

    const QByteArray whole = dxfOf(section());
    QTest::newRow("cut in the data") << whole.left(whole.size() / 2);
    QTest::newRow("cut behind the data") << whole.left(whole.indexOf("  0\nENDSEC\n  0\nEOF"));
    QTest::newRow("cut in the section's name") << whole.left(whole.indexOf("NAILIMAGE"));
    QTest::newRow("cut behind the section's name") << whole.left(whole.indexOf(" 90\n"));
    QTest::newRow("another section begins in the data")
        << dxfOf(section().replace("  0\nENDSEC", "  0\nSECTION"));
    QTest::newRow("200 KB without newline") << QByteArray(200 * 1024, '0');
    QTest::newRow("200 KB of digits without newline")
        << dxfOf("  0\nSECTION\n  2\nTHUMBNAILIMAGE\n 90\n102400\n310\n" +
                 QByteArray(200 * 1024, '0'))
               .chopped(8);
    QTest::newRow("NUL bytes") << QByteArray(5000, '\0');
    QByteArray noise("0\n");
    for (quint32 i = 0; i < 100000; ++i)
        noise += static_cast<char>(i * i * 7919 >> 8);
    QTest::newRow("noise") << noise;
    QTest::newRow("the word alone, 100000 times")
        << QByteArray("0\n") + QByteArray("THUMBNAILIMAGE\n").repeated(100000);
}

void DxfPreviewTest::noPicture()
{
    QFETCH(QByteArray, file);
    SparseDevice device(file);
    QVERIFY(read(device).isNull());
}

void DxfPreviewTest::readsOnlyTheEnd_data()
{
    QTest::addColumn<QByteArray>("end");
    QTest::addColumn<bool>("hasPicture");

    QTest::newRow("no section") << dxfOf({}) << false;
    QTest::newRow("section") << dxfOf(section()) << true;
    QTest::newRow("section that begins before the window")
        << section() + QByteArray("999\n\n").repeated(VyDxfPreview::windowSize / 5) << false;
    QByteArray filling = "\n" + section();
    filling += QByteArray("999\n\n").repeated(
        static_cast<int>(VyDxfPreview::windowSize - filling.size()) / 5);
    QTest::newRow("section at the window's beginning") << filling << true;
    QTest::newRow("name alone at the window's beginning")
        << QByteArray("\nTHUMBNAILIMAGE\n").leftJustified(VyDxfPreview::windowSize, '\n') << false;
}

void DxfPreviewTest::readsOnlyTheEnd()
{
    QFETCH(QByteArray, end);
    QFETCH(bool, hasPicture);
    SparseDevice device(500LL * 1024 * 1024);
    device.put(0, "  0\nSECTION\n");
    device.put(device.size() - end.size(), end);
    QCOMPARE(!read(device).isNull(), hasPicture);
    QVERIFY(device.bytesRead() >= VyDxfPreview::windowSize);
    QVERIFY(device.bytesRead() <= VyDxfPreview::windowSize + 100);
}

void DxfPreviewTest::fileCutWhileRead()
{
    const QByteArray file = dxfOf(section());
    for (const int readable : {0, 10, file.size() / 2, file.size() - 1}) {
        SparseDevice device(file.size(), readable);
        device.put(0, file);
        QVERIFY2(read(device).isNull(), qPrintable(QString::number(readable)));
    }
}

QTEST_GUILESS_MAIN(DxfPreviewTest)
#include "DxfPreviewTest.moc"
