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
    if (points.size() > worthAPyramid && isMonotone(points)) {
        const ValueList levels = levelsOf(points);
        m_pyramid.extend(levels);
        const ValuePyramid::Run run = m_pyramid.run(levels, 0, levels.count - 1);
        const double from = points.constFirst().x();
        const double to = points.constLast().x();
        m_bounds = {std::min(from, to), std::max(from, to), levels[run.low], levels[run.high]};
        return;
    }
    const QPointF &first = points.constFirst();
    m_bounds = {first.x(), first.x(), first.y(), first.y()};
    for (const QPointF &point : points) {
        m_bounds.xMin = std::min(m_bounds.xMin, point.x());
        m_bounds.xMax = std::max(m_bounds.xMax, point.x());
        m_bounds.yMin = std::min(m_bounds.yMin, point.y());
        m_bounds.yMax = std::max(m_bounds.yMax, point.y());
    }
}

bool CurveIndex::isOf(const QVector<QPointF> &points) const
{
    return points.size() == m_points.size() && points.constData() == m_points.constData();
}
