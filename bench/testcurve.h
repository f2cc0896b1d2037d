#pragma once

#include <QPointF>
#include <QVector>

/// A pattern of \a count points from -180 to 180 degrees with six lobes and a decibel of noise; the
/// same at each call.
QVector<QPointF> testCurve(int count);

/// The level of the curve at \a degrees, without the noise.
double testLevel(double degrees);
