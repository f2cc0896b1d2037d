#include "rotatorserver.h"

#include "linesplitter.h"
#include "trace.h"

#include <QTcpSocket>
#include <QTimer>

#include <memory>
#include <utility>

namespace sim {

namespace {

/// A client's connection: sends replies as they are delivered, one after the other.
class Client : public QObject
{
public:
    explicit Client(QTcpSocket *socket)
        : QObject(socket)
        , m_socket(socket)
    {
        m_timer.setSingleShot(true);
        m_timer.setTimerType(Qt::PreciseTimer);
        connect(&m_timer, &QTimer::timeout, this, &Client::advance);
    }

    void deliver(const QList<Step> &steps)
    {
        m_steps.append(steps);
        if (!m_timer.isActive())
            advance();
    }

private:
    void advance()
    {
        while (!m_steps.isEmpty()) {
            if (m_steps.first().delay > 0) {
                m_timer.start(std::exchange(m_steps.first().delay, 0));
                return;
            }
            const Step step = m_steps.takeFirst();
            if (step.drop) {
                m_steps.clear();
                m_socket->disconnectFromHost();
                return;
            }
            m_socket->write(step.bytes);
        }
    }

    QTcpSocket *m_socket;
    QTimer m_timer;
    QList<Step> m_steps;
};

} // namespace

RotatorServer::RotatorServer(double speed, const FaultInjector &faults, Trace &trace,
                             QObject *parent)
    : QObject(parent)
    , m_rotator(speed)
    , m_faults(faults)
    , m_trace(trace)
{
    m_clock.start();
    connect(&m_server, &QTcpServer::newConnection, this, &RotatorServer::serve);
}

QList<Step> RotatorServer::answer(const QByteArray &line)
{
    const QList<Fault> faults = m_faults.befalling(line);
    for (const Fault &fault : faults)
        m_trace.note("fault " + faultName(fault.kind) + " befalls rotator " + line.simplified());
    const QByteArray reply = contains(faults, FaultKind::Refuse)
                                 ? QByteArray("RPRT -5\n")
                                 : m_rotator.answer(line, m_clock.elapsed());
    return reply.isEmpty() ? QList<Step>() : m_faults.delivery(reply.chopped(1), faults);
}

void RotatorServer::serve()
{
    while (QTcpSocket *const socket = m_server.nextPendingConnection()) {
        socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        const auto splitter = std::make_shared<LineSplitter>();
        auto *const client = new Client(socket);
        connect(socket, &QTcpSocket::readyRead, this, [this, socket, client, splitter] {
            for (const QByteArray &line : splitter->feed(socket->readAll())) {
                if (line.simplified() != "p")
                    m_trace.note("rotator " + line.simplified());
                client->deliver(answer(line));
            }
        });
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    }
}

} // namespace sim
