// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// What a preview may at most be. The preview is read while the user moves
/// through a list of files, and Qt 5 allocates whatever a picture declares, so
/// every declared number is held against these before anything is reserved for
/// it. The largest previews of real drawings stay below a twentieth of them.
namespace VyPreviewLimits {

constexpr qint64 smallestImage = 40;                ///< bytes as stored
constexpr qint64 largestImage = 32LL * 1024 * 1024; ///< bytes as stored
constexpr qint64 largestSide = 8192;                ///< pixels
constexpr qint64 mostPixels = 4096LL * 4096;
/// Bytes from the beginning of a DXF file's thumbnail section, which spells a picture
/// in two digits a byte, to the file's end.
constexpr qint64 longestSection = 8LL * 1024 * 1024;
constexpr int mostTries = 4;  ///< pictures tried in one file
constexpr int mostScans = 32; ///< passes over a JPEG's pixels

/// Whether an image of \a bytes bytes is to be read at all.
constexpr bool allowsImage(qint64 bytes)
{
    return bytes >= smallestImage && bytes <= largestImage;
}

/// Whether a picture of \a width times \a height pixels is to be decoded.
constexpr bool allowsPicture(qint64 width, qint64 height)
{
    return width > 0 && height > 0 && width <= largestSide && height <= largestSide &&
           width * height <= mostPixels;
}

} // namespace VyPreviewLimits
