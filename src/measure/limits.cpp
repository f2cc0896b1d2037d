#include "measure/limits.h"

#include <algorithm>
#include <cmath>

namespace {

// Half of the last decimal that a mean is told with.
constexpr double tolerance = 0.00005;

constexpr std::array<LimitAlarm::Limit, 2> both{LimitAlarm::High, LimitAlarm::Low};

/// By how much \a level is beyond \a bound, counted outwards.
double excess(LimitAlarm::Limit limit, double level, double bound)
{
    return limit == LimitAlarm::High ? level - bound : bound - level;
}

} // namespace

bool Limits::areUsable() const
{
    const auto isFinite = [](const std::optional<double> &bound) {
        return !bound || std::isfinite(*bound);
    };
    return isFinite(high) && isFinite(low) && !(high && low && *low >= *high) &&
           std::isfinite(hysteresis) && hysteresis >= 0 && inARow >= 1;
}

LimitAlarm::LimitAlarm(const Limits &limits)
    : m_limits(limits)
{}

QVector<LimitAlarm::Change> LimitAlarm::add(std::optional<double> level)
{
    QVector<Change> changes;
    m_state = level ? State::Inside : State::Missing;
    if (!level)
        return changes;
    QVector<Change> begun;
    for (const Limit limit : both) {
        const std::optional<double> &bound = limit == High ? m_limits.high : m_limits.low;
        if (!bound)
            continue;
        Watch &watch = m_watches[limit];
        const double beyond = excess(limit, *level, *bound);
        const bool isOutside = beyond > tolerance;
        if (isOutside)
            m_state = limit == High ? State::Above : State::Below;
        watch.row = isOutside ? watch.row + 1 : 0;
        watch.isBack = beyond <= tolerance - m_limits.hysteresis;
        if (!watch.isOn && watch.row >= m_limits.inARow) {
            watch.isOn = true;
            watch.isAcknowledged = false;
            begun.append({limit, true});
        } else if (watch.isOn && endsByItself(watch)) {
            end(limit, changes);
        }
    }
    return changes + begun;
}

QVector<LimitAlarm::Change> LimitAlarm::acknowledge()
{
    for (Watch &watch : m_watches)
        watch.isAcknowledged = true;
    return endWhatMay();
}

QVector<LimitAlarm::Change> LimitAlarm::setLatched(bool isLatched)
{
    m_limits.latched = isLatched;
    return endWhatMay();
}

bool LimitAlarm::awaitsAcknowledgement() const
{
    return m_limits.latched &&
           std::any_of(m_watches.begin(), m_watches.end(),
                       [](const Watch &watch) { return watch.isOn && !watch.isAcknowledged; });
}

QVector<LimitAlarm::Change> LimitAlarm::endWhatMay()
{
    QVector<Change> changes;
    for (const Limit limit : both) {
        const Watch &watch = m_watches[limit];
        if (watch.isOn && endsByItself(watch))
            end(limit, changes);
    }
    return changes;
}

bool LimitAlarm::endsByItself(const Watch &watch) const
{
    return watch.isBack && (!m_limits.latched || watch.isAcknowledged);
}

void LimitAlarm::end(Limit limit, QVector<Change> &changes)
{
    m_watches[limit].isOn = false;
    changes.append({limit, false});
}
