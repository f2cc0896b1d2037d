#pragma once

#include <QString>

/// Round divisions of an axis, so many that their labels have room.
struct AxisTicks
{
    double first = 0.0;    ///< a division at or below the begin of the axis
    double interval = 1.0; ///< s, or dB
};

namespace ClockTicks {

/// Divisions of the time from \a from to \a to in whole parts of minutes, hours and days, at most
/// \a most of them.
AxisTicks ofTime(double from, double to, int most);
/// The same for levels, in ones, twos and fives.
AxisTicks ofLevel(double from, double to, int most);

/// What stands at a division: date, hour and minute, or more digits where they are closer.
QString label(double time, double interval);
/// A time to the millisecond where it has any: "2026-11-21 20:03:02.117".
QString text(double time);
/// A duration: "3 d 04:05:06", "04:05:06", "06.250 s".
QString duration(double seconds);

} // namespace ClockTicks
