#pragma once

#include <QPointF>
#include <QVector>

#include <optional>

/// A cut that goes round the whole circle.
namespace Circle {

/// Two directions between which nothing was measured, going up in angle.
struct Gap
{
    double from = 0.0; ///< degrees, -180 to 180
    double to = 0.0;
};

/// The widest stretch that \a cut (ascending, -180 to 180) leaves out; nothing when it goes round.
/// A single point may be missing, as a null without any field is. An empty cut has a gap from 0 to
/// 0.
std::optional<Gap> gapIn(const QVector<QPointF> &cut);

/// The level of \a cut at \a degrees, linear in dB, also across the seam. The cut must go round.
double levelAt(const QVector<QPointF> &cut, double degrees);

} // namespace Circle
