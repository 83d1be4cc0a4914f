// SPDX-License-Identifier: MIT
#include "VyPreviewBitmap.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>

bool CVyPreviewBitmap::ReadPreview(const CVyString& path)
{
    const QFileInfo drawing(path);
    const QFileInfo file(drawing.dir(), drawing.completeBaseName() + QStringLiteral(".png"));
    if (!file.isFile()) // a pipe would keep us waiting
        return false;
    QImageReader reader(file.filePath(), "png");
    const QImage picture = reader.size().width() <= 1024 && reader.size().height() <= 1024
                               ? reader.read()
                               : QImage(); // which no preview of ours is
    if (!picture.isNull())
        m_picture = picture;
    return !picture.isNull();
}

void CVyPreviewBitmap::CopyTo(QImage& image) const
{
    if (!m_picture.isNull())
        image = m_picture;
}
