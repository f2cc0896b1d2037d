#include "2d/data/patternanalysis.h"

#include "2d/data/angularpattern.h"
#include "2d/data/viewrange.h"

#include <algorithm>

namespace {

using Points = QVector<QPointF>;

constexpr QPointF missingOnTheLeft{-100.0, -100.0};
constexpr QPointF missingOnTheRight{10000.0, 10000.0};

QPair<double, double> toPair(const QPointF &point)
{
    return {point.x(), point.y()};
}

// Function objects, for the library's algorithms would call plain functions through a pointer.
constexpr auto lowerAngle = [](const QPointF &a, const QPointF &b) { return a.x() < b.x(); };
constexpr auto lowerLevel = [](const QPointF &a, const QPointF &b) { return a.y() < b.y(); };

/// The angle at which the straight line from a to b reaches \a level; \a plateau when it never or
/// always does. Levels and angles are compared exactly: QPointF's own comparison is a fuzzy one.
double angleAtLevel(const QPointF &a, const QPointF &b, double level, double plateau)
{
    if (a.x() == b.x() || a.y() == b.y())
        return plateau;
    const double slope = (b.y() - a.y()) / (b.x() - a.x());
    return (level - (a.y() - a.x() * slope)) / slope;
}

std::optional<QPointF> halfPowerLeft(const Points &points, int peak)
{
    const double level = points[peak].y() - halfPowerDrop;
    int i = peak;
    while (i >= 0 && level < points[i].y())
        --i;
    if (i < 0)
        return std::nullopt;
    const QPointF &inner = points[std::min(i + 1, points.size() - 1)];
    return QPointF(angleAtLevel(points[i], inner, level, points[i].x()), level);
}

std::optional<QPointF> halfPowerRight(const Points &points, int peak)
{
    const double level = points[peak].y() - halfPowerDrop;
    int j = peak;
    while (j < points.size() && level < points[j].y())
        ++j;
    if (j == points.size())
        return std::nullopt;
    // Unlike the left side, a crossing at index 1 is not interpolated: results stay comparable.
    if (j <= 1)
        return QPointF(points[j].x(), level);
    return QPointF(angleAtLevel(points[j - 1], points[j], level, points[j].x()), level);
}

/// The first index from \a j downwards where the level does not fall any further to the left. Index
/// 0 always is one.
int leftMinimum(const Points &points, int j)
{
    while (j >= 1 && points[j].y() > points[j - 1].y())
        --j;
    return j;
}

int leftMaximum(const Points &points, int j)
{
    while (j >= 1 && points[j - 1].y() > points[j].y())
        --j;
    return j;
}

int rightMinimum(const Points &points, int j)
{
    const int last = points.size() - 1;
    while (j < last && points[j].y() > points[j + 1].y())
        ++j;
    return j;
}

int rightMaximum(const Points &points, int j)
{
    const int last = points.size() - 1;
    while (j < last && points[j + 1].y() > points[j].y())
        ++j;
    return j;
}

int firstNullLeft(const Points &points, int peak)
{
    return peak >= 2 ? leftMinimum(points, peak - 1) : 0;
}

int firstNullRight(const Points &points, int peak)
{
    return rightMinimum(points, std::min(peak + 1, points.size() - 1));
}

/// The scan starts at the first point of the null's *level*, which need not be the null.
int sideLobeLeft(const Points &points, double nullLevel)
{
    const auto null = std::find_if(points.begin(), points.end(), [nullLevel](const QPointF &point) {
        return point.y() == nullLevel;
    });
    const int k = static_cast<int>(null - points.begin());
    return k > 1 ? leftMaximum(points, k - 1) : 0;
}

/// On this side alone the point of the null's level has to lie beyond the peak.
int sideLobeRight(const Points &points, double nullLevel, double peakAngle)
{
    const auto null =
        std::find_if(points.begin(), points.end(), [nullLevel, peakAngle](const QPointF &point) {
            return point.y() == nullLevel && point.x() > peakAngle;
        });
    const int start = null == points.end() ? 1 : static_cast<int>(null - points.begin()) + 1;
    return rightMaximum(points, std::min(start, points.size() - 1));
}

/// Walks the points in the curve's own order, not by angle.
QPointF backLobe(const Points &points, double peakAngle)
{
    const double back = peakAngle > 0.0 ? peakAngle - 180.0 : peakAngle + 180.0;
    const auto pair = std::adjacent_find(
        points.begin(), points.end(), [back](const QPointF &a, const QPointF &b) {
            return (a.x() <= back && back <= b.x()) || (b.x() <= back && back <= a.x());
        });
    if (pair == points.end())
        return missingOnTheLeft;
    const QPointF &a = *pair;
    const QPointF &b = *(pair + 1);
    if (a.x() == b.x())
        return {back, (b.y() + b.y()) * 0.5};
    const double slope = (b.y() - a.y()) / (b.x() - a.x());
    return {back, a.y() - a.x() * slope + slope * back};
}

void setHalfPower(ParaInfo &figures, const PatternLineValues &lines)
{
    QPointF left = lines.halfPowerLeft.value_or(missingOnTheLeft);
    QPointF right = lines.halfPowerRight.value_or(missingOnTheRight);
    if (!lines.halfPowerLeft || !lines.halfPowerRight) {
        left.setX(0.0);
        right.setX(0.0);
    }
    figures.halfPowerLeft = toPair(left);
    figures.halfPowerRight = toPair(right);
}

/// \a points ascend by angle; all but the back lobe, which \a inOrder is for.
PatternAnalysis analyseAscending(const Points &points, const Points &inOrder)
{
    // minmax_element would give the last of equal maxima, and the scans start at the first.
    const auto peak = std::max_element(points.begin(), points.end(), lowerLevel);
    const auto lowest = std::min_element(points.begin(), points.end(), lowerLevel);
    const int peakIndex = static_cast<int>(peak - points.begin());
    const QPointF nullLeft = points[firstNullLeft(points, peakIndex)];
    const QPointF nullRight = points[firstNullRight(points, peakIndex)];

    PatternAnalysis result;
    result.lowest = *lowest;
    result.lines.peak = *peak;
    result.lines.halfPowerLeft = halfPowerLeft(points, peakIndex);
    result.lines.halfPowerRight = halfPowerRight(points, peakIndex);
    result.lines.sideLobeLeft = points[sideLobeLeft(points, nullLeft.y())];
    result.lines.sideLobeRight = points[sideLobeRight(points, nullRight.y(), peak->x())];

    ParaInfo &figures = result.figures;
    figures.gain = toPair(*peak);
    setHalfPower(figures, result.lines);
    figures.firstNullLeft = toPair(nullLeft);
    figures.firstNullRight = toPair(nullRight);
    figures.firstSideLobeLeft = toPair(result.lines.sideLobeLeft);
    figures.firstSideLobeRight = toPair(result.lines.sideLobeRight);
    figures.backLobe = toPair(backLobe(inOrder, peak->x()));
    figures.axialRatio = {0.0, peak->y() - lowest->y()};
    return result;
}

std::optional<QLineF> rise(const std::optional<QPointF> &tip, const ViewRange &axes)
{
    if (!tip || !axes.contains(*tip))
        return std::nullopt;
    return QLineF(QPointF(tip->x(), axes.yMin), *tip);
}

std::optional<QLineF> span(const std::optional<QPointF> &left, const std::optional<QPointF> &right,
                           const ViewRange &axes)
{
    if (!left || !right || !axes.contains(*left) || !axes.contains(*right))
        return std::nullopt;
    return QLineF(*left, *right);
}

} // namespace

std::optional<PatternAnalysis> analysePattern(const QVector<QPointF> &points)
{
    if (points.isEmpty())
        return std::nullopt;
    if (std::is_sorted(points.begin(), points.end(), lowerAngle))
        return analyseAscending(points, points);
    QVector<QPointF> ascending = points;
    std::stable_sort(ascending.begin(), ascending.end(), lowerAngle);
    return analyseAscending(ascending, points);
}

std::optional<QLineF> patternLine(PatternLine line, const PatternLineValues &values,
                                  const ViewRange &axes)
{
    switch (line) {
    case PatternLine::Peak:
        return rise(values.peak, axes);
    case PatternLine::HalfPowerLeft:
        return rise(values.halfPowerLeft, axes);
    case PatternLine::HalfPowerRight:
        return rise(values.halfPowerRight, axes);
    case PatternLine::HalfPowerLevel:
        return span(values.halfPowerLeft, values.halfPowerRight, axes);
    case PatternLine::SideLobeLeft:
        return rise(values.sideLobeLeft, axes);
    case PatternLine::SideLobeRight:
        return rise(values.sideLobeRight, axes);
    }
    return std::nullopt;
}
