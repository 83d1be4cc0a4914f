// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

class CVyPreviewSource;

/// The section of a text DXF file that spells its preview, found from the file's
/// end: it is the last one, and what stands before it may have hundreds of MB.
///
/// Source of the format: the DXF reference, "DXF file structure" and the section
/// THUMBNAILIMAGE: groups 310 with hexadecimal digits, 90 with the number of bytes
/// that they spell, and 999 with comments.
namespace VyDxfThumbnail {

/// What \a file, a text DXF file, has from behind the name of its thumbnail section
/// on; empty without a section that ends within VyDxfPreview::windowSize of the file's
/// end, begins within VyPreviewLimits::longestSection of it and has no other groups
/// than those. Of several it is the last one that may be sound; what its groups spell
/// is not looked at.
///
/// Reads that window and, only where it begins inside of what may be such a section,
/// more. The lines of data that a writer makes are all as long; so the first one is
/// found by looking at the places where some of them would begin, up to forty times a
/// few bytes, and when the section begins in front of it, the rest is read at once.
/// Where an object's data are no section, that is known then. Lines of different
/// lengths are followed backwards, 1024 bytes at a time. Beside the section this takes
/// at most 4096 bytes, and of a file without one, too, unless it ends with data in
/// lines of different lengths: these are followed to where they begin.
QByteArray groups(CVyPreviewSource& file);

} // namespace VyDxfThumbnail
