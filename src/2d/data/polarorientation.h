#pragma once

#include <QString>

constexpr double fullCircle = 360.0; ///< degrees
constexpr double halfCircle = 180.0; ///< degrees
constexpr double sameAngle = 1e-6;   ///< degrees; two angles that differ by less are one

/// Where a polar chart has its 0 degrees, and which way its angles run.
enum class PolarOrientation {
    DownClockwise,         ///< -180 degrees at the top, as the chart class is built
    UpClockwise,           ///< as a compass
    UpCounterClockwise,    ///< to the left of the direction of view
    RightCounterClockwise, ///< as in mathematics
};

/// How the directions round a polar chart are named.
enum class PolarLabels {
    HalfCircles, ///< -150 ... 180 degrees
    WholeCircle, ///< 0 ... 330 degrees
};

/// How a form presents its polar chart.
struct PolarView
{
    PolarOrientation orientation = PolarOrientation::UpClockwise;
    PolarLabels labels = PolarLabels::HalfCircles;
};

inline bool operator==(const PolarView &a, const PolarView &b)
{
    return a.orientation == b.orientation && a.labels == b.labels;
}

/// \a angle in -180 (inclusive) to 180 degrees.
double wrappedAngle(double angle);

/// The direction on the screen of \a angle, degrees clockwise from the top, not wrapped.
double screenDirection(PolarOrientation orientation, double angle);
/// The angle that has the \a direction on the screen, -180 to 180 degrees.
double angleOfDirection(PolarOrientation orientation, double direction);

/// \a angle as \a labels name it, without a unit.
QString angleName(PolarLabels labels, double angle);
