#pragma once

#include "2d/data/viewrange.h"

#include <QPointF>
#include <QRectF>
#include <QVector>

/// The way from chart values to scene positions in closed form: what QChart::mapToPosition()
/// computes with one virtual call a point, to the last bit.
struct ChartMapping
{
    enum class Kind {
        Cartesian, ///< x to the right, y upwards
        Polar,     ///< x clockwise from the top, y from the centre outwards
    };

    Kind kind = Kind::Cartesian;
    QRectF plotArea; ///< scene coordinates
    ViewRange axes;  ///< the ranges of the two axes

    /// Whether the chart has a size and its axes a length.
    bool isUsable() const;

    QPointF toScene(const QPointF &value) const;
    /// Maps all \a values; the result uses the memory of \a recycled.
    QVector<QPointF> toScene(const QVector<QPointF> &values,
                             QVector<QPointF> recycled = QVector<QPointF>()) const;
};

bool operator==(const ChartMapping &a, const ChartMapping &b);
inline bool operator!=(const ChartMapping &a, const ChartMapping &b)
{
    return !(a == b);
}
