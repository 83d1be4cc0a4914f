// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// PNG files as drawings store them.
namespace VyPngCheck {

/// A PNG file with nothing in it but its picture.
struct Essentials
{
    QByteArray file;
    int colours = 0; ///< in its palette as stored; 0 for a picture without one
};

/// The file \a png without what its picture does not need (texts, profiles,
/// times) and with a palette that has a colour for every number that a pixel
/// can hold; empty unless it is whole: within the limits, its chunks in order
/// and their sums right, its rows all there and no byte more.
///
/// Qt must not see a PNG file without this: the library that it decodes with
/// reports each fault on the standard error output, past every handler. And Qt
/// quietly mends pixels whose colour the palette lacks.
Essentials essentials(const QByteArray& png);

} // namespace VyPngCheck
