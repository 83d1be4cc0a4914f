// SPDX-License-Identifier: MIT
#include "PreviewFiles.h"
#include "QuietTest.h"
#include "SparseDevice.h"
#include "VyDxfPreview.h"
#include "VyDxfThumbnail.h"
#include "VyPreviewLimits.h"
#include "VyPreviewSource.h"

#include <QtTest>

using namespace PreviewFiles;

namespace {

constexpr int kibibyte = 1024;
constexpr int mebibyte = 1024 * kibibyte;

// What may be read of a file beside its section; the first bytes of the file, which
// tell what it is, take the rest of the 8192.
constexpr qint64 mostBeside = 4096;

// Bytes that a picture could consist of.
QByteArray data(int size)
{
    QByteArray bytes(size, 0);
    for (int i = 0; i < size; ++i)
        bytes[i] = static_cast<char>(i * 37 + i / 251);
    return bytes;
}

// Groups of data, \a perLine bytes a group.
QByteArray lines(const QByteArray& bytes, int perLine = 127)
{
    const QByteArray section = thumbnailSection(bytes, perLine);
    const int first = section.indexOf("310\n");
    return section.mid(first, section.indexOf("  0\nENDSEC") - first);
}

// Groups of data of two lengths by turns, 110 bytes for two of them.
QByteArray changingLines(int times)
{
    const QByteArray two = lines(data(20)) + lines(data(30));
    return two.repeated(times);
}

// The section with \a groups between its name and its end.
QByteArray sectionOf(const QByteArray& groups)
{
    return "  0\nSECTION\n  2\nTHUMBNAILIMAGE\n" + groups + "  0\nENDSEC\n";
}

// Another section, whose last object has data.
QByteArray dataOfAnObject(const QByteArray& groups)
{
    QByteArray section = "  0\nSECTION\n  2\nOBJECTS\n  0\nOLE2FRAME\n";
    section.append(groups).append("  0\nENDSEC\n");
    return section;
}

// A comment that has \a size bytes with its code.
QByteArray comment(int size)
{
    return "999\n" + QByteArray(size - 5, 'c') + "\n";
}

// From behind the name of the last section to the file's end.
QByteArray groupsIn(const QByteArray& file)
{
    const QByteArray name = file.contains('\r') ? "\nTHUMBNAILIMAGE\r\n" : "\nTHUMBNAILIMAGE\n";
    return file.mid(file.lastIndexOf(name) + name.size());
}

} // namespace

/// Where the section with the picture stands in a DXF file, and what it takes to find it.
class DxfThumbnailTest : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void found_data();
    void found();
    void behindOtherData_data();
    void behindOtherData();
    void notFound_data();
    void notFound();
    void lookalike_data();
    void lookalike();
    void longestSection();
    void fileCutWhileRead();
};

void DxfThumbnailTest::found_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<int>("reads");

    const auto row = [](const char* name, const QByteArray& body, int reads) {
        QTest::newRow(name) << dxfOf("  9\n$X\n 40\n1.25\n" + body) << reads;
    };
    const auto lineEnds = [](const char* name, const QByteArray& body, int reads) {
        QTest::newRow(name) << dxfOf(body).replace("\n", "\r\n") << reads;
    };
    const QByteArray medium = data(32 * kibibyte);
    const QByteArray large = data(3 * mebibyte / 2);

    row("within the window", thumbnailSection(data(1000)), 1);
    row("a little longer than the window", thumbnailSection(data(1300)), 10);
    row("64 KB", thumbnailSection(medium), 12);
    lineEnds("64 KB, CR LF", thumbnailSection(medium), 15);
    row("64 KB, blanks", thumbnailSection(medium).replace("310\n", "   310 \n"), 15);
    row("64 KB, 16 bytes a line", thumbnailSection(medium, 16), 16);
    row("64 KB, lower case",
        thumbnailSection(medium)
            .toLower()
            .replace("endsec", "ENDSEC")
            .replace("section", "SECTION")
            .replace("thumbnailimage", "THUMBNAILIMAGE"),
        12);
    row("3 MB", thumbnailSection(large), 22);
    lineEnds("3 MB, CR LF", thumbnailSection(large), 22);

    row("comment before each line", thumbnailSection(medium).replace("310\n", "999\nabc\n310\n"),
        15);
    row("comment in the middle",
        sectionOf(" 90\n1\n" + lines(medium) + comment(90) + lines(data(5000))), 81);
    row("lines of two lengths",
        sectionOf(" 90\n1\n" + lines(data(20000), 100) + lines(data(20000))), 61);
    row("lines of changing length", sectionOf(" 90\n1\n" + changingLines(200)), 30);
    row("one line", thumbnailSection(medium, medium.size()), 63);
    row("as many bytes a line as the window", thumbnailSection(medium, 1280), 63);
}

void DxfThumbnailTest::found()
{
    QFETCH(QByteArray, file);
    SparseDevice device(500LL * mebibyte);
    device.put(device.size() - file.size(), file);
    CVyPreviewSource source(device);
    const QByteArray groups = groupsIn(file);
    QCOMPARE(VyDxfThumbnail::groups(source), groups);
    QVERIFY2(device.bytesRead() <= groups.size() + mostBeside,
             qPrintable(QString::number(device.bytesRead() - groups.size())));
    QTEST(device.reads(), "reads");
}

void DxfThumbnailTest::behindOtherData_data()
{
    QTest::addColumn<int>("perLine");
    QTest::addColumn<int>("mostMissed");

    QTest::newRow("lines of the same length") << 127 << 1;
    QTest::newRow("longer lines") << 128 << 0;
    QTest::newRow("shorter lines") << 64 << 0;
}

// Lines of an object's data may stand where lines of a longer section would. Those in
// the very same places are the section's as far as can be seen from a few of them.
void DxfThumbnailTest::behindOtherData()
{
    QFETCH(int, perLine);
    const QByteArray section = thumbnailSection(data(16 * kibibyte));
    const QByteArray other = dataOfAnObject(lines(data(96 * kibibyte), perLine));
    int missed = 0;
    const int period = lines(data(perLine)).size();
    for (int shift = 0; shift < period; ++shift) {
        QByteArray body = other;
        body.append(comment(6 + shift)).append(section);
        const QByteArray file = dxfOf(body);
        SparseDevice device(file);
        CVyPreviewSource source(device);
        const QByteArray groups = groupsIn(file);
        const QByteArray found = VyDxfThumbnail::groups(source);
        missed += found.isEmpty() ? 1 : 0;
        QVERIFY(found.isEmpty() || found == groups);
        QVERIFY(device.bytesRead() <= groups.size() + mostBeside);
    }
    QFETCH(int, mostMissed);
    QVERIFY2(missed <= mostMissed, qPrintable(QString::number(missed)));
}

void DxfThumbnailTest::notFound_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<int>("reads");

    const auto row = [](const char* name, const QByteArray& body, int reads) {
        QTest::newRow(name) << dxfOf(body) << reads;
    };
    const QByteArray section = thumbnailSection(data(1000));
    row("no section", {}, 1);
    row("section far from the end", section + QByteArray("  9\nabc\n").repeated(1000), 1);
    row("comments behind the section", section + comment(2560), 1);
    row("ends alone", QByteArray("  0\nENDSEC\n").repeated(1000), 2);
    row("the word alone", QByteArray("ENDSEC\n").repeated(1000), 1);
    row("the word without lines", QByteArray("ENDSEC").repeated(1000) + "\n", 1);
    row("text of an object", "  1\n" + QByteArray(10000, 'x') + "\n  0\nENDSEC\n", 1);
    row("another section's data, 7 MB", dataOfAnObject(lines(data(7 * mebibyte / 2))), 37);
    row("another section's data, 12 MB", dataOfAnObject(lines(data(6 * mebibyte))), 37);
    row("data that are no digits", dataOfAnObject(QByteArray("310\nnone\n").repeated(10000)), 1);
    row("another name", thumbnailSection(data(5000)).replace("IMAGE", "image"), 15);
    row("another group", thumbnailSection(data(5000)).replace("  2\n", "  3\n"), 15);
    row("no beginning", thumbnailSection(data(5000)).replace("SECTION", "TIONSEC"), 15);
}

void DxfThumbnailTest::notFound()
{
    QFETCH(QByteArray, file);
    SparseDevice device(500LL * mebibyte);
    device.put(device.size() - file.size(), file);
    CVyPreviewSource source(device);
    QVERIFY(VyDxfThumbnail::groups(source).isEmpty());
    QVERIFY2(device.bytesRead() <= mostBeside, qPrintable(QString::number(device.bytesRead())));
    QTEST(device.reads(), "reads");
}

void DxfThumbnailTest::lookalike_data()
{
    QTest::addColumn<QByteArray>("file");

    QTest::newRow("lines of changing length") << dataOfAnObject(changingLines(100000));
    QTest::newRow("one line") << dataOfAnObject("310\n" + QByteArray(9 * mebibyte, 'A') + "\n");
    QTest::newRow("comments") << dataOfAnObject(comment(90).repeated(100000));
    QTest::newRow("newlines") << dataOfAnObject("310\n" + QByteArray(9 * mebibyte, '\n'));
}

// What looks like a section from its end is followed, but no further than a section
// may reach, and no byte is read twice.
void DxfThumbnailTest::lookalike()
{
    QFETCH(QByteArray, file);
    SparseDevice device(dxfOf(file));
    CVyPreviewSource source(device);
    QVERIFY(VyDxfThumbnail::groups(source).isEmpty());
    QVERIFY2(device.bytesRead() <= VyPreviewLimits::longestSection + 512,
             qPrintable(QString::number(device.bytesRead())));
    QVERIFY(device.largestRequest() <= VyDxfPreview::windowSize);
}

// The limit counts from the end of the line in front of the section to that of the file.
void DxfThumbnailTest::longestSection()
{
    const QByteArray fileEnd = "  0\nEOF\n";
    constexpr int longest = VyPreviewLimits::longestSection;
    for (const QByteArray& groups :
         {lines(data((longest / 259 - 8) * 127)), changingLines(longest / 110 - 20)}) {
        const QByteArray section = sectionOf(groups);
        const int trailing = longest - 1 - section.size() - fileEnd.size();
        QVERIFY(trailing > 0 && trailing < 2400);
        for (const int more : {0, 1}) {
            SparseDevice device(dxfOf(section) + QByteArray(trailing + more, ' '));
            CVyPreviewSource source(device);
            QCOMPARE(VyDxfThumbnail::groups(source).isEmpty(), more > 0);
        }
    }
}

void DxfThumbnailTest::fileCutWhileRead()
{
    const QByteArray file = dxfOf(thumbnailSection(data(32 * kibibyte)));
    for (int readable = 0; readable < file.size(); readable += 997) {
        SparseDevice device(file.size(), readable);
        device.put(0, file);
        CVyPreviewSource source(device);
        QVERIFY2(VyDxfThumbnail::groups(source).isEmpty(), qPrintable(QString::number(readable)));
    }
}

QTEST_GUILESS_MAIN(DxfThumbnailTest)
#include "DxfThumbnailTest.moc"
