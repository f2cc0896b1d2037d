#include "recorddata/recordsteering.h"

#include "recorddata/clockticks.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double shortestTime = 0.01;   // s
constexpr double smallestLevels = 0.01; // dB
constexpr int fittedDivisions = 10;

} // namespace

ViewRange RecordSteering::all(const ViewRange &shown) const
{
    const double margin = std::max(0.01 * (m_end - m_begin), 0.5);
    return {m_begin - margin, m_end + margin, shown.yMin, shown.yMax};
}

ViewRange RecordSteering::held(const ViewRange &range) const
{
    const double centre = 0.5 * (range.xMin + range.xMax);
    const double shift = std::clamp(centre, m_begin, m_end) - centre;
    return {range.xMin + shift, range.xMax + shift, range.yMin, range.yMax};
}

ViewRange RecordSteering::timeZoomed(const ViewRange &shown, double centre, double factor) const
{
    const double longest = 10.0 * std::max(1.0, m_end - m_begin);
    const double length = shown.xMax - shown.xMin;
    const double possible = std::clamp(length * factor, shortestTime, longest) / length;
    return {centre + (shown.xMin - centre) * possible, centre + (shown.xMax - centre) * possible,
            shown.yMin, shown.yMax};
}

ViewRange RecordSteering::levelZoomed(const ViewRange &shown, double centre, double factor)
{
    return {shown.xMin, shown.xMax, centre + (shown.yMin - centre) * factor,
            centre + (shown.yMax - centre) * factor};
}

ViewRange RecordSteering::levelFitted(const ViewRange &shown, double low, double high)
{
    const double margin = std::max(0.05 * (high - low), 0.1);
    const double step = ClockTicks::ofLevel(low - margin, high + margin, fittedDivisions).interval;
    return {shown.xMin, shown.xMax, std::floor((low - margin) / step) * step,
            std::ceil((high + margin) / step) * step};
}

ViewRange RecordSteering::reaching(const ViewRange &shown, double time)
{
    const double edge = std::clamp(time, shown.xMin, shown.xMax);
    return shown.movedBy((time - edge) / (shown.xMax - shown.xMin), 0.0);
}

ViewRange RecordSteering::largeEnough(const ViewRange &range)
{
    return {range.xMin, std::max(range.xMax, range.xMin + shortestTime), range.yMin,
            std::max(range.yMax, range.yMin + smallestLevels)};
}
