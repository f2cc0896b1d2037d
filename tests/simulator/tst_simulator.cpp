#include "simulatorprocess.h"
#include "testmain.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTcpServer>
#include <QTcpSocket>

#ifdef Q_OS_UNIX
#include <csignal>
#endif

namespace {

constexpr int patience = 10000; // ms, for what is bound to happen

/// A client that blocks, as the console does.
class Client
{
public:
    explicit Client(SimulatorProcess &simulator)
    {
        m_socket.connectToHost(simulator.address(), simulator.port());
        m_connected = m_socket.waitForConnected(patience);
    }

    bool isConnected() const { return m_connected; }

    void send(const QByteArray &bytes)
    {
        m_socket.write(bytes);
        while (m_socket.bytesToWrite() > 0 && m_socket.waitForBytesWritten(patience)) {
        }
    }

    /// The next line without its newline; "(nothing)" when the connection ended or patience did.
    QByteArray line()
    {
        while (!m_socket.canReadLine()) {
            if (!m_socket.waitForReadyRead(patience))
                return "(nothing)";
        }
        return m_socket.readLine().chopped(1);
    }

    QByteArray ask(const QByteArray &command)
    {
        send(command + '\n');
        return line();
    }

    /// Everything until the other side ends the connection; "(open)" when it does not.
    QByteArray untilDropped()
    {
        if (m_socket.state() == QAbstractSocket::ConnectedState &&
            !m_socket.waitForDisconnected(patience))
            return "(open)";
        return m_socket.readAll();
    }

    void leave() { m_socket.abort(); }

private:
    QTcpSocket m_socket;
    bool m_connected = false;
};

struct Run
{
    int exitCode;
    QString out;
    QString err;
};

/// Runs the simulator with \a arguments to its end.
Run runToEnd(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral(MZ_BIN_DIR "/mz6218-sim"), arguments);
    process.waitForFinished(patience);
    const bool ended =
        process.state() == QProcess::NotRunning && process.exitStatus() == QProcess::NormalExit;
    return {ended ? process.exitCode() : -1, QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QStringList words(const char *line)
{
    return QString::fromLatin1(line).split(QLatin1Char(' '));
}

QStringList fault(const char *text)
{
    return {QStringLiteral("--fault"), QString::fromLatin1(text)};
}

const QStringList steady = words("--noise 0");
const QStringList quick = words("--calibration-time 0");
const QByteArray reading("RETURN:GET -20.00dBm,-20.00dBm");

} // namespace

class TestSimulator : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void talkAndTrace();
    void sameSeedSameReadings();
    void clientsTakeTurns();
    void resultsComeLate();
    void resultsFail();
    void silentResults();
    void resultsStayWithTheirClient();
    void lateRepliesKeepTheirOrder();
    void pieces();
    void swallowedReply();
    void drops_data();
    void drops();
    void hostileClient();
    void manyCommandsAtOnce();
    void instrumentPort();
    void portTaken();
    void badCommandLine_data();
    void badCommandLine();
    void helpAndVersion();
    void stopSignals();

private:
    SimulatorProcess m_simulator;
};

void TestSimulator::cleanup()
{
    const bool wasRunning = m_simulator.isRunning();
    const int exitCode = m_simulator.stop();
#ifdef Q_OS_UNIX
    QCOMPARE(exitCode, wasRunning ? 0 : -1);
#else
    Q_UNUSED(wasRunning)
    Q_UNUSED(exitCode)
#endif
    QCOMPARE(m_simulator.errorText(), QString());
}

void TestSimulator::talkAndTrace()
{
    QVERIFY2(m_simulator.start(steady + words("--micro-sign")),
             qPrintable(m_simulator.errorText()));
    QCOMPARE(m_simulator.address(), QLatin1String("127.0.0.1"));
    QCOMPARE(m_simulator.serialPath(), QString());
    Client client(m_simulator);
    QCOMPARE(client.ask("FREQ 2.45GHz"), QByteArray("RETURN:OK"));
    QCOMPARE(client.ask("FREQ?"), QByteArray("RETURN:FREQ 2.45GHz"));
    QCOMPARE(client.ask("UNIT:POW W"), QByteArray("RETURN:OK"));
    QCOMPARE(client.ask("GET? \r"), QByteArray("RETURN:GET -20.00dBm,10.00\xc2\xb5W"));

    QVERIFY(m_simulator.waitForCommand(QLatin1String("GET? \\r")));
    QVERIFY(!m_simulator.waitForCommand(QLatin1String("FREQ?"), 2, 0));
    QCOMPARE(m_simulator.commands().join(QLatin1Char('|')),
             QLatin1String("FREQ 2.45GHz|FREQ?|UNIT:POW W|GET? \\r"));
    QCOMPARE(m_simulator.replies().last(),
             QLatin1String("RETURN:GET -20.00dBm,10.00\\xc2\\xb5W\\n"));
}

void TestSimulator::sameSeedSameReadings()
{
    QList<QByteArray> runs;
    for (const char *seed : {"11", "11", "12"}) {
        QVERIFY(m_simulator.start({QStringLiteral("--seed"), QString::fromLatin1(seed)}));
        Client client(m_simulator);
        QByteArray readings;
        for (int i = 0; i < 20; ++i)
            readings += client.ask("GET?");
        runs.append(readings);
    }
    QCOMPARE(runs.at(1), runs.at(0));
    QVERIFY(runs.at(2) != runs.at(0));
}

void TestSimulator::clientsTakeTurns()
{
    QVERIFY(m_simulator.start(steady));
    Client first(m_simulator);
    QCOMPARE(first.ask("OFFS 5"), QByteArray("RETURN:OK"));
    Client impatient(m_simulator);
    impatient.send("OFFS 9\n");
    impatient.leave();
    QVERIFY(QTest::qWaitFor([this] { return m_simulator.notes().size() == 2; }, patience));
    QCOMPARE(first.ask("REL?"), QByteArray("RETURN:REL OFF"));
    Client second(m_simulator);
    QVERIFY(second.isConnected());
    second.send("OFFS?\n");
    QCOMPARE(first.ask("GET?"), QByteArray("RETURN:GET -15.00dBm,-15.00dBm"));
    QVERIFY(!m_simulator.commands().contains(QLatin1String("OFFS?")));
    first.leave();
    QCOMPARE(second.line(), QByteArray("RETURN:OFFS 5.00dB"));
}

void TestSimulator::resultsComeLate()
{
    QVERIFY(m_simulator.start(steady + words("--calibration-time 0.4")));
    Client client(m_simulator);
    QElapsedTimer timer;
    timer.start();
    client.send("CAL:ZERO\nGET?\n");
    QCOMPARE(client.line(), reading);
    QCOMPARE(client.line(), QByteArray("RETURN:CAL:ZERO:OK"));
    QVERIFY(timer.elapsed() >= 350);
    // A second start takes the place of the first.
    client.send("CAL:ZERO\nCAL\n");
    QCOMPARE(client.line(), QByteArray("RETURN:CAL:OK"));
    QCOMPARE(client.ask("GET?"), reading);
}

void TestSimulator::resultsFail()
{
    QVERIFY(m_simulator.start(quick + fault("cal-fail,every=2")));
    Client client(m_simulator);
    QCOMPARE(client.ask("CAL:ZERO"), QByteArray("RETURN:CAL:ZERO:OK"));
    QCOMPARE(client.ask("CAL:ZERO"), QByteArray("RETURN:CAL:ZERO:FAIL"));
    QCOMPARE(client.ask("CAL"), QByteArray("RETURN:CAL:OK"));
    QCOMPARE(client.ask("CAL"), QByteArray("RETURN:CAL:FAIL"));
}

void TestSimulator::silentResults()
{
    QVERIFY(m_simulator.start(steady + quick + fault("cal-silent,times=1")));
    Client client(m_simulator);
    client.send("CAL\n");
    // The first answer lets the time of the calibration pass.
    QCOMPARE(client.ask("GET?"), reading);
    QCOMPARE(client.ask("GET?"), reading);
    QCOMPARE(client.ask("CAL"), QByteArray("RETURN:CAL:OK"));
}

void TestSimulator::resultsStayWithTheirClient()
{
    QVERIFY(
        m_simulator.start(steady + words("--calibration-time 0.2") + fault("late:500,only=OFFS?")));
    Client first(m_simulator);
    first.send("OFFS?\nCAL\nGE");
    QVERIFY(m_simulator.waitForCommand(QLatin1String("CAL")));
    first.leave();
    Client second(m_simulator);
    QCOMPARE(second.ask("GET?"), reading);
    QCOMPARE(second.ask("OFFS?"), QByteArray("RETURN:OFFS 0.00dB"));
    QVERIFY(!m_simulator.replies().contains(QLatin1String("RETURN:CAL:OK\\n")));
}

void TestSimulator::lateRepliesKeepTheirOrder()
{
    QVERIFY(m_simulator.start(steady + fault("late:300,only=GET?")));
    Client client(m_simulator);
    QElapsedTimer timer;
    timer.start();
    client.send("GET?\nOFFS?\nGET?\n");
    QCOMPARE(client.line(), reading);
    QVERIFY(timer.elapsed() >= 300);
    QCOMPARE(client.line(), QByteArray("RETURN:OFFS 0.00dB"));
    QCOMPARE(client.line(), reading);
    QVERIFY(timer.elapsed() >= 600);
}

void TestSimulator::pieces()
{
    QVERIFY(m_simulator.start(steady + words("--micro-sign") + fault("pieces:5,only=GET?") +
                              fault("two-lines,only=AVER:COUN?") + fault("garbage:3,only=OFFS?")));
    Client client(m_simulator);
    QCOMPARE(client.ask("UNIT:POW W"), QByteArray("RETURN:OK"));
    QCOMPARE(client.ask("GET?"), QByteArray("RETURN:GET -20.00dBm,10.00\xc2\xb5W"));
    const QStringList sent = m_simulator.replies().mid(1);
    QVERIFY(sent.size() >= 2);
    QCOMPARE(sent.join(QString()), QLatin1String("RETURN:GET -20.00dBm,10.00\\xc2\\xb5W\\n"));
    QVERIFY(!sent.filter(QRegularExpression(QStringLiteral("\\\\xc2$"))).isEmpty());

    QCOMPARE(client.ask("AVER:COUN?"), QByteArray("RETURN:AVER:COUN 1"));
    QCOMPARE(client.line(), QByteArray("RETURN:AVER:COUN 1"));
    QCOMPARE(m_simulator.replies().last(),
             QLatin1String("RETURN:AVER:COUN 1\\nRETURN:AVER:COUN 1\\n"));
    const QByteArray garbled = client.ask("OFFS?");
    QCOMPARE(garbled.size(), 21);
    QVERIFY(garbled.contains('\0'));
}

void TestSimulator::swallowedReply()
{
    QVERIFY(m_simulator.start(steady + fault("no-reply,only=GET?,times=1") +
                              fault("refuse,only=OFFS") + fault("numeric-frequency") +
                              fault("no-newline,only=REL?")));
    Client client(m_simulator);
    client.send("GET?\n");
    QCOMPARE(client.ask("OFFS 3"), QByteArray("RETURN:ERR -221,Settings conflict"));
    QCOMPARE(client.ask("FREQ 2GHz"), QByteArray("RETURN:ERR -104,Data type error"));
    QCOMPARE(client.ask("FREQ 2.00"), QByteArray("RETURN:OK"));
    QCOMPARE(client.ask("GET?"), reading);
    QCOMPARE(m_simulator.commands().count(QLatin1String("GET?")), 2);
    client.send("REL?\n");
    QCOMPARE(client.ask("OFFS?"), QByteArray("RETURN:REL OFFRETURN:OFFS 0.00dB"));
}

void TestSimulator::drops_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("before a reading") << "drop-before" << QByteArray("GET?") << QByteArray();
    QTest::newRow("inside a reading") << "drop-inside" << QByteArray("GET?") << reading.left(15);
    QTest::newRow("after a reading") << "drop-after" << QByteArray("GET?") << reading + '\n';
    QTest::newRow("before a setting's reply")
        << "drop-before" << QByteArray("REL ON") << QByteArray();
    QTest::newRow("inside a calibration's result")
        << "drop-inside" << QByteArray("CAL") << QByteArray("RETURN:");
}

void TestSimulator::drops()
{
    QFETCH(QString, kind);
    QFETCH(QByteArray, command);
    const QString text = kind + QStringLiteral(",times=1,only=") +
                         QString::fromLatin1(command).section(QLatin1Char(' '), 0, 0);
    QVERIFY(m_simulator.start(steady + quick + QStringList{QStringLiteral("--fault"), text}));
    Client client(m_simulator);
    QCOMPARE(client.ask("*IDN?").left(11), QByteArray("RETURN:IDN "));
    client.send(command + '\n');
    QTEST(client.untilDropped(), "bytes");
    Client again(m_simulator);
    QCOMPARE(again.ask("OFFS?"), QByteArray("RETURN:OFFS 0.00dB"));
}

void TestSimulator::hostileClient()
{
    QVERIFY(m_simulator.start(steady));
    Client client(m_simulator);
    client.send(QByteArray(1000000, 'x'));
    client.send(QByteArray("\n\0\n", 3));
    QCOMPARE(client.line(), QByteArray("RETURN:ERR -113,Undefined header"));
    client.send("\r\n\n  \nFREQ %s%n%1\n");
    QCOMPARE(client.line(), QByteArray("RETURN:ERR -104,Data type error"));
    QCOMPARE(client.ask("GET?"), reading);
}

void TestSimulator::manyCommandsAtOnce()
{
    QVERIFY(m_simulator.start(steady));
    Client client(m_simulator);
    constexpr int count = 5000;
    QByteArray commands;
    for (int i = 0; i < count; ++i)
        commands += "OFFS " + QByteArray::number(i % 100) + "\nOFFS?\n";
    client.send(commands);
    for (int i = 0; i < count; ++i) {
        QCOMPARE(client.line(), QByteArray("RETURN:OK"));
        QCOMPARE(client.line(), "RETURN:OFFS " + QByteArray::number(i % 100) + ".00dB");
    }
    QCOMPARE(m_simulator.commands().size(), 2 * count);
}

void TestSimulator::instrumentPort()
{
    QVERIFY2(m_simulator.startOnInstrumentPort(steady), qPrintable(m_simulator.errorText()));
    QCOMPARE(m_simulator.port(), quint16(5001));
    Client client(m_simulator);
    QCOMPARE(client.ask("GET?"), reading);
}

void TestSimulator::portTaken()
{
    QTcpServer other;
    QVERIFY(other.listen(QHostAddress::LocalHost));
    const QString port = QString::number(other.serverPort());
    const Run run = runToEnd({QStringLiteral("--port"), port});
    QVERIFY(run.exitCode > 0);
    QVERIFY2(run.err.startsWith(QStringLiteral("Cannot listen on 127.0.0.1:%1: ").arg(port)),
             qPrintable(run.err));
    QCOMPARE(run.out, QString());
}

void TestSimulator::badCommandLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");
    QTest::newRow("unknown option") << words("--nonsense") << "nonsense";
    QTest::newRow("bad number") << words("--level loud") << "loud";
    QTest::newRow("bad fault") << fault("explode") << "explode";
    QTest::newRow("first of two mistakes") << words("--port=x --noise=y") << "--port";
}

void TestSimulator::badCommandLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    const Run run = runToEnd(arguments);
    QVERIFY(run.exitCode > 0);
    QCOMPARE(run.out, QString());
    QVERIFY2(run.err.section(QLatin1Char('\n'), 0, 0).contains(message), qPrintable(run.err));
    QVERIFY(run.err.contains(QLatin1String("Usage: ")));
}

void TestSimulator::helpAndVersion()
{
    const Run help = runToEnd(words("--help"));
    QCOMPARE(help.exitCode, 0);
    for (const char *word : {"--listen", "--calibration-time", "no-reply", "cal-silent",
                             "numeric-frequency", "every=N"})
        QVERIFY2(help.out.contains(QLatin1String(word)), word);
    const Run version = runToEnd(words("--version"));
    QCOMPARE(version.exitCode, 0);
    QCOMPARE(version.out, QStringLiteral("mz6218-sim " MZ_VERSION "\n"));
}

void TestSimulator::stopSignals()
{
#ifdef Q_OS_UNIX
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        QProcess process;
        process.start(QStringLiteral(MZ_BIN_DIR "/mz6218-sim"), words("--port 0 --serial"));
        QByteArray out;
        while (!out.contains("Listening") && process.waitForReadyRead(patience))
            out += process.readAllStandardOutput();
        QCOMPARE(::kill(static_cast<pid_t>(process.processId()), signal), 0);
        QVERIFY(process.waitForFinished(patience));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 0);
        QCOMPARE(process.readAllStandardError(), QByteArray());
    }
#else
    QSKIP("there are no such signals on this system");
#endif
}

MZ_TEST_GUILESS_MAIN(TestSimulator)
#include "tst_simulator.moc"
