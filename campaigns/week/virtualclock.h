#pragma once

#include <QtGlobal>

/// A clock for the whole process that stands still while the program computes and leaps over the
/// time in which it would only wait. It takes the place of the C library's functions for the time
/// and for waiting on descriptors, for Qt's libraries too, since a program's own symbols come
/// before a library's. Timers, waits and dates of Qt all follow it, each to the millisecond.
///
/// (Tried and left: a preloaded library that lets time run faster, such as faketime. Two
/// hundredfold, which a week in an hour needs, the console got round to a tenth of its polls only,
/// and 25 ms for which the machine does something else are a time-out of the link.)
namespace VirtualClock {

/// Sets the date to \a msecsSinceEpoch, and from now on time passes as told above.
/// A wait on one TCP socket alone is a wait for the instrument, which lives in real time: it is
/// carried out, and an answer counts as if it had taken 1 to 60 ms, drawn from \a seed.
void start(qint64 msecsSinceEpoch, quint32 seed);

/// The time since the start, in ms.
qint64 elapsed();

/// The time that has really passed since the start, in ms.
qint64 realElapsed();

/// How many waits for the instrument went without an answer.
int unansweredWaits();

/// While one lives, nothing is leapt over: for waits for a process to start or to end.
class RealWaits
{
public:
    RealWaits();
    ~RealWaits();
    Q_DISABLE_COPY_MOVE(RealWaits)
};

} // namespace VirtualClock
