#include "linkbench.h"
#include "testmain.h"

#include <QLoggingCategory>
#include <QSerialPort>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

namespace {

const QString localHost = QStringLiteral("127.0.0.1");

/// A TCP port of this machine where nobody listens.
quint16 closedTcpPort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

} // namespace

/// What is peculiar to one transport, and the change from one to the other.
class TestLinkTransport : public QObject
{
    Q_OBJECT

private slots:
    void failedOpen_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("error");
        QTest::addColumn<int>("attempts");
        QTest::newRow("name like a placeholder") << serial << "%1"
                                                 << "Failed to open %1" << 0;
        QTest::newRow("nobody listens") << tcp << localHost << "Failed to connect 127.0.0.1" << 2;
    }
    void failedOpen()
    {
        QFETCH(int, mode);
        QFETCH(QString, name);
        QFETCH(QString, error);
        RecordedLink bench(mode);
        int attempts = 0;
        connect(bench.link.findChild<QTcpSocket *>(), &QTcpSocket::stateChanged, &bench.link,
                [&](QAbstractSocket::SocketState state) {
                    attempts += state == QAbstractSocket::ConnectingState ? 1 : 0;
                });
        QVERIFY(!bench.link.openPort(name, closedTcpPort()));
        QTEST(attempts, "attempts");
        bench.link.readMesureData();
        QCOMPARE(bench.errors, QStringList({error, bench.notOpen}));
        QCOMPARE(bench.told(), QString());
    }

    void secondAttemptToConnect()
    {
        const quint16 port = closedTcpPort();
        RecordedLink bench(tcp);
        QTcpServer late;
        connect(bench.link.findChild<QTcpSocket *>(), &QTcpSocket::errorOccurred, &late,
                [&] { late.listen(QHostAddress::LocalHost, port); });
        QVERIFY(bench.link.openPort(localHost, port));
        QVERIFY(bench.isUp());
        QCOMPARE(bench.errors, QStringList());
    }

    void pendingCloseSparesTheNewLink_data()
    {
        QTest::addColumn<int>("oldMode");
        QTest::addColumn<int>("newMode");
        QTest::newRow("TCP again") << tcp << tcp;
        QTest::newRow("from TCP to serial") << tcp << serial;
    }
    void pendingCloseSparesTheNewLink()
    {
        QFETCH(int, oldMode);
        QFETCH(int, newMode);
        LinkBench bench(oldMode);
        bench.waits.closing = 50;
        bench.link.setWaits(bench.waits);
        QVERIFY(bench.open());
        bench.link.closePort();

        FakeInstrument other(newMode, {says("RETURN:REL ON")});
        bench.link.setLinkMode(newMode);
        QVERIFY(bench.link.openPort(other.name(), other.value()));
        if (newMode != oldMode)
            QVERIFY(!bench.isUp());

        // A timer of the same length that starts later rings later.
        QTimer later;
        QSignalSpy rang(&later, &QTimer::timeout);
        later.start(bench.waits.closing);
        QVERIFY(rang.wait());
        bench.link.queryMeasureState();
        QCOMPARE(bench.told(), text("state 'ON'"));
        QCOMPARE(bench.errors, QStringList());
    }

    void serialSettings()
    {
        LinkBench bench(serial);
        QVERIFY(bench.link.openPort(bench.instrument.name(), 19200));
        const auto *port = bench.link.findChild<QSerialPort *>();
        QCOMPARE(port->baudRate(QSerialPort::Input), 19200);
        QCOMPARE(port->baudRate(QSerialPort::Output), 19200);
        QCOMPARE(port->stopBits(), QSerialPort::OneStop);
        QCOMPARE(port->flowControl(), QSerialPort::NoFlowControl);
    }

    /// A pseudo terminal forgets what was not read when it goes; a connection does not.
    void replyBeforeTheEndIsRead()
    {
        LinkBench bench(tcp, {Answer{{"RETURN:REL ON\n"}, true}});
        QVERIFY(bench.open());
        bench.link.queryMeasureState();
        QCOMPARE(bench.told(), text("state 'ON'"));
    }

    void taskResultNeverComesBeforeTheCallReturns()
    {
        LinkBench bench(tcp, {says("RETURN:CAL:ZERO:OK")});
        QVERIFY(bench.open());
        QIODevice *const device = bench.device();
        // The result arrives while the link still waits for the confirmation of its write.
        connect(device, &QIODevice::bytesWritten, &bench.link,
                [device] { QVERIFY(device->waitForReadyRead(30000)); });
        bench.link.setZero();
        QCOMPARE(bench.told(), QString());
        QVERIFY(bench.link.awaitsResult());

        // A receiver sees the task as under way until its slot has returned.
        bool awaitedInSlot = false;
        connect(&bench.link, &SerialLogic::updateSetZeroSuccess, &bench.link,
                [&] { awaitedInSlot = bench.link.awaitsResult(); });
        QTRY_COMPARE(bench.told(), text("zeroed"));
        QVERIFY(awaitedInSlot);
        QVERIFY(!bench.link.awaitsResult());
    }

    void unconfirmedWrites()
    {
        const DeafHost host;
        RecordedLink bench(tcp);
        bench.waits.tcpWriting = 20;
        bench.link.setWaits(bench.waits);
        QVERIFY(bench.link.openPort(localHost, host.port()));
        auto *socket = bench.link.findChild<QTcpSocket *>();
        socket->setSocketOption(QAbstractSocket::SendBufferSizeSocketOption, 4096);

        // Until all room on the way is taken, and the process has just counted its fourth failure.
        const QByteArray command(16 * 1024, 'x');
        bool silent = false;
        QLoggingCategory::setFilterRules(text("default.debug=false"));
        for (int calls = 0; calls < 1000 && !silent; ++calls) {
            bench.errors.clear();
            silent = !bench.link.sendCmd(command) && bench.errors.isEmpty();
        }
        QLoggingCategory::setFilterRules(QString());
        QVERIFY(silent);

        for (int round = 0; round < 2; ++round) {
            bench.errors.clear();
            QVERIFY(!bench.link.sendCmd("GET?\n"));
            QCOMPARE(bench.errors, QStringList{bench.notOpen});
            const qint64 waiting = socket->bytesToWrite();
            QVERIFY(!bench.link.sendCmd("GET?\n"));
            QCOMPARE(bench.errors, QStringList{bench.notOpen});
            QCOMPARE(socket->bytesToWrite(), waiting + 5);
        }
    }

    void busyIsToldOfFeltWaits()
    {
        LinkBench bench(tcp, {says("RETURN:REL ON"), Answer{{"", "RETURN:REL OFF\n"}}});
        QVERIFY(bench.open());
        QList<bool> busy;
        connect(&bench.link, &SerialLogic::busy, &bench.link, [&busy](bool is) { busy << is; });
        // The second answer comes when the wait for it has become one that can be felt.
        connect(bench.link.findChild<QTcpSocket *>(), &QTcpSocket::errorOccurred, &bench.link,
                [&] { bench.instrument.sendNextPiece(); });
        bench.link.queryMeasureState();
        QCOMPARE(busy, QList<bool>());
        bench.link.queryMeasureState();
        QCOMPARE(bench.told(), text("state 'ON', state 'OFF'"));
        QCOMPARE(busy, (QList<bool>{true, false}));
    }
};

MZ_GUILESS_TEST(TestLinkTransport)

#include "tst_linktransport.moc"
