#include "watch/readingstatistics.h"

namespace {

// An hour, the longest time of the chart, at ten readings a second.
constexpr std::size_t mostRecent = 36000;

} // namespace

void ReadingStatistics::take(Figures &figures, const Reading &reading, const QDateTime &time)
{
    if (!figures.since.isValid())
        figures.since = time;
    if (reading.isValid())
        figures.power.add(reading.level);
    else
        ++figures.missed;
}

void ReadingStatistics::add(const Reading &reading, bool isRelative, const QDateTime &now,
                            double position)
{
    if (reading.state == Reading::State::None)
        return;
    if (isRelative != m_isRelative)
        restart();
    m_isRelative = isRelative;
    m_latest = reading;
    take(m_all, reading, now);
    if (!m_recent.empty() && position < m_recent.back().position)
        m_recent.clear(); // the chart has begun again
    m_recent.push_back({position, reading, now});
    if (m_recent.size() > mostRecent)
        m_recent.pop_front();
}

void ReadingStatistics::restart()
{
    m_latest = {};
    m_all = {};
    m_recent.clear();
}

ReadingStatistics::Figures ReadingStatistics::between(double from, double to) const
{
    Figures figures;
    for (const Taken &taken : m_recent) {
        if (taken.position >= from && taken.position <= to)
            take(figures, taken.reading, taken.time);
    }
    return figures;
}
