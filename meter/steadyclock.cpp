#include "meter/steadyclock.h"

#include <QDateTime>

#ifdef Q_OS_LINUX
#include <ctime>
#else
#include <chrono>
#endif

Moment momentNow()
{
    // A process that is stopped between the two looks would see a step of the wall clock.
    constexpr qint64 apart = 10000000; // ns
    Moment now;
    do {
        now.steady = steadyNow();
        now.wall = QDateTime::currentMSecsSinceEpoch();
    } while (steadyNow() - now.steady > apart);
    return now;
}

qint64 steadyNow()
{
#ifdef Q_OS_LINUX
    // The usual monotonic clock stands still in suspend.
    timespec now{};
    clock_gettime(CLOCK_BOOTTIME, &now);
    return qint64(now.tv_sec) * 1000000000 + now.tv_nsec;
#else
    using namespace std::chrono;
    return duration_cast<nanoseconds>(steady_clock::now().time_since_epoch()).count();
#endif
}
