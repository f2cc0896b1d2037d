#include "systemcalls.h"

#include <QFile>

#include <algorithm>
#include <bitset>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

namespace {

constexpr int mostDescriptors = 1024;

std::string stageFolder;
std::string pretendedProgram;
time_t stageDate = 0;

std::bitset<mostDescriptors> watchedFiles;
std::bitset<mostDescriptors> writtenFiles;
SystemCalls::Plan plan;
int reportFile = -1;
int callCount = 0;
bool hasFailed = false; // a lasting failure goes on
bool failsNext = false; // the error behind a short write is due
thread_local bool isWatching = false;

bool isInStage(const char *path)
{
    if (!isWatching || path == nullptr)
        return false;
    std::string whole = path;
    if (path[0] != '/') {
        char current[PATH_MAX] = {};
        if (::getcwd(current, sizeof current) == nullptr)
            return false;
        whole = std::string(current) + '/' + path;
    }
    // The folder itself is opened for a file that has no name yet.
    return whole == stageFolder || whole.compare(0, stageFolder.size() + 1, stageFolder + '/') == 0;
}

bool isInStage(int file)
{
    return isWatching && file >= 0 && file < mostDescriptors && watchedFiles[size_t(file)];
}

void mark(int file, bool isWatched, bool isWritten)
{
    if (file < 0 || file >= mostDescriptors)
        return;
    watchedFiles[size_t(file)] = isWatched;
    writtenFiles[size_t(file)] = isWritten;
}

void tell(const char *what, int number, const char *function, Call call)
{
    const int error = errno;
    ::dprintf(reportFile, "%s %d %s %d\n", what, number, function, int(call));
    errno = error;
}

[[noreturn]] void die()
{
    ::kill(::getpid(), SIGKILL);
    std::abort();
}

/// What is to happen to the call that is about to take place.
Failure next(Call call, const char *function)
{
    const int number = callCount++;
    tell("call", number, function, call);
    Failure failure = plan.failure;
    const bool isPlanned = number == plan.number;
    const bool isDue = failsNext && call == Call::Write;
    const bool goesOn = hasFailed && failure.lasting && failure.concerns(call);
    if (!isPlanned && !isDue && !goesOn)
        return {};
    if (isPlanned)
        hasFailed = true;
    else
        failure.way = Failure::Way::Refused;
    failsNext = isPlanned && failure.way == Failure::Way::Short && failure.error != 0;
    if (failure.way == Failure::Way::Refused)
        tell("failed", number, function, call);
    return failure;
}

template<typename Real>
auto intercept(bool watched, Call call, const char *function, Real real) -> decltype(real())
{
    const Failure failure = watched ? next(call, function) : Failure();
    if (failure.way == Failure::Way::KilledBefore)
        die();
    if (failure.way == Failure::Way::Refused) {
        if (call == Call::Close)
            real(); // the descriptor is gone all the same
        errno = failure.error;
        return -1;
    }
    const auto result = real();
    if (failure.way == Failure::Way::KilledAfter)
        die();
    return result;
}

template<typename Function>
Function *realOne(const char *name)
{
    return reinterpret_cast<Function *>(::dlsym(RTLD_NEXT, name));
}

template<typename Real>
int openFile(const char *path, int flags, const char *function, Real real)
{
    const bool watched = isInStage(path);
    if (watched && plan.isShare && (flags & O_TMPFILE) == O_TMPFILE) {
        errno = EOPNOTSUPP;
        return -1;
    }
    const Call call = (flags & O_ACCMODE) == O_RDONLY ? Call::Open : Call::OpenToWrite;
    const int file = intercept(watched, call, function, real);
    mark(file, watched, watched && call == Call::OpenToWrite);
    return file;
}

template<typename Real>
ssize_t writeFile(int file, size_t size, Real real)
{
    const Failure failure = isInStage(file) ? next(Call::Write, "write") : Failure();
    switch (failure.way) {
    case Failure::Way::None:
    case Failure::Way::KilledAfter:
        break;
    case Failure::Way::KilledBefore:
        die();
    case Failure::Way::Refused:
        errno = failure.error;
        return -1;
    case Failure::Way::Short:
        return real(std::max<size_t>(1, size / 2));
    case Failure::Way::KilledHalfway:
        real(size / 2);
        die();
    }
    const ssize_t written = real(size);
    if (failure.way == Failure::Way::KilledAfter)
        die();
    return written;
}

mode_t modeFrom(int flags, va_list arguments)
{
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
}

} // namespace

// --- In place of the C library's

// Passes a call on a path or a descriptor to the next library unless it is to fail.
#define MZ_PASS(target, call, function, ...)                          \
    static auto *const real = realOne<decltype(function)>(#function); \
    return intercept(isInStage(target), Call::call, #function, [&] { return real(__VA_ARGS__); })

// The whole of a function that is passed on so.
#define MZ_REPLACE(call, function, target, parameters, ...) \
    int function parameters noexcept                        \
    {                                                       \
        MZ_PASS(target, call, function, __VA_ARGS__);       \
    }

extern "C" {

int open(const char *path, int flags, ...)
{
    static auto *const real = realOne<int(const char *, int, ...)>("open");
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeFrom(flags, arguments);
    va_end(arguments);
    return openFile(path, flags, "open", [&] { return real(path, flags, mode); });
}

int open64(const char *path, int flags, ...)
{
    static auto *const real = realOne<int(const char *, int, ...)>("open64");
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeFrom(flags, arguments);
    va_end(arguments);
    return openFile(path, flags, "open64", [&] { return real(path, flags, mode); });
}

ssize_t write(int file, const void *bytes, size_t size)
{
    static auto *const real = realOne<ssize_t(int, const void *, size_t)>("write");
    return writeFile(file, size, [&](size_t part) { return real(file, bytes, part); });
}

int close(int file)
{
    static auto *const real = realOne<int(int)>("close");
    // The close of a file that was only read loses nothing.
    const bool isTelling = isInStage(file) && writtenFiles[size_t(file)];
    mark(file, false, false);
    return intercept(isTelling, Call::Close, "close", [&] { return real(file); });
}

ssize_t read(int file, void *bytes, size_t size)
{
    MZ_PASS(file, Read, read, file, bytes, size);
}

int fsync(int file)
{
    MZ_PASS(file, Sync, fsync, file);
}

int fdatasync(int file)
{
    MZ_PASS(file, Sync, fdatasync, file);
}

MZ_REPLACE(Truncate, ftruncate, file, (int file, off_t size), file, size)
MZ_REPLACE(Truncate, ftruncate64, file, (int file, off64_t size), file, size)
MZ_REPLACE(Mode, fchmod, file, (int file, mode_t mode), file, mode)
MZ_REPLACE(Size, fstat64, file, (int file, struct stat64 *result), file, result)
MZ_REPLACE(Status, stat64, path, (const char *path, struct stat64 *result), path, result)
MZ_REPLACE(Status, lstat64, path, (const char *path, struct stat64 *result), path, result)
MZ_REPLACE(Access, access, path, (const char *path, int right), path, right)
MZ_REPLACE(Mode, chmod, path, (const char *path, mode_t mode), path, mode)
MZ_REPLACE(MakeFolder, mkdir, path, (const char *path, mode_t mode), path, mode)
MZ_REPLACE(Unlink, unlink, path, (const char *path), path)
MZ_REPLACE(Link, link, path, (const char *from, const char *path), from, path)
MZ_REPLACE(Link, linkat, path, (int at, const char *from, int to, const char *path, int flags), at,
           from, to, path, flags)
MZ_REPLACE(Rename, rename, path, (const char *from, const char *path), from, path)
MZ_REPLACE(Rename, renameat2, path,
           (int at, const char *from, int to, const char *path, unsigned flags), at, from, to, path,
           flags)

int statx(int folder, const char *path, int flags, unsigned mask, struct statx *result) noexcept
{
    static auto *const real = realOne<decltype(statx)>("statx");
    const bool isOfFile = path != nullptr && path[0] == '\0';
    return intercept(isOfFile ? isInStage(folder) : isInStage(path),
                     isOfFile ? Call::Size : Call::Status, "statx",
                     [&] { return real(folder, path, flags, mask, result); });
}

/// Where Qt looks for the program, beside which settings, records and log lie.
char *realpath(const char *path, char *result) noexcept
{
    static auto *const real = realOne<decltype(realpath)>("realpath");
    const std::string program = "/proc/" + std::to_string(::getpid()) + "/exe";
    if (pretendedProgram.empty() || path != program)
        return real(path, result);
    if (result == nullptr)
        return ::strdup(pretendedProgram.c_str());
    // The caller has PATH_MAX bytes for it.
    std::memcpy(result, pretendedProgram.c_str(), pretendedProgram.size() + 1);
    return result;
}

/// Where Qt gets the date from: reports, records and logs of two runs are to be the same.
int gettimeofday(timeval *time, void *zone) noexcept
{
    static auto *const real = realOne<decltype(gettimeofday)>("gettimeofday");
    if (stageDate == 0)
        return real(time, zone);
    *time = {stageDate, 0};
    return 0;
}

} // extern "C"

#undef MZ_REPLACE
#undef MZ_PASS

// --- The campaign's own

namespace SystemCalls {

void setStage(const QString &folder, qint64 secondsSinceEpoch)
{
    stageFolder = QFile::encodeName(folder).toStdString();
    pretendedProgram = stageFolder + "/mz6218";
    stageDate = time_t(secondsSinceEpoch);
}

void watch(const Plan &planned, int report)
{
    plan = planned;
    reportFile = report;
    isWatching = true;
}

} // namespace SystemCalls
