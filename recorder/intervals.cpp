#include "recorder/intervals.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr qint64 jitter = 2; // ms

} // namespace

Intervals::Intervals(const Moment &start, qint64 length)
    : m_length(length)
    , m_start(start.steady)
    , m_startWall(start.wall)
    , m_reference(start)
{}

qint64 Intervals::look(const Moment &now)
{
    const qint64 difference = now.wall - wallAt(now.steady);
    // The two clocks cannot be read at once, and rows are to have even times even so.
    if (std::abs(difference) > jitter)
        m_reference = now;
    return std::abs(difference) > step ? difference : 0;
}

Intervals::Interval Intervals::close(qint64 steady)
{
    const qint64 end = std::min(steady, this->end());
    const Interval closed{m_startWall, wallAt(end)};
    m_start = end;
    m_startWall = closed.end;
    return closed;
}

qint64 Intervals::wallAt(qint64 steady) const
{
    const qint64 nanoseconds = steady - m_reference.steady;
    // To the nearest millisecond, before and after that moment alike.
    return m_reference.wall + (nanoseconds + (nanoseconds < 0 ? -500000 : 500000)) / 1000000;
}
