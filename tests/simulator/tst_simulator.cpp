#include "simulatorprocess.h"
#include "tcplink.h"
#include "testfiles.h"
#include "testmain.h"

#include <QProcess>
#include <QSerialPort>
#include <QTcpServer>
#include <QTcpSocket>

namespace {

constexpr int patience = 10000; // ms, for what is bound to happen

const QByteArray reading("RETURN:GET -20.00dBm,-20.00dBm");

/// The next line on \a device without its newline; "(nothing)" when the other side or patience
/// ends.
QByteArray line(QIODevice &device)
{
    while (!device.canReadLine()) {
        if (!device.waitForReadyRead(patience))
            return "(nothing)";
    }
    return device.readLine().chopped(1);
}

void send(QIODevice &device, const QByteArray &bytes)
{
    device.write(bytes);
    while (device.bytesToWrite() > 0 && device.waitForBytesWritten(patience)) {
    }
}

QByteArray ask(QIODevice &device, const QByteArray &command)
{
    send(device, command + '\n');
    return line(device);
}

/// A client over TCP, connected once the simulator has taken it.
class Client : public QTcpSocket
{
public:
    Client(SimulatorProcess &simulator, quint16 port)
    {
        connectToHost(simulator.address(), port);
        waitForConnected(patience);
    }
    explicit Client(SimulatorProcess &simulator)
        : Client(simulator, simulator.port())
    {}
};

QByteArray fileWith(const QTemporaryDir &folder, const QByteArray &text)
{
    return write(folder.filePath(QStringLiteral("file")), text).toUtf8();
}

bool open(QSerialPort &port, const QString &path)
{
    port.setPortName(path);
    return port.open(QIODevice::ReadWrite) && port.setBaudRate(QSerialPort::Baud115200);
}

} // namespace

class TestSimulator : public QObject
{
    Q_OBJECT

private:
    bool start(const QByteArray &options)
    {
        return m_simulator.start(words("--noise 0 --micro-sign " + options));
    }

    SimulatorProcess m_simulator;

private slots:
    void cleanup()
    {
        const int expected = m_simulator.isRunning() ? 0 : -1;
        const int exitCode = m_simulator.stop();
#ifdef Q_OS_UNIX
        QCOMPARE(exitCode, expected);
#else
        Q_UNUSED(exitCode)
        Q_UNUSED(expected)
#endif
        QCOMPARE(m_simulator.errorText(), QString());
    }

    void talkAndTrace()
    {
        QVERIFY(start("--level -20,0"));
        QCOMPARE(m_simulator.address(), QLatin1String("127.0.0.1"));
        Client client(m_simulator);
        QCOMPARE(ask(client, "UNIT:POW W"), QByteArray("RETURN:OK"));
        QCOMPARE(ask(client, "GET? \r"), QByteArray("RETURN:GET -20.00dBm,10.00\xc2\xb5W"));
        QCOMPARE(m_simulator.commands().join(QLatin1Char('|')),
                 QLatin1String("UNIT:POW W|GET? \\r"));
        QCOMPARE(m_simulator.replies().last(),
                 QLatin1String("RETURN:GET -20.00dBm,10.00\\xc2\\xb5W\\n"));
    }

    void clientsTakeTurns()
    {
        QVERIFY(start("--calibration-time 0.2 --fault late:500,only=AVER:COUN?"));
        Client first(m_simulator);
        QCOMPARE(ask(first, "OFFS 5"), QByteArray("RETURN:OK"));
        Client impatient(m_simulator);
        send(impatient, "OFFS 9\n");
        impatient.abort();
        QTRY_COMPARE(m_simulator.notes().size(), 2);
        Client second(m_simulator);
        send(second, "OFFS?\n");
        QCOMPARE(ask(first, "REL?"), QByteArray("RETURN:REL OFF"));
        QVERIFY(!m_simulator.commands().contains(QLatin1String("OFFS?")));
        // What is under way goes with its client.
        send(first, "AVER:COUN?\nCAL\nGE");
        QVERIFY(m_simulator.waitForCommand(QLatin1String("CAL")));
        first.abort();
        QCOMPARE(line(second), QByteArray("RETURN:OFFS 5.00dB"));
        QCOMPARE(ask(second, "AVER:COUN?"), QByteArray("RETURN:AVER:COUN 1"));
        QVERIFY(!m_simulator.replies().contains(QLatin1String("RETURN:CAL:OK\\n")));
    }

    void resultsComeWhenTheyAreDone()
    {
        QVERIFY(start("--calibration-time 0.2 --fault cal-silent,only=CAL,times=1 "
                      "--fault late:400,only=OFFS?,times=1"));
        Client client(m_simulator);
        // The late answer lets the time of the silent calibration pass, and keeps its place.
        send(client, "CAL\nOFFS?\nREL?\n");
        QCOMPARE(line(client), QByteArray("RETURN:OFFS 0.00dB"));
        QCOMPARE(line(client), QByteArray("RETURN:REL OFF"));
        // A second start takes the place of the first.
        send(client, "CAL:ZERO\nCAL\nGET?\n");
        QCOMPARE(line(client), reading);
        QCOMPARE(line(client), QByteArray("RETURN:CAL:OK"));
        QCOMPARE(ask(client, "GET?"), reading);
    }

    void swallowedAndRefused()
    {
        QVERIFY(start("--fault no-reply,only=GET?,times=1 --fault refuse,only=OFFS "
                      "--fault numeric-frequency --fault no-newline,only=REL?"));
        Client client(m_simulator);
        send(client, "GET?\n");
        QCOMPARE(ask(client, "OFFS 3"), QByteArray("RETURN:ERR -221,Settings conflict"));
        QCOMPARE(ask(client, "FREQ 2GHz"), QByteArray("RETURN:ERR -104,Data type error"));
        QCOMPARE(ask(client, "FREQ 2.00"), QByteArray("RETURN:OK"));
        send(client, "REL?\n");
        QCOMPARE(ask(client, "OFFS?"), QByteArray("RETURN:REL OFFRETURN:OFFS 0.00dB"));
    }

    void drops_data()
    {
        QTest::addColumn<QByteArray>("command");
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("drop-inside,only=GET?") << QByteArray("GET?") << reading.left(15);
        QTest::newRow("drop-after,only=GET?") << QByteArray("GET?") << reading + '\n';
        QTest::newRow("drop-before,only=REL") << QByteArray("REL ON") << QByteArray();
        QTest::newRow("drop-inside,only=CAL") << QByteArray("CAL") << QByteArray("RETURN:");
    }

    void drops()
    {
        QFETCH(QByteArray, command);
        QVERIFY(start(QByteArray("--calibration-time 0 --fault ") + QTest::currentDataTag() +
                      ",times=1"));
        Client client(m_simulator);
        send(client, command + '\n');
        QVERIFY(client.state() != QAbstractSocket::ConnectedState ||
                client.waitForDisconnected(patience));
        QTEST(client.readAll(), "bytes");
        Client again(m_simulator);
        QCOMPARE(ask(again, "OFFS?"), QByteArray("RETURN:OFFS 0.00dB"));
    }

    void hostileClient()
    {
        QVERIFY(start("--seed 3"));
        Client client(m_simulator);
        send(client, QByteArray(1000000, 'x') + QByteArray("\n\0\n", 3));
        QCOMPARE(line(client), QByteArray("RETURN:ERR -113,Undefined header"));
        send(client, "\r\n\n  \nFREQ %s%n%1\n");
        QCOMPARE(line(client), QByteArray("RETURN:ERR -104,Data type error"));
        // Everything that comes at once is answered, in order.
        send(client, QByteArray("OFFS 1\nOFFS?\nOFFS 2\nOFFS?\n").repeated(1000));
        for (int i = 0; i < 2000; ++i) {
            QCOMPARE(line(client), QByteArray("RETURN:OK"));
            QCOMPARE(line(client), "RETURN:OFFS " + QByteArray::number(1 + i % 2) + ".00dB");
        }
    }

    void clientThatOnlySendsHasToWait()
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
        const QByteArray sent = QByteArray("0123456789\n").repeated(50000);
        client.write(sent);
        QTRY_VERIFY(socket->bytesAvailable() > 0);
        QCOMPARE(echoed, QByteArray());
        // Once it reads, everything comes through, in order.
        QByteArray answer;
        connect(&client, &QTcpSocket::readyRead, this, [&] { answer += client.readAll(); });
        client.setReadBufferSize(0);
        QTRY_COMPARE_WITH_TIMEOUT(answer.size(), unread.size() + sent.size(), 30000);
        QVERIFY(answer.endsWith(sent) && echoed == sent);
    }

    void antennaOnTurntable()
    {
        const QTemporaryDir folder;
        const QByteArray path = fileWith(folder, "t\nn\nAngle,Power\n0,20\n30,-3.25\n");
        QVERIFY(start("--rotator 0 --rotator-speed 3600 --pattern " + path));
        Client meter(m_simulator);
        Client rotator(m_simulator, m_simulator.rotatorPort());
        QCOMPARE(ask(meter, "GET?"), QByteArray("RETURN:GET 20.00dBm,20.00dBm"));
        QCOMPARE(ask(rotator, "P 390 0"), QByteArray("RPRT 0"));
        QByteArray azimuth;
        while (azimuth != "390.00" && azimuth != "(nothing)") {
            azimuth = ask(rotator, "p");
            line(rotator);
        }
        QCOMPARE(ask(meter, "GET?"), QByteArray("RETURN:GET -3.25dBm,-3.25dBm"));
        QVERIFY(m_simulator.notes().contains(QLatin1String("rotator P 390 0")));
    }

    void scriptAndLog()
    {
        const QTemporaryDir folders[2];
        const QByteArray log = fileWith(folders[0], R"(Debug: send cmd: "OFFS 5\n" 7(
Debug: read data: "RETURN:OK\n"(
Debug: send cmd: "REL?\n" 5(
Debug: read data: "RETU"()");
        QVERIFY(start("--script " + fileWith(folders[1], "0 overload\n") + " --replay " + log));
        Client client(m_simulator);
        QCOMPARE(ask(client, "GET?"), QByteArray("RETURN:GET OVERLOAD,OVERLOAD"));
        QCOMPARE(ask(client, "OFFS 5"), QByteArray("RETURN:OK"));
        send(client, "REL?\n");
        QCOMPARE(ask(client, "OFFS?"), QByteArray("RETURETURN:OFFS 5.00dB"));
        QVERIFY(m_simulator.notes().contains(QLatin1String("not in the log: GET?")));
    }

    void runsThatEndAtOnce()
    {
        QTcpServer other;
        QVERIFY(other.listen(QHostAddress::LocalHost));
        const QByteArray taken = "--port " + QByteArray::number(other.serverPort());
        const QList<QPair<QByteArray, const char *>> mistakes{
            {taken, "^Cannot listen on 127.0.0.1:\\d+: "},
            {"--rotator" + taken.mid(6) + " --port 0", "^Cannot listen on 127.0.0.1:\\d+: "},
            {"--pattern /nowhere/x.csv", "^Cannot read /nowhere/x.csv: "},
        };
        const auto run = [](QProcess &process, const QByteArray &arguments) {
            process.start(QStringLiteral(MZ_BIN_DIR "/mz6218-sim"), words(arguments));
            return process.waitForFinished(patience) &&
                   process.exitStatus() == QProcess::NormalExit;
        };
        for (const auto &mistake : mistakes) {
            QProcess process;
            QVERIFY(run(process, mistake.first));
            QVERIFY(process.exitCode() > 0);
            const QString told = QString::fromLocal8Bit(process.readAllStandardError());
            QVERIFY2(told.contains(QRegularExpression(QLatin1String(mistake.second))),
                     qPrintable(told));
            QCOMPARE(process.readAllStandardOutput(), QByteArray());
        }
        QProcess help;
        QVERIFY(run(help, "--help") && help.exitCode() == 0);
        const QByteArray text = help.readAllStandardOutput();
        for (const char *word : {"--calibration-time", "--replay-timing", "cal-silent", "every=N"})
            QVERIFY2(text.contains(word), word);
    }

    void serialPort()
    {
        if (!SimulatorProcess::hasSerialPort)
            QSKIP(SimulatorProcess::noSerialPort);
        QVERIFY(start("--serial --calibration-time 0.1 --fault late:200,only=AVER:COUN?"));
        Client socket(m_simulator);
        const auto closed = [this] {
            return m_simulator.notes().filter(QStringLiteral("closed")).size();
        };
        QSerialPort port;
        QVERIFY(open(port, m_simulator.serialPath()));
        QCOMPARE(ask(socket, "OFFS 20"), QByteArray("RETURN:OK"));
        QCOMPARE(ask(port, "GET?\r"), QByteArray("RETURN:GET 0.00dBm,0.00dBm"));
        // Nothing is echoed, nothing translated: control characters pass like others.
        QCOMPARE(ask(port, "\x03\x04\x11\x1a\x7f"), QByteArray("RETURN:ERR -113,Undefined header"));
        QVERIFY(m_simulator.commands().contains(QLatin1String("\\x03\\x04\\x11\\x1a\\x7f")));
        // Nothing is left for the next client.
        send(port, "OFFS?\nCAL\nAVER:COUN?\nGE");
        QVERIFY(m_simulator.waitForCommand(QLatin1String("AVER:COUN?")));
        port.close();
        QTRY_COMPARE(closed(), 1);
        QVERIFY(open(port, m_simulator.serialPath()));
        QCOMPARE(ask(port, "AVER:COUN?"), QByteArray("RETURN:AVER:COUN 1"));
        QCOMPARE(ask(port, "FREQ?"), QByteArray("RETURN:FREQ 50MHz"));
    }

    void dropTakesTheSerialPortAway()
    {
        if (!SimulatorProcess::hasSerialPort)
            QSKIP(SimulatorProcess::noSerialPort);
        QVERIFY(start("--serial --fault drop-inside,only=GET?,times=1"));
        const QString path = m_simulator.serialPath();
        QSerialPort port;
        QVERIFY(open(port, path));
        QCOMPARE(ask(port, "AVER:COUN 4"), QByteArray("RETURN:OK"));
        port.write("GET?\nAVER:COUN 8\n");
        QTRY_VERIFY(port.error() != QSerialPort::NoError);
        QCOMPARE(port.readAll(), reading.left(15));
        port.close();
        // Another port leads to the same instrument.
        QTRY_VERIFY(m_simulator.serialPath() != path);
        QVERIFY(open(port, m_simulator.serialPath()));
        QCOMPARE(ask(port, "AVER:COUN?"), QByteArray("RETURN:AVER:COUN 4"));
    }
};

MZ_GUILESS_TEST(TestSimulator)
#include "tst_simulator.moc"
