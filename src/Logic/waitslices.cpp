#include "Logic/waitslices.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QScopeGuard>
#include <QTcpSocket>
#include <QTimer>

#include <algorithm>

namespace {

// A wait that is shorter cannot be felt.
constexpr int unfeltWait = 200; // ms
// The longest part of a wait without a look at whether it is cancelled.
constexpr int slice = 50; // ms

} // namespace

bool WaitSlices::wait(int total, const Wait &wait, const Question &isUp) const
{
    if (!m_isCancelled)
        return wait(total);
    const QDeadlineTimer limit(total);
    while (isUp() && !m_isCancelled() && !limit.hasExpired()) {
        if (wait(int(std::min<qint64>(slice, limit.remainingTime()))))
            return true;
    }
    return false;
}

bool WaitSlices::wait(int total, const Wait &wait, const Question &isUp,
                      const std::function<void(bool)> &tellBusy) const
{
    const int unfelt = std::min(total, unfeltWait);
    if (this->wait(unfelt, wait, isUp))
        return true;
    tellBusy(true);
    const auto over = qScopeGuard([&tellBusy] { tellBusy(false); });
    return this->wait(total - unfelt, wait, isUp);
}

bool WaitSlices::waitForConnection(QTcpSocket &socket, int total) const
{
    if (!m_isCancelled)
        return socket.waitForConnected(total);
    QEventLoop loop;
    const QDeadlineTimer limit(total);
    QTimer tick;
    const auto isOver = [this, &socket, &limit] {
        const QAbstractSocket::SocketState state = socket.state();
        return state == QAbstractSocket::ConnectedState ||
               state == QAbstractSocket::UnconnectedState || limit.hasExpired() || m_isCancelled();
    };
    const auto look = [&] {
        if (isOver())
            loop.quit();
    };
    QObject::connect(&tick, &QTimer::timeout, &loop, look);
    QObject::connect(&socket, &QTcpSocket::stateChanged, &loop, look);
    tick.start(slice);
    if (!isOver())
        loop.exec();
    return socket.state() == QAbstractSocket::ConnectedState;
}

bool WaitSlices::waitForWrite(QIODevice &device, int ms) const
{
    // Who looks whether to cancel may handle events, and with them what is waited for here.
    return (m_isCancelled && device.bytesToWrite() == 0) || device.waitForBytesWritten(ms);
}
