#include "Logic/seriallogic.h"

#include "Logic/commandtexts.h"
#include "Logic/replyparser.h"

#include <QDebug>
#include <QScopeGuard>
#include <QSerialPort>
#include <QTcpSocket>
#include <QTimer>

#include <utility>

namespace {

constexpr int serialMode = 0;
constexpr int tcpMode = 1;

constexpr int tcpSendAttempts = 3;
constexpr int tolerableUnconfirmedWrites = 3;

} // namespace

SerialLogic::SerialLogic(QObject *parent)
    : QObject(parent)
    , m_port(new QSerialPort(this))
    , m_socket(new QTcpSocket(this))
    , m_linkTimer(new QTimer(this))
    , m_closeTimer(new QTimer(this))
{
    m_closeTimer->setSingleShot(true);
    connect(m_closeTimer, &QTimer::timeout, this, &SerialLogic::delayClose);
    connect(m_port, &QSerialPort::readyRead, this, &SerialLogic::readDataSlot);
    connect(m_port, &QSerialPort::errorOccurred, this, &SerialLogic::closeLostPort);
    connect(m_socket, &QTcpSocket::readyRead, this, &SerialLogic::readDataSlot);
    connect(m_socket, &QTcpSocket::disconnected, this, &SerialLogic::tellLoss);
    qRegisterMetaType<Outcome>();
}

SerialLogic::~SerialLogic() = default;

void SerialLogic::setLinkMode(const int &mode)
{
    m_linkMode = mode;
}

bool SerialLogic::openPort(const QString &name, const int &value)
{
    switch (m_linkMode) {
    case serialMode:
        return openSerial(name, value);
    case tcpMode:
        return openTcp(name, value);
    default:
        return true;
    }
}

bool SerialLogic::openSerial(const QString &name, int baudRate)
{
    qInfo().noquote()
        << QStringLiteral("Open port: %1, baud rate: %2").arg(name, QString::number(baudRate));
    emit displayLog(QStringLiteral("Open serial port"));
    startClean();
    if (m_port->isOpen())
        m_port->close();
    m_port->setPortName(name);
    if (!m_port->open(QIODevice::ReadWrite)) {
        emit errors(QStringLiteral("Failed to open %1").arg(name));
        return false;
    }
    // Only now: settings made before the port is open do not reach every driver.
    m_port->setBaudRate(baudRate, QSerialPort::AllDirections);
    m_port->setParity(QSerialPort::NoParity);
    m_port->setDataBits(QSerialPort::Data8);
    m_port->setStopBits(QSerialPort::OneStop);
    m_port->setFlowControl(QSerialPort::NoFlowControl);
    return true;
}

bool SerialLogic::openTcp(const QString &host, int port)
{
    const auto beginConnecting = [this, &host, port] {
        // A socket that is still in use would stay with its old host and report success.
        m_socket->abort();
        m_socket->connectToHost(host, quint16(port), QIODevice::ReadWrite,
                                QAbstractSocket::AnyIPProtocol);
    };
    const auto waitUntilConnected = [this] {
        emit busy(true);
        const auto over = qScopeGuard([this] { emit busy(false); });
        return m_slices.waitForConnection(*m_socket, m_waits.connecting);
    };

    startClean();
    beginConnecting();
    qDebug() << "connectToHost: " << host << port;
    if (waitUntilConnected())
        return true;
    beginConnecting();
    if (waitUntilConnected())
        return true;
    emit errors(tr("Failed to connect %1").arg(host));
    return false;
}

void SerialLogic::startClean()
{
    if (m_closeTimer->isActive())
        delayClose();
    m_buffer.clear();
    m_asyncReply = false;
    m_staleBytes = 0;
}

void SerialLogic::closePort()
{
    emit displayLog(QStringLiteral("Close serial port"));
    // A second wish to close does not put off the first.
    if (!m_closeTimer->isActive())
        m_closeTimer->start(m_waits.closing);
}

void SerialLogic::delayClose()
{
    m_closeTimer->stop();
    if (m_port->isOpen())
        m_port->close();
    m_socket->close();
    m_socket->abort();
}

void SerialLogic::closeLostPort()
{
    // An adapter that was unplugged reads as a hung-up line, which is a read error on Linux. Its
    // notifier would fire without end; the next command tells the user.
    const QSerialPort::SerialPortError error = m_port->error();
    const bool isLost = error == QSerialPort::ResourceError || error == QSerialPort::ReadError;
    if (!isLost || !m_port->isOpen())
        return;
    m_port->close();
    tellLoss();
}

void SerialLogic::tellLoss()
{
    if (m_asyncReply && !m_task.isEmpty())
        emit replied(std::exchange(m_task, {}), {}, Outcome::Link);
    emit lost();
}

bool SerialLogic::sendCmd(const QByteArray &cmd)
{
    qDebug() << "send cmd:" << cmd << cmd.size();
    const uint shown = qstrnlen(cmd.constData(), uint(cmd.size()));
    emit displayLog(QString::fromLatin1(cmd.constData(), int(shown)));

    if (m_dropsLateInput)
        discardInput();
    const QIODevice *const device = openDevice();
    m_staleBytes = device ? device->bytesAvailable() : 0;
    switch (m_linkMode) {
    case serialMode:
        return sendSerial(cmd);
    case tcpMode:
        return sendTcp(cmd);
    default:
        return false;
    }
}

bool SerialLogic::sendSerial(const QByteArray &cmd)
{
    if (!m_port->isOpen()) {
        emit errors(tr("Please open the serial port first."));
        return false;
    }
    m_port->write(cmd);
    if (waitTelling(m_waits.serialWriting, [this](int ms) {
            return m_port->isOpen() && m_slices.waitForWrite(*m_port, ms);
        }))
        return true;
    emit errors(tr("Failed to send cmd."));
    return false;
}

bool SerialLogic::sendTcp(const QByteArray &cmd)
{
    // Of the whole process, and deliberately not forgotten when a later write succeeds.
    static int unconfirmedWrites = 0;

    for (int attempt = 0; attempt < tcpSendAttempts; ++attempt) {
        if (m_socket->state() != QAbstractSocket::ConnectedState)
            continue;
        m_socket->write(cmd);
        if (waitTelling(m_waits.tcpWriting, [this](int ms) {
                return m_socket->state() == QAbstractSocket::ConnectedState &&
                       m_slices.waitForWrite(*m_socket, ms);
            }))
            return true;
        if (++unconfirmedWrites > tolerableUnconfirmedWrites) {
            unconfirmedWrites = 0;
            m_linkTimer->stop();
            return false;
        }
    }
    m_linkTimer->stop();
    emit errors(tr("Please connect first."));
    return false;
}

bool SerialLogic::isUp() const
{
    return m_linkMode == serialMode ? m_port->isOpen()
                                    : m_socket->state() == QAbstractSocket::ConnectedState;
}

bool SerialLogic::waitTelling(int total, const WaitSlices::Wait &wait)
{
    return m_slices.wait(
        total, wait, [this] { return isUp(); }, [this](bool isBusy) { emit busy(isBusy); });
}

QIODevice *SerialLogic::openDevice() const
{
    QIODevice *device = nullptr;
    if (m_linkMode == serialMode)
        device = m_port;
    else if (m_linkMode == tcpMode)
        device = m_socket;
    return device && device->isOpen() ? device : nullptr;
}

bool SerialLogic::waitForNewBytes()
{
    QIODevice *const device = openDevice();
    if (!device)
        return false;
    // Waiting takes notice of bytes that are still to come only, and confirming the write may have
    // brought the reply in already.
    if (device->bytesAvailable() > m_staleBytes)
        return true;
    return waitTelling(m_waits.reading, [this, device](int ms) {
        const bool hasCome = m_slices.canBeCancelled() && device->bytesAvailable() > m_staleBytes;
        return device->isOpen() && (hasCome || device->waitForReadyRead(ms));
    });
}

QByteArray SerialLogic::takeInput()
{
    m_staleBytes = 0;
    QIODevice *const device = openDevice();
    return device ? device->readAll() : QByteArray();
}

bool SerialLogic::dropOverlongLine()
{
    if (!m_buffer.isOverfull())
        return false;
    qWarning() << "read data: no end of line, dropped" << m_buffer.text().size() << "characters";
    m_buffer.clear();
    m_wasOverlong = true;
    return true;
}

bool SerialLogic::readData(QString &str)
{
    // A loop and not a call of itself: an instrument may dribble its reply byte by byte.
    while (waitForNewBytes()) {
        m_buffer.append(takeInput());
        qDebug() << "read data:" << m_buffer.text();
        if (m_buffer.hasLine()) {
            str = m_buffer.takeLine();
            return true;
        }
        if (dropOverlongLine())
            return false;
    }
    qDebug() << "Read time out";
    return false;
}

void SerialLogic::readDataSlot()
{
    // While no result is awaited, all input belongs to the read that waits for it.
    if (!m_asyncReply)
        return;
    m_buffer.append(takeInput());
    qDebug() << "read data async:" << m_buffer.text();
    if (dropOverlongLine() || !m_buffer.hasLine())
        return;
    reportTask(m_buffer.takeLine());
    m_asyncReply = false;
}

void SerialLogic::reportTask(const QString &line)
{
    const QByteArray command = std::exchange(m_task, {});
    emit replied(command, line, ReplyParser::outcome(command, line));
    switch (ReplyParser::taskResult(line)) {
    case ReplyParser::TaskResult::CalibrationSucceeded:
        emit updateCalibrationSuccess();
        break;
    case ReplyParser::TaskResult::CalibrationFailed:
        emit updateCalibrationFailed();
        break;
    case ReplyParser::TaskResult::ZeroSucceeded:
        emit updateSetZeroSuccess();
        break;
    case ReplyParser::TaskResult::ZeroFailed:
        emit updateSetZeroFailed();
        break;
    case ReplyParser::TaskResult::None:
        break;
    }
}

void SerialLogic::startRead()
{}

void SerialLogic::stopRead()
{
    m_linkTimer->stop();
}

std::optional<QString> SerialLogic::ask(const QByteArray &command)
{
    if (!sendCmd(command)) {
        emit replied(command, {}, Outcome::Link);
        return std::nullopt;
    }
    QString reply;
    m_wasOverlong = false;
    Outcome outcome = Outcome::Garbled;
    if (readData(reply)) {
        outcome = ReplyParser::outcome(command, reply);
    } else if (!m_wasOverlong) {
        outcome = isUp() ? Outcome::Timeout : Outcome::Link;
    }
    emit replied(command, reply, outcome);
    return reply;
}

bool SerialLogic::confirm(const QByteArray &command)
{
    const std::optional<QString> reply = ask(command);
    return reply && ReplyParser::isConfirmed(*reply);
}

void SerialLogic::queryIDN()
{
    if (const auto reply = ask(CommandTexts::queryIdentity()))
        emit updateIDN(ReplyParser::identity(*reply));
}

void SerialLogic::queryFrequency()
{
    const auto reply = ask(CommandTexts::queryFrequency());
    if (!reply)
        return;
    const ReplyParser::Frequency frequency = ReplyParser::frequency(*reply);
    qDebug() << "read frequency:" << frequency.value << frequency.unit;
    emit updateFrequency(frequency.value, frequency.unit);
}

void SerialLogic::setFrequency(double value)
{
    qDebug() << "send old frequency:" << value;
    if (confirm(CommandTexts::setFrequency(value)))
        queryFrequency();
}

void SerialLogic::setFrequency(QString value, QString unit)
{
    qDebug() << "send frequency:" << value << unit;
    const auto reply = ask(CommandTexts::setFrequency(value, unit));
    if (!reply)
        return;
    if (ReplyParser::isConfirmed(*reply))
        queryFrequency();
    else if (unit == QLatin1String("GHz"))
        setFrequency(value.toDouble());
    else if (unit == QLatin1String("MHz"))
        setFrequency(value.toDouble() / 1000);
    else if (unit == QLatin1String("KHz"))
        setFrequency(value.toDouble() / 1000000);
}

void SerialLogic::queryOffset()
{
    if (const auto reply = ask(CommandTexts::queryOffset()))
        emit updateOffset(ReplyParser::offset(*reply));
}

void SerialLogic::setOffset(double value)
{
    if (confirm(CommandTexts::setOffset(value)))
        queryOffset();
}

void SerialLogic::queryPowerUnit()
{
    if (const auto reply = ask(CommandTexts::queryPowerUnit()))
        emit updatePowUnit(ReplyParser::powerUnit(*reply));
}

void SerialLogic::setPowerUnit(QString unit)
{
    if (confirm(CommandTexts::setPowerUnit(unit)))
        queryPowerUnit();
}

void SerialLogic::queryMeasureState()
{
    if (const auto reply = ask(CommandTexts::queryMeasureState()))
        emit updateMeasureState(ReplyParser::measureState(*reply));
}

void SerialLogic::setMeasureState(QString state)
{
    if (confirm(CommandTexts::setMeasureState(state)))
        queryMeasureState();
}

void SerialLogic::queryAverageCount()
{
    if (const auto reply = ask(CommandTexts::queryAverageCount()))
        emit updateAverageCount(ReplyParser::averageCount(*reply));
}

void SerialLogic::setAverageCount(int count)
{
    if (confirm(CommandTexts::setAverageCount(count)))
        queryAverageCount();
}

void SerialLogic::setZero()
{
    startTask(CommandTexts::setZero());
}

void SerialLogic::calibrate()
{
    startTask(CommandTexts::calibrate());
}

void SerialLogic::startTask(const QByteArray &command)
{
    discardInput();
    // A result must not be told from inside the wait for the write: a receiver that asks the user
    // something there keeps it waiting until the write counts as unconfirmed and goes out again. So
    // the flag stays down for as long as the command is being sent.
    m_task.clear();
    if (!sendCmd(command)) {
        emit replied(command, {}, Outcome::Link);
        return;
    }
    m_task = command;
    m_asyncReply = true;
    // What came in meanwhile announces itself no more; it is told from the event loop, since who
    // started the task may not wait for the result yet.
    if (const QIODevice *device = openDevice(); device && device->bytesAvailable() > 0)
        QMetaObject::invokeMethod(this, &SerialLogic::readDataSlot, Qt::QueuedConnection);
}

void SerialLogic::discardInput()
{
    m_asyncReply = false;
    m_buffer.clear();
    if (QIODevice *device = openDevice()) {
        // What has reached the machine but not yet the program is as stale as the rest.
        device->waitForReadyRead(0);
        takeInput();
    }
}

bool SerialLogic::dropInput(int ms)
{
    m_buffer.clear();
    const bool came = !takeInput().isEmpty();
    const bool comes = m_slices.wait(
        ms,
        [this](int part) {
            QIODevice *const device = openDevice();
            return device && device->waitForReadyRead(part);
        },
        [this] { return isUp(); });
    takeInput();
    return came || comes;
}

void SerialLogic::readMesureData()
{
    const auto reply = ask(CommandTexts::readPower());
    if (!reply)
        return;
    const ReplyParser::Power power = ReplyParser::power(*reply);
    emit updatePower(power.dbm, power.text);
}
