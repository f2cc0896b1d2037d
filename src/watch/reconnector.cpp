#include "watch/reconnector.h"

#include <QFileInfo>
#include <QLocale>
#include <QSerialPortInfo>
#include <QTcpSocket>

#include <algorithm>

namespace {

constexpr int second = 1000;     // ms
constexpr int probeTime = 3000;  // ms
constexpr int longestPause = 60; // s

bool isPortThere(const QString &name)
{
    const QList<QSerialPortInfo> ports = QSerialPortInfo::availablePorts();
    const auto isIt = [&name](const QSerialPortInfo &port) { return port.portName() == name; };
    // A path may name a device that is in no list, as a pseudo terminal is.
    return std::any_of(ports.begin(), ports.end(), isIt) || QFileInfo::exists(name);
}

} // namespace

Reconnector::Reconnector(QObject *parent)
    : QObject(parent)
    , m_isThere(isPortThere)
{
    m_second.setInterval(second);
    m_probeLimit.setSingleShot(true);
    m_probeLimit.setInterval(probeTime);
    connect(&m_second, &QTimer::timeout, this, &Reconnector::tick);
    connect(&m_probeLimit, &QTimer::timeout, this, [this] { endProbe(false); });
}

Reconnector::~Reconnector() = default;

void Reconnector::begin(const Target &target)
{
    stop();
    m_target = target;
    m_since = QDateTime::currentDateTime();
    m_pause = 0;
    m_isAway = false;
    m_second.start();
    wait();
}

void Reconnector::goOn()
{
    if (isActive())
        wait();
}

void Reconnector::stop()
{
    const bool wasActive = isActive();
    m_since = {};
    m_second.stop();
    m_probeLimit.stop();
    if (m_socket) {
        m_socket->disconnect(this);
        m_socket.release()->deleteLater(); // this may be called by one of its signals
    }
    if (wasActive)
        emit changed();
}

void Reconnector::wait()
{
    m_pause = m_pause == 0 ? 1 : std::min(2 * m_pause, longestPause);
    m_secondsLeft = m_pause;
    m_second.start();
    emit changed();
}

void Reconnector::tick()
{
    if (!m_target.isLan) {
        const bool wasAway = m_isAway;
        m_isAway = !m_isThere(m_target.name);
        if (wasAway && !m_isAway)
            m_secondsLeft = 1; // plugged in again: there is nothing to wait for
    }
    m_secondsLeft = std::max(0, m_secondsLeft - 1);
    if (m_secondsLeft > 0 || (m_isAway && !m_target.isLan)) {
        emit changed();
        return;
    }
    m_second.stop();
    emit changed();
    tryNow();
}

void Reconnector::tryNow()
{
    if (m_target.isLan)
        probe();
    else
        emit reachable(m_target.name, m_target.value);
}

void Reconnector::probe()
{
    m_socket = std::make_unique<QTcpSocket>();
    connect(m_socket.get(), &QTcpSocket::connected, m_socket.get(),
            &QTcpSocket::disconnectFromHost);
    connect(m_socket.get(), &QTcpSocket::disconnected, this, [this] { endProbe(true); });
    connect(m_socket.get(), &QTcpSocket::errorOccurred, this, [this] {
        if (m_socket->state() != QAbstractSocket::ClosingState)
            endProbe(false);
    });
    m_probeLimit.start();
    m_socket->connectToHost(m_target.name, quint16(m_target.value));
}

void Reconnector::endProbe(bool isReachable)
{
    m_probeLimit.stop();
    if (!m_socket)
        return;
    m_socket->disconnect(this);
    m_socket->abort();
    m_socket.release()->deleteLater();
    if (!isActive())
        return;
    if (isReachable)
        emit reachable(m_target.name, m_target.value);
    else
        wait();
}

QString Reconnector::text() const
{
    if (!isActive())
        return {};
    const QString begin =
        tr("No link since %1.").arg(QLocale::c().toString(m_since, QStringLiteral("hh:mm:ss")));
    QString next = tr("Trying again …");
    if (!m_target.isLan && m_isAway)
        next = tr("Waiting for %1 to come back.").arg(m_target.name);
    else if (m_secondsLeft > 0)
        next = tr("Next try in %1 s.").arg(m_secondsLeft);
    return begin + QLatin1Char(' ') + next;
}
