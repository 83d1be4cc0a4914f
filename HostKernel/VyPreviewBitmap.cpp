// SPDX-License-Identifier: MIT
#include "VyPreviewBitmap.h"

#include "VyDwgPreview.h"
#include "VyDxfPreview.h"
#include "VyPreviewFile.h"
#include "VyPreviewImage.h"
#include "VyPreviewSource.h"

#include <QFileInfo>

namespace {

// A picture under a drawing's name is no drawing, and cannot be opened as one:
// showing it would promise the contrary.
bool isNamedLikeDrawing(const QString& path)
{
    static const QStringList suffixes = {QStringLiteral("dwg"), QStringLiteral("dwt"),
                                         QStringLiteral("dws"), QStringLiteral("dxf")};
    return suffixes.contains(QFileInfo(path).suffix(), Qt::CaseInsensitive);
}

// Each reader knows its files by their content and costs next to nothing on others.
QImage readPreview(CVyPreviewSource& source, const QString& path)
{
    QImage picture = VyDwgPreview::read(source);
    if (picture.isNull())
        picture = VyDxfPreview::read(source);
    if (picture.isNull() && !isNamedLikeDrawing(path))
        picture = VyPreviewImage::fromPictureFile(source);
    return picture;
}

class PreviewBitmap : public CVyPreviewBitmap
{
public:
    bool ReadPreview(const CVyString& path) override
    {
        const QString name = path;
        if (name.contains(QChar(QChar::Null)))
            return false; // Qt would warn about it on the host's log
        CVyPreviewFile file(name);
        if (!file.isOpen())
            return false;
        CVyPreviewSource source(file);
        const QImage picture = readPreview(source, name);
        if (picture.isNull())
            return false;
        m_picture = picture;
        return true;
    }

    void CopyTo(QImage& image) const override
    {
        if (!m_picture.isNull())
            image = m_picture;
    }

private:
    QImage m_picture;
};

} // namespace

CVyPreviewBitmap* CVyPreviewBitmap::Create()
{
    return new PreviewBitmap;
}
