// SPDX-License-Identifier: MIT
// MakeSeeds FOLDER: writes what the fuzzers begin with, a folder for each. The
// pictures and drawings are those of the tests.
#include "PreviewFiles.h"

#include <QBuffer>
#include <QDir>
#include <QGuiApplication>

#include <cstdio>

namespace {

using namespace PreviewFiles;

int failures = 0;

// Writes \a contents as files of \a fuzzer.
void seed(const QDir& folder, const char* fuzzer, const QList<QByteArray>& contents)
{
    const QString name = QString::fromLatin1(fuzzer);
    failures += !folder.mkpath(name);
    for (int i = 0; i < contents.size(); ++i) {
        QFile file(folder.filePath(QStringLiteral("%1/%2").arg(name).arg(i)));
        failures +=
            !file.open(QIODevice::WriteOnly) || file.write(contents.at(i)) != contents.at(i).size();
    }
}

QByteArray encoded(const char* format, const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    failures += !image.save(&buffer, format);
    return bytes;
}

void seedPictures(const QDir& folder)
{
    const QImage picture = testPicture(8, 4, 8);
    seed(folder, "PictureFile",
         {encoded("PNG", picture), encoded("JPG", picture), encoded("BMP", picture), testPng(8, 4),
          "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"20\" height=\"10\">"
          "<defs><linearGradient id=\"g\"><stop offset=\"0\" stop-color=\"red\"/></linearGradient>"
          "</defs><g transform=\"rotate(9)\"><path d=\"M1,1 L9 9 C1 2 3 4 5 6 Z\" fill=\"url(#g)\" "
          "stroke=\"blue\" stroke-dasharray=\"1,2\"/><text x=\"1\" y=\"9\">A</text></g></svg>"});
}

void seedDrawings(const QDir& folder)
{
    QList<QByteArray> drawings;
    for (const int depth : {1, 4, 8, 24, 32}) {
        Dwg drawing;
        drawing.records = {{1, QByteArray(80, '\0')}, {2, testDib(8, 4, depth).bytes()}};
        drawings.append(drawing.bytes());
    }
    Dwg withPng;
    withPng.version = "AC1027";
    withPng.records = {{6, testPng(8, 4)}};
    drawings.append(withPng.bytes());
    Dwg inRuns;
    inRuns.records = {
        {2, runLengthDib(1, QByteArray::fromHex("0801000008020000000302040506000001")).bytes()}};
    drawings.append(inRuns.bytes());
    seed(folder, "DwgFile", drawings);

    const QByteArray dib = testDib(8, 4, 8).bytes();
    seed(folder, "DxfFile",
         {dxfOf(thumbnailSection(dib)), dxfOf(thumbnailSection(dib, 31)),
          dxfOf("  0\nSECTION\n  2\nENTITIES\n  0\nENDSEC\n" + thumbnailSection(dib))});
}

void seedTexts(const QDir& folder)
{
    const QList<QByteArray> filters{"Drawings&*.dwg;*.dxf&Templates&*.dwt&All files&*.*",
                                    "Drawing (dwg)&*.dwg&Web (*.dwf)&*.dwf;*.tar.gz&&", "&",
                                    "A;B&*&(&)&&C", "Sets&[a-c]?.d*"};
    seed(folder, "FilterString", filters);
    seed(folder, "SavedName", filters);
    seed(folder, "NamePatterns",
         {"*.dwg *.dxf\nplan.dwg\nPLAN.DXF\nplan", "[!a-c]?.d*\nx1.dwg", "*\nplan", "\nplan"});
    seed(folder, "Strings", {QByteArray(200, 'a'), QByteArray::fromHex("00d801dc").repeated(40)});
    seed(folder, "StartPath",
         {"/", "/tmp", "/tmp/plan.dwg", "plan.dwg", "../x", "/dev/null", "", "/no/where/"});
    seed(folder, "PathBar", {"a/home/ann/plans\n/home/ann", "b/\n/", "crelative\n//a//b/"});
    seed(folder, "CommandLineArguments",
         {QByteArray("open\0--style\0qt\0--filter\0A&*.a", 29),
          QByteArray("save\0--json\0plan", 16), "--help", "--version",
          QByteArray("new\0--template\0a.dwt\0--expert-level\0003", 37)});
}

} // namespace

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    if (argc != 2)
        return 2;
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    seedPictures(folder);
    seedDrawings(folder);
    seedTexts(folder);
    if (failures > 0)
        std::fprintf(stderr, "%d seeds could not be written\n", failures);
    return failures > 0;
}
