#include "process/stopsignals.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX

#include <QCoreApplication>
#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace {

// A handler may do next to nothing, but writing to a pipe it may.
int writeEnd = -1;

void handle(int /*signal*/)
{
    const char byte = 0;
    const ssize_t written = ::write(writeEnd, &byte, 1);
    static_cast<void>(written);
}

void take(int readEnd)
{
    char byte = 0;
    const ssize_t taken = ::read(readEnd, &byte, 1);
    static_cast<void>(taken);
}

bool isIgnored(int signal)
{
    struct sigaction current = {};
    return ::sigaction(signal, nullptr, &current) == 0 && current.sa_handler == SIG_IGN;
}

} // namespace

void onStopSignals(std::function<void()> stop)
{
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0)
        return;
    for (const int end : ends)
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
    writeEnd = ends[1];
    QCoreApplication *const program = QCoreApplication::instance();
    auto *const notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, program);
    QObject::connect(notifier, &QSocketNotifier::activated, program,
                     [readEnd = ends[0], stop = std::move(stop)] {
                         take(readEnd);
                         stop();
                     });
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        if (!isIgnored(signal))
            std::signal(signal, handle);
    }
}

#else

#include <QCoreApplication>

#include <utility>

#include <windows.h>

namespace {

std::function<void()> stopProgram;

/// Called in a thread of the system's.
BOOL WINAPI handle(DWORD event)
{
    if (QCoreApplication *program = QCoreApplication::instance())
        QMetaObject::invokeMethod(
            program, [] { stopProgram(); }, Qt::QueuedConnection);
    // The system ends the program as soon as this returns, but for Ctrl+C and Ctrl+Break.
    if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT)
        ::Sleep(INFINITE);
    return TRUE;
}

} // namespace

void onStopSignals(std::function<void()> stop)
{
    stopProgram = std::move(stop);
    ::SetConsoleCtrlHandler(handle, TRUE);
}

#endif
