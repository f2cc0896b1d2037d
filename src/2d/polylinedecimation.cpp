#include "2d/polylinedecimation.h"

#include <limits>

namespace {

/// A column of pixels, one pixel wide; everything beside the area is one column.
class VerticalColumn
{
public:
    explicit VerticalColumn(const PixelGrid &grid)
        : m_left(grid.area.left())
        , m_right(grid.area.right())
        , m_width(1.0 / grid.pixelsPerUnit)
    {}

    void start(const QPointF &point)
    {
        constexpr double infinity = std::numeric_limits<double>::infinity();
        if (point.x() < m_left) {
            m_from = -infinity;
            m_to = m_left;
        } else if (point.x() > m_right) {
            m_from = m_right;
            m_to = infinity;
        } else {
            m_from = m_left + std::floor((point.x() - m_left) / m_width) * m_width;
            m_to = m_from + m_width;
        }
    }
    bool holds(const QPointF &point) const { return point.x() >= m_from && point.x() < m_to; }
    double height(const QPointF &point) const { return -point.y(); }

private:
    double m_left;
    double m_right;
    double m_width;
    double m_from = 0.0;
    double m_to = 0.0;
};

/// A ray from the centre, one pixel wide.
class Ray
{
public:
    explicit Ray(const PixelGrid &grid)
        : m_centre(grid.area.center())
        , m_halfWidth(0.5 / grid.pixelsPerUnit)
    {}

    void start(const QPointF &point)
    {
        const QPointF offset = point - m_centre;
        const double distance = std::hypot(offset.x(), offset.y());
        // Around the centre there is no direction: there a run ends with the first point outside.
        m_direction = distance > m_halfWidth ? offset / distance : QPointF();
    }
    bool holds(const QPointF &point) const
    {
        const QPointF offset = point - m_centre;
        if (m_direction.isNull())
            return QPointF::dotProduct(offset, offset) <= m_halfWidth * m_halfWidth;
        const double across = m_direction.x() * offset.y() - m_direction.y() * offset.x();
        return std::abs(across) <= m_halfWidth && height(point) >= 0.0;
    }
    double height(const QPointF &point) const
    {
        return QPointF::dotProduct(m_direction, point - m_centre);
    }

private:
    QPointF m_centre;
    double m_halfWidth;
    QPointF m_direction;
};

template<typename Column>
QVector<QPointF> decimated(const QVector<QPointF> &points, Column column)
{
    QVector<QPointF> kept;
    const QPointF *data = points.constData();
    int i = 0;
    while (i < points.size()) {
        column.start(data[i]);
        int low = i;
        int high = i;
        double lowest = column.height(data[i]);
        double highest = lowest;
        int next = i + 1;
        for (; next < points.size() && column.holds(data[next]); ++next) {
            const double height = column.height(data[next]);
            if (height < lowest) {
                lowest = height;
                low = next;
            } else if (height > highest) {
                highest = height;
                high = next;
            }
        }
        int previous = -1;
        for (const int index : {i, std::min(low, high), std::max(low, high), next - 1}) {
            if (index != previous)
                kept.append(data[index]);
            previous = index;
        }
        i = next;
    }
    return kept;
}

} // namespace

QVector<QPointF> decimatedPolyline(const QVector<QPointF> &points, const PixelGrid &grid)
{
    return grid.polar ? decimated(points, Ray(grid)) : decimated(points, VerticalColumn(grid));
}

bool clipSegment(QPointF &from, QPointF &to, const QRectF &window)
{
    if (window.contains(from) && window.contains(to))
        return true;
    const QPointF start = from;
    const QPointF way = to - from;
    double enter = 0.0;
    double leave = 1.0;
    const auto cut = [&](double speed, double room) {
        if (speed < 0.0)
            enter = std::max(enter, room / speed);
        else if (speed > 0.0)
            leave = std::min(leave, room / speed);
        else if (!(room >= 0.0))
            leave = -1.0;
    };
    cut(-way.x(), start.x() - window.left());
    cut(way.x(), window.right() - start.x());
    cut(-way.y(), start.y() - window.top());
    cut(way.y(), window.bottom() - start.y());
    if (!(enter <= leave))
        return false;
    if (leave < 1.0)
        to = start + way * leave;
    if (enter > 0.0)
        from = start + way * enter;
    return std::isfinite(from.x()) && std::isfinite(from.y()) && std::isfinite(to.x()) &&
           std::isfinite(to.y());
}
