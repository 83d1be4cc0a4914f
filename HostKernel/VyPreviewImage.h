// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

class CVyPreviewSource;

/// Pictures from the bytes of a file: checked against VyPreviewLimits and for
/// being whole, then decoded by Qt. Each is null on any doubt, without a word
/// on the host's log.
namespace VyPreviewImage {

/// The picture of the bitmap \a dib, a BMP file without its file header.
QImage fromDib(const QByteArray& dib);

/// The picture of the PNG file \a png.
QImage fromPng(const QByteArray& png);

/// The picture that \a file is: PNG, JPEG or BMP, told by its content; and SVG,
/// where Qt has its plug-in "svg" at run time and the file is a plain drawing, see
/// VySvgCheck.h, drawn with at most 256 pixels a side on nothing. Texts in it take
/// a QGuiApplication. Reads the first 4096 bytes, and the rest only when these can be
/// a picture's.
QImage fromPictureFile(CVyPreviewSource& file);

} // namespace VyPreviewImage
