#pragma once

#include <QtGlobal>

/// The same moment by two clocks.
struct Moment
{
    qint64 steady = 0; ///< ns by a clock that nobody sets, see steadyNow()
    qint64 wall = 0;   ///< ms since 1970 in UTC by the clock on the wall, which may step
};

/// Now, by both clocks.
Moment momentNow();

/// Nanoseconds since some moment of the past, by a clock that nobody sets. It goes on while the
/// machine sleeps, where the system has such a clock.
qint64 steadyNow();
