#include "2d/data/polylinedecimation.h"

#include <QtMath>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double columnsPerPixel = 4.0;
constexpr double sectorsPerRimPixel = 2.0;
/// Runs of less height are drawn through their points: a bar would make a flat line too thin.
constexpr double leastBarPixels = 1.5;
constexpr int fewestBarPoints = 3;
/// How far beside the plot area a curve is followed, in pixels: more than the widest pen reaches.
constexpr double marginPixels = 12.0;

bool isFinite(const QPointF &point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

/// Columns of a quarter of a pixel on a chart with straight axes. A point is seen as the number of
/// its column, with a fraction, and its height.
class ColumnGrid
{
public:
    ColumnGrid(const QRectF &area, double pixelsPerUnit)
        : m_area(area.adjusted(-marginPixels / pixelsPerUnit, -marginPixels / pixelsPerUnit,
                               marginPixels / pixelsPerUnit, marginPixels / pixelsPerUnit))
        , m_perUnit(columnsPerPixel * pixelsPerUnit)
        , m_leastBar(leastBarPixels / pixelsPerUnit)
    {}

    QRectF window() const { return m_area; }
    double leastBar() const { return m_leastBar; }
    double leastColumn() const { return 0.0; }
    double columnCount() const { return m_area.width() * m_perUnit; }
    double across(const QPointF &position) const
    {
        return (position.x() - m_area.left()) * m_perUnit;
    }
    double height(const QPointF &position) const { return position.y(); }
    QPointF at(double across, double height) const
    {
        return {m_area.left() + across / m_perUnit, height};
    }

private:
    QRectF m_area;
    double m_perUnit;
    double m_leastBar;
};

/// Scene positions on columns.
class PositionGrid : public ColumnGrid
{
public:
    using ColumnGrid::ColumnGrid;
    QPointF position(const QPointF &point) const { return point; }
};

/// Chart values on columns.
class CartesianGrid : public ColumnGrid
{
public:
    CartesianGrid(const ChartMapping &mapping, double pixelsPerUnit)
        : ColumnGrid(mapping.plotArea, pixelsPerUnit)
        , m_origin(mapping.plotArea.left(), mapping.plotArea.bottom())
        , m_least(mapping.axes.xMin, mapping.axes.yMin)
        , m_xScale(mapping.plotArea.width() / (mapping.axes.xMax - mapping.axes.xMin))
        , m_yScale(mapping.plotArea.height() / (mapping.axes.yMax - mapping.axes.yMin))
    {}

    QPointF position(const QPointF &value) const
    {
        return {m_origin.x() + (value.x() - m_least.x()) * m_xScale,
                m_origin.y() - (value.y() - m_least.y()) * m_yScale};
    }
    double across(const QPointF &value) const { return ColumnGrid::across(position(value)); }
    double height(const QPointF &value) const { return position(value).y(); }

private:
    QPointF m_origin;
    QPointF m_least;
    double m_xScale;
    double m_yScale;
};

/// Chart values on sectors of half a pixel at the rim of a polar chart; heights go outwards.
class SectorGrid
{
public:
    SectorGrid(const ChartMapping &mapping, double pixelsPerUnit)
        : m_mapping(mapping)
        , m_window(
              mapping.plotArea.adjusted(-marginPixels, -marginPixels, marginPixels, marginPixels))
        , m_leastBar(leastBarPixels / pixelsPerUnit)
    {
        const double rim = M_PI * mapping.plotArea.height() * pixelsPerUnit;
        m_sectorsPerTurn = std::max(1.0, std::floor(rim * sectorsPerRimPixel));
    }

    QRectF window() const { return m_window; }
    double leastBar() const { return m_leastBar; }
    /// There is no side on which a point of a polar chart could leave it.
    double leastColumn() const { return -std::numeric_limits<double>::infinity(); }
    double columnCount() const { return std::numeric_limits<double>::infinity(); }
    double across(const QPointF &value) const
    {
        return m_mapping.turns(value.x()) * m_sectorsPerTurn;
    }
    double height(const QPointF &value) const { return m_mapping.distance(value.y()); }
    QPointF position(const QPointF &value) const { return m_mapping.toScene(value); }
    QPointF at(double across, double height) const
    {
        return m_mapping.fromCentre(across / m_sectorsPerTurn, height);
    }

private:
    ChartMapping m_mapping;
    QRectF m_window;
    double m_leastBar;
    double m_sectorsPerTurn = 1.0;
};

/// Neighbouring points in one column: indices, and the heights between which they lie.
struct Run
{
    double column = 0.0;
    int first = 0;
    int low = 0;
    int high = 0;
    int last = 0;
    double lowest = 0.0;
    double highest = 0.0;
    bool isBar = false;
};

template<typename Grid>
class Reduction
{
public:
    Reduction(const QVector<QPointF> &points, const Grid &grid, const ValuePyramid *pyramid)
        : m_points(points.constData())
        , m_count(points.size())
        , m_grid(grid)
        , m_pyramid(pyramid)
        , m_levels(levelsOf(points))
        , m_window(grid.window())
        , m_least(grid.leastColumn())
        , m_columns(grid.columnCount())
    {}

    QVector<QLineF> segments()
    {
        if (m_count == 1)
            return {QLineF(position(0), position(0))};
        const int begin = m_pyramid ? firstInView() : 0;
        bool any = false;
        Run before;
        for (int i = begin; i < m_count;) {
            Run run = m_pyramid ? sortedRunFrom(i) : runFrom(i);
            if (any)
                join(before, run);
            if (m_pyramid && any && hasLeft(run.column)) // the rest lies beside the view
                return m_segments;
            i = run.last + 1;
            before = run;
            any = true;
        }
        if (any)
            add(before);
        return m_segments;
    }

private:
    QPointF position(int index) const { return m_grid.position(m_points[index]); }

    double columnOf(int index) const
    {
        return std::floor(std::clamp(m_grid.across(m_points[index]), m_least - 1.0, m_columns));
    }

    bool isInside(double column) const { return column >= m_least && column < m_columns; }

    bool ascends() const { return m_points[0].x() <= m_points[m_count - 1].x(); }
    bool hasLeft(double column) const { return ascends() ? column >= m_columns : column < m_least; }

    /// The last point before the view of a curve that does not turn back, or the first in it.
    int firstInView() const
    {
        if (!std::isfinite(m_columns))
            return 0;
        int begin = 0;
        int end = m_count;
        while (begin < end) {
            const int middle = begin + (end - begin) / 2;
            const double column = columnOf(middle);
            if (ascends() ? column < m_least : column >= m_columns)
                begin = middle + 1;
            else
                end = middle;
        }
        return std::max(0, begin - 1);
    }

    Run runFrom(int index) const
    {
        Run run{columnOf(index), index, index, index, index, 0.0, 0.0, false};
        run.lowest = m_grid.height(m_points[index]);
        run.highest = run.lowest;
        while (run.last + 1 < m_count && columnOf(run.last + 1) == run.column) {
            const double height = m_grid.height(m_points[++run.last]);
            if (height < run.lowest) {
                run.lowest = height;
                run.low = run.last;
            } else if (height > run.highest) {
                run.highest = height;
                run.high = run.last;
            }
        }
        classify(run);
        return run;
    }

    Run sortedRunFrom(int index) const
    {
        Run run{columnOf(index), index, index, index, index, 0.0, 0.0, false};
        int stride = 1;
        while (run.last + stride < m_count && columnOf(run.last + stride) == run.column) {
            run.last += stride;
            stride *= 2;
        }
        for (; stride > 0; stride /= 2) {
            if (run.last + stride < m_count && columnOf(run.last + stride) == run.column)
                run.last += stride;
        }
        if (run.last > index && isInside(run.column)) {
            const ValuePyramid::Run extremes = m_pyramid->run(m_levels, index, run.last);
            run.low = extremes.low;
            run.high = extremes.high;
        }
        run.lowest = m_grid.height(m_points[run.low]);
        run.highest = m_grid.height(m_points[run.high]);
        if (run.lowest > run.highest) { // on the screen heights grow downwards
            std::swap(run.low, run.high);
            std::swap(run.lowest, run.highest);
        }
        classify(run);
        return run;
    }

    void classify(Run &run) const
    {
        run.isBar = run.last - run.first + 1 >= fewestBarPoints && isInside(run.column) &&
                    run.highest - run.lowest >= m_grid.leastBar();
    }

    /// Draws all of \a before and the way to the next run. Between two bars that touch, the way
    /// lies within them once they reach to where it crosses from one to the other.
    void join(Run &before, Run &after)
    {
        const double leap = after.column - before.column;
        const bool touching = before.isBar && after.isBar && std::abs(leap) == 1.0;
        if (touching)
            extendToCrossing(before, after);
        add(before);
        if (!touching)
            add(position(before.last), position(after.first));
    }

    void extendToCrossing(Run &before, Run &after) const
    {
        const double border = std::max(before.column, after.column);
        const double from = m_grid.across(m_points[before.last]);
        const double to = m_grid.across(m_points[after.first]);
        const double start = m_grid.height(m_points[before.last]);
        const double end = m_grid.height(m_points[after.first]);
        const double part = to != from ? (border - from) / (to - from) : 0.0;
        const double crossing = start + (end - start) * std::clamp(part, 0.0, 1.0);
        for (Run *run : {&before, &after}) {
            run->lowest = std::min(run->lowest, crossing);
            run->highest = std::max(run->highest, crossing);
        }
    }

    void add(const Run &run)
    {
        if (!isInside(run.column) || run.first == run.last)
            return;
        if (run.isBar) {
            const double middle = run.column + 0.5;
            add(m_grid.at(middle, run.lowest), m_grid.at(middle, run.highest));
            return;
        }
        int from = run.first;
        for (const int to : {std::min(run.low, run.high), std::max(run.low, run.high), run.last}) {
            if (to != from)
                add(position(from), position(to));
            from = to;
        }
    }

    void add(const QPointF &from, const QPointF &to)
    {
        if (!segmentMisses(from, to, m_window))
            m_segments.append(QLineF(from, to));
    }

    const QPointF *m_points;
    int m_count;
    const Grid &m_grid;
    const ValuePyramid *m_pyramid;
    ValueList m_levels;
    QRectF m_window;
    double m_least;
    double m_columns;
    QVector<QLineF> m_segments;
};

template<typename Grid>
QVector<QLineF> reduced(const QVector<QPointF> &points, const Grid &grid,
                        const ValuePyramid *pyramid)
{
    if (points.isEmpty())
        return {};
    return Reduction<Grid>(points, grid, pyramid).segments();
}

} // namespace

QVector<QLineF> visibleSegments(const QVector<QPointF> &values, const ChartMapping &mapping,
                                double pixelsPerUnit, const ValuePyramid *pyramid)
{
    if (mapping.kind == ChartMapping::Kind::Polar)
        return reduced(values, SectorGrid(mapping, pixelsPerUnit), pyramid);
    return reduced(values, CartesianGrid(mapping, pixelsPerUnit), pyramid);
}

QVector<QLineF> visibleSegments(const QVector<QPointF> &positions, const QRectF &area,
                                double pixelsPerUnit)
{
    return reduced(positions, PositionGrid(area, pixelsPerUnit), nullptr);
}

ValueList levelsOf(const QVector<QPointF> &values)
{
    static_assert(sizeof(QPointF) == 2 * sizeof(double));
    return {reinterpret_cast<const double *>(values.constData()) + 1, values.size(), 2};
}

bool isMonotone(const QVector<QPointF> &values)
{
    const auto before = [](const QPointF &a, const QPointF &b) { return a.x() < b.x(); };
    return std::is_sorted(values.cbegin(), values.cend(), before) ||
           std::is_sorted(values.crbegin(), values.crend(), before);
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
