#include "virtualclock.h"

#include <atomic>
#include <ctime>
#include <random>

#include <poll.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

// The C library's header declares the descriptors of poll() as written only, which they are not.
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#endif

namespace {

constexpr qint64 nsPerSecond = 1000000000;
constexpr qint64 nsPerMs = 1000000;
constexpr qint64 nsPerUs = 1000;
constexpr int shortestAnswer = 1; // ms
constexpr int longestAnswer = 60; // ms

std::atomic<bool> running{false};
std::atomic<qint64> now{0}; // ns since the start
qint64 dateAtStart = 0;     // ns since the epoch
qint64 uptimeAtStart = 0;   // ns of the monotonic clock
int realWaits = 0;
int unanswered = 0;
std::minstd_rand answerTimes;

timespec toTimespec(qint64 ns)
{
    return {time_t(ns / nsPerSecond), long(ns % nsPerSecond)};
}

qint64 toNs(const timespec &time)
{
    return qint64(time.tv_sec) * nsPerSecond + time.tv_nsec;
}

// The kernel is asked directly: the C library's names stand for the functions below.
int realClock(clockid_t clock, timespec *time)
{
    return int(::syscall(SYS_clock_gettime, clock, time));
}

int realPoll(pollfd *descriptors, nfds_t count, const timespec *timeout)
{
    constexpr size_t signalSetSize = 8;
    timespec left = timeout != nullptr ? *timeout : timespec{}; // the kernel writes into it
    return int(::syscall(SYS_ppoll, descriptors, count, timeout != nullptr ? &left : nullptr,
                         nullptr, signalSetSize));
}

/// The event loop watches a descriptor to be woken up by beside all others; only a blocking wait of
/// the link is for one socket.
bool isWaitForInstrument(const pollfd *descriptors, nfds_t count)
{
    if (count != 1)
        return false;
    int family = 0;
    socklen_t size = sizeof family;
    return ::getsockopt(descriptors[0].fd, SOL_SOCKET, SO_DOMAIN, &family, &size) == 0 &&
           (family == AF_INET || family == AF_INET6);
}

int wait(pollfd *descriptors, nfds_t count, const timespec *timeout)
{
    if (!running || realWaits > 0 || timeout == nullptr || toNs(*timeout) == 0)
        return realPoll(descriptors, count, timeout);

    const bool forInstrument = isWaitForInstrument(descriptors, count);
    const timespec none{};
    const int ready = realPoll(descriptors, count, forInstrument ? timeout : &none);
    if (ready < 0)
        return ready;
    if (ready == 0) {
        unanswered += forInstrument ? 1 : 0;
        now += toNs(*timeout);
    } else if (forInstrument) {
        now +=
            std::uniform_int_distribution<>(shortestAnswer, longestAnswer)(answerTimes) * nsPerMs;
    }
    return ready;
}

qint64 dateInNs()
{
    if (running)
        return dateAtStart + now;
    timespec time{};
    realClock(CLOCK_REALTIME, &time);
    return toNs(time);
}

} // namespace

// --- In place of the C library's

extern "C" {

int clock_gettime(clockid_t clock, timespec *time) noexcept
{
    const bool isDate = clock == CLOCK_REALTIME || clock == CLOCK_REALTIME_COARSE;
    const bool isUptime = clock == CLOCK_MONOTONIC || clock == CLOCK_MONOTONIC_COARSE ||
                          clock == CLOCK_MONOTONIC_RAW || clock == CLOCK_BOOTTIME;
    if (!running || !(isDate || isUptime))
        return realClock(clock, time);
    *time = toTimespec(isDate ? dateInNs() : uptimeAtStart + now);
    return 0;
}

int gettimeofday(timeval *time, void * /*zone*/) noexcept
{
    const timespec date = toTimespec(dateInNs());
    *time = {date.tv_sec, date.tv_nsec / nsPerUs};
    return 0;
}

time_t time(time_t *result) noexcept
{
    const time_t seconds = toTimespec(dateInNs()).tv_sec;
    if (result != nullptr)
        *result = seconds;
    return seconds;
}

int ppoll(pollfd *descriptors, nfds_t count, const timespec *timeout, const sigset_t * /*mask*/)
{
    return wait(descriptors, count, timeout);
}

int poll(pollfd *descriptors, nfds_t count, int timeout)
{
    if (timeout < 0)
        return wait(descriptors, count, nullptr);
    const timespec limit = toTimespec(timeout * nsPerMs);
    return wait(descriptors, count, &limit);
}

} // extern "C"

// --- The clock's own

namespace VirtualClock {

void start(qint64 msecsSinceEpoch, quint32 seed)
{
    timespec uptime{};
    realClock(CLOCK_MONOTONIC, &uptime);
    uptimeAtStart = toNs(uptime);
    dateAtStart = msecsSinceEpoch * nsPerMs;
    answerTimes.seed(seed);
    running = true;
}

qint64 elapsed()
{
    return now / nsPerMs;
}

qint64 realElapsed()
{
    timespec uptime{};
    realClock(CLOCK_MONOTONIC, &uptime);
    return (toNs(uptime) - uptimeAtStart) / nsPerMs;
}

int unansweredWaits()
{
    return unanswered;
}

RealWaits::RealWaits()
{
    ++realWaits;
}

RealWaits::~RealWaits()
{
    --realWaits;
}

} // namespace VirtualClock
