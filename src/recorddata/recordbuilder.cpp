#include "recorddata/recordbuilder.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double oneMinute = 60.0;
constexpr double suspicious = 1.5; // of the usual step: worth a look at the interval's begin
constexpr double longPause = 2.0;  // of the usual step, for the console's rows

} // namespace

RecordBuilder::RecordBuilder(RecordData &data, RecordKind kind)
    : m_data(data)
    , m_kind(kind)
{}

void RecordBuilder::add(const RecordRow &row, RowParser &parser, const RowPlace &place)
{
    if (m_kind == RecordKind::Console)
        addMinuteRow(row, place);
    else
        addInterval(row, parser, place);
}

void RecordBuilder::addPoint(double time, double level, bool isRelative, const RowPlace &place)
{
    if (std::isnan(level)) {
        m_state.isBroken = true;
        return;
    }
    m_data.append({time, level, isRelative, m_state.isBroken, place});
    m_state.isBroken = false;
}

void RecordBuilder::addInterval(const RecordRow &row, RowParser &parser, const RowPlace &place)
{
    const double step = row.time - m_state.time;
    if (m_state.hasRow && step > suspicious * m_state.step) {
        // Half an interval may lack where a clock was set by less than an event tells of.
        const double start = parser.time(row.start).value_or(m_state.time);
        if (start - m_state.time > 0.5 * (row.time - start))
            m_state.isBroken = true;
        else
            m_state.step = step;
    }
    m_state.hasRow = true;
    m_state.time = row.time;
    addPoint(row.time, row.level, row.isRelative, place);
}

void RecordBuilder::addMinuteRow(const RecordRow &row, const RowPlace &place)
{
    const bool isSameMinute = !m_minuteRows.empty() && std::equal_to<>()(row.time, m_minute);
    if (isSameMinute && m_shownFrom >= 0) {
        m_data.truncate(m_shownFrom);
        m_state = m_beforeMinute;
    } else if (!isSameMinute) {
        if (m_shownFrom < 0)
            placeMinute();
        m_minuteRows.clear();
        m_minute = row.time;
    }
    m_shownFrom = -1;
    m_minuteRows.push_back({row.level, place});
}

/// Spreads the rows of one minute evenly over it.
void RecordBuilder::placeMinute()
{
    if (m_minuteRows.empty())
        return;
    if (m_state.hasRow) {
        const double step = m_minute - m_state.time;
        const bool isPause = m_state.step > 0.0 && step > longPause * m_state.step;
        if (isPause || step < 0.0)
            m_state.isBroken = true;
        m_state.step = std::max(step, oneMinute);
    }
    m_state.hasRow = true;
    m_state.time = m_minute;
    const auto count = static_cast<double>(m_minuteRows.size());
    for (std::size_t i = 0; i < m_minuteRows.size(); ++i)
        addPoint(m_minute + oneMinute * static_cast<double>(i) / count, m_minuteRows[i].level,
                 false, m_minuteRows[i].place);
}

void RecordBuilder::show()
{
    if (m_minuteRows.empty() || m_shownFrom >= 0)
        return;
    m_shownFrom = m_data.size();
    m_beforeMinute = m_state;
    placeMinute();
}
