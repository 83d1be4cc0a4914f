// SPDX-License-Identifier: MIT
// Where Qt's plug-in for SVG is not installed, an SVG file has no preview.
#include "QuietTest.h"
#include "VyPreviewImage.h"
#include "VyPreviewSource.h"
#include "VySvgCheck.h"

#include <QBuffer>
#include <QImageReader>
#include <QtTest>

class NoSvgPluginTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void showsNone();
};

void NoSvgPluginTest::showsNone()
{
    QCoreApplication::setLibraryPaths({}); // before the first picture is read
    QVERIFY(!QImageReader::supportedImageFormats().contains("svg"));
    QByteArray file = "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'>"
                      "<rect width='9' height='9'/></svg>";
    QCOMPARE(VySvgCheck::check(file).size, QSize(9, 9));
    QBuffer buffer(&file);
    buffer.open(QIODevice::ReadOnly);
    CVyPreviewSource source(buffer);
    QVERIFY(VyPreviewImage::fromPictureFile(source).isNull());
}

QTEST_GUILESS_MAIN(NoSvgPluginTest)
#include "NoSvgPluginTest.moc"
