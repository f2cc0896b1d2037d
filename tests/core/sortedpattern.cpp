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
    if (i >= 0) {
        const QPointF a = list[i];
        const QPointF b = i == list.size() - 1 ? a : list[i + 1];
        double angle = a.x();
        if (!(a.x() == b.x() || a.y() == b.y())) {
            const double slope = (b.y() - a.y()) / (b.x() - a.x());
            angle = (l3 - (a.y() - a.x() * slope)) / slope;
        }
        left = {angle, l3};
    }

    int j = i0;
    while (j < list.size() && l3 < list[j].y())
        j++;
    if (j < list.size()) {
        double angle = list[j].x();
        if (j > 1) {
            const QPointF a = list[j - 1];
            const QPointF b = list[j];
            if (a.x() == b.x() || a.y() == b.y()) {
                angle = b.x();
            } else {
                const double slope = (b.y() - a.y()) / (b.x() - a.x());
                angle = (l3 - (a.y() - a.x() * slope)) / slope;
            }
        }
        right = {angle, l3};
    }

    if (left.second == -100 || right.second == 10000) {
        left.first = 0;
        right.first = 0;
    }
    info.halfPowerLeft = left;
    info.halfPowerRight = right;
}

bool isLeftNull(const Points &list, int j)
{
    if (j < 1)
        return true;
    return !(list[j].y() > list[j - 1].y());
}

bool isRightNull(const Points &list, int j)
{
    if (j == list.size() - 1)
        return true;
    return !(list[j].y() > list[j + 1].y());
}

bool isLeftLobe(const Points &list, int j)
{
    if (j < 1)
        return true;
    return !(list[j - 1].y() > list[j].y());
}

bool isRightLobe(const Points &list, int j)
{
    if (j == list.size() - 1)
        return true;
    return !(list[j + 1].y() > list[j].y());
}

Pair nullLeft(const Points &curve, double peak)
{
    const Points list = byAngle(curve);
    const int i0 = firstOfLevel(list, peak);
    for (int j = i0 >= 2 ? i0 - 1 : 0; j >= 0; j--) {
        if (isLeftNull(list, j))
            return pairOf(list[j]);
    }
    return pairOf(list[0]);
}

Pair nullRight(const Points &curve, double peak)
{
    const Points list = byAngle(curve);
    int j = firstOfLevel(list, peak) + 1;
    if (j > list.size() - 1)
        j = list.size() - 1;
    for (; j < list.size(); j++) {
        if (isRightNull(list, j))
            return pairOf(list[j]);
    }
    return {10000, 10000};
}

Pair lobeLeft(const Points &curve, double nullLevel)
{
    const Points list = byAngle(curve);
    const int k = firstOfLevel(list, nullLevel);
    if (k > 1) {
        for (int j = k - 1; j >= 0; j--) {
            if (isLeftLobe(list, j))
                return pairOf(list[j]);
        }
    }
    return pairOf(list[0]);
}

Pair lobeRight(const Points &curve, double nullLevel, double peakAngle)
{
    const Points list = byAngle(curve);
    int start = 1;
    for (int k = 0; k < list.size(); k++) {
        if (list[k].y() == nullLevel && list[k].x() > peakAngle) {
            start = k + 1;
            break;
        }
    }
    if (start > list.size() - 1)
        start = list.size() - 1;
    for (int j = start; j < list.size(); j++) {
        if (isRightLobe(list, j))
            return pairOf(list[j]);
    }
    return {10000, 10000};
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
