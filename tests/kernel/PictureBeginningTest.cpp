// SPDX-License-Identifier: MIT
#include "PreviewFiles.h"
#include "QuietTest.h"
#include "VyDibCheck.h"
#include "VySvgCheck.h"

#include <QtTest>

using namespace PreviewFiles;

namespace {

const QByteArray root = "<svg xmlns='http://www.w3.org/2000/svg' width='40' height='30'>";

} // namespace

/// What the beginning of a file tells of the picture that it may be.
class PictureBeginningTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyBeginningOfADrawing();
    void svg_data();
    void svg();
    void bitmap_data();
    void bitmap();
};

// Wherever it is cut: in a name, a value, a comment, a letter of several bytes.
void PictureBeginningTest::everyBeginningOfADrawing()
{
    const QByteArray drawing =
        "\xEF\xBB\xBF<?xml version='1.0' encoding='UTF-8'?>\n<!-- \xD0\x96 -->\n" + root +
        "<title>\xE5\x9B\xB3 &amp; &#x416;</title><!-- x --><g fill='#123'>"
        "<path d='M0 0 L 1.5 2e1z'/><rect width='1mm' height='2'/></g></svg>\n";
    QVERIFY(VySvgCheck::check(drawing).size.isValid());
    const int rootEnd = drawing.indexOf(root) + root.size();
    for (int size = 0; size <= drawing.size(); ++size) {
        const bool canBegin = VySvgCheck::canBegin(drawing.left(size), drawing.size());
        QVERIFY2(canBegin == (size >= rootEnd), qPrintable(QString::number(size)));
    }
}

void PictureBeginningTest::svg_data()
{
    QTest::addColumn<QByteArray>("beginning");
    QTest::addColumn<qint64>("size");
    QTest::addColumn<bool>("canBegin");

    const auto row = [](const char* name, const QByteArray& beginning, qint64 more, bool canBegin) {
        QTest::newRow(name) << beginning << beginning.size() + more << canBegin;
    };
    const qint64 left = VySvgCheck::mostBytes - root.size();
    row("drawing", root, 100, true);
    row("as long as can be", root, left, true);
    row("too long", root, left + 1, false);
    row("all of a file", "<!-- no drawing -->", 0, true); // the check itself tells
    row("another root", "<html>", 100, false);
    row("a root of another kind", "<svg>", 100, false);
    row("a document type", "<!DOCTYPE svg>" + root, 100, false);
    row("something refused", root + "<script>", 100, false);
    row("something wrong", root + "</g>", 100, false);
    row("more behind the drawing", root + "</svg><svg>", 100, false);
    row("a letter that is none", root + "<g id='\xFF\xFF'/>", 100, false);
    row("NUL", root + QByteArray(1, '\0'), 100, false);
    row("a size that is too large", QByteArray(root).replace("40", "9000"), 100, false);
    row("text", "Dear all", 100, false);
}

void PictureBeginningTest::svg()
{
    QFETCH(QByteArray, beginning);
    QFETCH(qint64, size);
    QTEST(VySvgCheck::canBegin(beginning, size), "canBegin");
}

void PictureBeginningTest::bitmap_data()
{
    QTest::addColumn<QByteArray>("dib");
    QTest::addColumn<bool>("canBegin");

    const Dib dib = testDib(60, 40, 8);
    QTest::newRow("bitmap") << dib.bytes() << true;
    QTest::newRow("more than its pixels") << dib.bytes() + "more" << true;
    QTest::newRow("last pixel missing") << dib.bytes().chopped(1) << false;
    QTest::newRow("in runs") << runLengthDib(1, QByteArray(100, 'x')).bytes() << true;
    Dib wrong = dib;
    wrong.planes = 2;
    QTest::newRow("header wrong") << wrong.bytes() << false;
    wrong = dib;
    wrong.width = 1000000;
    QTest::newRow("too large") << wrong.bytes() << false;
    Dib masked = testDib(60, 40, 32);
    masked.compression = 3;
    masked.masks = le32(0xFF0000) + le32(0xFF00) + le32(0xFF);
    QTest::newRow("masks") << masked.bytes() << true;
    masked.masks = le32(0xFF0000) + le32(0xFF00) + le32(0);
    QTest::newRow("masks wrong") << masked.bytes() << false;
    QTest::newRow("nothing") << QByteArray() << false;
}

void PictureBeginningTest::bitmap()
{
    QFETCH(QByteArray, dib);
    QTEST(VyDibCheck::canBegin(dib.left(52), dib.size()), "canBegin");
}

QTEST_GUILESS_MAIN(PictureBeginningTest)
#include "PictureBeginningTest.moc"
