#include "tcplink.h"

#include <QHostAddress>
#include <QTcpSocket>

namespace sim {

TcpLink::TcpLink(QTcpSocket *socket, QObject *parent)
    : Link(parent)
    , m_socket(socket)
    , m_name(socket->peerAddress().toString().toLatin1() + ':' +
             QByteArray::number(socket->peerPort()))
{
    socket->setParent(this);
    // The pieces of a reply must leave as pieces.
    socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    connect(socket, &QTcpSocket::readyRead, this, &TcpLink::readWaiting);
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
    const QByteArray bytes = m_socket->readAll();
    if (!bytes.isEmpty())
        emit received(bytes);
}

} // namespace sim
