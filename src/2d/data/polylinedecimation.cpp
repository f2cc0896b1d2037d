#include "2d/data/polylinedecimation.h"

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

template<typename Grid>
ThinnedLine thinned(const QVector<QPointF> &points, Grid column)
{
    ThinnedLine line;
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
        const auto keep = [&](int index) {
            if (index != previous)
                line.points.append(data[index]);
            previous = index;
            return line.points.size() - 1;
        };
        ThinnedLine::Column kept;
        kept.first = keep(i);
        (low < high ? kept.low : kept.high) = keep(std::min(low, high));
        (low < high ? kept.high : kept.low) = keep(std::max(low, high));
        kept.last = keep(next - 1);
        line.columns.append(kept);
        i = next;
    }
    return line;
}

QPointF heightOf(const ThinnedLine &line, int column)
{
    return line.points[line.columns[column].high] - line.points[line.columns[column].low];
}

bool isSolid(const ThinnedLine &line, int column, double pixelsPerUnit)
{
    constexpr double leastPixels = 3.0;
    const ThinnedLine::Column &run = line.columns[column];
    const QPointF height = heightOf(line, column);
    return run.last - run.first > 1 &&
           std::hypot(height.x(), height.y()) * pixelsPerUnit >= leastPixels;
}

/// Whether the solid \a column and the next one touch: a line that runs to and fro can leap.
bool areNeighbours(const ThinnedLine &line, int column, double pixelsPerUnit)
{
    constexpr double mostPixels = 2.0;
    const QPointF height = heightOf(line, column);
    const QPointF leap =
        line.points[line.columns[column + 1].first] - line.points[line.columns[column].last];
    const double across = std::abs(height.x() * leap.y() - height.y() * leap.x()) /
                          std::hypot(height.x(), height.y());
    return across * pixelsPerUnit <= mostPixels;
}

bool isFinite(const QPointF &point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

} // namespace

ThinnedLine thinnedLine(const QVector<QPointF> &points, const PixelGrid &grid)
{
    return grid.polar ? thinned(points, Ray(grid)) : thinned(points, VerticalColumn(grid));
}

bool pointsStandApart(const ThinnedLine &line)
{
    const auto &columns = line.columns;
    if (columns.size() <= 2)
        return line.points.size() == columns.size();
    return std::all_of(
        columns.cbegin() + 1, columns.cend() - 1,
        [](const ThinnedLine::Column &column) { return column.first == column.last; });
}

QVector<ColumnStretch> solidStretches(const ThinnedLine &line, double pixelsPerUnit)
{
    constexpr int worthwhile = 4;
    QVector<ColumnStretch> stretches;
    int from = 0; // where a stretch begins that reaches as far as the column before i
    int count = 0;
    for (int i = 0; i <= line.columns.size(); ++i) {
        const bool solid = i < line.columns.size() && isSolid(line, i, pixelsPerUnit);
        if (solid && count > 0 && areNeighbours(line, i - 1, pixelsPerUnit)) {
            ++count;
            continue;
        }
        if (count >= worthwhile)
            stretches.append({from, i - 1});
        from = i;
        count = solid ? 1 : 0;
    }
    return stretches;
}

QLineF columnBar(const ThinnedLine &line, int column, double reach, const QRectF &window)
{
    QPointF low = line.points[line.columns[column].low];
    QPointF high = line.points[line.columns[column].high];
    const QPointF height = high - low;
    const QPointF beyond = height * (reach / std::hypot(height.x(), height.y()));
    low -= beyond;
    high += beyond;
    if (clipSegment(low, high, window))
        return {low, high};
    const QPointF rim(std::clamp(low.x(), window.left(), window.right()),
                      std::clamp(low.y(), window.top(), window.bottom()));
    return {rim, rim};
}

bool clipSegment(QPointF &from, QPointF &to, const QRectF &window)
{
    if (!isFinite(from) || !isFinite(to))
        return false;
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
        else if (room < 0.0)
            leave = -1.0;
    };
    cut(-way.x(), start.x() - window.left());
    cut(way.x(), window.right() - start.x());
    cut(-way.y(), start.y() - window.top());
    cut(way.y(), window.bottom() - start.y());
    if (enter > leave)
        return false;
    if (leave < 1.0)
        to = start + way * leave;
    if (enter > 0.0)
        from = start + way * enter;
    // Ends so far away that their distance is no number.
    return isFinite(from) && isFinite(to);
}
