#include "sweep/rotatorclient.h"

#include "sweep/crashstop.h"

#include <QDeadlineTimer>
#include <QNetworkProxy>

#include <algorithm>
#include <utility>

namespace {

/// A reply that a stop overtook may still come; what comes until the line is quiet is not the next
/// command's.
constexpr int quietTime = 300; // ms
constexpr int longestReply = 1 << 16;
const QByteArray stopLine = "S\n";

} // namespace

RotatorClient::RotatorClient(QObject *parent)
    : QObject(parent)
{
    m_socket.setProxy(QNetworkProxy::NoProxy);
    m_limit.setSingleShot(true);
    m_pause.setSingleShot(true);
    connect(&m_limit, &QTimer::timeout, this, &RotatorClient::timedOut);
    connect(&m_pause, &QTimer::timeout, this, &RotatorClient::connectNow);
    connect(&m_socket, &QTcpSocket::connected, this, &RotatorClient::connected);
    connect(&m_socket, &QTcpSocket::readyRead, this, &RotatorClient::readLines);
    connect(&m_socket, &QTcpSocket::errorOccurred, this, [this] { lose(m_socket.errorString()); });
}

RotatorClient::~RotatorClient()
{
    close();
}

void RotatorClient::open(const QString &host, quint16 port)
{
    close();
    m_host = host;
    m_port = port;
    m_attempts = 0;
    m_isDescribed = m_hasPosition = m_modelAsked = m_stateAsked = false;
    m_description = {};
    connectNow();
}

void RotatorClient::close()
{
    m_socket.blockSignals(true);
    if (m_mayTurn && m_socket.state() == QAbstractSocket::ConnectedState)
        stopForGood();
    CrashStop::forget(std::exchange(m_turning, -1));
    m_mayTurn = false;
    m_socket.disconnectFromHost();
    m_socket.abort();
    m_socket.blockSignals(false);
    m_limit.stop();
    m_pause.stop();
    m_orders.clear();
    m_command = Command::None;
    m_isUp = false;
}

/// A connection that is cut with replies unread may take the stop with it: waits for the answer, in
/// no longer than nobody notices.
void RotatorClient::stopForGood()
{
    constexpr int limit = 50; // ms
    QDeadlineTimer deadline(limit);
    m_socket.readAll();
    m_socket.write(stopLine);
    QByteArray answer;
    while (!answer.contains("RPRT") && !deadline.hasExpired() &&
           m_socket.waitForReadyRead(int(deadline.remainingTime())))
        answer += m_socket.readAll();
}

void RotatorClient::connectNow()
{
    m_socket.connectToHost(m_host, m_port);
    m_limit.start(m_waits.connecting);
}

void RotatorClient::connected()
{
    m_limit.stop();
    m_socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
    m_buffer.clear();
    if (m_isDescribed) {
        m_isUp = true;
        emit up();
    } else if (m_hasPosition) {
        describeFurther();
    } else {
        readPosition();
    }
}

void RotatorClient::lose(const QString &reason)
{
    if (m_pause.isActive())
        return;
    CrashStop::forget(std::exchange(m_turning, -1));
    m_limit.stop();
    m_orders.clear();
    m_command = Command::None;
    m_isUp = false;
    const int pause = std::min(m_waits.firstPause << std::min(m_attempts, 3), m_waits.longestPause);
    ++m_attempts;
    m_pause.start(pause);
    m_socket.abort();
    emit down(reason);
}

void RotatorClient::move(double azimuth)
{
    const QByteArray bytes = RotatorText::move(azimuth, m_first.elevation);
    if (!bytes.isEmpty())
        submit({Command::Move, bytes});
}

void RotatorClient::readPosition()
{
    submit({Command::Position, "p\n"});
}

void RotatorClient::stop()
{
    if (m_socket.state() != QAbstractSocket::ConnectedState)
        return;
    m_orders.clear();
    m_overtakes = m_command != Command::None;
    m_command = Command::None;
    submit({Command::Stop, stopLine});
    m_socket.flush();
}

void RotatorClient::submit(const Order &order)
{
    m_orders.enqueue(order);
    sendNext();
}

void RotatorClient::sendNext()
{
    if (m_command != Command::None || m_orders.isEmpty() ||
        m_socket.state() != QAbstractSocket::ConnectedState)
        return;
    const Order order = m_orders.dequeue();
    m_command = order.command;
    m_socket.readAll();
    m_buffer.clear();
    m_lines.clear();
    if (m_command == Command::Move) {
        m_mayTurn = true;
        m_turning = m_socket.socketDescriptor();
        CrashStop::remember(m_turning);
    }
    m_socket.write(order.bytes);
    const bool isOptional = m_command == Command::Model || m_command == Command::State;
    m_limit.start(isOptional ? m_waits.optionalReply : m_waits.reply);
}

void RotatorClient::readLines()
{
    m_buffer += m_socket.readAll();
    if (m_buffer.size() > longestReply) {
        lose(tr("The rotator's reply is none."));
        return;
    }
    int end = 0;
    while (m_command != Command::None && (end = m_buffer.indexOf('\n')) >= 0) {
        m_lines.append(m_buffer.left(end).trimmed());
        m_buffer.remove(0, end + 1);
        if (m_command == Command::Stop && m_overtakes)
            m_limit.start(quietTime);
        else if (isWhole())
            finishCommand();
    }
}

bool RotatorClient::isWhole() const
{
    const bool isReport = RotatorText::report(m_lines.last()).has_value();
    switch (m_command) {
    case Command::Position:
        return isReport || m_lines.size() == 2;
    case Command::Model:
        return true;
    case Command::State:
        return RotatorText::isWholeState(m_lines);
    default:
        return isReport;
    }
}

void RotatorClient::finishCommand()
{
    m_limit.stop();
    m_attempts = 0;
    const Command command = m_command;
    m_command = Command::None;
    const std::optional<int> report =
        m_lines.isEmpty() ? std::nullopt : RotatorText::report(m_lines.last());
    switch (command) {
    case Command::Position:
        takePosition();
        break;
    case Command::Move:
        emit moved(report.value_or(RotatorText::garbled));
        break;
    case Command::Stop:
        takeStop();
        break;
    case Command::Model:
        if (!report)
            m_description.model = QString::fromUtf8(m_lines.value(0));
        describeFurther();
        break;
    case Command::State:
        m_description.limits = RotatorText::limits(m_lines);
        describeFurther();
        break;
    case Command::None:
        break;
    }
    sendNext();
}

void RotatorClient::takePosition()
{
    const auto read =
        m_lines.size() == 2 ? RotatorText::position(m_lines.at(0), m_lines.at(1)) : std::nullopt;
    int code = RotatorText::report(m_lines.first()).value_or(RotatorText::garbled);
    if (read || code == RotatorText::done)
        code = read ? RotatorText::done : RotatorText::garbled;
    const double azimuth = read ? read->azimuth : 0.0;
    if (m_hasPosition) {
        emit position(code, azimuth);
        return;
    }
    if (!read) {
        lose(tr("The rotator does not tell its position (error %1).").arg(code));
        return;
    }
    m_first = *read;
    m_hasPosition = true;
    describeFurther();
}

void RotatorClient::takeStop()
{
    m_mayTurn = false;
    CrashStop::forget(std::exchange(m_turning, -1));
    m_overtakes = false;
    emit stopped(
        RotatorText::report(m_lines.value(m_lines.size() - 1)).value_or(RotatorText::done));
}

/// Model and limits are asked for once, and need not be told.
void RotatorClient::describeFurther()
{
    if (!m_modelAsked) {
        m_modelAsked = true;
        submit({Command::Model, "_\n"});
    } else if (!m_stateAsked) {
        m_stateAsked = true;
        submit({Command::State, "\\dump_state\n"});
    } else if (!m_isDescribed) {
        m_isDescribed = true;
        m_isUp = true;
        emit described(m_first.azimuth);
        emit up();
    }
}

void RotatorClient::timedOut()
{
    const bool isOptional = m_command == Command::Model || m_command == Command::State;
    const bool isQuiet = m_command == Command::Stop && m_overtakes && !m_lines.isEmpty();
    if (isQuiet || (isOptional && !m_lines.isEmpty())) {
        finishCommand();
        return;
    }
    if (isOptional) {
        // A server that does not know a command may take the next line for a part of it: the next
        // one goes out on a new connection.
        m_command = Command::None;
        m_socket.blockSignals(true);
        m_socket.abort();
        m_socket.blockSignals(false);
        connectNow();
        return;
    }
    if (m_mayTurn && m_socket.state() == QAbstractSocket::ConnectedState) {
        m_socket.write(stopLine);
        m_socket.flush();
    }
    lose(m_command == Command::None ? tr("The rotator cannot be reached.")
                                    : tr("The rotator does not answer."));
}
