// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// Device-independent bitmaps, the body of a BMP file, as drawings store them.
namespace VyDibCheck {

/// Where the pixels of \a dib begin; 0 unless its header is sound, its picture
/// is within the limits and its palette and pixels are all there. What follows
/// the pixels does not matter, nor does the size that the header declares for
/// them, which real files have wrong.
///
/// Qt must not see a bitmap without this: it takes one whose rows are cut for
/// whole, and the height of a top-down one is negative to it.
qint64 pixelOffset(const QByteArray& dib);

/// Whether a bitmap of \a size bytes that begins with \a beginning, at least its
/// first 52 bytes where it has as many, may have a pixelOffset(): so that one that
/// has none need not be read.
bool canBegin(const QByteArray& beginning, qint64 size);

} // namespace VyDibCheck
