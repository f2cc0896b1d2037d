#include "recorder/intervals.h"

#include <algorithm>
#include <cstdlib>

Intervals::Intervals(const Moment &start, qint64 length)
    : m_length(length)
    , m_start(start.steady)
    , m_startWall(start.wall)
    , m_last(start)
{}

qint64 Intervals::look(const Moment &now)
{
    const qint64 difference = now.wall - wallAt(now.steady);
    m_last = now;
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
    const qint64 nanoseconds = steady - m_last.steady;
    // To the nearest millisecond, before and after the last look alike.
    return m_last.wall + (nanoseconds + (nanoseconds < 0 ? -500000 : 500000)) / 1000000;
}
