// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

class CVyPreviewSource;

/// The preview of a DWG file and of its kin, which hold the same bytes under
/// other extensions.
namespace VyDwgPreview {

/// The first readable picture in the preview section of \a file, which may be
/// any file; null when it is no DWG file or has no such picture. Reads the
/// header, the section's records and the pictures tried, nothing else.
QImage read(CVyPreviewSource& file);

} // namespace VyDwgPreview
