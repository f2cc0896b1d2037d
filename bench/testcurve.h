#pragma once

#include <QPointF>
#include <QVector>

/// What the curves look like. The cost of drawing hangs on it, more with some libraries than
/// others.
enum class CurveShape {
    Pattern, ///< the pattern of an aperture of 20 wavelengths, nulls at -60 dB, some noise
    Smooth,  ///< six lobes without noise
    Noise,   ///< nothing but noise, 40 dB high
};

/// A curve of \a count points from -180 to 180 degrees; the same at each call.
QVector<QPointF> testCurve(CurveShape shape, int count);

/// The level of a curve at \a degrees in dB, without the noise.
double testLevel(CurveShape shape, double degrees);
