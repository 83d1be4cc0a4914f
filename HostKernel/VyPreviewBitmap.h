// SPDX-License-Identifier: MIT
#pragma once

#include "VyString.h"

#include <QImage>

/// \file
/// The picture that a file carries.

/// Reads the preview picture that a file carries: the one that was stored in a
/// DWG or DXF drawing or template, or what a PNG, JPEG, BMP or SVG file shows. Which
/// of them a file is, is told by its content; but a picture that is named like a
/// drawing has no preview.
///
/// An SVG file (Scalable Vector Graphics 1.1, W3C) has a preview where Qt's plug-in
/// for it is installed and it is a plain drawing: shapes, texts and gradients in
/// UTF-8, not compressed, with nothing of another file, a style sheet, repetition
/// or script, and cheap to draw. It is drawn with at most 256 pixels a side.
///
/// Reading is bounded in time and memory whatever the file holds: pictures have
/// at most 8192 pixels a side, 16 million in all and 32 MiB as stored (8 MiB of text
/// in a DXF file, 1 MiB of an SVG file).
///
/// Of a file no more is read than its picture as it is stored and 8192 bytes,
/// however large it is; so of a file without a picture at most 8192 bytes are read.
/// The stored picture is the image in a DWG file's preview section, the text of a DXF
/// file's thumbnail section, and a PNG, JPEG, BMP or SVG file itself. What looks like a
/// picture as far as its beginning tells counts as one: it is read before it can be
/// refused, up to four of them in a DWG file. So does what looks like a thumbnail
/// section from a DXF file's end, other data in lines of different lengths.
///
/// The file is looked at once, opened, and read in few pieces with one call each, so
/// that a slow network share answers soon: the first bytes and mostly the picture at
/// once. A DXF file takes one more, and up to forty of a few bytes that find the
/// beginning of a long section. They take its lines to be as long as each other, as
/// all known writers make them; else it is read in pieces of 1024 bytes.
///
/// One object reads one file after another and keeps the last picture that it
/// found. Different objects may be used in different threads.
class VY_HOSTKERNEL_EXPORT CVyPreviewBitmap
{
public:
    /// A new reader without a picture; the caller owns and deletes it.
    static CVyPreviewBitmap* Create();

    virtual ~CVyPreviewBitmap() = default;

    /// Reads the preview of the regular file, or link to one, at \a path and
    /// answers whether there was one. Any doubt about the file is answered with
    /// false, without a message; the picture found before then stays. What is
    /// not a regular file is not opened.
    virtual bool ReadPreview(const CVyString& path) = 0;

    /// Copies the picture of the last successful ReadPreview(), at full size
    /// and opaque unless the file says otherwise, into \a image; leaves
    /// \a image alone when there was none.
    virtual void CopyTo(QImage& image) const = 0;

protected:
    CVyPreviewBitmap() = default;

private:
    Q_DISABLE_COPY(CVyPreviewBitmap)
};
