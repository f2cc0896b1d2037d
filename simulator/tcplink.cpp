#include "tcplink.h"

#include <QHostAddress>
#include <QTcpSocket>

namespace sim {

namespace {

// A client that sends on and on and reads nothing is made to wait by its own connection, since
// everything that is not taken from it, or by it, stays here.
constexpr int mostWaiting = 64 * 1024; // bytes each way

} // namespace

TcpLink::TcpLink(QTcpSocket *socket, QObject *parent)
    : Link(parent)
    , m_socket(socket)
    , m_name(socket->peerAddress().toString().toLatin1() + ':' +
             QByteArray::number(socket->peerPort()))
{
    socket->setParent(this);
    // The pieces of a reply must leave as pieces.
    socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    socket->setReadBufferSize(mostWaiting);
    connect(socket, &QTcpSocket::readyRead, this, &TcpLink::readWaiting);
    // Queued, so that no command is taken in from within the sending of a reply.
    connect(socket, &QTcpSocket::bytesWritten, this, &TcpLink::readWaiting, Qt::QueuedConnection);
    connect(socket, &QTcpSocket::disconnected, this, &Link::closed);
}

void TcpLink::send(const QByteArray &bytes)
{
    if (m_socket->state() != QAbstractSocket::ConnectedState)
        return;
    m_socket->write(bytes);
    m_socket->flush();
}

void TcpLink::drop()
{
    m_socket->abort();
}

void TcpLink::readWaiting()
{
    if (m_socket->bytesAvailable() > 0 && m_socket->bytesToWrite() <= mostWaiting)
        emit received(m_socket->readAll());
}

} // namespace sim
