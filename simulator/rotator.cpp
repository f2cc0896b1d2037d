#include "rotator.h"

#include "powertext.h"

#include <QList>

#include <algorithm>
#include <cmath>

namespace sim {

namespace {

struct Range
{
    bool holds(double value) const { return value >= minimum && value <= maximum; }

    double minimum;
    double maximum;
};

constexpr Range azimuthRange{-180.0, 450.0};
constexpr Range elevationRange{0.0, 90.0};

const char *const done = "RPRT 0\n";
const char *const invalid = "RPRT -1\n";

QByteArray stateLine(const char *name, double value)
{
    return name + ('=' + QByteArray::number(value, 'f', 6)) + '\n';
}

QByteArray state()
{
    return "1\n1\n" + stateLine("min_az", azimuthRange.minimum) +
           stateLine("max_az", azimuthRange.maximum) + stateLine("min_el", elevationRange.minimum) +
           stateLine("max_el", elevationRange.maximum) + "south_zero=0\nrot_type=AzEl\ndone\n";
}

} // namespace

double Rotator::Axis::at(qint64 now, double speed) const
{
    const double way = speed * static_cast<double>(now - started) / 1000.0;
    return from < to ? std::min(to, from + way) : std::max(to, from - way);
}

void Rotator::Axis::turn(double target, qint64 now, double speed)
{
    from = at(now, speed);
    to = target;
    started = now;
}

Rotator::Rotator(double speed)
    : m_speed(speed)
{}

QByteArray Rotator::answer(const QByteArray &line, qint64 now)
{
    const QList<QByteArray> words = line.simplified().split(' ');
    const QByteArray &command = words.first();
    if (command == "p")
        return twoDecimals(m_azimuth.at(now, m_speed)) + '\n' +
               twoDecimals(m_elevation.at(now, m_speed)) + '\n';
    if (command == "P")
        return words.size() == 3 && move(words.at(1), words.at(2), now) ? done : invalid;
    if (command == "S") {
        turn(m_azimuth.at(now, m_speed), m_elevation.at(now, m_speed), now);
        return done;
    }
    if (command == "K") {
        turn(0.0, 0.0, now);
        return done;
    }
    if (command == "_")
        return "MZ6218 simulated turntable\n";
    if (command == "\\dump_state")
        return state();
    return {};
}

QList<QByteArray> Rotator::commands()
{
    return {"p", "P", "S", "K", "_", "\\dump_state"};
}

bool Rotator::move(const QByteArray &azimuth, const QByteArray &elevation, qint64 now)
{
    bool hasAzimuth = false;
    bool hasElevation = false;
    const double toAzimuth = azimuth.toDouble(&hasAzimuth);
    const double toElevation = elevation.toDouble(&hasElevation);
    // A comparison with what is not a number is false, so that the table does not run away.
    if (!hasAzimuth || !hasElevation || !azimuthRange.holds(toAzimuth) ||
        !elevationRange.holds(toElevation))
        return false;
    turn(toAzimuth, toElevation, now);
    return true;
}

void Rotator::turn(double azimuth, double elevation, qint64 now)
{
    m_azimuth.turn(azimuth, now, m_speed);
    m_elevation.turn(elevation, now, m_speed);
}

} // namespace sim
