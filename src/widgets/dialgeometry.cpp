#include "widgets/dialgeometry.h"

#include <cmath>
#include <cstdlib>
#include <limits>

namespace DialGeometry {

namespace {

constexpr double pi = 3.141592653589793;
constexpr double numberRadius = 75.0;
constexpr double rangeLabelRadius = 40.0;

double radians(int degrees)
{
    return degrees * pi / 180;
}

/// Centres a text on the circle of \a radius; texts of three and more characters move inwards a
/// little so that they keep clear of the ticks.
QPoint textPosition(double angle, double radius, int characters, const QSize &size)
{
    const double across = std::cos(angle) * radius;
    const double up = std::sin(angle) * radius;
    double x = across - size.width() * 0.5;
    double y = -up + size.height() * 0.25;
    if (characters > 2) {
        x += across > 0 ? -2 : 2;
        if (up > 0)
            y -= 1;
        else if (up < 0)
            y += 2;
    }
    return {truncated(x), truncated(y)};
}

} // namespace

int Scale::sweep() const
{
    return std::abs(endAngle - startAngle);
}

Rgb rampColor(int index, int count)
{
    const double step = 255.0 / count;
    return {truncated(index * step), 0, truncated(255 - index * step)};
}

double needleTurn(const Scale &scale, double value)
{
    const double turn =
        (scale.endAngle - scale.startAngle) / (scale.max - scale.min) * (value - scale.min);
    if (turn > overshoot)
        return -overshoot;
    if (turn < -(scale.sweep() + overshoot))
        return scale.sweep() + overshoot;
    return -turn;
}

QString numberText(const Scale &scale, int index)
{
    const double value = scale.min + (scale.max - scale.min) / scale.majorDivisions * index;
    return QString::number(value, 'f', 0);
}

QPoint numberPosition(const Scale &scale, int index, int characters, const QSize &size)
{
    const double angle =
        radians(scale.startAngle) - radians(scale.sweep()) / scale.majorDivisions * index;
    return textPosition(angle, numberRadius, characters, size);
}

RangeEnd rangeEnd(const Scale &scale, double value)
{
    const double extent = scale.max - scale.min;
    RangeEnd end;
    end.text = QString::number(value, 'g', 6);
    end.number = end.text.toInt();
    end.angle = end.number * (-300) / extent + scale.min * 300 / extent + 240;
    return end;
}

QPoint rangeLabelPosition(const Scale &scale, int number, int characters, const QSize &size)
{
    const double division = radians(scale.sweep()) / scale.majorDivisions;
    const double angle = radians(scale.startAngle) - (number - scale.min) /
                                                         (scale.max - scale.min) *
                                                         scale.majorDivisions * division;
    return textPosition(angle, rangeLabelRadius, characters, size);
}

int truncated(double value)
{
    // Also false for what is not a number.
    const bool fits = std::abs(value) < std::numeric_limits<int>::max();
    return fits ? static_cast<int>(value) : 0;
}

} // namespace DialGeometry
