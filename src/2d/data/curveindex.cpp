#include "2d/data/curveindex.h"

#include "2d/data/polylinedecimation.h"

#include <algorithm>

namespace {

constexpr int worthAPyramid = 10000;

} // namespace

CurveIndex::CurveIndex(const QVector<QPointF> &points)
    : m_points(points)
{
    if (points.isEmpty())
        return;
    const QPointF &first = points.constFirst();
    m_bounds = {first.x(), first.x(), first.y(), first.y()};
    for (const QPointF &point : points) {
        m_bounds.xMin = std::min(m_bounds.xMin, point.x());
        m_bounds.xMax = std::max(m_bounds.xMax, point.x());
        m_bounds.yMin = std::min(m_bounds.yMin, point.y());
        m_bounds.yMax = std::max(m_bounds.yMax, point.y());
    }
    if (points.size() > worthAPyramid && isMonotone(points))
        m_pyramid.extend(levelsOf(points));
}

bool CurveIndex::isOf(const QVector<QPointF> &points) const
{
    return points.size() == m_points.size() && points.constData() == m_points.constData();
}
