#include "meter/steadyclock.h"

#ifdef Q_OS_LINUX
#include <ctime>
#else
#include <chrono>
#endif

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
