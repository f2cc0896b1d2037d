#include "sweep/rotatorclient.h"
#include "testmain.h"

#include <QSignalSpy>
#include <QTcpServer>

#include <functional>

namespace {

/// A reply that there is none, and none to the next line either.
const QByteArray swallow = "swallow";

/// A rotator's server that answers by a script, or not at all.
class ScriptedServer
{
public:
    using Script = std::function<QByteArrayList(const QByteArray &line)>; ///< pieces of the reply

    explicit ScriptedServer(Script script)
        : m_script(std::move(script))
    {
        m_server.listen(QHostAddress::LocalHost);
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] {
            ++connections;
            m_socket = m_server.nextPendingConnection();
            m_socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
            QObject::connect(m_socket, &QTcpSocket::readyRead, m_socket,
                             [this, socket = m_socket] { answer(socket); });
        });
    }

    quint16 port() const { return m_server.serverPort(); }
    void say(const QByteArray &bytes) { m_socket->write(bytes); }
    void hangUp() { m_socket->abort(); }

    QByteArrayList lines;
    int connections = 0;

private:
    void answer(QTcpSocket *socket)
    {
        while (socket->canReadLine()) {
            const QByteArray line = socket->readLine().trimmed();
            lines.append(line);
            if (socket->property("swallows").toBool()) {
                socket->setProperty("swallows", false);
                continue;
            }
            const QByteArrayList pieces = m_script(line);
            const bool swallows = pieces == QByteArrayList{swallow};
            socket->setProperty("swallows", swallows);
            if (!swallows)
                send(socket, pieces);
        }
    }

    /// Each piece once the former is out: timers of their own would change places under load.
    static void send(QTcpSocket *socket, const QByteArrayList &pieces)
    {
        if (pieces.isEmpty())
            return;
        QTimer::singleShot(1, socket, [=] {
            socket->write(pieces.first());
            send(socket, pieces.mid(1));
        });
    }

    Script m_script;
    QTcpServer m_server;
    QTcpSocket *m_socket = nullptr;
};

using Script = ScriptedServer::Script;

QByteArrayList usual(const QByteArray &line)
{
    if (line == "p")
        return {"-12.50\n3.00\n"};
    if (line == "_")
        return {"Table\n"};
    if (line == "\\dump_state")
        return {"1\n1\nmin_az=-180.000000\nmax_az=450.000000\ndone\n"};
    return {"RPRT 0\n"};
}

RotatorWaits shortWaits()
{
    return {500, 300, 300, 20, 40};
}

} // namespace

Q_DECLARE_METATYPE(Script)

class TestRotatorClient : public QObject
{
    Q_OBJECT

private slots:
    void describes_data()
    {
        QTest::addColumn<Script>("script");
        QTest::addColumn<QString>("model");
        QTest::addColumn<double>("max");  // of the limits; 0: not told
        QTest::addColumn<bool>("silent"); // somewhere
        const auto row = [](const char *name, const char *model, double max, Script script,
                            bool isSilent = false) {
            QTest::newRow(name) << script << QString::fromLatin1(model) << max << isSilent;
        };
        const auto with = [](const QByteArray &command, const QByteArrayList &reply) {
            return [=](const QByteArray &line) { return line == command ? reply : usual(line); };
        };
        row("as usual", "Table", 450, usual);
        row("in pieces", "Table", 450, [](const QByteArray &line) {
            const QByteArray reply = usual(line).join();
            QByteArrayList pieces;
            for (int i = 0; i < reply.size(); i += 4)
                pieces.append(reply.mid(i, 4));
            return pieces;
        });
        row("seven bare lines", "Table", 360,
            with("\\dump_state", {"0\n902\n0.000000\n360.000000\n0.0\n90.0\n0\n"}));
        row("state without an end", "Table", 90,
            with("\\dump_state", {"1\n1\nmin_az=0\nmax_az=90\n"}), true);
        row("state refused", "Table", 0, with("\\dump_state", {"RPRT -4\n"}));
        row("no state", "Table", 0, with("\\dump_state", {}), true);
        row("no model", "", 450, with("_", {}), true);
        row("model refused", "", 450, with("_", {"RPRT -11\n"}));
        row("model swallows a line", "", 450, with("_", {swallow}), true);
    }

    void describes()
    {
        QFETCH(Script, script);
        ScriptedServer server(script);
        RotatorClient client;
        QFETCH(bool, silent);
        if (silent)
            client.setWaits(shortWaits());
        QSignalSpy described(&client, &RotatorClient::described);
        QSignalSpy positions(&client, &RotatorClient::position);
        client.open(QStringLiteral("127.0.0.1"), server.port());
        QTRY_COMPARE(described.count(), 1);
        QCOMPARE(described.at(0).at(0).toDouble(), -12.5);
        QTEST(client.description().model, "model");
        const auto limits = client.description().limits;
        QTEST(limits ? limits->max : 0.0, "max");
        // Whatever was left unanswered must not be taken for the next reply.
        client.readPosition();
        QTRY_COMPARE(positions.count(), 1);
        QCOMPARE(positions.at(0).at(0).toInt(), 0);
        QCOMPARE(positions.at(0).at(1).toDouble(), -12.5);
    }

    void speaks()
    {
        ScriptedServer server(usual);
        RotatorClient client;
        client.setWaits(shortWaits());
        QSignalSpy up(&client, &RotatorClient::up);
        QSignalSpy moved(&client, &RotatorClient::moved);
        QSignalSpy positions(&client, &RotatorClient::position);
        client.open(QStringLiteral("127.0.0.1"), server.port());
        QVERIFY(up.wait());
        server.lines.clear();
        client.move(30.0);
        client.move(qQNaN());
        QTRY_COMPARE(moved.count(), 1);
        QCOMPARE(server.lines, QByteArrayList{"P 30.0000 3.0000"}); // the elevation as it was read
        server.say("99.00\n99.00\n");                               // a reply to nobody
        QTest::qWait(100);
        client.readPosition();
        QTRY_COMPARE(positions.count(), 1);
        QCOMPARE(positions.at(0).at(1).toDouble(), -12.5);
    }

    void stopOvertakes()
    {
        bool isSilent = false;
        ScriptedServer server([&](const QByteArray &line) {
            return isSilent && line == "P 30.0000 3.0000" ? QByteArrayList() : usual(line);
        });
        RotatorClient client;
        client.setWaits({500, 1000, 60, 20, 40});
        QSignalSpy up(&client, &RotatorClient::up);
        QSignalSpy moved(&client, &RotatorClient::moved);
        QSignalSpy stopped(&client, &RotatorClient::stopped);
        QSignalSpy positions(&client, &RotatorClient::position);
        client.open(QStringLiteral("127.0.0.1"), server.port());
        QVERIFY(up.wait());
        server.lines.clear();
        isSilent = true;
        client.move(30.0);
        client.move(40.0); // has to wait, and so never goes out
        client.stop();
        client.readPosition();
        QTRY_COMPARE(server.lines.value(1), QByteArray("S"));
        server.say("RPRT 0\n"); // of the move, late
        QTRY_COMPARE(positions.count(), 1);
        QCOMPARE(positions.at(0).at(0).toInt(), 0);
        QCOMPARE(stopped.count(), 1);
        QCOMPARE(moved.count(), 0);
    }

    void comesBack_data()
    {
        QTest::addColumn<bool>("silent"); // else the connection is cut
        QTest::newRow("cut") << false;
        QTest::newRow("silence") << true;
    }

    void comesBack()
    {
        QFETCH(bool, silent);
        bool isDumb = false;
        ScriptedServer server(
            [&](const QByteArray &line) { return isDumb ? QByteArrayList() : usual(line); });
        RotatorClient client;
        client.setWaits(shortWaits());
        QSignalSpy up(&client, &RotatorClient::up);
        QSignalSpy down(&client, &RotatorClient::down);
        QSignalSpy moved(&client, &RotatorClient::moved);
        client.open(QStringLiteral("127.0.0.1"), server.port());
        QVERIFY(up.wait());
        server.lines.clear();
        isDumb = true;
        client.move(30.0);
        QTRY_COMPARE(server.lines.size(), 1);
        if (!silent)
            server.hangUp();
        QTRY_COMPARE(down.count(), 1);
        isDumb = false;
        QTRY_COMPARE(up.count(), 2);
        if (silent)
            QVERIFY(server.lines.contains("S")); // nobody watches the table while it is silent
        moved.clear();
        client.move(30.0);
        QTRY_COMPARE(moved.count(), 1);
    }

    void stopsWhenClosed()
    {
        ScriptedServer server(usual);
        {
            RotatorClient client;
            client.setWaits(shortWaits());
            QSignalSpy up(&client, &RotatorClient::up);
            client.open(QStringLiteral("127.0.0.1"), server.port());
            QVERIFY(up.wait());
            client.move(30.0);
        }
        QTRY_COMPARE(server.lines.value(server.lines.size() - 1), QByteArray("S"));
    }
};

MZ_GUILESS_TEST(TestRotatorClient)
#include "tst_rotatorclient.moc"
