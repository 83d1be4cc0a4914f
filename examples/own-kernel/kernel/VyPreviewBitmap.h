// SPDX-License-Identifier: MIT
#pragma once

#include "VyString.h"

#include <QImage>

/// The preview of a drawing: Acme writes a picture beside each, plan.png for
/// plan.dwg. It is read in another thread than the dialog's.
class CVyPreviewBitmap
{
public:
    /// The caller deletes it.
    static CVyPreviewBitmap* Create() { return new CVyPreviewBitmap; }

    /// Whether the drawing at \a path has one.
    bool ReadPreview(const CVyString& path);
    /// Copies the last that was found.
    void CopyTo(QImage& image) const;

private:
    QImage m_picture;
};
