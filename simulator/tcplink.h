#pragma once

#include "link.h"

class QTcpSocket;

namespace sim {

/// One TCP client. It is used up once it has emitted closed().
class TcpLink : public Link
{
    Q_OBJECT

public:
    /// Takes \a socket over.
    explicit TcpLink(QTcpSocket *socket, QObject *parent = nullptr);

    QByteArray name() const override { return m_name; }
    void send(const QByteArray &bytes) override;
    void drop() override;
    /// Hands on what the client has sent, unless it has to read its replies first.
    void readWaiting();

private:
    QTcpSocket *m_socket;
    QByteArray m_name;
};

} // namespace sim
