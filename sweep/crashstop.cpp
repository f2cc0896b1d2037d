#include "sweep/crashstop.h"

#include <atomic>
#include <csignal>

#ifdef Q_OS_WIN
#include <winsock2.h>
#else
#include <unistd.h>
#endif

namespace {

std::atomic<qintptr> turning{-1};

extern "C" void stopTableAndDie(int number)
{
    const qintptr socket = turning.exchange(-1);
    if (socket != -1) {
        // Nothing but a bare system call is allowed in here.
#ifdef Q_OS_WIN
        ::send(static_cast<SOCKET>(socket), "S\n", 2, 0);
#else
        const ssize_t written = ::write(static_cast<int>(socket), "S\n", 2);
        Q_UNUSED(written)
#endif
    }
    std::signal(number, SIG_DFL);
    std::raise(number);
}

/// Puts the handler where nothing else, such as a sanitizer's, stands.
void install()
{
    static bool installed = false;
    if (installed)
        return;
    installed = true;
    for (const int number : {SIGSEGV, SIGABRT, SIGFPE, SIGILL}) {
        const auto former = std::signal(number, stopTableAndDie);
        if (former != SIG_DFL && former != SIG_ERR)
            std::signal(number, former);
    }
}

} // namespace

namespace CrashStop {

void remember(qintptr socket)
{
    install();
    turning = socket;
}

void forget()
{
    turning = -1;
}

} // namespace CrashStop
