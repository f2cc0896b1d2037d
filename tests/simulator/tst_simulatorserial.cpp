#include "simulatortalk.h"
#include "testmain.h"

#include <QSerialPort>

namespace {

bool open(QSerialPort &port, const QString &path)
{
    port.setPortName(path);
    return port.open(QIODevice::ReadWrite) && port.setBaudRate(QSerialPort::Baud115200);
}

} // namespace

class TestSimulatorSerial : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_port = std::make_unique<QSerialPort>(); }
    void cleanup();
    void talk();
    void nothingIsLeftForTheNextClient();
    void sharesTheInstrumentWithTcp();
    void dropTakesThePortAway_data();
    void dropTakesThePortAway();

private:
    bool start(const QStringList &options = {})
    {
        return m_simulator.start(options + words("--serial --noise 0 --micro-sign"));
    }

    int closedClients() { return m_simulator.notes().filter(QStringLiteral("closed")).size(); }

    std::unique_ptr<QSerialPort> m_port;
    SimulatorProcess m_simulator;
};

void TestSimulatorSerial::cleanup()
{
    m_port.reset();
    QCOMPARE(m_simulator.stop(), 0);
    QCOMPARE(m_simulator.errorText(), QString());
}

void TestSimulatorSerial::talk()
{
    QVERIFY(start());
    QVERIFY(open(*m_port, m_simulator.serialPath()));
    QCOMPARE(ask(*m_port, "GET?"), reading);
    QCOMPARE(ask(*m_port, "UNIT:POW W"), QByteArray("RETURN:OK"));
    QCOMPARE(ask(*m_port, "GET?\r"), QByteArray("RETURN:GET -20.00dBm,10.00\xc2\xb5W"));
    // Nothing is echoed, nothing translated: control characters pass like others.
    QCOMPARE(ask(*m_port, "\x03\x04\x11\x1a\x7f"), QByteArray("RETURN:ERR -113,Undefined header"));
    QCOMPARE(m_simulator.commands().join(QLatin1Char('|')),
             QLatin1String("GET?|UNIT:POW W|GET?\\r|\\x03\\x04\\x11\\x1a\\x7f"));
}

void TestSimulatorSerial::nothingIsLeftForTheNextClient()
{
    QVERIFY(start(words("--calibration-time 0.1 --fault late:200,only=REL?")));
    for (int i = 1; i <= 2; ++i) {
        QSerialPort first;
        QVERIFY(open(first, m_simulator.serialPath()));
        QCOMPARE(ask(first, "GET?"), reading);
        send(first, "OFFS?\nCAL\nREL?\nGE");
        QVERIFY(m_simulator.waitForCommand(QLatin1String("REL?"), 2 * i - 1));
        first.close();
        QVERIFY(QTest::qWaitFor([&] { return closedClients() == 2 * i - 1; }, patience));

        QSerialPort second;
        QVERIFY(open(second, m_simulator.serialPath()));
        // Later than the calibration would have ended.
        QCOMPARE(ask(second, "REL?"), QByteArray("RETURN:REL OFF"));
        QCOMPARE(ask(second, "FREQ?"), QByteArray("RETURN:FREQ 50MHz"));
        second.close();
        QVERIFY(QTest::qWaitFor([&] { return closedClients() == 2 * i; }, patience));
    }
}

void TestSimulatorSerial::sharesTheInstrumentWithTcp()
{
    QVERIFY(start(words("--calibration-time 0.1")));
    QVERIFY(open(*m_port, m_simulator.serialPath()));
    Client socket(m_simulator);
    QCOMPARE(ask(socket, "OFFS 20"), QByteArray("RETURN:OK"));
    send(*m_port, "CAL\n");
    QCOMPARE(ask(socket, "GET?"), QByteArray("RETURN:GET 0.00dBm,0.00dBm"));
    QCOMPARE(line(*m_port), QByteArray("RETURN:CAL:OK"));
    QCOMPARE(ask(*m_port, "OFFS?"), QByteArray("RETURN:OFFS 20.00dB"));
}

void TestSimulatorSerial::dropTakesThePortAway_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("inside") << "drop-inside" << reading.left(15);
    QTest::newRow("after") << "drop-after" << reading + '\n';
}

void TestSimulatorSerial::dropTakesThePortAway()
{
    QFETCH(QString, kind);
    QVERIFY(start({QStringLiteral("--fault"), kind + QStringLiteral(",only=GET?,times=1")}));
    const QString path = m_simulator.serialPath();
    QVERIFY(open(*m_port, path));
    QCOMPARE(ask(*m_port, "AVER:COUN 4"), QByteArray("RETURN:OK"));
    m_port->write("GET?\nAVER:COUN 8\n");
    QVERIFY(QTest::qWaitFor([&] { return m_port->error() != QSerialPort::NoError; }, patience));
    QTEST(m_port->readAll(), "bytes");
    m_port->close();

    // Another port leads to the same instrument.
    QVERIFY(QTest::qWaitFor([&] { return m_simulator.serialPath() != path; }, patience));
    QVERIFY(open(*m_port, m_simulator.serialPath()));
    QCOMPARE(ask(*m_port, "AVER:COUN?"), QByteArray("RETURN:AVER:COUN 4"));
}

MZ_TEST_GUILESS_MAIN(TestSimulatorSerial)
#include "tst_simulatorserial.moc"
