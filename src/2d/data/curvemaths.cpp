#include "2d/data/curvemaths.h"

#include "2d/data/polarorientation.h"

#include <algorithm>
#include <cmath>

std::optional<double> interpolateAt(const QVector<QPointF> &points, double x)
{
    for (int i = 0; i + 1 < points.size(); ++i) {
        const QPointF &from = points[i];
        const QPointF &to = points[i + 1];
        const bool enclosed = (from.x() <= x && x <= to.x()) || (to.x() <= x && x <= from.x());
        if (!enclosed)
            continue;
        const bool vertical = !(from.x() < to.x()) && !(to.x() < from.x());
        if (vertical)
            return to.y();
        return from.y() + (x - from.x()) * ((to.y() - from.y()) / (to.x() - from.x()));
    }
    return std::nullopt;
}

std::optional<QPointF> pointInDirection(const QVector<QPointF> &points, double x)
{
    const std::optional<HorizontalExtent> extent = horizontalExtent(points);
    if (!extent)
        return std::nullopt;
    const double first = x - fullCircle * std::floor((x - extent->least) / fullCircle);
    const int turns = int(std::floor((extent->greatest - first) / fullCircle));
    for (int turn = 0; turn <= turns; ++turn) {
        const double turned = first + turn * fullCircle;
        if (const std::optional<double> y = interpolateAt(points, turned))
            return QPointF(turned, *y);
    }
    return std::nullopt;
}

std::optional<HorizontalExtent> horizontalExtent(const QVector<QPointF> &points)
{
    if (points.isEmpty())
        return std::nullopt;
    const auto ends =
        std::minmax_element(points.cbegin(), points.cend(),
                            [](const QPointF &a, const QPointF &b) { return a.x() < b.x(); });
    return HorizontalExtent{ends.first->x(), ends.second->x()};
}

MirrorLine::MirrorLine(const QPointF &point1, const QPointF &point2)
    : m_k((point1.y() - point2.y()) / (point1.x() - point2.x()))
    , m_b(point2.y() - point2.x() * m_k)
    , m_k2(-1.0 / m_k)
{}

double MirrorLine::perpendicularIntercept(const QPointF &point) const
{
    return point.y() - m_k2 * point.x();
}

QPointF MirrorLine::foot(const QPointF &point) const
{
    const double x = (perpendicularIntercept(point) - m_b) / (m_k - m_k2);
    return {x, m_b + x * m_k};
}

QPointF MirrorLine::image(const QPointF &point) const
{
    const QPointF middle = foot(point);
    return {2.0 * middle.x() - point.x(), 2.0 * middle.y() - point.y()};
}
