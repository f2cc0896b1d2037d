#include "stopsignals.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX

#include <QCoreApplication>
#include <QSocketNotifier>

#include <array>
#include <csignal>

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

} // namespace

namespace sim {

void quitOnStopSignals()
{
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0)
        return;
    for (const int end : ends)
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
    writeEnd = ends[1];
    auto *const notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, qApp);
    QObject::connect(notifier, &QSocketNotifier::activated, qApp, &QCoreApplication::quit);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        std::signal(signal, handle);
}

} // namespace sim

#else

namespace sim {

void quitOnStopSignals()
{}

} // namespace sim

#endif
