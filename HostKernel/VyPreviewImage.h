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

/// The picture that \a file is: PNG, JPEG or BMP, told by its content.
///
/// SVG is left out. It is a drawing program more than a picture: it names
/// further files to be opened, and no limit known beforehand bounds its cost.
QImage fromPictureFile(CVyPreviewSource& file);

} // namespace VyPreviewImage
