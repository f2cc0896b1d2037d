#include "2d/data/curvealgebra.h"

#include "2d/data/angularpattern.h"
#include "2d/data/polarorientation.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

using CurveAlgebra::Points;

bool byLevel(const QPointF &a, const QPointF &b)
{
    return a.y() < b.y();
}

double power(double level)
{
    return std::pow(10.0, level / 10.0);
}

double level(double power)
{
    return 10.0 * std::log10(power);
}

Points ascending(Points points)
{
    std::stable_sort(points.begin(), points.end(), byAngle);
    return points;
}

/// The circle in which a curve counts: its lower end, and whether the curve closes it by a copy.
struct Turn
{
    double from = -halfCircle;
    bool isClosed = false;
};

Turn turnOf(const Points &ascendingPoints)
{
    if (ascendingPoints.isEmpty())
        return {};
    const double first = ascendingPoints.first().x();
    const double last = ascendingPoints.last().x();
    return {first >= 0.0 && last > halfCircle ? 0.0 : -halfCircle,
            std::abs(last - first - fullCircle) <= sameAngle};
}

/// An open curve as a whole, by full turns, as near to the middle of \a turn as can be.
Points shifted(Points points, const Turn &turn)
{
    const double middle = (points.first().x() + points.last().x()) / 2.0;
    const double turns = std::round((middle - turn.from - halfCircle) / fullCircle);
    for (QPointF &point : points)
        point.rx() -= turns * fullCircle;
    return points;
}

/// A closed curve, each point back within \a turn, with a point on either side of the seam if it
/// was closed by a copy.
Points wrapped(Points points, const Turn &turn)
{
    const double to = turn.from + fullCircle;
    for (QPointF &point : points) {
        if (point.x() < turn.from || point.x() > to)
            point.rx() -= fullCircle * std::floor((point.x() - turn.from) / fullCircle);
    }
    points = ascending(points);
    const auto same = [](const QPointF &a, const QPointF &b) { return b.x() - a.x() <= sameAngle; };
    points.erase(std::unique(points.begin(), points.end(), same), points.end());
    const std::optional<double> seam = AngularPattern(points).levelAt(turn.from);
    if (!turn.isClosed || !seam)
        return points;
    if (points.first().x() - turn.from > sameAngle)
        points.prepend({turn.from, *seam});
    if (to - points.last().x() > sameAngle)
        points.append({to, *seam});
    return points;
}

/// \a points with their angles changed by \a turned, back within the circle in which they count.
template<typename Turned>
Points moved(const Points &points, Turned turned)
{
    if (points.isEmpty())
        return {};
    const Turn turn = turnOf(ascending(points));
    Points result = points;
    for (QPointF &point : result)
        point.setX(turned(point.x()));
    result = ascending(result);
    return AngularPattern(points).isClosed() ? wrapped(result, turn) : shifted(result, turn);
}

/// Every angle that one of \a curves has, ascending within the circle of the first.
std::vector<double> anglesOf(const QVector<Points> &curves)
{
    const double from = curves.isEmpty() ? 0.0 : turnOf(ascending(curves.first())).from;
    std::vector<double> angles;
    for (const Points &points : curves) {
        for (const QPointF &point : points) {
            double angle = point.x();
            if (angle < from || angle > from + fullCircle)
                angle -= fullCircle * std::floor((angle - from) / fullCircle);
            angles.push_back(angle);
        }
    }
    std::sort(angles.begin(), angles.end());
    const auto same = [](double a, double b) { return b - a <= sameAngle; };
    angles.erase(std::unique(angles.begin(), angles.end(), same), angles.end());
    return angles;
}

/// A curve of what \a join makes of the levels at each angle; nothing where it gives nothing.
template<typename Join>
Points joined(const QVector<Points> &curves, Join join)
{
    QVector<AngularPattern> patterns;
    for (const Points &points : curves) {
        if (!points.isEmpty())
            patterns.append(AngularPattern(points));
    }
    Points result;
    for (const double angle : anglesOf(curves)) {
        std::vector<double> levels;
        for (const AngularPattern &pattern : qAsConst(patterns)) {
            if (const std::optional<double> found = pattern.levelAt(angle))
                levels.push_back(*found);
        }
        if (const std::optional<double> made = join(levels))
            result.append({angle, *made});
    }
    return result;
}

/// The limit at \a angle; nothing outside of the mask.
std::optional<double> limitAt(const Points &mask, double angle)
{
    if (mask.isEmpty())
        return std::nullopt;
    angle -= fullCircle * std::floor((angle - mask.first().x()) / fullCircle);
    if (angle > mask.last().x() + sameAngle && angle - fullCircle >= mask.first().x() - sameAngle)
        angle -= fullCircle;
    std::optional<double> limit;
    for (int i = 0; i < mask.size(); ++i) {
        const QPointF &a = mask.at(i);
        if (std::abs(a.x() - angle) <= sameAngle)
            limit = std::min(limit.value_or(a.y()), a.y());
        if (limit || i + 1 == mask.size())
            continue;
        const QPointF &b = mask.at(i + 1);
        if (a.x() < angle && angle < b.x() - sameAngle)
            return a.y() + (b.y() - a.y()) * (angle - a.x()) / (b.x() - a.x());
    }
    return limit;
}

} // namespace

namespace CurveAlgebra {

std::optional<double> peakLevel(const Points &points)
{
    if (points.isEmpty())
        return std::nullopt;
    return std::max_element(points.begin(), points.end(), byLevel)->y();
}

Points raised(const Points &points, double offset)
{
    Points result = points;
    for (QPointF &point : result)
        point.ry() += offset;
    return result;
}

Points mirrored(const Points &points)
{
    return moved(points, [](double angle) { return -angle; });
}

Points rotated(const Points &points, double degrees)
{
    return moved(points, [degrees](double angle) { return angle + degrees; });
}

Points smoothed(const Points &points, double width)
{
    const AngularPattern pattern(points);
    const int size = pattern.size();
    if (size == 0)
        return {};
    // Sums from the first point on: the mean of any window is one difference. Rounding must not
    // take a window below the least of all levels.
    const double lowest = std::min_element(points.begin(), points.end(), byLevel)->y();
    const int turns = pattern.isClosed() ? 3 : 1;
    const int begin = pattern.isClosed() ? -size : 0;
    std::vector<long double> sums{0.0L};
    for (int i = 0; i < turns * size; ++i)
        sums.push_back(sums.back() + static_cast<long double>(power(pattern.level(begin + i))));
    const double half = std::min(width, fullCircle) / 2.0 + sameAngle;
    std::vector<double> levels;
    int from = begin;
    int to = begin;
    for (int i = 0; i < size; ++i) {
        while (pattern.angle(from) < pattern.angle(i) - half)
            ++from;
        while (to < begin + turns * size && pattern.angle(to) <= pattern.angle(i) + half)
            ++to;
        const auto sum = sums[static_cast<std::size_t>(to - begin)] -
                         sums[static_cast<std::size_t>(from - begin)];
        const double mean = static_cast<double>(sum) / (to - from);
        levels.push_back(mean > 0.0 ? std::max(lowest, level(mean)) : lowest);
    }
    Points result;
    for (int i = 0; i < size; ++i)
        result.append({pattern.angle(i), levels[static_cast<std::size_t>(i)]});
    const AngularPattern smooth(result);
    result = ascending(points);
    for (QPointF &point : result)
        point.setY(smooth.levelAt(point.x()).value_or(point.y()));
    return result;
}

Points averaged(const QVector<Points> &curves)
{
    const auto count = static_cast<std::size_t>(curves.size());
    return joined(curves, [count](const std::vector<double> &levels) -> std::optional<double> {
        if (levels.empty() || levels.size() < count)
            return std::nullopt;
        double sum = 0.0;
        for (const double one : levels)
            sum += power(one);
        return level(sum / static_cast<double>(count));
    });
}

Points greatest(const QVector<Points> &curves)
{
    return joined(curves, [](const std::vector<double> &levels) -> std::optional<double> {
        if (levels.empty())
            return std::nullopt;
        return *std::max_element(levels.begin(), levels.end());
    });
}

Points least(const QVector<Points> &curves)
{
    return joined(curves, [](const std::vector<double> &levels) -> std::optional<double> {
        if (levels.empty())
            return std::nullopt;
        return *std::min_element(levels.begin(), levels.end());
    });
}

Points difference(const Points &first, const Points &second)
{
    const AngularPattern other(second);
    Points result;
    for (const QPointF &point : ascending(first)) {
        if (const std::optional<double> there = other.levelAt(point.x()))
            result.append({point.x(), point.y() - *there});
    }
    return result;
}

std::optional<DifferenceFigures> differenceFigures(const Points &first, const Points &second,
                                                   double region)
{
    const double lowest = peakLevel(first).value_or(0.0) - region;
    Points strong;
    std::copy_if(first.begin(), first.end(), std::back_inserter(strong),
                 [lowest](const QPointF &point) { return point.y() >= lowest; });
    const Points differences = difference(strong, second);
    if (differences.isEmpty())
        return std::nullopt;
    DifferenceFigures figures;
    double squares = 0.0;
    for (const QPointF &point : differences) {
        figures.mean += point.y();
        squares += point.y() * point.y();
        if (std::abs(point.y()) > std::abs(figures.greatest))
            figures.greatest = point.y();
    }
    figures.mean /= differences.size();
    figures.rms = std::sqrt(squares / differences.size());
    return figures;
}

std::optional<MaskVerdict> maskVerdict(const Points &points, const Points &mask)
{
    if (points.isEmpty())
        return std::nullopt;
    std::optional<MaskVerdict> worst;
    const auto judge = [&worst](double angle, double margin) {
        if (!worst || margin < worst->margin)
            worst = MaskVerdict{margin, angle};
    };
    for (const QPointF &point : points) {
        if (const std::optional<double> limit = limitAt(mask, point.x()))
            judge(point.x(), *limit - point.y());
    }
    const AngularPattern pattern(points);
    for (const QPointF &corner : mask) {
        if (const std::optional<double> there = pattern.levelAt(corner.x()))
            judge(corner.x(), corner.y() - *there);
    }
    return worst;
}

Points drawnMask(const Points &mask)
{
    Points drawn;
    for (int i = 0; i < mask.size(); ++i) {
        drawn.append(mask.at(i));
        if (i + 1 == mask.size())
            continue;
        const QPointF step = mask.at(i + 1) - mask.at(i);
        const int parts = qBound(1, static_cast<int>(std::ceil(step.x())), 720);
        for (int part = 1; part < parts; ++part)
            drawn.append(mask.at(i) + step * part / parts);
    }
    return drawn;
}

} // namespace CurveAlgebra
