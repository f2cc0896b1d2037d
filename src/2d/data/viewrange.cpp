#include "2d/data/viewrange.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double beyondAnyPower = 999.0;
constexpr double autoscaleMargin = 10.0;

} // namespace

bool ViewRange::contains(const QPointF &value) const
{
    if (isRound)
        return value.y() >= yMin && value.y() <= yMax;
    return value.x() >= xMin && value.x() <= xMax && value.y() >= yMin && value.y() <= yMax;
}

ViewRange ViewRange::scaledAbout(const QPointF &centre, double factor) const
{
    return {centre.x() - (centre.x() - xMin) * factor, centre.x() + factor * (xMax - centre.x()),
            centre.y() - (centre.y() - yMin) * factor, centre.y() + factor * (yMax - centre.y()),
            isRound};
}

ViewRange ViewRange::movedBy(double widths, double heights) const
{
    const double dx = (xMax - xMin) * widths;
    const double dy = (yMax - yMin) * heights;
    return {xMin + dx, xMax + dx, yMin + dy, yMax + dy, isRound};
}

void ViewRange::followTime(double x, int period)
{
    if (!(x > xMax))
        return;
    xMax = x;
    xMin = std::max(0.0, x - period);
}

ValueSpan divisionSpan(int div, double scaleDiv, double reference)
{
    return {reference - scaleDiv * (div * 0.5), (div * 0.5) * scaleDiv + reference};
}

ValueSpan autoscaledSpan(const QVector<QPointF> &points)
{
    double low = beyondAnyPower;
    double high = -beyondAnyPower;
    for (const QPointF &point : points) {
        low = std::min(low, point.y());
        high = std::max(high, point.y());
    }
    return {std::floor(low) - autoscaleMargin, std::ceil(high) + autoscaleMargin};
}
