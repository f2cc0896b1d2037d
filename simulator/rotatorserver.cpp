#include "rotatorserver.h"

#include "linesplitter.h"
#include "trace.h"

#include <QTcpSocket>

#include <memory>

namespace sim {

RotatorServer::RotatorServer(double speed, Trace &trace, QObject *parent)
    : QObject(parent)
    , m_rotator(speed)
    , m_trace(trace)
{
    m_clock.start();
    connect(&m_server, &QTcpServer::newConnection, this, &RotatorServer::serve);
}

void RotatorServer::serve()
{
    while (QTcpSocket *const socket = m_server.nextPendingConnection()) {
        socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        const auto splitter = std::make_shared<LineSplitter>();
        connect(socket, &QTcpSocket::readyRead, this, [this, socket, splitter] {
            for (const QByteArray &line : splitter->feed(socket->readAll())) {
                const QByteArray reply = m_rotator.answer(line, m_clock.elapsed());
                if (line.simplified() != "p")
                    m_trace.note("rotator " + line.simplified());
                socket->write(reply);
            }
        });
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    }
}

} // namespace sim
