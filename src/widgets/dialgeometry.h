#pragma once

#include <QPoint>
#include <QSize>
#include <QString>

/// Where everything on the round gauge goes, without drawing it.
///
/// Lengths are in a square of 200 by 200 units around the centre, x to the right and y down.
/// Angles are in degrees, counter-clockwise from 3 o'clock, unless a declaration says otherwise.
namespace DialGeometry {

/// The scale: its two values, its divisions and the angles between which it runs clockwise.
struct Scale
{
    double min = 0.0;
    double max = 360.0;
    int majorDivisions = 10;
    int minorDivisions = 5; ///< tick intervals in one major division
    int startAngle = 230;
    int endAngle = -50;

    /// Degrees between the two ends of the scale, never negative.
    int sweep() const;
    /// Tick intervals on the whole scale.
    int tickCount() const { return majorDivisions * minorDivisions; }
};

/// A colour in parts of 255.
struct Rgb
{
    int red;
    int green;
    int blue;
};

/// How far the needle goes past either end of the scale, in degrees.
constexpr double overshoot = 40.0;

/// The colour of part \a index of \a count on the way from blue (0) to red (\a count).
Rgb rampColor(int index, int count);

/// Degrees that the needle turns clockwise from the scale's start to show \a value: from -40 to
/// 320, since it overshoots the scale by 40 degrees at most. Not finite when the scale has no
/// extent and \a value lies on it.
double needleTurn(const Scale &scale, double value);

/// The number at major division \a index, without decimals.
QString numberText(const Scale &scale, int index);

/// The point at which the number of major division \a index is drawn (left end of the base line),
/// for a text of \a characters that measures \a size.
QPoint numberPosition(const Scale &scale, int index, int characters, const QSize &size);

/// One end of the permitted range as the overlay marks it.
struct RangeEnd
{
    QString text;       ///< the value in the shortest form of six digits
    int number = 0;     ///< what the text reads as; 0 when it is no whole number
    double angle = 0.0; ///< where the overlay's arc has it
};

/// The overlay's mark for \a value. The overlay spreads the scale over 300 degrees from 240, where
/// the scale itself takes 280 from 230: its arc is meant to differ from its labels.
RangeEnd rangeEnd(const Scale &scale, double value);

/// The point at which the overlay's label for \a number is drawn, as in numberPosition().
QPoint rangeLabelPosition(const Scale &scale, int number, int characters, const QSize &size);

/// \a value without its fraction; 0 for what no int can hold, as on a scale without extent.
int truncated(double value);

} // namespace DialGeometry
