#pragma once

#include "2d/data/polarorientation.h"
#include "2d/data/viewrange.h"

#include <QPointF>
#include <QRectF>
#include <QVector>

/// The kinds of chart as numbers, which travel with a dragged curve.
constexpr int cartesianKind = 0;
constexpr int polarKind = 1;

/// The way from chart values to scene positions in closed form: what QChart::mapToPosition()
/// computes with one virtual call a point, to the last bit.
struct ChartMapping
{
    enum class Kind {
        Cartesian, ///< x to the right, y upwards
        Polar,     ///< x round the centre, y from the centre outwards
    };

    Kind kind = Kind::Cartesian;
    QRectF plotArea; ///< scene coordinates
    ViewRange axes;  ///< the ranges of the two axes
    PolarOrientation orientation = PolarOrientation::DownClockwise;

    /// Whether the chart has a size and its axes a length.
    bool isUsable() const;

    QPointF toScene(const QPointF &value) const;
    /// The value at a scene position of a polar chart, its angle in -180 to 180 degrees.
    QPointF polarValue(const QPointF &position) const;
    /// The same in two steps on a polar chart: the turns of an angle from the top, clockwise, and
    /// the distance of a level from the centre.
    double turns(double angle) const;
    double distance(double level) const;
    QPointF fromCentre(double turns, double distance) const;
    QVector<QPointF> toScene(const QVector<QPointF> &values) const;
};

bool operator==(const ChartMapping &a, const ChartMapping &b);
inline bool operator!=(const ChartMapping &a, const ChartMapping &b)
{
    return !(a == b);
}
