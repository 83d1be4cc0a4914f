// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QSize>

/// SVG files (Scalable Vector Graphics 1.1, W3C) as plain drawings.
namespace VySvgCheck {

constexpr qint64 mostBytes = 1024LL * 1024; ///< of a file

/// What is known of a file that may be drawn.
struct Drawing
{
    QSize size;           ///< pixels to draw it in; empty for a file that may not be
    bool hasText = false; ///< drawing it takes fonts, and so a QGuiApplication
};

/// What the SVG file \a svg declares, with the sides of the size brought down to 256
/// pixels where it is larger; without a size unless the file is one whole drawing
/// that refers to nothing outside itself and is cheap to draw at that size.
///
/// A vector drawing is a program: Qt 5 opens the files that it names, expands what
/// it repeats and draws whatever that takes. So all that is not known here is
/// refused: document types and with them entities, processing instructions,
/// encodings but UTF-8, and all elements and attributes but those of plain shapes,
/// texts and gradients. There is no repetition (use), link, style sheet, image,
/// clip, mask, pattern, filter, script or animation among them, and a style refers
/// to gradients of the same file alone. The size is that of width and height, in
/// CSS's units of 96 to the inch, or of the viewBox where one of them is missing or
/// a share; it is held against VyPreviewLimits like that of any picture.
///
/// A file has at most mostBytes, 32 levels of elements and numbers up to ten million.
/// What its elements, outlines, areas, dashes and letters cost at 256 pixels, where
/// Qt 5.15 draws long outlines some twenty times faster than at 512, is added up with
/// measured prices and must come to less than a second.
Drawing check(const QByteArray& svg);

/// Whether check() may answer with a size for a file of \a size bytes that begins
/// with \a beginning, so that one without need not be read. A drawing whose first
/// element has not begun there, behind a long comment, is refused, too.
bool canBegin(const QByteArray& beginning, qint64 size);

} // namespace VySvgCheck
