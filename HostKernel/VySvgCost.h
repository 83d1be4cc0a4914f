// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QStringView>
#include <QVector>

/// What it costs to draw the shapes of an SVG file, in nanoseconds of a slow machine,
/// and the syntax of numbers, transforms and paths that it takes to tell.
namespace VySvgCost {

/// The price that a whole drawing may have.
constexpr double most = 1e9;

/// The price of one shape, or of anything else that is an element.
constexpr double elementPrice = 10e3;
/// The price of one letter, which Qt draws as an outline.
constexpr double letterPrice = 250e3;

constexpr double largestNumber = 1e7;

/// The numbers of the list \a text, with white space or commas between them; false
/// when there is anything else in it or a number above largestNumber.
bool readNumbers(QStringView text, QVector<double>& numbers);

/// How much longer a line can become by the transforms that \a text lists; false
/// when it is no such list.
bool readScale(QStringView text, double& scale);

/// An outline in the units of its shape.
struct Outline
{
    QVector<double> lengths; ///< of its segments, at least
    QRectF box;              ///< with all of it inside
};

/// The outline of the path data \a text; false when they are none.
bool readPath(QStringView text, Outline& outline);

/// The outline of the corners \a numbers, x and y by turns.
Outline polygon(const QVector<double>& numbers);

/// How a shape is drawn.
struct Style
{
    double scale = 1; ///< pixels a unit, at most
    bool isFilled = true;
    bool isStroked = false;
    double strokeWidth = 1; ///< units
    double dashPeriod = 0;  ///< units; 0 for a whole line
};

/// The price of a shape on \a canvas pixels a side.
double shape(const Outline& outline, const Style& style, double canvas);

} // namespace VySvgCost
