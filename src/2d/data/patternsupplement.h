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
    /// Greatest side lobe (highest level outside the main lobe's nulls) minus the peak level, dB:
    /// at most 0.
    std::optional<double> sideLobeLevel;
    /// Angle between the points 3 dB below the peak, degrees, interpolated linearly in dB.
    std::optional<double> halfPowerBeamWidth;
    /// Angle between the nulls on both sides of the main lobe, degrees.
    std::optional<double> firstNullBeamWidth;
    /// The direction of the peak, -180 to 180 degrees.
    std::optional<double> peakAngle;
    /// The direction of the middle between the 3 dB points, -180 to 180 degrees: how far the beam
    /// as a whole looks beside 0.
    std::optional<double> squint;
};

/// Where the main lobe has fallen by \a drop from its peak.
struct BeamWidth
{
    double drop = 0.0;  ///< dB, above 0
    double level = 0.0; ///< dB
    /// Degrees, interpolated linearly in dB, left below right also across a seam; missing where the
    /// curve ends before.
    std::optional<double> left;
    std::optional<double> right;

    std::optional<double> width() const
    {
        return left && right ? std::optional(*right - *left) : std::nullopt;
    }
};

/// A minimum is a null when the level rises by at least so many dB on both of its sides.
constexpr double usualNullProminence = 1.0;

/// Computes the textbook figures of \a points (angle in degrees, level in dB). Angles count modulo
/// 360 degrees, in any order; of several levels in one direction the greatest counts. A curve that
/// goes round the whole circle is followed across any seam, any other ends where it ends.
///
/// \a nullProminence in dB is at least 0. Of levels that carry noise the lobes are fitted by
/// polynomials, and a null has to rise well above the noise; others are taken as they are.
PatternSupplement supplementaryFigures(const QVector<QPointF> &points,
                                       double nullProminence = usualNullProminence);

/// The widths of the main lobe of \a points at each of \a drops, noise being treated alike.
QVector<BeamWidth> beamWidths(const QVector<QPointF> &points, const QVector<double> &drops);
