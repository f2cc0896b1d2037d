#pragma once

#include "2d/data/valuepyramid.h"
#include "2d/data/viewrange.h"

#include <QPointF>
#include <QVector>

/// What is found out once about the points of a curve, so that a change of the view need not look
/// at each of them.
class CurveIndex
{
public:
    CurveIndex() = default;
    explicit CurveIndex(const QVector<QPointF> &points);

    /// Whether this is about the very same points: decided without a look at them.
    bool isOf(const QVector<QPointF> &points) const;
    /// Between which values all points lie; empty without points.
    ViewRange bounds() const { return m_bounds; }
    /// The pyramid of levelsOf() the points; null for few points, and for x that turn back.
    const ValuePyramid *pyramid() const { return m_pyramid.size() > 0 ? &m_pyramid : nullptr; }

private:
    QVector<QPointF> m_points; ///< shared
    ViewRange m_bounds;
    ValuePyramid m_pyramid;
};
