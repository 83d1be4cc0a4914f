// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

class CVyPreviewSource;

/// The preview of a text DXF file.
namespace VyDxfPreview {

/// How much of a file's end is searched for the section with the picture. The
/// section is a file's last one and this holds a picture of 4 MB, while the
/// drawing before it may have hundreds.
constexpr qint64 windowSize = 8LL * 1024 * 1024;

/// The picture in the THUMBNAILIMAGE section of \a file, which may be any file;
/// null when it is no text DXF file or has no whole picture. Reads the first
/// line and the window at the end.
QImage read(CVyPreviewSource& file);

} // namespace VyDxfPreview
