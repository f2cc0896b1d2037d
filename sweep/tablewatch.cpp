#include "sweep/tablewatch.h"

#include "sweep/sweepplan.h"

#include <cmath>

namespace {

constexpr qint64 stallTime = 10000;
constexpr double expectedTimes = 3.0;
/// A table that rounds to whole degrees shows no change for a second while it turns slowly.
constexpr qint64 restTime = 3000;
/// More than a table overshoots; somebody who moves it means to move it further.
constexpr double awayDegrees = 5.0;
constexpr qint64 betweenOrders = 1000;
/// Somebody who keeps taking the table away must not put off the limit for ever.
constexpr int mostExtensions = 10;
constexpr double noChange = 0.005;
constexpr double rounding = 1e-6;
constexpr double slowest = 0.05; // degrees a second

} // namespace

void TableWatch::start(qint64 now, double from, double wanted, double tolerance, double speed)
{
    *this = TableWatch();
    m_wanted = wanted;
    m_tolerance = tolerance;
    m_speed = qMax(speed, slowest);
    // A table that tells its angle modulo 360 may seem to come from a turn further off.
    m_distance = angleBetween(from, wanted);
    m_started = m_sent = m_changed = now;
    m_limit = limitFrom(now, std::abs(wanted - from));
    m_last = from;
    m_closest = angleBetween(from, wanted);
}

qint64 TableWatch::limitFrom(qint64 now, double distance) const
{
    return now + stallTime + qint64(expectedTimes * 1000.0 * distance / m_speed);
}

TableWatch::Verdict TableWatch::look(qint64 now, double read)
{
    if (std::abs(read - m_last) > noChange) {
        m_last = read;
        m_changed = now;
        m_sentAtRest = false;
    }
    const double off = angleBetween(read, m_wanted);
    if (off <= m_tolerance + rounding)
        return ++m_hits >= 2 ? Verdict::Arrived : Verdict::Wait;
    m_hits = 0;
    if (now - m_changed >= stallTime || now >= m_limit)
        return Verdict::Stalled;
    if (!movedAway(now, off))
        return Verdict::Wait;
    m_sent = now;
    if (++m_sentAgain <= mostExtensions)
        m_limit = qMax(m_limit, limitFrom(now, std::abs(m_wanted - read)));
    return Verdict::SendAgain;
}

bool TableWatch::movedAway(qint64 now, double off)
{
    if (now - m_changed >= restTime && !m_sentAtRest) {
        m_sentAtRest = true;
        m_closest = off;
        return true;
    }
    if (off > m_closest + awayDegrees && now - m_sent >= betweenOrders) {
        m_closest = off;
        return true;
    }
    m_closest = qMin(m_closest, off);
    return false;
}
