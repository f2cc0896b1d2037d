#include "2d/data/polarorientation.h"

#include <cmath>

double wrappedAngle(double angle)
{
    return angle - fullCircle * std::floor(angle / fullCircle + 0.5);
}

double screenDirection(PolarOrientation orientation, double angle)
{
    switch (orientation) {
    case PolarOrientation::UpClockwise:
        return angle;
    case PolarOrientation::UpCounterClockwise:
        return -angle;
    case PolarOrientation::RightCounterClockwise:
        return 90.0 - angle;
    case PolarOrientation::DownClockwise:
        break;
    }
    return angle + fullCircle / 2.0;
}

double angleOfDirection(PolarOrientation orientation, double direction)
{
    switch (orientation) {
    case PolarOrientation::UpClockwise:
        return wrappedAngle(direction);
    case PolarOrientation::UpCounterClockwise:
        return wrappedAngle(-direction);
    case PolarOrientation::RightCounterClockwise:
        return wrappedAngle(90.0 - direction);
    case PolarOrientation::DownClockwise:
        break;
    }
    return wrappedAngle(direction - fullCircle / 2.0);
}

QString angleName(PolarLabels labels, double angle)
{
    double named = wrappedAngle(angle);
    if (labels == PolarLabels::WholeCircle && named < 0.0)
        named += fullCircle;
    else if (labels == PolarLabels::HalfCircles && named <= -fullCircle / 2.0)
        named = fullCircle / 2.0;
    return QString::number(named);
}
