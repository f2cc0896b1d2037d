#include "sortedpattern.h"

#include <algorithm>

namespace {

using Pair = QPair<double, double>;
using Points = QVector<QPointF>;

Points byLevel(Points list)
{
    std::sort(list.begin(), list.end(), [](const QPointF &a, const QPointF &b) {
        return a.y() != b.y() ? a.y() < b.y() : a.x() > b.x();
    });
    return list;
}

Points byAngle(Points list)
{
    std::stable_sort(list.begin(), list.end(),
                     [](const QPointF &a, const QPointF &b) { return a.x() < b.x(); });
    return list;
}

int firstOfLevel(const Points &list, double level)
{
    for (int i = 0; i < list.size(); ++i) {
        if (list[i].y() == level)
            return i;
    }
    return 0;
}

Pair pairOf(const QPointF &point)
{
    return {point.x(), point.y()};
}

/// The angle at which the line from \a a to \a b has \a level; \a steep for one without a slope.
double angleAt(double level, const QPointF &a, const QPointF &b, double steep)
{
    if (a.x() == b.x() || a.y() == b.y())
        return steep;
    const double slope = (b.y() - a.y()) / (b.x() - a.x());
    return (level - (a.y() - a.x() * slope)) / slope;
}

void halfPower(const Points &curve, ParaInfo &info)
{
    const double peak = byLevel(curve).last().y();
    const double l3 = peak - 3.0;
    const Points list = byAngle(curve);
    const int i0 = firstOfLevel(list, peak);
    Pair left(-100, -100);
    Pair right(10000, 10000);

    int i = i0;
    while (i >= 0 && l3 < list[i].y())
        i--;
    if (i >= 0)
        left = {angleAt(l3, list[i], list[std::min(i + 1, list.size() - 1)], list[i].x()), l3};

    int j = i0;
    while (j < list.size() && l3 < list[j].y())
        j++;
    if (j < list.size())
        right = {j > 1 ? angleAt(l3, list[j - 1], list[j], list[j].x()) : list[j].x(), l3};

    if (left.second == -100 || right.second == 10000) {
        left.first = 0;
        right.first = 0;
    }
    info.halfPowerLeft = left;
    info.halfPowerRight = right;
}

/// Whether the neighbour \a step points beside \a j is missing or not below it.
bool isNull(const Points &list, int j, int step)
{
    const int k = j + step;
    return k < 0 || k >= list.size() || !(list[j].y() > list[k].y());
}

/// Whether the neighbour \a step points beside \a j is missing or not above it.
bool isLobe(const Points &list, int j, int step)
{
    const int k = j + step;
    return k < 0 || k >= list.size() || !(list[k].y() > list[j].y());
}

Pair nullLeft(const Points &curve, double peak)
{
    const Points list = byAngle(curve);
    const int i0 = firstOfLevel(list, peak);
    int j = i0 >= 2 ? i0 - 1 : 0;
    while (!isNull(list, j, -1))
        j--;
    return pairOf(list[j]);
}

Pair nullRight(const Points &curve, double peak)
{
    const Points list = byAngle(curve);
    int j = std::min(firstOfLevel(list, peak) + 1, list.size() - 1);
    while (!isNull(list, j, 1))
        j++;
    return pairOf(list[j]);
}

Pair lobeLeft(const Points &curve, double nullLevel)
{
    const Points list = byAngle(curve);
    const int k = firstOfLevel(list, nullLevel);
    int j = k > 1 ? k - 1 : 0;
    while (!isLobe(list, j, -1))
        j--;
    return pairOf(list[j]);
}

Pair lobeRight(const Points &curve, double nullLevel, double peakAngle)
{
    const Points list = byAngle(curve);
    int j = 0;
    while (j < list.size() && !(list[j].y() == nullLevel && list[j].x() > peakAngle))
        j++;
    j = std::min(j < list.size() ? j + 1 : 1, list.size() - 1);
    while (!isLobe(list, j, 1))
        j++;
    return pairOf(list[j]);
}

Pair backLobe(const Points &curve, double peakAngle)
{
    const double b = peakAngle > 0 ? peakAngle - 180 : peakAngle + 180;
    for (int i = 0; i <= curve.size() - 2; i++) {
        const double x1 = curve[i].x();
        const double x2 = curve[i + 1].x();
        const double y1 = curve[i].y();
        const double y2 = curve[i + 1].y();
        if ((x1 <= b && b <= x2) || (x2 <= b && b <= x1)) {
            if (x1 == x2)
                return {b, (y2 + y2) * 0.5};
            const double slope = (y2 - y1) / (x2 - x1);
            return {b, y1 - x1 * slope + slope * b};
        }
    }
    return {-100, -100};
}

} // namespace

ParaInfo figuresFromSortedCopies(const QVector<QPointF> &points)
{
    ParaInfo info;
    const QPointF peak = byLevel(points).last();
    info.gain = pairOf(peak);
    halfPower(points, info);
    info.firstNullLeft = nullLeft(points, peak.y());
    info.firstNullRight = nullRight(points, peak.y());
    info.firstSideLobeLeft = lobeLeft(points, info.firstNullLeft.second);
    info.firstSideLobeRight = lobeRight(points, info.firstNullRight.second, peak.x());
    info.backLobe = backLobe(points, peak.x());
    info.axialRatio = {0, byLevel(points).last().y() - byLevel(points).first().y()};
    return info;
}
