#include "instrumentserver.h"

#include "options.h"
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
    , m_instrument(PowerSource(options.level, options.noise, options.seed), options.seed,
                   options.microSign)
    , m_faults(options.faults, options.seed)
    , m_bench{m_interpreter, m_faults, m_trace, options.operationTime}
{
    connect(&m_server, &QTcpServer::newConnection, this, [this] {
        if (m_tcpSession)
            m_trace.note("another client waits for its turn");
        serveNext();
    });
}

bool InstrumentServer::start(const Options &options, QString *error)
{
    if (!m_server.listen(options.address, options.port)) {
        *error = tr("Cannot listen on %1: %2")
                     .arg(endpoint(options.address, options.port), m_server.errorString());
        return false;
    }
    if (options.serial && !openSerialPort(error))
        return false;
    emit announced(QStringLiteral("Listening on %1")
                       .arg(endpoint(m_server.serverAddress(), m_server.serverPort())));
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
