#pragma once

#include <QPointF>
#include <QVector>

#include <optional>

/// Curves computed of curves: angles in degrees, compared modulo 360, levels in dB. A curve that
/// goes round the whole circle is followed across its seam. Results ascend by angle.
namespace CurveAlgebra {

using Points = QVector<QPointF>;

/// The greatest level; nothing without points.
std::optional<double> peakLevel(const Points &points);

/// \a points with \a offset in dB added to every level.
Points raised(const Points &points, double offset);

/// Left and right exchanged: the level at an angle is that at its negative.
Points mirrored(const Points &points);

/// Turned by \a degrees towards greater angles, within the circle in which \a points count: -180 to
/// 180, or 0 to 360. The seam of a whole circle gets interpolated points where there were such.
Points rotated(const Points &points, double degrees);

/// The moving average of the power over \a width degrees, as many points as before.
Points smoothed(const Points &points, double width);

/// The mean of the powers of \a curves at every angle that one of them has and all of them cover.
Points averaged(const QVector<Points> &curves);

/// The greatest or the least level of \a curves at every angle that one of them has, of those that
/// cover it.
Points greatest(const QVector<Points> &curves);
Points least(const QVector<Points> &curves);

/// \a first minus \a second at the angles of \a first that \a second covers, interpolated in dB.
Points difference(const Points &first, const Points &second);

/// What two curves differ by, dB.
struct DifferenceFigures
{
    double mean = 0.0;     ///< with its sign
    double greatest = 0.0; ///< the difference of the greatest magnitude, with its sign
    double rms = 0.0;
};

inline bool operator==(const DifferenceFigures &a, const DifferenceFigures &b)
{
    return a.mean == b.mean && a.greatest == b.greatest && a.rms == b.rms;
}

/// The figures of difference() where \a first is at most \a region dB below its peak; nothing where
/// the curves do not meet there.
std::optional<DifferenceFigures> differenceFigures(const Points &first, const Points &second,
                                                   double region = 20.0);

/// How a curve stands to a limit that it is to stay below.
struct MaskVerdict
{
    double margin = 0.0; ///< limit minus level where that is least, dB
    double angle = 0.0;  ///< there

    bool passes() const { return margin >= 0.0; }
};

/// \a points against \a mask, corners of a limit line by ascending angle; where two have one angle
/// the lower counts there. Outside of its ends there is no limit. Judged at the curve's points and
/// at the mask's corners; nothing where they do not meet.
std::optional<MaskVerdict> maskVerdict(const Points &points, const Points &mask);

/// \a mask with further points along its lines, about one a degree, so that it keeps its shape on a
/// polar chart too.
Points drawnMask(const Points &mask);

} // namespace CurveAlgebra
