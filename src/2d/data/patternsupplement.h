#pragma once

#include <QPointF>
#include <QVector>

#include <optional>

/// The textbook figures of a pattern, kept apart from the instrument's own definitions in ParaInfo.
/// Each is missing where the curve does not show it.
struct PatternSupplement
{
    /// Peak level minus the level in the opposite direction, dB.
    std::optional<double> frontToBackRatio;
    /// Greatest side lobe (highest maximum outside the main lobe's nulls) minus the peak level, dB:
    /// at most 0.
    std::optional<double> sideLobeLevel;
    /// Angle between the points 3 dB below the peak, degrees, interpolated linearly in dB.
    std::optional<double> halfPowerBeamWidth;
    /// Angle between the minima on both sides of the main lobe, degrees.
    std::optional<double> firstNullBeamWidth;
};

/// Computes the textbook figures of \a points (angle in degrees, level in dB, any order). A curve
/// that goes round the whole circle is followed across its ±180° seam; any other ends where it
/// ends.
PatternSupplement supplementaryFigures(const QVector<QPointF> &points);
