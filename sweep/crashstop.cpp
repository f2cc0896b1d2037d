#include "sweep/crashstop.h"

#include <array>
#include <atomic>
#include <csignal>

#ifdef Q_OS_WIN
#include <winsock2.h>
#else
#include <unistd.h>
#endif

namespace {

constexpr int mostTables = 8;
/// One more than the connections' numbers; 0 is a free place.
std::array<std::atomic<qintptr>, mostTables> turning{};

void exchange(qintptr present, qintptr next)
{
    for (std::atomic<qintptr> &place : turning) {
        qintptr expected = present;
        if (place.compare_exchange_strong(expected, next))
            return;
    }
}

extern "C" void stopTablesAndDie(int number)
{
    // Nothing but bare system calls are allowed in here.
    for (std::atomic<qintptr> &place : turning) {
        const qintptr socket = place.exchange(0) - 1;
        if (socket == -1)
            continue;
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
        const auto former = std::signal(number, stopTablesAndDie);
        if (former != SIG_DFL && former != SIG_ERR)
            std::signal(number, former);
    }
}

} // namespace

namespace CrashStop {

void remember(qintptr socket)
{
    install();
    forget(socket);
    exchange(0, socket + 1);
}

void forget(qintptr socket)
{
    if (socket != -1)
        exchange(socket + 1, 0);
}

} // namespace CrashStop
