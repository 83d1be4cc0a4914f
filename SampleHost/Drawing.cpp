// SPDX-License-Identifier: MIT
#include "Drawing.h"

#include "VyPreviewBitmap.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <memory>

namespace {

constexpr qint64 MostBytes = qint64{256} * 1024 * 1024; // which this sample holds in memory

QImage pictureIn(const QString& path)
{
    const std::unique_ptr<CVyPreviewBitmap> preview(CVyPreviewBitmap::Create());
    QImage picture;
    if (preview->ReadPreview(path))
        preview->CopyTo(picture);
    return picture;
}

void name(Drawing& drawing, const QString& path)
{
    drawing.path = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    drawing.name = QFileInfo(path).fileName();
}

// How lengths are written, and the sheet: an architect's inches, or millimetres.
QByteArray unitsAndLimits(bool metric)
{
    return metric ? "  9\n$LUNITS\n 70\n2\n  9\n$LIMMAX\n 10\n420.0\n 20\n297.0\n"
                  : "  9\n$LUNITS\n 70\n4\n  9\n$LIMMAX\n 10\n12.0\n 20\n9.0\n";
}

} // namespace

QString DrawingFiles::read(const QString& path, Drawing& drawing)
{
    const QFileInfo info(path);
    if (!info.exists())
        return tr("does not exist");
    if (!info.isFile())
        return tr("is not a file");
    if (info.size() > MostBytes)
        return tr("is too large for this sample");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return tr("cannot be opened: %1").arg(file.errorString());
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return tr("cannot be read: %1").arg(file.errorString());
    drawing = Drawing();
    name(drawing, path);
    drawing.bytes = bytes;
    drawing.picture = pictureIn(path);
    return {};
}

QString DrawingFiles::write(const QString& path, Drawing& drawing)
{
    QSaveFile file(path);
    // commit() alone does not notice when the disk is full before the end.
    if (!file.open(QIODevice::WriteOnly) || file.write(drawing.bytes) != drawing.bytes.size() ||
        !file.flush() || !file.commit())
        return tr("cannot be written: %1").arg(file.errorString());
    name(drawing, path);
    drawing.readOnly = false;
    return {};
}

Drawing DrawingFiles::empty(CVyUserIO::_FileNameRetVal mode)
{
    Drawing drawing;
    drawing.mode = mode;
    drawing.bytes = "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1009\n" +
                    unitsAndLimits(mode == CVyUserIO::NewMetric) +
                    "  0\nENDSEC\n  0\nSECTION\n  2\nENTITIES\n  0\nENDSEC\n  0\nEOF\n";
    return drawing;
}

QStringList DrawingFiles::extensions(const Drawing& drawing)
{
    if (drawing.bytes.startsWith("AC10"))
        return {QStringLiteral("dwg"), QStringLiteral("dwt")};
    if (drawing.bytes.left(1024).contains("SECTION"))
        return {QStringLiteral("dxf")};
    // Other characters have a meaning in patterns.
    const QString suffix = QFileInfo(drawing.path).suffix();
    const bool isPlain = std::all_of(suffix.begin(), suffix.end(),
                                     [](QChar each) { return each.isLetterOrNumber(); });
    return suffix.isEmpty() || !isPlain ? QStringList() : QStringList{suffix.toLower()};
}

QString DrawingFiles::typeName(const QString& extension)
{
    if (extension == QLatin1String("dwg"))
        return tr("Drawings");
    if (extension == QLatin1String("dwt"))
        return tr("Templates");
    if (extension == QLatin1String("dxf"))
        return tr("Exchange drawings");
    return tr("%1 files").arg(extension.toUpper());
}
