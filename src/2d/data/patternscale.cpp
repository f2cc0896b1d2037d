#include "2d/data/patternscale.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace {

constexpr double leastDepth = 30.0;
constexpr double mostDepth = 40.0;
constexpr int mostDivisions = 8;
constexpr std::array<double, 3> roundDigits{1.0, 2.0, 5.0};

struct Extent
{
    double low = std::numeric_limits<double>::infinity();
    double high = -std::numeric_limits<double>::infinity();

    void take(double value)
    {
        // A file may hold any number; the span of a scale has to be one too.
        constexpr double most = 1e100;
        value = qBound(-most, value, most);
        low = std::min(low, value);
        high = std::max(high, value);
    }
    bool isEmpty() const { return low > high; }
    bool within(double from, double to) const { return low >= from && high <= to; }
};

/// Round ends around \a extent, with the smallest round step that needs few enough divisions.
AxisScale roundScale(Extent extent)
{
    const double size = std::max(std::abs(extent.low), std::abs(extent.high));
    if (extent.high - extent.low <= size * 1e-9) {
        const double margin = std::max(5.0, size * 1e-3);
        extent = {extent.low - margin, extent.high + margin};
    }
    const double power = std::floor(std::log10((extent.high - extent.low) / mostDivisions));
    for (double decade = std::pow(10.0, power);; decade *= 10.0) {
        for (const double digit : roundDigits) {
            const double step = decade * digit;
            const double first = std::floor(extent.low / step);
            const double last = std::ceil(extent.high / step);
            if (last - first <= mostDivisions)
                return {first * step, last * step, int(last - first)};
        }
    }
}

} // namespace

AxisScale levelScale(const QVector<QVector<QPointF>> &curves)
{
    Extent shown;
    for (const QVector<QPointF> &points : curves) {
        Extent curve;
        for (const QPointF &point : points)
            curve.take(point.y());
        if (!curve.isEmpty()) {
            shown.take(curve.high);
            shown.take(qBound(curve.high - mostDepth, curve.low, curve.high - leastDepth));
        }
    }
    return shown.isEmpty() ? AxisScale{-mostDepth, 0.0, 4} : roundScale(shown);
}

AxisScale angleScale(const QVector<QVector<QPointF>> &curves)
{
    Extent shown;
    for (const QVector<QPointF> &points : curves) {
        for (const QPointF &point : points)
            shown.take(point.x());
    }
    if (shown.isEmpty())
        return {-180.0, 180.0, 8};
    if (shown.high - shown.low < 90.0)
        return roundScale(shown);
    if (shown.within(-90.0, 90.0))
        return {-90.0, 90.0, 6};
    if (shown.within(-180.0, 180.0))
        return {-180.0, 180.0, 8};
    if (shown.within(0.0, 360.0))
        return {0.0, 360.0, 8};
    if (shown.within(-180.0, 360.0))
        return {-180.0, 360.0, 6};
    return roundScale(shown);
}

double roundedLevel(double level)
{
    return std::round(level * 10.0) / 10.0 + 0.0; // and never -0
}

AxisScale dividedScale(double min, double max)
{
    constexpr int fewest = 4;
    constexpr int most = 12;
    constexpr int fallback = 5;
    const double span = max - min;
    if (!(span > 0.0) || !std::isfinite(span))
        return {min, max, 1};
    // From the largest step that leaves enough divisions down to the smallest that is still
    // legible.
    for (double decade = std::pow(10.0, std::ceil(std::log10(span))); decade * most * 5.0 > span;
         decade /= 10.0) {
        for (auto digit = roundDigits.crbegin(); digit != roundDigits.crend(); ++digit) {
            const double divisions = span / (decade * *digit);
            const double whole = std::round(divisions);
            if (whole >= fewest && whole <= most && std::abs(divisions - whole) < 1e-9)
                return {min, max, int(whole)};
        }
    }
    return {min, max, fallback};
}
