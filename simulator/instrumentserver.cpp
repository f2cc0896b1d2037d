#include "instrumentserver.h"

#include "options.h"
#include "rotatorserver.h"
#include "tcplink.h"

#ifdef Q_OS_UNIX
#include "ptylink.h"
#endif

#include <QTcpSocket>

namespace sim {

namespace {

/// \a address and \a port as a client would write them.
QString endpoint(const QHostAddress &address, quint16 port)
{
    const bool hasColons = address.protocol() == QAbstractSocket::IPv6Protocol;
    return QStringLiteral("%1:%2")
        .arg(hasColons ? QLatin1Char('[') + address.toString() + QLatin1Char(']')
                       : address.toString())
        .arg(port);
}

} // namespace

InstrumentServer::InstrumentServer(const Options &options, std::FILE *trace, QObject *parent)
    : QObject(parent)
    , m_trace(trace)
    , m_level(options.level)
    , m_instrument([this] { return input(); }, PowerSource(options.noise, options.seed),
                   options.seed, options.microSign)
    , m_faults(options.faults, options.seed)
    , m_bench{m_interpreter,         m_faults, m_trace,
              options.operationTime, nullptr,  options.replayTiming}
{
    connect(&m_server, &QTcpServer::newConnection, this, [this] {
        if (m_tcpSession)
            m_trace.note("another client waits for its turn");
        serveNext();
    });
}

bool InstrumentServer::start(const Options &options, QString *error)
{
    if (!readFiles(options, error))
        return false;
    m_clock.start();
    if (!m_server.listen(options.address, options.port)) {
        *error = tr("Cannot listen on %1: %2")
                     .arg(endpoint(options.address, options.port), m_server.errorString());
        return false;
    }
    if (options.serial && !openSerialPort(error))
        return false;
    if (options.rotatorPort && !openRotator(options, error))
        return false;
    emit announced(QStringLiteral("Listening on %1")
                       .arg(endpoint(m_server.serverAddress(), m_server.serverPort())));
    return true;
}

bool InstrumentServer::readFiles(const Options &options, QString *error)
{
    if (!options.pattern.isEmpty()) {
        m_pattern = AntennaPattern::fromFile(options.pattern, error);
        if (!m_pattern)
            return false;
    }
    if (!options.script.isEmpty()) {
        m_script = LevelScript::fromFile(options.script, error);
        if (!m_script)
            return false;
    }
    if (!options.replay.isEmpty()) {
        m_replay = Replay::fromLog(options.replay, error);
        if (!m_replay)
            return false;
        m_bench.replay = &*m_replay;
    }
    return true;
}

Input InstrumentServer::input() const
{
    const double azimuth = m_rotator ? m_rotator->azimuth() : 0.0;
    const Input before{m_pattern ? m_pattern->level(azimuth) : m_level};
    return m_script ? m_script->at(m_clock.elapsed(), before) : before;
}

bool InstrumentServer::openRotator(const Options &options, QString *error)
{
    m_rotator = new RotatorServer(
        options.rotatorSpeed, FaultInjector(options.rotatorFaults, options.seed), m_trace, this);
    if (!m_rotator->listen(options.address, *options.rotatorPort)) {
        *error =
            tr("Cannot listen on %1: %2")
                .arg(endpoint(options.address, *options.rotatorPort), m_rotator->errorString());
        return false;
    }
    emit announced(
        QStringLiteral("Rotator on %1").arg(endpoint(options.address, m_rotator->port())));
    return true;
}

bool InstrumentServer::openSerialPort(QString *error)
{
#ifdef Q_OS_UNIX
    auto *const link = new PtyLink;
    new Session(link, m_bench, this);
    const auto announce = [this](const QString &path) {
        emit announced(QStringLiteral("Serial port: %1").arg(path));
    };
    connect(link, &PtyLink::pathChanged, this, announce);
    if (!link->open(error))
        return false;
    announce(link->path());
    return true;
#else
    *error = tr("--serial is not available on this system: it has no pseudo terminals.");
    return false;
#endif
}

void InstrumentServer::serveNext()
{
    while (!m_tcpSession && m_server.hasPendingConnections()) {
        QTcpSocket *const socket = m_server.nextPendingConnection();
        if (socket->state() != QAbstractSocket::ConnectedState) {
            // It lost patience while it waited.
            socket->deleteLater();
            continue;
        }
        auto *const link = new TcpLink(socket);
        m_trace.note(link->name() + " connected");
        m_tcpSession = new Session(link, m_bench, this);
        connect(m_tcpSession, &Session::ended, this, &InstrumentServer::endTcpSession);
        link->readWaiting();
    }
}

void InstrumentServer::endTcpSession()
{
    m_tcpSession->deleteLater();
    m_tcpSession = nullptr;
    serveNext();
}

} // namespace sim
