// SPDX-License-Identifier: MIT
#include "HostLog.h"
#include "PreviewFiles.h"
#include "VyPreviewBitmap.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QDir>
#include <QImageReader>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

#include <sys/stat.h>

using namespace PreviewFiles;

namespace {

// What a caller has in its image before it asks.
QImage untouched()
{
    QImage image(2, 2, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    return image;
}

// The preview of the file at \a path; untouched() when there is none.
QImage previewOf(const QString& path)
{
    const std::unique_ptr<CVyPreviewBitmap> bitmap(CVyPreviewBitmap::Create());
    QImage image = untouched();
    const bool found = bitmap->ReadPreview(path);
    bitmap->CopyTo(image);
    return found == (image != untouched()) ? image : QImage();
}

QByteArray dwg(const QByteArray& dib)
{
    Dwg file;
    file.records = {{2, dib}};
    return file.bytes();
}

QByteArray encoded(const QImage& picture, const char* format)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, format, 100);
    return buffer.data();
}

// \a jpeg with a comment, up to 200 bytes, behind its first mark.
QByteArray commented(const QByteArray& jpeg, const QByteArray& text)
{
    return jpeg.left(2) + QByteArray("\xFF\xFE\0", 3) + static_cast<char>(text.size() + 2) + text +
           jpeg.mid(2);
}

// A drawing of a square for each pixel.
QByteArray svgOf(const QImage& picture)
{
    QString squares;
    for (int i = 0; i < picture.width() * picture.height(); ++i) {
        const QPoint at(i % picture.width(), i / picture.width());
        squares += QStringLiteral("<rect x='%1' y='%2' width='1' height='1' fill='%3'/>")
                       .arg(at.x())
                       .arg(at.y())
                       .arg(picture.pixelColor(at).name());
    }
    return QStringLiteral("<svg xmlns='http://www.w3.org/2000/svg' width='%1' height='%2'>%3</svg>")
        .arg(picture.width())
        .arg(picture.height())
        .arg(squares)
        .toUtf8();
}

// As gzip writes it.
QByteArray compressed(const QByteArray& file)
{
    QProcess gzip;
    gzip.start(QStringLiteral("gzip"), {QStringLiteral("-c")});
    gzip.write(file);
    gzip.closeWriteChannel();
    gzip.waitForFinished();
    return gzip.readAllStandardOutput();
}

// Red, green and blue of each pixel, rows from top to bottom.
QByteArray pixelSum(const QImage& image)
{
    const QImage rgb = image.convertToFormat(QImage::Format_RGB888);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (int y = 0; y < rgb.height(); ++y)
        hash.addData(reinterpret_cast<const char*>(rgb.constScanLine(y)), 3 * rgb.width());
    return hash.result().toHex();
}

} // namespace

/// The preview reader as the dialog uses it: a path in, a picture out.
class PreviewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void sample_data();
    void sample();
    void ownDrawing_data();
    void ownDrawing();
    void contentDecides_data();
    void contentDecides();
    void pictureFile_data();
    void pictureFile();
    void badPictureFile_data();
    void badPictureFile();
    void notRegular_data();
    void notRegular();
    void fifoDoesNotBlock();
    void unreadableFile();
    void linkToDrawing();
    void sectionAboveTwoGibibytes();
    void keepsThePictureFoundBefore();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }
    QString write(const QString& name, const QByteArray& bytes) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<HostLog> m_log;
};

void PreviewTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    m_log = std::make_unique<HostLog>();
}

void PreviewTest::cleanup()
{
    const QStringList messages = m_log->messages();
    m_log.reset();
    m_folder.reset();
    QCOMPARE(messages, QStringList());
}

QString PreviewTest::write(const QString& name, const QByteArray& bytes) const
{
    QFile file(path(name));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? path(name)
                                                                                : QString();
}

void PreviewTest::sample_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QByteArray>("sum");

    const QDir folder(QStringLiteral(VY_SAMPLES_DIR "/drawings"));
    if (!folder.exists())
        QSKIP("the folder shared/samples is not there", "");
    QFile table(folder.filePath(QStringLiteral("pixels.tsv")));
    QVERIFY(table.open(QIODevice::ReadOnly));
    QMap<QString, QByteArrayList> pictures;
    while (!table.atEnd()) {
        const QByteArrayList fields = table.readLine().trimmed().split('\t');
        QCOMPARE(fields.size(), 5);
        pictures.insert(QString::fromUtf8(fields[0]), fields);
    }
    const QStringList names = folder.entryList(
        {QStringLiteral("*.dwg"), QStringLiteral("*.dxf"), QStringLiteral("*.dwt")}, QDir::Files);
    QVERIFY(names.size() > 10);
    for (const QString& name : names) {
        const QByteArrayList fields = pictures.value(name);
        const QSize size =
            fields.isEmpty() ? QSize(2, 2) : QSize(fields[2].toInt(), fields[3].toInt());
        QTest::newRow(qPrintable(name))
            << size << (fields.isEmpty() ? pixelSum(untouched()) : fields[4]);
    }
}

void PreviewTest::sample()
{
    QFETCH(QSize, size);
    QFETCH(QByteArray, sum);
    const QImage preview = previewOf(QStringLiteral(VY_SAMPLES_DIR "/drawings/") +
                                     QString::fromUtf8(QTest::currentDataTag()));
    QCOMPARE(preview.size(), size);
    QCOMPARE(pixelSum(preview), sum);
    QVERIFY(!preview.hasAlphaChannel());
}

void PreviewTest::ownDrawing_data()
{
    const QDir examples(QStringLiteral(VY_EXAMPLES_DIR));
    QTest::addColumn<QString>("path");
    const QFileInfoList files =
        QDir(examples.filePath("drawings")).entryInfoList({QStringLiteral("*.dxf")}) +
        QDir(examples.filePath("templates")).entryInfoList({QStringLiteral("*.dwt")});
    QVERIFY(files.size() >= 5);
    for (const QFileInfo& file : files)
        QTest::newRow(qPrintable(file.fileName())) << file.absoluteFilePath();
}

void PreviewTest::ownDrawing()
{
    QFETCH(QString, path);
    const QImage preview = previewOf(path).convertToFormat(QImage::Format_RGB32);
    QCOMPARE(preview.size(), QSize(180, 130));
    int drawn = 0;
    for (int i = 0; i < 180 * 130; ++i)
        drawn += preview.pixel(i % 180, i / 180) == preview.pixel(0, 0) ? 0 : 1;
    QVERIFY(drawn > 1000);
}

void PreviewTest::contentDecides_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<bool>("hasPicture");

    const QByteArray dib = testDib(7, 5, 8).bytes();
    const QByteArray dxf = dxfOf(thumbnailSection(dib));
    const QByteArray png = testPng(7, 5);
    QTest::newRow("DWG") << "a.dwg" << dwg(dib) << true;
    QTest::newRow("template") << "a.DWT" << dwg(dib) << true;
    QTest::newRow("DWG under another name") << "a.sv$" << dwg(dib) << true;
    QTest::newRow("DWG without extension") << "drawing" << dwg(dib) << true;
    QTest::newRow("DWG named as DXF") << "a.dxf" << dwg(dib) << true;
    QTest::newRow("DXF") << "a.dxf" << dxf << true;
    QTest::newRow("DXF named as DWG") << "a.dwg" << dxf << true;
    QTest::newRow("name with other letters")
        << QString::fromUtf8("Пример 図面 \xF0\x9F\x98\x80#%.dwg") << dwg(dib) << true;
    QTest::newRow("PNG") << "a.png" << png << true;
    QTest::newRow("PNG named as JPEG") << "a.jpg" << png << true;
    QTest::newRow("PNG named as DWG") << "a.dwg" << png << false;
    QTest::newRow("PNG named as template") << "a.dwt" << png << false;
    QTest::newRow("PNG named as DXF") << "a.DXF" << png << false;
    const QByteArray svg = svgOf(testPicture(7, 5, 8));
    const bool hasPlugin = QImageReader::supportedImageFormats().contains("svg");
    QTest::newRow("SVG") << "a.svg" << svg << hasPlugin;
    QTest::newRow("SVG named as PNG") << "a.png" << svg << hasPlugin;
    QTest::newRow("SVG named as DWG") << "a.dwg" << svg << false;
    QTest::newRow("SVG named as DXF") << "a.dxf" << svg << false;
    QTest::newRow("ZIP named as DWG") << "a.dwg" << QByteArray("PK\3\4").repeated(500) << false;
    QTest::newRow("text named as DWG")
        << "a.dwg" << QByteArray("Dear all,\n").repeated(99) << false;
    QTest::newRow("empty file") << "a.dwg" << QByteArray() << false;
}

void PreviewTest::contentDecides()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, file);
    QFETCH(bool, hasPicture);
    const QString path = write(name, file);
    QVERIFY(!path.isEmpty());
    const QImage expected = hasPicture ? testPicture(7, 5, 8) : untouched();
    QCOMPARE(previewOf(path).convertToFormat(QImage::Format_RGB32), expected);
}

void PreviewTest::pictureFile_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<bool>("isExact");

    const QImage picture = testPicture(64, 48, 24);
    QTest::newRow("PNG") << encoded(picture, "PNG") << true;
    QTest::newRow("BMP") << encoded(picture, "BMP") << true;
    QTest::newRow("BMP with a palette")
        << encoded(picture.convertToFormat(QImage::Format_Indexed8), "BMP") << false;
    const QByteArray jpeg = encoded(picture, "JPEG");
    QTest::newRow("JPEG") << jpeg << false;
    QTest::newRow("JPEG with bytes behind it") << jpeg + QByteArray(99, '\0') << false;
    QTest::newRow("JPEG with a comment") << commented(jpeg, QByteArray(80, 'a')) << false;
}

void PreviewTest::pictureFile()
{
    QFETCH(QByteArray, file);
    const QImage preview = previewOf(write(QStringLiteral("picture"), file));
    QCOMPARE(preview.size(), QSize(64, 48));
    QFETCH(bool, isExact);
    if (isExact)
        QCOMPARE(preview.convertToFormat(QImage::Format_RGB32), testPicture(64, 48, 24));
}

void PreviewTest::badPictureFile_data()
{
    QTest::addColumn<QByteArray>("file");

    const QImage picture = testPicture(64, 48, 24);
    const QByteArray jpeg = encoded(picture, "JPEG");
    const QByteArray bmp = encoded(picture, "BMP");
    QTest::newRow("JPEG cut") << jpeg.left(jpeg.size() / 2);
    QTest::newRow("JPEG cut, with its end mark") << jpeg.left(jpeg.size() / 2) + jpeg.right(2);
    QTest::newRow("JPEG without its end") << jpeg.chopped(2);
    QByteArray damaged = jpeg;
    damaged.replace(jpeg.size() / 2, 40, QByteArray(40, '\xFF'));
    QTest::newRow("JPEG damaged in the middle") << damaged;
    QTest::newRow("JPEG's first bytes alone")
        << QByteArray("\xFF\xD8\xFF\xE0").leftJustified(99, 0);
    QTest::newRow("JPEG too wide") << encoded(QImage(8193, 1, QImage::Format_RGB32), "JPEG");
    QTest::newRow("JPEG with 40 scans") << commented(jpeg, QByteArray("\xFF\xDA").repeated(40));
    QTest::newRow("BMP's first bytes alone") << QByteArray("BM");
    QTest::newRow("BMP cut") << bmp.chopped(1);
    QTest::newRow("BMP's header alone") << QByteArray("BM").leftJustified(60, 0);
    QByteArray gap = bmp;
    gap[10] = static_cast<char>(gap.at(10) + 4);
    QTest::newRow("BMP with its pixels elsewhere") << gap + QByteArray(4, 0);
    QTest::newRow("PNG cut") << testPng(7, 5).chopped(1);
    QTest::newRow("picture of 33 MB") << testPng(7, 5) + QByteArray(33 * 1024 * 1024, 0);
    QTest::newRow("SVG with text, where there are no fonts")
        << QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'>"
                      "<text y='9'>A</text></svg>");
    QTest::newRow("SVG cut") << svgOf(picture).chopped(1);
    QTest::newRow("SVG compressed") << compressed(svgOf(picture));
}

void PreviewTest::badPictureFile()
{
    QVERIFY(QImageReader::supportedImageFormats().contains("jpeg"));
    QFETCH(QByteArray, file);
    QCOMPARE(previewOf(write(QStringLiteral("picture"), file)), untouched());
}

void PreviewTest::notRegular_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("nothing") << QString();
    QTest::newRow("folder") << QString();
    QTest::newRow("missing file") << "missing.dwg";
    QTest::newRow("folder that is missing") << "missing/a.dwg";
    QTest::newRow("file as folder") << "a.dwg/b.dwg";
    QTest::newRow("link to nothing") << "dangling.dwg";
    QTest::newRow("link to itself") << "loop.dwg";
    QTest::newRow("link to a folder") << "folder.dwg";
    QTest::newRow("device") << "zeros.dwg";
    QTest::newRow("name with NUL") << QStringLiteral("a.dwg") + QChar(QChar::Null);
}

void PreviewTest::notRegular()
{
    QFETCH(QString, name);
    QVERIFY(!write(QStringLiteral("a.dwg"), dwg(testDib(7, 5, 8).bytes())).isEmpty());
    QVERIFY(QFile::link(path(QStringLiteral("missing.dwg")), path(QStringLiteral("dangling.dwg"))));
    QVERIFY(QFile::link(path(QStringLiteral("loop.dwg")), path(QStringLiteral("loop.dwg"))));
    QVERIFY(QFile::link(m_folder->path(), path(QStringLiteral("folder.dwg"))));
    QVERIFY(QFile::link(QStringLiteral("/dev/zero"), path(QStringLiteral("zeros.dwg"))));
    const bool isNothing = QByteArray(QTest::currentDataTag()) == "nothing";
    QCOMPARE(previewOf(isNothing ? QString() : path(name)), untouched());
}

void PreviewTest::fifoDoesNotBlock()
{
    const QString fifo = path(QStringLiteral("fifo.dwg"));
    QCOMPARE(mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    QCOMPARE(previewOf(fifo), untouched());
}

void PreviewTest::unreadableFile()
{
    const QString name = write(QStringLiteral("a.dwg"), dwg(testDib(7, 5, 8).bytes()));
    QVERIFY(QFile::setPermissions(name, QFileDevice::WriteOwner));
    if (QFile(name).open(QIODevice::ReadOnly))
        QSKIP("this user may read every file", "");
    QCOMPARE(previewOf(name), untouched());
}

void PreviewTest::linkToDrawing()
{
    const QString name = write(QStringLiteral("a.dwg"), dwg(testDib(7, 5, 8).bytes()));
    QVERIFY(QFile::link(name, path(QStringLiteral("link.dwg"))));
    QCOMPARE(previewOf(path(QStringLiteral("link.dwg"))).size(), QSize(7, 5));
}

void PreviewTest::sectionAboveTwoGibibytes()
{
    const qint64 sectionAt = 0xA0000000;
    const QByteArray dib = testDib(7, 5, 8).bytes();
    QFile file(path(QStringLiteral("large.dwg")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("AC1032" + QByteArray(7, 0) + le32(sectionAt));
    file.seek(sectionAt);
    file.write(startSentinel + le32(0) + "\x01\x02" + le32(sectionAt + 30) + le32(dib.size()) +
               dib);
    QVERIFY(file.resize(0xC0000000)); // a hole, so that no disk is filled
    file.close();
    QCOMPARE(previewOf(file.fileName()).size(), QSize(7, 5));
}

void PreviewTest::keepsThePictureFoundBefore()
{
    const std::unique_ptr<CVyPreviewBitmap> bitmap(CVyPreviewBitmap::Create());
    QImage image = untouched();
    bitmap->CopyTo(image);
    QCOMPARE(image, untouched());

    QVERIFY(bitmap->ReadPreview(write(QStringLiteral("a.dwg"), dwg(testDib(7, 5, 8).bytes()))));
    QVERIFY(!bitmap->ReadPreview(path(QStringLiteral("missing.dwg"))));
    bitmap->CopyTo(image);
    QCOMPARE(image.size(), QSize(7, 5));
    QVERIFY(bitmap->ReadPreview(write(QStringLiteral("b.dwg"), dwg(testDib(3, 4, 8).bytes()))));
    bitmap->CopyTo(image);
    QCOMPARE(image.size(), QSize(3, 4));
}

QTEST_GUILESS_MAIN(PreviewTest)
#include "PreviewTest.moc"
