// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

class CVyPreviewSource;

/// The preview of a text DXF file.
namespace VyDxfPreview {

/// How much of a file's end is read to see whether a section with a picture ends
/// there. Behind the section, which is a file's last one, only the mark of the end
/// is expected.
constexpr qint64 windowSize = 2560;

/// The picture in the THUMBNAILIMAGE section of \a file, which may be any file;
/// null when it is no text DXF file or has no whole picture. Reads the first
/// line, the window at the end and what VyDxfThumbnail reads of the section.
QImage read(CVyPreviewSource& file);

} // namespace VyDxfPreview
