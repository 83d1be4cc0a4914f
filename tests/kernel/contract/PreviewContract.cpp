// SPDX-License-Identifier: MIT
#include "PreviewFiles.h"
#include "VyPreviewBitmap.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

#include <memory>

using namespace PreviewFiles;

namespace {

using Bitmap = std::unique_ptr<CVyPreviewBitmap>;

// What a caller has in its image before it asks.
QImage untouched()
{
    QImage image(2, 2, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    return image;
}

// What \a bitmap holds; untouched() when it holds nothing.
QImage pictureOf(const CVyPreviewBitmap& bitmap)
{
    QImage image = untouched();
    bitmap.CopyTo(image);
    return image.convertToFormat(QImage::Format_RGB32);
}

QImage expected(int width, int height, int depth)
{
    return testPicture(width, height, depth).convertToFormat(QImage::Format_RGB32);
}

QByteArray drawing(const QByteArray& version, int code, const QByteArray& image)
{
    Dwg file;
    file.version = version;
    file.records = {{1, QByteArray(80, '\0')}, {code, image}};
    return file.bytes();
}

QByteArray drawing()
{
    return drawing("AC1018", 2, testDib(8, 4, 8).bytes());
}

} // namespace

/// The reader of preview pictures as the dialog uses it: a path in, a picture
/// out, on every file that the cursor passes.
class PreviewContract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_folder.reset(); }

    void holdsNothingAtFirst();
    void readsDrawings_data();
    void readsDrawings();
    void findsNothing_data();
    void findsNothing();
    void findsNothingInAShorterFile();
    void leavesWhatIsNoFile();
    void keepsThePictureFoundBefore();
    void takesTheLatestPicture();
    void readersDoNotShare();
    void leavesTheFileAlone();
    void followsLinks();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }
    QString write(const QString& name, const QByteArray& bytes) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void PreviewContract::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

QString PreviewContract::write(const QString& name, const QByteArray& bytes) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s cannot be written", qPrintable(name));
    return path(name);
}

void PreviewContract::holdsNothingAtFirst()
{
    const Bitmap bitmap(CVyPreviewBitmap::Create());
    QVERIFY(bitmap);
    QCOMPARE(pictureOf(*bitmap), untouched());
}

void PreviewContract::readsDrawings_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QImage>("picture");

    const QByteArray dib = testDib(8, 4, 8).bytes();
    const QByteArray png = testPng(8, 4);
    const QImage picture = expected(8, 4, 8);
    for (const char* version :
         {"AC1012", "AC1014", "AC1015", "AC1018", "AC1021", "AC1024", "AC1027", "AC1032"}) {
        QTest::addRow("%s, bitmap", version) << "a.dwg" << drawing(version, 2, dib) << picture;
        QTest::addRow("%s, PNG", version) << "a.dwg" << drawing(version, 6, png) << picture;
    }
    QTest::newRow("template") << "a.dwt" << drawing("AC1032", 6, png) << picture;
    QTest::newRow("upper case") << "A.DWG" << drawing("AC1032", 6, png) << picture;
    QTest::newRow("blanks and Cyrillic")
        << QStringLiteral("мой план.dwg") << drawing("AC1032", 6, png) << picture;
    QTest::newRow("24 bits") << "a.dwg" << drawing("AC1015", 2, testDib(5, 3, 24).bytes())
                             << expected(5, 3, 24);
    QTest::newRow("32 bits, opaque")
        << "a.dwg" << drawing("AC1021", 2, testDib(5, 3, 32).bytes()) << expected(5, 3, 32);
    QTest::newRow("exchange file") << "a.dxf" << dxfOf(thumbnailSection(dib)) << picture;
}

void PreviewContract::readsDrawings()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QFETCH(QImage, picture);

    const Bitmap bitmap(CVyPreviewBitmap::Create());
    QVERIFY(bitmap->ReadPreview(CVyString(write(name, bytes))));
    QCOMPARE(pictureOf(*bitmap), picture);
}

void PreviewContract::findsNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");

    const auto without = [](const char* row, const QByteArray& bytes) {
        QTest::newRow(row) << "a.dwg" << bytes;
    };
    Dwg file;
    file.records = {{2, testDib(8, 4, 8).bytes()}};
    const Dwg sound = file;

    without("empty", "");
    without("text", "not a drawing\n");
    without("old version", drawing("AC1009", 2, sound.records[0].image));
    without("title alone", drawing("AC1018", 1, QByteArray(80, '\0')));
    without("metafile alone", drawing("AC1018", 3, QByteArray(200, '\0')));
    without("PNG under the code of bitmaps", drawing("AC1018", 2, testPng(8, 4)));
    file.seeker = 0;
    without("no section", file.bytes());
    file.seeker = 0xFFFFFFFF;
    without("section behind the end", file.bytes());
    file = sound;
    file.count = 255;
    without("records that are not there", file.bytesToLastImage().left(0x1C0 + 21 + 9));
    file = sound;
    file.records[0].size = 0xFFFFFFFF;
    without("image larger than the file", file.bytes());
    file = sound;
    file.records[0].start = 0xFFFFFFFF;
    without("image behind the end", file.bytes());
    Dib dib = testDib(8, 4, 8);
    dib.width = 0x7FFFFFFF;
    dib.height = 0x7FFFFFFF;
    without("giant picture", drawing("AC1018", 2, dib.bytes()));
    QTest::newRow("exchange file without section") << "a.dxf" << dxfOf(QByteArray());
    QTest::newRow("exchange file with too few bytes")
        << "a.dxf" << dxfOf(thumbnailSection(sound.records[0].image, "100000"));
}

void PreviewContract::findsNothing()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);

    const Bitmap bitmap(CVyPreviewBitmap::Create());
    QVERIFY(!bitmap->ReadPreview(CVyString(write(name, bytes))));
    QCOMPARE(pictureOf(*bitmap), untouched());
}

// A picture that is not whole is no picture.
void PreviewContract::findsNothingInAShorterFile()
{
    Dwg file;
    file.records = {{2, testDib(8, 4, 8).bytes()}};
    const QByteArray whole = file.bytesToLastImage();
    const Bitmap bitmap(CVyPreviewBitmap::Create());
    for (int size = 0; size < whole.size(); size += size < 0x1C0 ? 64 : 1)
        QVERIFY2(!bitmap->ReadPreview(CVyString(write("a.dwg", whole.left(size)))),
                 qPrintable(QString::number(size)));
    QCOMPARE(pictureOf(*bitmap), untouched());
    QVERIFY(bitmap->ReadPreview(CVyString(write("a.dwg", whole))));
}

// A FIFO would keep the reader waiting for somebody who writes.
void PreviewContract::leavesWhatIsNoFile()
{
    const Bitmap bitmap(CVyPreviewBitmap::Create());
    QCOMPARE(mkfifo(QFile::encodeName(path("fifo.dwg")).constData(), 0600), 0);
    QVERIFY(QFile::link(path("nowhere"), path("dangling.dwg")));
    QVERIFY(QDir().mkdir(path("folder.dwg")));
    for (const QString& name :
         {path("fifo.dwg"), path("dangling.dwg"), path("folder.dwg"), path("missing.dwg"), path(""),
          QString(), QStringLiteral("/dev/zero")})
        QVERIFY2(!bitmap->ReadPreview(CVyString(name)), qPrintable(name));
    QCOMPARE(pictureOf(*bitmap), untouched());
}

void PreviewContract::keepsThePictureFoundBefore()
{
    const Bitmap bitmap(CVyPreviewBitmap::Create());
    QVERIFY(bitmap->ReadPreview(CVyString(write("a.dwg", drawing()))));
    QVERIFY(!bitmap->ReadPreview(CVyString(write("b.dwg", "not a drawing\n"))));
    QVERIFY(!bitmap->ReadPreview(CVyString(path("missing.dwg"))));
    QCOMPARE(pictureOf(*bitmap), expected(8, 4, 8));
}

void PreviewContract::takesTheLatestPicture()
{
    const Bitmap bitmap(CVyPreviewBitmap::Create());
    QVERIFY(bitmap->ReadPreview(CVyString(write("a.dwg", drawing()))));
    const QByteArray other = drawing("AC1032", 2, testDib(3, 9, 24).bytes());
    QVERIFY(bitmap->ReadPreview(CVyString(write("b.dwg", other))));
    QCOMPARE(pictureOf(*bitmap), expected(3, 9, 24));
}

void PreviewContract::readersDoNotShare()
{
    Bitmap one(CVyPreviewBitmap::Create());
    const Bitmap two(CVyPreviewBitmap::Create());
    QVERIFY(one->ReadPreview(CVyString(write("a.dwg", drawing()))));
    QCOMPARE(pictureOf(*two), untouched());
    const QImage kept = pictureOf(*one);
    one.reset();
    QCOMPARE(kept, expected(8, 4, 8));
}

// It is read and let go: the same bytes and time, and it can be removed.
void PreviewContract::leavesTheFileAlone()
{
    const QString file = write("a.dwg", drawing());
    QVERIFY(QFile::setPermissions(file, QFile::ReadOwner));
    const QDateTime before = QFileInfo(file).lastModified();
    const Bitmap bitmap(CVyPreviewBitmap::Create());
    QVERIFY(bitmap->ReadPreview(CVyString(file)));
    QCOMPARE(QFileInfo(file).lastModified(), before);
    QVERIFY(QFile::remove(file));
    QCOMPARE(pictureOf(*bitmap), expected(8, 4, 8));
}

void PreviewContract::followsLinks()
{
    QVERIFY(QFile::link(write("a.dwg", drawing()), path("link.dwg")));
    const Bitmap bitmap(CVyPreviewBitmap::Create());
    QVERIFY(bitmap->ReadPreview(CVyString(path("link.dwg"))));
}

QTEST_GUILESS_MAIN(PreviewContract)
#include "PreviewContract.moc"
