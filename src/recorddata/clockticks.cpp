#include "recorddata/clockticks.h"

#include <QDateTime>
#include <QLocale>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double minute = 60.0;
constexpr double hour = 60.0 * minute;
constexpr double oneDay = 24.0 * hour;

QDateTime moment(double time)
{
    // The record's clock stands in one zone all the time, and so does UTC.
    return QDateTime::fromMSecsSinceEpoch(std::llround(time * 1000.0), Qt::UTC);
}

/// The least of 1, 2 and 5 times a power of ten that is not below \a atLeast.
double roundStep(double atLeast)
{
    const double power = std::pow(10.0, std::floor(std::log10(atLeast)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (power * factor >= atLeast * (1.0 - 1e-9))
            return power * factor;
    }
    return power * 10.0;
}

AxisTicks ticks(double from, double interval)
{
    return {std::floor(from / interval) * interval, interval};
}

} // namespace

namespace ClockTicks {

AxisTicks ofTime(double from, double to, int most)
{
    constexpr std::array<double, 16> steps{
        1.0,    2.0,          5.0,          10.0,          15.0,          30.0,
        minute, 2.0 * minute, 5.0 * minute, 10.0 * minute, 15.0 * minute, 30.0 * minute,
        hour,   3.0 * hour,   6.0 * hour,   12.0 * hour};
    const double atLeast = (to - from) / std::max(1, most);
    if (!(atLeast > 0.0))
        return {from, 1.0};
    if (atLeast <= 0.5)
        return ticks(from, std::max(0.001, roundStep(atLeast)));
    const auto step = std::lower_bound(steps.begin(), steps.end(), atLeast);
    return ticks(from,
                 step != steps.end() ? *step : oneDay * roundStep(std::max(1.0, atLeast / oneDay)));
}

AxisTicks ofLevel(double from, double to, int most)
{
    const double atLeast = (to - from) / std::max(1, most);
    return atLeast > 0.0 ? ticks(from, roundStep(atLeast)) : AxisTicks{from, 1.0};
}

QString label(double time, double interval)
{
    const QDateTime at = moment(time);
    const bool isMidnight = at.time() == QTime(0, 0);
    if (interval >= oneDay || (interval >= minute && isMidnight))
        return QLocale::c().toString(at, QStringLiteral("MM-dd"));
    if (interval >= minute)
        return QLocale::c().toString(at, QStringLiteral("hh:mm"));
    return at.toString(interval >= 1.0 ? QStringLiteral("hh:mm:ss")
                                       : QStringLiteral("hh:mm:ss.zzz"));
}

QString text(double time)
{
    const QDateTime at = moment(time);
    return at.toString(at.time().msec() == 0 ? QStringLiteral("yyyy-MM-dd hh:mm:ss")
                                             : QStringLiteral("yyyy-MM-dd hh:mm:ss.zzz"));
}

QString duration(double seconds)
{
    const qint64 ms = std::llround(std::abs(seconds) * 1000.0);
    const qint64 days = ms / qint64(oneDay * 1000.0);
    const QTime rest =
        QTime::fromMSecsSinceStartOfDay(static_cast<int>(ms % qint64(oneDay * 1000.0)));
    const QString sign = seconds < 0.0 && ms > 0 ? QStringLiteral("-") : QString();
    if (ms < qint64(minute * 1000.0))
        return QStringLiteral("%1%2 s").arg(sign).arg(double(ms) / 1000.0, 0, 'f', 3);
    const QString clock = QLocale::c().toString(rest, QStringLiteral("hh:mm:ss"));
    return days > 0 ? QStringLiteral("%1%2 d %3").arg(sign).arg(days).arg(clock) : sign + clock;
}

} // namespace ClockTicks
