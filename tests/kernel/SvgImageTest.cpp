// SPDX-License-Identifier: MIT
#include "QuietTest.h"
#include "VyPreviewImage.h"
#include "VyPreviewSource.h"
#include "VySvgCheck.h"

#include <QBuffer>
#include <QImageReader>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>

#include <sys/resource.h>
#include <sys/stat.h>

namespace {

const QByteArray inSvg = "xmlns='http://www.w3.org/2000/svg'";

// A drawing of 100 by 80 units, and pixels.
QByteArray svg(const QByteArray& body, const QByteArray& size = "width='100' height='80'")
{
    return "<svg " + inSvg + ' ' + size + " viewBox='0 0 100 80'>" + body + "</svg>";
}

QByteArray enlarged(const QByteArray& file)
{
    return QByteArray(file).replace("width='100' height='80' viewBox",
                                    "width='256' height='256' preserveAspectRatio='none' viewBox");
}

QByteArray sized(const QByteArray& attributes)
{
    return "<svg " + inSvg + ' ' + attributes + "><g/></svg>";
}

QByteArray path(const QByteArray& attributes)
{
    return svg("<path " + attributes + "/>");
}

// \a count times \a text, in which each %1 is the number of the time.
QByteArray times(int count, const char* text)
{
    constexpr int different = 97;
    QByteArray each[different];
    for (int i = 0; i < different; ++i)
        each[i] = QByteArray(text).replace("%1", QByteArray::number(i));
    QByteArray all;
    for (int i = 0; i < count; ++i)
        all += each[i % different];
    return all;
}

QByteArray nested(int levels)
{
    return QByteArray("<g>").repeated(levels) + QByteArray("</g>").repeated(levels);
}

// Draws 2 to the power of \a levels rectangles.
QByteArray useBomb(int levels)
{
    QByteArray groups = "<g id='g0'><rect width='9' height='9'/></g>";
    for (int i = 0; i < levels; ++i) {
        const QByteArray use = "<use x:href='#g" + QByteArray::number(i) + "'/>";
        groups += "<g id='g" + QByteArray::number(i + 1) + "'>" + use + use + "</g>";
    }
    return svg("<g xmlns:x='http://www.w3.org/1999/xlink'>" + groups + "</g>");
}

QImage pictureOf(QByteArray file)
{
    QBuffer buffer(&file);
    buffer.open(QIODevice::ReadOnly);
    CVyPreviewSource source(buffer);
    return VyPreviewImage::fromPictureFile(source);
}

// What this process has taken so far: time at work, which others on the machine do
// not lengthen, and memory.
struct Taken
{
    Taken()
    {
        rusage usage = {};
        getrusage(RUSAGE_SELF, &usage);
        seconds = static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
                  static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) * 1e-6;
        megabytes = usage.ru_maxrss / 1024;
    }

    double seconds;
    long megabytes;
};

bool isBoundedSince(const Taken& before)
{
    const Taken now;
    return now.seconds - before.seconds < VY_MOST_SECONDS &&
           now.megabytes - before.megabytes < VY_MOST_MEGABYTES;
}

using Body = std::function<QByteArray(int)>;

} // namespace

Q_DECLARE_METATYPE(Body)

/// SVG files: plain drawings are shown, programs are not.
class SvgImageTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void pixel_data();
    void pixel();
    void size_data();
    void size();
    void text();
    void refused_data();
    void refused();
    void opensNoFile_data();
    void opensNoFile();
    void costsNoMoreThanAllowed_data();
    void costsNoMoreThanAllowed();
    void showsLargeDrawings();

private:
    static bool hasPlugin() { return QImageReader::supportedImageFormats().contains("svg"); }
};

#define NEEDS_PLUGIN()                                                                             \
    if (!hasPlugin())                                                                              \
    QSKIP("Qt's SVG plug-in (libqt5svg5) is not installed")

void SvgImageTest::pixel_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<QColor>("colour");

    const QColor none(Qt::transparent);
    const QByteArray red = "<rect x='10' y='20' width='30' height='40' fill='#f00'/>";
    const auto row = [](const char* name, const QByteArray& file, QPoint at, const QColor& colour) {
        QTest::newRow(name) << file << at << colour;
    };
    row("in a rectangle", svg(red), {10, 20}, Qt::red);
    row("its last corner", svg(red), {39, 59}, Qt::red);
    row("beside it", svg(red), {40, 59}, none);
    row("colour by name", svg("<rect width='9' height='9' fill='blue'/>"), {5, 5}, Qt::blue);
    row("colour by parts", svg("<rect width='9' height='9' fill='rgb(0,255,0)'/>"), {5, 5},
        Qt::green);
    row("black by default", svg("<rect width='9' height='9'/>"), {5, 5}, Qt::black);
    row("style", svg("<rect width='9' height='9' style='fill:#00f; stroke:none'/>"), {5, 5},
        Qt::blue);
    row("inherited", svg("<g fill='#00f'><rect width='9' height='9'/></g>"), {5, 5}, Qt::blue);
    row("moved", svg("<g transform='translate(50 40) scale(2)'>" + red + "</g>"), {75, 79}, none);
    row("moved and scaled", svg("<g transform='matrix(2 0 0 2 0 -20)'>" + red + "</g>"), {21, 21},
        Qt::red);
    row("circle", svg("<circle cx='50' cy='40' r='30' fill='#f00'/>"), {50, 11}, Qt::red);
    row("ellipse", svg("<ellipse cx='50' cy='40' rx='30' ry='10' fill='#f00'/>"), {50, 11}, none);
    row("line", svg("<line x1='0' y1='10' x2='100' y2='10' stroke='#f00' stroke-width='4'/>"),
        {50, 9}, Qt::red);
    row("polyline",
        svg("<polyline points='0,10 50,10 50,80' fill='none' stroke='#f00' "
            "stroke-width='4'/>"),
        {51, 70}, Qt::red);
    row("polygon", svg("<polygon points='0 0 100 0 0 80' fill='#f00'/>"), {20, 20}, Qt::red);
    row("path",
        path("fill='#f00' d='M10,10h50v50h-50zm10 10 c0 9 5 9 9 9 s3 1 5 5 Q1 1 9 9T5 5"
             "A5 5 0 0 1 9 9'"),
        {55, 55}, Qt::red);
    row("dashes", path("stroke='#f00' stroke-width='10' stroke-dasharray='20 20' d='M0 40H100'"),
        {10, 40}, Qt::red);
    row("gap", path("stroke='#f00' stroke-width='10' stroke-dasharray='20 20' d='M0 40H100'"),
        {30, 40}, none);
    row("gradient",
        svg("<defs><linearGradient id='a'><stop offset='0' stop-color='#f00'/>"
            "<stop offset='1' stop-color='#f00'/></linearGradient></defs>"
            "<rect width='50' height='50' fill='url(#a)'/>"),
        {20, 20}, Qt::red);
    row("with a declaration", "<?xml version='1.0' encoding='UTF-8'?>\n" + svg(red), {20, 30},
        Qt::red);
    row("with a byte order mark", "\xEF\xBB\xBF" + svg(red), {20, 30}, Qt::red);
    row("behind a comment", "<!-- drawn by hand -->" + svg(red), {20, 30}, Qt::red);
    row("with a title", svg("<title>Plan &amp; <!-- -->\xD0\x96</title><desc>x</desc>" + red),
        {20, 30}, Qt::red);
    row("with a prefix",
        "<?xml version='1.0'?><s:svg xmlns:s='http://www.w3.org/2000/svg' "
        "width='100' height='80'><s:rect width='9' height='9' fill='red'/>"
        "</s:svg>",
        {5, 5}, Qt::red);
    row("from a view box",
        "<svg " + inSvg +
            " width='100' height='80' viewBox='1000 0 200 160'>"
            "<rect x='1100' width='100' height='80' fill='red'/></svg>",
        {75, 20}, Qt::red);
}

void SvgImageTest::pixel()
{
    NEEDS_PLUGIN();
    QFETCH(QByteArray, file);
    QFETCH(QPoint, at);
    const QImage picture = pictureOf(file);
    QCOMPARE(picture.size(), QSize(100, 80));
    QTEST(picture.pixelColor(at), "colour");
}

void SvgImageTest::size_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<QSize>("size");

    QTest::newRow("numbers") << QByteArray("width='30' height='40'") << QSize(30, 40);
    QTest::newRow("pixels") << QByteArray("width='30px' height='40px'") << QSize(30, 40);
    QTest::newRow("millimetres") << QByteArray("width='25.4mm' height='50.8mm'") << QSize(96, 192);
    QTest::newRow("inches") << QByteArray("width='1in' height='2in'") << QSize(96, 192);
    QTest::newRow("points") << QByteArray("width='72pt' height='36pt'") << QSize(96, 48);
    QTest::newRow("view box") << QByteArray("viewBox='5,5 30,40'") << QSize(30, 40);
    QTest::newRow("share of the view box")
        << QByteArray("width='100%' height='100%' viewBox='0 0 30 40'") << QSize(30, 40);
    QTest::newRow("largest") << QByteArray("width='256' height='128'") << QSize(256, 128);
    QTest::newRow("larger") << QByteArray("width='1000' height='500'") << QSize(256, 128);
    QTest::newRow("flat") << QByteArray("width='8000' height='1'") << QSize(256, 1);
}

void SvgImageTest::size()
{
    NEEDS_PLUGIN();
    QFETCH(QByteArray, attributes);
    QTEST(pictureOf(sized(attributes)).size(), "size");
}

void SvgImageTest::text()
{
    NEEDS_PLUGIN();
    const QImage picture = pictureOf(svg("<text x='5' y='60' font-size='60' font-family='Sans, "
                                         "\"Two Words\"' fill='#f00'>A<tspan>B</tspan></text>"));
    QCOMPARE(picture.size(), QSize(100, 80));
    int drawn = 0;
    for (int i = 0; i < 100 * 80; ++i)
        drawn += picture.pixelColor(i % 100, i / 100) == Qt::red ? 1 : 0;
    QVERIFY(drawn > 300);
}

void SvgImageTest::refused_data()
{
    QTest::addColumn<QByteArray>("file");
    const auto row = [](const char* name, const QByteArray& file) { QTest::newRow(name) << file; };

    row("cut", svg("<rect width='9' height='9'/>").chopped(1));
    row("not well-formed", svg("<g><rect/></a>"));
    row("junk behind it", svg("<g/>") + "junk");
    row("other root", "<?xml version='1.0'?><g " + inSvg + " width='9' height='9'/>");
    row("no namespace", "<svg width='9' height='9'><rect width='5' height='5'/></svg>");
    row("other namespace", "<svg xmlns='http://example.org/svg' width='9' height='9'/>         ");
    row("svg in svg", svg(svg("<g/>")));
    row("document type", "<?xml version='1.0'?><!DOCTYPE svg>" + svg("<g/>"));
    row("billion laughs", "<?xml version='1.0'?><!DOCTYPE svg [<!ENTITY a 'aaaaaaaaaa'>"
                          "<!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;'><!ENTITY c '&b;&b;&b;&b;&b;"
                          "&b;&b;&b;&b;&b;'><!ENTITY d '&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;'>]>" +
                              svg("<title>&d;&d;&d;&d;&d;&d;</title>"));
    row("undefined entity", svg("<title>&nbsp;</title>"));
    row("processing instruction", svg("<?php echo ?><g/>"));
    row("declared UTF-16", "<?xml version='1.0' encoding='UTF-16'?>" + svg("<g/>"));
    row("declared Latin-1", "<?xml version='1.0' encoding='ISO-8859-1'?>" + svg("<g/>"));
    const QString sixteen = QString::fromLatin1(svg("<g/>"));
    row("UTF-16", "\xFF\xFE" + QByteArray(reinterpret_cast<const char*>(sixteen.utf16()),
                                          2 * sixteen.size()));
    row("bytes that are no UTF-8", svg("<title>\xE4\xF6</title>"));
    row("NUL", svg(QByteArray("<title>\0</title>", 16)));
    row("unknown element", svg("<flowRoot/>"));
    row("unknown attribute", svg("<rect onclick='x'/>"));
    row("attribute of another namespace", svg("<rect xmlns:a='b:c' a:width='9'/>"));
    row("element of another namespace", svg("<a:rect xmlns:a='b:c' width='9'/>"));
    for (const char* element :
         {"a",        "animate", "animateTransform", "audio", "clipPath",   "feImage",
          "filter",   "font",    "foreignObject",    "image", "marker",     "mask",
          "metadata", "pattern", "script",           "set",   "solidColor", "style",
          "switch",   "symbol",  "textArea",         "tref",  "use",        "video"})
        row(element, svg(QByteArray("<") + element + "/>"));
    row("use bomb", useBomb(40));
    row("text outside a text", svg("<g>text</g>"));
    row("colour of another file", svg("<rect fill='url(http://example.org/#a)'/>"));
    row("colour in data", svg("<rect fill='url(data:image/svg+xml;base64,AAAA)'/>"));
    row("colour that is missing", svg("<rect width='9' height='9' fill='url(#nowhere)'/>"));
    row("style with a file", svg("<rect style='fill:url(file:///etc/passwd)'/>"));
    row("style with an escape", svg("<rect style='fi\\6c l:red'/>"));
    row("style with a comment", svg("<rect style='fill:/**/red'/>"));
    row("style in style", svg("<rect style='style:fill:red'/>"));
    row("link", svg("<rect xmlns:x='http://www.w3.org/1999/xlink' x:href='#a'/>"));

    row("no size", sized(""));
    row("no height", sized("width='9'"));
    row("share of nothing", sized("width='100%' height='100%'"));
    row("size 0", sized("width='0' height='9'"));
    row("negative size", sized("width='-9' height='9'"));
    row("size NaN", sized("width='nan' height='9'"));
    row("infinite size", sized("width='inf' height='9'"));
    row("size 1e400", sized("width='1e400' height='9'"));
    row("too wide", sized("width='8193' height='1'"));
    row("too many pixels", sized("width='8192' height='8192'"));
    row("letters as size", sized("width='wide' height='9'"));
    row("view box with three numbers", sized("width='9' height='9' viewBox='0 0 9'"));
    row("view box of nothing", sized("width='9' height='9' viewBox='0 0 0 0'"));
    row("tiny view box", sized("width='9' height='9' viewBox='0 0 1e-9 1e-9'"));

    row("coordinates 1e30", path("d='M0 0L1e30 1e30'"));
    row("coordinate NaN", path("d='M0 0Lnan 0'"));
    row("unknown path letter", path("d='M0 0B5 5'"));
    row("path with a number too few", path("d='M0 0L5'"));
    row("odd transform", svg("<g transform='rotate(1 2)'/>"));
    row("unknown transform", svg("<g transform='expand(1)'/>"));
    row("dashes of 1e-9", path("stroke='red' stroke-dasharray='1e-9' d='M0 0H100'"));
    row("dashes of 0", path("stroke='red' stroke-dasharray='0 0' d='M0 0H100'"));
    row("fine dashes of a fine line",
        path("stroke='red' stroke-width='1e-6' stroke-dasharray='1e-4' d='M0 0H100'"));
    row("negative dashes", path("stroke='red' stroke-dasharray='-1 2' d='M0 0H100'"));
    row("inherited dashes of 1e-9", svg("<g stroke-dasharray='1e-9'><path stroke='red' d='M0 0H100"
                                        "'/></g>"));
    row("font of 1e9", svg("<text font-size='1e9'>A</text>"));
    row("font of 2000", svg("<text font-size='2000'>A</text>"));
    row("font of 0.1", svg("<text font-size='0.1'>A</text>"));
    row("100000 elements", svg(QByteArray("<g/>").repeated(100000)));
    row("100000 levels", svg(nested(100000)));
    row("33 levels", svg(nested(32)));
    row("a million stops", svg("<linearGradient id='a'>" + QByteArray("<stop/>").repeated(1000000) +
                               "</linearGradient>"));
    row("100000 letters", svg("<text>" + QByteArray(100000, 'a') + "</text>"));
    row("20000 lines across", path("stroke='red' d='M0 0" + times(20000, "L%1 0L0 80") + "'"));
    row("20000 thick arcs",
        path("stroke='red' stroke-width='40' d='M0 0" + times(20000, "A90 80 9 1 1 %1 9") + "'"));
    row("20000 full rectangles", svg(times(19000, "<rect width='100' height='80'/>")));
    row("32000 elements of a path", path("stroke='red' d='M0 0" + times(33000, "l1 1") + "'"));
    row("more than a mebibyte", svg("<title>" + QByteArray(1024 * 1024, 'a') + "</title>"));
}

void SvgImageTest::refused()
{
    QFETCH(QByteArray, file);
    const Taken before;
    QVERIFY(pictureOf(file).isNull());
    QVERIFY(isBoundedSince(before));
}

void SvgImageTest::opensNoFile_data()
{
    QTest::addColumn<QByteArray>("file"); // with % for the path of a file

    const QByteArray links = " xmlns:xlink='http://www.w3.org/1999/xlink' ";
    QTest::newRow("image") << svg("<image href='%' width='9' height='9'/>");
    QTest::newRow("linked image") << svg("<image" + links +
                                         "xlink:href='%' width='9' height='9'/>");
    QTest::newRow("use") << svg("<use" + links + "xlink:href='%#a'/>");
    QTest::newRow("gradient") << svg("<linearGradient" + links + "xlink:href='%#a'/>");
    QTest::newRow("font") << svg("<font-face-uri" + links + "xlink:href='%'/>");
    QTest::newRow("fill") << svg("<rect width='9' height='9' fill='url(%#a)'/>");
    QTest::newRow("style sheet") << svg("<style>@import url(%);</style>");
    QTest::newRow("outer style sheet")
        << "<?xml version='1.0'?><?xml-stylesheet href='%'?>" + svg("<g/>");
    QTest::newRow("document type")
        << "<?xml version='1.0'?><!DOCTYPE svg SYSTEM '%'>" + svg("<g/>");
    QTest::newRow("entity") << "<?xml version='1.0'?><!DOCTYPE svg [<!ENTITY a SYSTEM '%'>]>" +
                                   svg("<title>&a;</title>");
}

// Whoever opened the pipe to read would wait for a writer for good.
void SvgImageTest::opensNoFile()
{
    QFETCH(QByteArray, file);
    const QTemporaryDir folder;
    const QByteArray pipe = QFile::encodeName(folder.filePath("pipe"));
    QCOMPARE(mkfifo(pipe.constData(), 0600), 0);
    for (const QByteArray& name : {pipe, QByteArray("file://" + pipe)})
        QVERIFY(pictureOf(QByteArray(file).replace('%', name)).isNull());
}

// The dearest drawings of each kind that are not refused.
void SvgImageTest::costsNoMoreThanAllowed_data()
{
    QTest::addColumn<Body>("body");

    const auto row = [](const char* name, const Body& body) { QTest::newRow(name) << body; };
    row("elements", [](int n) { return svg(times(n, "<g/>")); });
    row("full rectangles",
        [](int n) { return svg(times(n, "<rect width='100' height='80' fill-opacity='.5'/>")); });
    row("full gradients", [](int n) {
        return svg("<defs><radialGradient id='a'><stop offset='0' stop-opacity='.5'/><stop "
                   "offset='1' stop-color='red'/></radialGradient></defs>" +
                   times(n, "<rect width='100' height='80' fill='url(#a)'/>"));
    });
    row("full circles", [](int n) {
        return svg(times(n, "<circle cx='50' cy='40' r='40' stroke='red' stroke-width='9'/>"));
    });
    row("fill across", [](int n) { return path("d='M0 0" + times(n, "L%1 80L%1 0") + "'"); });
    row("strokes across", [](int n) {
        return path("stroke='red' stroke-width='.8' fill='none' d='M0 0" + times(n, "L%1 80L%1 0") +
                    "'");
    });
    row("thick round strokes", [](int n) {
        return path("stroke='red' stroke-width='9' stroke-linejoin='round' d='M0 0" +
                    times(n, "L%1 80L%1 0") + "'");
    });
    row("curves", [](int n) {
        return path("stroke='red' stroke-width='9' d='M0 0" +
                    times(n, "C%1 80 9 0 90 80Q%1 0 5 70T80 %1") + "'");
    });
    row("arcs",
        [](int n) { return path("stroke='red' d='M0 0" + times(n, "A90 50 30 1 1 %1 70") + "'"); });
    row("small shapes", [](int n) {
        return svg(times(n, "<path stroke='red' stroke-width='2' d='M%1 9l1 1h-1z'/>"));
    });
    row("far away", [](int n) {
        return path("stroke='red' stroke-width='9' d='M0 0" +
                    times(n, "L1e7 1e7C-1e7 1e7 1e7 -1e7 %1 5") + "'");
    });
    row("scaled up", [](int n) {
        return svg("<g transform='scale(1e7)'>" +
                   times(n, "<path stroke='red' d='M0 0L1 1 1 0z'/><circle r='5'/>") + "</g>");
    });
    row("dashes", [](int n) {
        return path("stroke='red' stroke-dasharray='.5 .5' d='" + times(n, "M0 %1H100") + "'");
    });
    row("a long dashed line", [](int n) {
        return path("stroke='red' stroke-dasharray='1' d='M0 9H" + QByteArray::number(n) + "'");
    });
    row("letters", [](int n) {
        return svg("<text y='70' font-size='90' stroke='red' stroke-width='5'>" +
                   QByteArray(n, '@') + "</text>");
    });
}

void SvgImageTest::costsNoMoreThanAllowed()
{
    NEEDS_PLUGIN();
    QFETCH(Body, body);
    const auto isAllowed = [&body](int n) {
        return !VySvgCheck::check(enlarged(body(n))).size.isEmpty();
    };
    int allowed = 10;
    QVERIFY(isAllowed(allowed));
    int step = allowed;
    for (; isAllowed(allowed + step); step *= 2)
        allowed += step;
    for (; step > 0; step /= 2)
        allowed += isAllowed(allowed + step) ? step : 0;
    const QByteArray file = enlarged(body(allowed));
    const Taken before;
    QCOMPARE(pictureOf(file).size(), QSize(256, 256));
    QVERIFY(isBoundedSince(before));
}

// As drafters make them: many short lines in layers.
void SvgImageTest::showsLargeDrawings()
{
    NEEDS_PLUGIN();
    QByteArray lines;
    for (int i = 0; i < 12000; ++i)
        lines += QString("<line x1='%1' y1='%2' x2='%3' y2='%4'/>")
                     .arg(i * 7 % 1180)
                     .arg(i * 13 % 830)
                     .arg(i * 7 % 1180 + i % 19)
                     .arg(i * 13 % 830 + i % 7)
                     .toLatin1();
    const QImage picture = pictureOf("<svg " + inSvg +
                                     " width='1189mm' height='841mm' viewBox='0 0 1189 841'>"
                                     "<g stroke='#000' stroke-width='0.35' fill='none'>" +
                                     lines + "</g></svg>");
    QCOMPARE(picture.size(), QSize(256, 181));
}

QTEST_MAIN(SvgImageTest)
#include "SvgImageTest.moc"
