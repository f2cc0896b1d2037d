#include "2d/data/markjump.h"

#include "2d/data/angularpattern.h"
#include "2d/data/patternsupplement.h"
#include "2d/data/polarorientation.h"

#include <algorithm>
#include <cmath>

namespace {

bool isSameDirection(double a, double b)
{
    return std::abs(std::remainder(a - b, fullCircle)) < sameAngle;
}

/// Whether the level falls by the prominence of a lobe before it rises above that at \a top, going
/// in the direction of \a step. The end of an open pattern is as good as a fall.
bool falls(const AngularPattern &pattern, int top, int step)
{
    const double level = pattern.level(top);
    for (int count = 1; count < pattern.size(); ++count) {
        const int i = top + count * step;
        if (!pattern.has(i) || pattern.level(i) <= level - usualNullProminence)
            return true;
        // Of equal tops within one lobe the first one counts.
        if (pattern.level(i) > level || (step < 0 && pattern.level(i) == level))
            return false;
    }
    return false;
}

} // namespace

QVector<QPointF> lobeTops(const QVector<QPointF> &points)
{
    QVector<QPointF> tops;
    if (points.isEmpty())
        return tops;
    const AngularPattern pattern(points);
    for (int i = 0; i < pattern.size(); ++i) {
        const bool isRise = !pattern.has(i - 1) || pattern.level(i - 1) < pattern.level(i);
        if (isRise && falls(pattern, i, -1) && falls(pattern, i, 1))
            tops.append({pattern.angle(i), pattern.level(i)});
    }
    std::stable_sort(tops.begin(), tops.end(),
                     [](const QPointF &a, const QPointF &b) { return a.y() > b.y(); });
    return tops;
}

std::optional<double> jumpTarget(const QVector<QPointF> &points, MarkJump jump,
                                 std::optional<double> from)
{
    if (jump == MarkJump::HalfPower) {
        const BeamWidth beam = beamWidths(points, {halfPowerDrop}).value(0);
        const bool isRight = from && beam.right && isSameDirection(*from, *beam.right);
        return beam.right && !(isRight && beam.left) ? beam.right : beam.left;
    }
    const QVector<QPointF> tops = lobeTops(points);
    if (tops.isEmpty())
        return std::nullopt;
    const auto here = std::find_if(tops.begin(), tops.end(), [from](const QPointF &top) {
        return from && isSameDirection(top.x(), *from);
    });
    if (jump == MarkJump::Peak || here == tops.end() || here + 1 == tops.end())
        return tops.first().x();
    return (here + 1)->x();
}
