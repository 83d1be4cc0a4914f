// SPDX-License-Identifier: MIT
#include "PreviewFiles.h"
#include "QuietTest.h"
#include "ReadCount.h"
#include "VyPreviewBitmap.h"

#include <QBuffer>
#include <QImageReader>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

#include <sys/stat.h>

using namespace PreviewFiles;

namespace {

constexpr qint64 kibibyte = 1024;
constexpr qint64 mebibyte = 1024 * kibibyte;
constexpr qint64 huge = 500 * mebibyte;

// What is read of each file, in one call, and what more of a DXF file.
constexpr qint64 first = 4096;
constexpr qint64 window = 2560;

// What the preview of a file may take beside the picture that is stored in it.
constexpr qint64 mostBeside = 8192;

QByteArray noise(qint64 size)
{
    QByteArray bytes(static_cast<int>(size), 0);
    quint32 state = 2463534242u;
    for (char& byte : bytes) {
        state ^= state << 13;
        state ^= state >> 17;
        state ^= state << 5;
        byte = static_cast<char>(state >> 24);
    }
    return bytes;
}

QByteArray text(const QByteArray& beginning, qint64 size)
{
    return beginning + QByteArray("drawn by hand \n").repeated(static_cast<int>(size / 15));
}

QByteArray encoded(const QImage& picture, const char* format)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, format, 100);
    return buffer.data();
}

enum Code
{
    Bitmap = 2,
    Png = 6
};

Dwg drawingOf(Code code, const QByteArray& image, int sectionAt = 0x1C0)
{
    Dwg dwg;
    dwg.version = "AC1032";
    dwg.sectionAt = sectionAt;
    dwg.records = {{1, QByteArray(80, '\0')}, {code, image}};
    return dwg;
}

// All of a DXF file from its thumbnail section on, and the end of the line before.
QByteArray dxfEnd(const QByteArray& dib)
{
    return "\n" + thumbnailSection(dib) + "  0\nEOF\n";
}

const QByteArray dxfBeginning = "  0\nSECTION\n  2\nHEADER\n";

QByteArray dataLines(qint64 bytes)
{
    const QByteArray line = "310\n" + QByteArray(254, '5') + "\n";
    return line.repeated(static_cast<int>(bytes / 259));
}

struct Reads
{
    bool found;
    qint64 calls;
    qint64 bytes;
};

// Counted the second time: the first one may load Qt's plug-in for a kind of picture.
Reads readsOf(const QString& path)
{
    const std::unique_ptr<CVyPreviewBitmap> bitmap(CVyPreviewBitmap::Create());
    bitmap->ReadPreview(path);
    const ReadCount count;
    const bool found = bitmap->ReadPreview(path);
    const ReadCount::Reads reads = count.reads();
    return {found, reads.calls, reads.bytes};
}

} // namespace

/// What is read of a file for its preview, in bytes and in calls, each of which is a
/// round trip on a network share: as much as the picture takes that is stored in it.
class PreviewReadsTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void drawing_data();
    void drawing();
    void movedSection();
    void pictureFile_data();
    void pictureFile();
    void noPicture_data();
    void noPicture();
    void sizeOfTheFile_data();
    void sizeOfTheFile();
    void notRegular();

private:
    QString path(const QString& name) const { return m_folder.filePath(name); }

    // A file that begins and ends with some bytes and has a hole between them where
    // \a size says so.
    QString write(const QString& name, const QByteArray& beginning, qint64 size = 0,
                  const QByteArray& end = {}) const;

    QTemporaryDir m_folder;
};

void PreviewReadsTest::initTestCase()
{
    QVERIFY(m_folder.isValid());
    if (!ReadCount::isKnown())
        QSKIP("this system does not count what a process reads in /proc/self/io", "");
}

QString PreviewReadsTest::write(const QString& name, const QByteArray& beginning, qint64 size,
                                const QByteArray& end) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(beginning) != beginning.size())
        qFatal("%s cannot be written", qPrintable(name));
    if (size > 0 &&
        (!file.resize(size) || !file.seek(size - end.size()) || file.write(end) != end.size()))
        qFatal("%s cannot be made so large", qPrintable(name));
    return file.fileName();
}

void PreviewReadsTest::drawing_data()
{
    QTest::addColumn<QByteArray>("beginning");
    QTest::addColumn<QByteArray>("end"); // of a huge file
    QTest::addColumn<qint64>("stored");
    QTest::addColumn<qint64>("calls");
    QTest::addColumn<qint64>("beside"); // the bytes that are not the stored picture's

    const auto dwg = [](const char* name, const Dwg& file, qint64 calls, qint64 beside) {
        const qint64 stored = file.records.back().image.size();
        QTest::newRow(name) << file.bytes() << QByteArray() << stored << calls << beside;
    };
    const QByteArray dib = testDib(256, 124, 8).bytes();
    const qint64 before = drawingOf(Bitmap, dib).imagesAt() + 80; // and its title
    dwg("DWG, bitmap", drawingOf(Bitmap, dib), 2, before);
    dwg("DWG, large bitmap", drawingOf(Bitmap, testDib(1024, 1024, 24).bytes()), 2, before);
    const QByteArray png = testPng(300, 200);
    dwg("DWG, PNG", drawingOf(Png, png), 1, first - png.size());
    dwg("DWG, large PNG", drawingOf(Png, testPng(1200, 900)), 2, before);
    dwg("DWG, section further on", drawingOf(Bitmap, dib, 0x10A0), 4, first + 21 + 2 * 9);

    const auto dxf = [](const char* name, const QByteArray& end, qint64 calls, qint64 beside) {
        const qint64 stored = end.lastIndexOf("ENDSEC") + 6 - end.indexOf("  0");
        QTest::newRow(name) << dxfBeginning << end << stored << calls << beside;
    };
    const QByteArray large = dxfEnd(testDib(1024, 512, 24).bytes());
    dxf("DXF, small bitmap", dxfEnd(testDib(7, 5, 8).bytes()), 2, 4353);
    dxf("DXF, bitmap", dxfEnd(dib), 13, 4622);
    dxf("DXF, bitmap, CR LF", dxfEnd(dib).replace("\n", "\r\n"), 16, 4646);
    dxf("DXF, large bitmap", large, 23, 4670);
    dxf("DXF, large bitmap, CR LF", QByteArray(large).replace("\n", "\r\n"), 23, 4686);
    dxf("DXF, lines at its end", dxfEnd(dib) + QByteArray(" \n").repeated(600), 16, 5837);
    QByteArray commented = dxfEnd(dib);
    commented.insert(commented.indexOf("310\n", 30000), "999\nby hand\n");
    dxf("DXF, comment in its data", commented, 51, 4814);
}

void PreviewReadsTest::drawing()
{
    QFETCH(QByteArray, beginning);
    QFETCH(QByteArray, end);
    QFETCH(qint64, stored);
    const Reads reads = readsOf(write(QStringLiteral("file.dwg"), beginning, huge, end));
    QVERIFY(reads.found);
    QVERIFY(reads.bytes - stored <= mostBeside);
    QTEST(reads.calls, "calls");
    QTEST(reads.bytes - stored, "beside");
}

// The bound holds for each of the pictures that are tried: here one stands where the
// record says and one where it is.
void PreviewReadsTest::movedSection()
{
    Dwg moved = drawingOf(Bitmap, testDib(256, 124, 8).bytes());
    moved.records[1].start = 17;
    const Reads reads = readsOf(write(QStringLiteral("file.dwg"), moved.bytes(), huge));
    QVERIFY(reads.found);
    QCOMPARE(reads.calls, 3ll);
    const qint64 stored = moved.records[1].image.size();
    QCOMPARE(reads.bytes, 17 + stored + moved.imagesAt() + 80 + stored - first);
}

// The picture that is stored is the file.
void PreviewReadsTest::pictureFile_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<qint64>("calls");

    const QImage picture = testPicture(300, 200, 24);
    QTest::newRow("small PNG") << testPng(30, 20) << 1ll;
    QTest::newRow("PNG") << encoded(picture, "PNG") << 2ll;
    QTest::newRow("BMP") << encoded(picture, "BMP") << 2ll;
    if (QImageReader::supportedImageFormats().contains("jpeg"))
        QTest::newRow("JPEG") << encoded(picture, "JPEG") << 2ll;
    if (QImageReader::supportedImageFormats().contains("svg"))
        QTest::newRow("SVG") << QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='9' "
                                           "height='9'>") +
                                    QByteArray("<rect width='9' height='9'/>").repeated(200) +
                                    "</svg>"
                             << 2ll;
}

void PreviewReadsTest::pictureFile()
{
    QFETCH(QByteArray, file);
    const Reads reads = readsOf(write(QStringLiteral("picture"), file));
    QVERIFY(reads.found);
    QCOMPARE(reads.bytes, qint64(file.size()));
    QTEST(reads.calls, "calls");
}

void PreviewReadsTest::noPicture_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("beginning");
    QTest::addColumn<qint64>("size"); // 0: no more than the beginning
    QTest::addColumn<QByteArray>("end");
    QTest::addColumn<qint64>("calls");
    QTest::addColumn<qint64>("bytes");

    const auto row = [](const char* name, const char* file, const QByteArray& beginning,
                        qint64 size, qint64 calls, qint64 bytes, const QByteArray& end = {}) {
        QTest::newRow(name) << QString::fromLatin1(file) << beginning << size << end << calls
                            << bytes;
    };
    row("empty", "a.dwg", {}, 0, 0, 0);
    row("one byte", "a.dwg", "A", 0, 1, 1);

    row("DWG without a section", "a.dwg", drawingOf(Bitmap, {}, 0).version + QByteArray(11, '\0'),
        huge, 1, first);
    const QByteArray seeker = le32(400 * mebibyte);
    row("DWG with a wrong position", "a.dwg", "AC1032" + QByteArray(7, '\0') + seeker, huge, 2,
        first + 21);
    row("DWG with a position outside", "a.dwg", "AC1032" + QByteArray(7, '\0') + le32(0xFFFFFFFF),
        huge, 1, first);
    row("old DWG", "a.dwg", "AC1009", huge, 1, first);

    const QByteArray dxfEnding = "  0\nENDSEC\n  0\nEOF\n";
    row("small DXF", "a.dxf", dxfOf({}), 0, 1, dxfOf({}).size());
    row("DXF of 10 KB", "a.dxf", dxfBeginning, 10 * kibibyte, 2, first + window, dxfEnding);
    row("DXF of 500 MB", "a.dxf", dxfBeginning, huge, 2, first + window, dxfEnding);
    row("DXF that ends with 7 MB of another section's data", "a.dxf", dxfBeginning, huge, 38, 7850,
        "  0\nOLE2FRAME\n" + dataLines(7 * mebibyte) + dxfEnding);
    row("binary DXF", "a.dxf", QByteArray("Program Binary DXF\r\n\x1a\0", 22), huge, 1, first);
    row("text that begins with a number", "a.txt", "1\n", huge, 2, first + window);

    for (const char* name : {"a.dwg", "a.dxf", "a.png", "a.svg", "a.zip", "a"}) {
        row(qPrintable(QStringLiteral("noise in %1").arg(name)), name, noise(100 * kibibyte), huge,
            1, first);
        row(qPrintable(QStringLiteral("text in %1").arg(name)), name, text("Dear all,\n", mebibyte),
            0, 1, first);
        row(qPrintable(QStringLiteral("ZIP in %1").arg(name)), name, "PK\3\4", 10 * mebibyte, 1,
            first);
    }
    row("PNG of 33 MB", "a.png", testPng(300, 200), 33 * mebibyte, 1, first);
    row("PNG's first letters", "a.png", "\x89PNG", 10 * mebibyte, 1, first);
    row("text that begins like a BMP", "a.txt", text("BM", mebibyte), 0, 1, first);
    row("BMP whose size is a lie", "a.bmp", encoded(testPicture(300, 200, 24), "BMP").left(9000), 0,
        1, first);
    row("SVG of more than 1 MiB", "a.svg", "<svg xmlns='http://www.w3.org/2000/svg'>", 2 * mebibyte,
        1, first);
    row("XML that is no SVG", "a.xml", text("<?xml version='1.0'?><list>", mebibyte / 2), 0, 1,
        first);
    row("HTML behind a comment", "a.html", text("<!-- now --><html>", mebibyte / 2), 0, 1, first);
    row("one long comment", "a.svg", text("<!-- ", mebibyte / 2), 0, 1, first);
    row("SVG with a script", "a.svg",
        text("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'><script>", mebibyte / 2),
        0, 1, first);
}

void PreviewReadsTest::noPicture()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, beginning);
    QFETCH(qint64, size);
    QFETCH(QByteArray, end);
    const Reads reads = readsOf(write(name, beginning, size, end));
    QVERIFY(!reads.found);
    QVERIFY(reads.bytes <= mostBeside);
    QTEST(reads.calls, "calls");
    QTEST(reads.bytes, "bytes");
}

void PreviewReadsTest::sizeOfTheFile_data()
{
    QTest::addColumn<QByteArray>("beginning");
    QTest::addColumn<QByteArray>("end");
    QTest::addColumn<qint64>("smallest");

    const QByteArray dib = testDib(60, 40, 8).bytes();
    QTest::newRow("DWG") << drawingOf(Bitmap, dib).bytes() << QByteArray("x") << 10 * kibibyte;
    QTest::newRow("DXF, 2 KB") << dxfBeginning << dxfEnd(testDib(7, 5, 8).bytes()) << 10 * kibibyte;
    QTest::newRow("DXF, 64 KB") << dxfBeginning << dxfEnd(testDib(256, 124, 8).bytes())
                                << 100 * kibibyte;
}

void PreviewReadsTest::sizeOfTheFile()
{
    QFETCH(QByteArray, beginning);
    QFETCH(QByteArray, end);
    QFETCH(qint64, smallest);
    const Reads small = readsOf(write(QStringLiteral("small.dwg"), beginning, smallest, end));
    const Reads large = readsOf(write(QStringLiteral("large.dwg"), beginning, huge, end));
    QVERIFY(small.found && large.found);
    QCOMPARE(large.calls, small.calls);
    QCOMPARE(large.bytes, small.bytes);
}

void PreviewReadsTest::notRegular()
{
    const QString fifo = path(QStringLiteral("fifo.dwg"));
    QCOMPARE(mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    for (const QString& name : {fifo, m_folder.path(), path(QStringLiteral("missing.dwg")),
                                QStringLiteral("/dev/zero"), QString()}) {
        const Reads reads = readsOf(name);
        QVERIFY2(!reads.found && reads.calls == 0, qPrintable(name));
    }
}

QTEST_GUILESS_MAIN(PreviewReadsTest)
#include "PreviewReadsTest.moc"
