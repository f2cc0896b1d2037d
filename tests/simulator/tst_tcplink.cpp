#include "tcplink.h"
#include "testmain.h"

#include <QTcpServer>
#include <QTcpSocket>

/// A client's connection as the instrument sees it, without the instrument.
class TestTcpLink : public QObject
{
    Q_OBJECT

private slots:
    void clientThatOnlySendsHasToWait();
};

void TestTcpLink::clientThatOnlySendsHasToWait()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    QTcpSocket client;
    client.setReadBufferSize(1);
    client.connectToHost(server.serverAddress(), server.serverPort());
    QTRY_VERIFY(server.hasPendingConnections());
    QTcpSocket *const socket = server.nextPendingConnection();
    sim::TcpLink link(socket);
    QByteArray echoed;
    connect(&link, &sim::TcpLink::received, this, [&](const QByteArray &bytes) {
        echoed += bytes;
        link.send(bytes);
    });

    // More than fits between the two, so that the rest is left with the link.
    const QByteArray unread(32 * 1024 * 1024, '.');
    link.send(unread);
    QVERIFY(socket->bytesToWrite() > 0);
    QByteArray sent;
    for (int i = 0; i < 100000; ++i)
        sent += QByteArray::number(i) + '\n';
    client.write(sent);
    QTRY_VERIFY(socket->bytesAvailable() > 0);
    QVERIFY(socket->bytesAvailable() < sent.size());
    QCOMPARE(echoed, QByteArray());

    // Once it reads, everything comes through, in order.
    QByteArray answer;
    connect(&client, &QTcpSocket::readyRead, this, [&] { answer += client.readAll(); });
    client.setReadBufferSize(0);
    QTRY_COMPARE_WITH_TIMEOUT(answer.size(), unread.size() + sent.size(), 30000);
    QVERIFY(answer.mid(unread.size()) == sent);
    QVERIFY(echoed == sent);
}

MZ_TEST_GUILESS_MAIN(TestTcpLink)
#include "tst_tcplink.moc"
