#include "simulatortalk.h"
#include "testmain.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTcpServer>

#ifdef Q_OS_UNIX
#include <csignal>
#endif

namespace {

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

const QStringList steady = words("--noise 0");
const QStringList quick = words("--calibration-time 0");

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
    void silentResults();
    void resultsStayWithTheirClient();
    void lateRepliesKeepTheirOrder();
    void swallowedReply();
    void drops_data();
    void drops();
    void hostileClient();
    void manyCommandsAtOnce();
    void portTaken();
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
#endif
    Q_UNUSED(wasRunning)
    Q_UNUSED(exitCode)
    QCOMPARE(m_simulator.errorText(), QString());
}

void TestSimulator::talkAndTrace()
{
    QVERIFY(m_simulator.start(steady + words("--micro-sign")));
    QCOMPARE(m_simulator.address(), QLatin1String("127.0.0.1"));
    QCOMPARE(m_simulator.serialPath(), QString());
    Client client(m_simulator);
    QCOMPARE(ask(client, "FREQ 2.45GHz"), QByteArray("RETURN:OK"));
    QCOMPARE(ask(client, "FREQ?"), QByteArray("RETURN:FREQ 2.45GHz"));
    QCOMPARE(ask(client, "UNIT:POW W"), QByteArray("RETURN:OK"));
    QCOMPARE(ask(client, "GET? \r"), QByteArray("RETURN:GET -20.00dBm,10.00\xc2\xb5W"));

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
        QVERIFY(m_simulator.start(words("--seed") + words(seed)));
        Client client(m_simulator);
        QByteArray readings;
        for (int i = 0; i < 20; ++i)
            readings += ask(client, "GET?");
        runs.append(readings);
    }
    QCOMPARE(runs.at(1), runs.at(0));
    QVERIFY(runs.at(2) != runs.at(0));
}

void TestSimulator::clientsTakeTurns()
{
    QVERIFY(m_simulator.start(steady));
    Client first(m_simulator);
    QCOMPARE(ask(first, "OFFS 5"), QByteArray("RETURN:OK"));
    Client impatient(m_simulator);
    send(impatient, "OFFS 9\n");
    impatient.abort();
    QVERIFY(QTest::qWaitFor([this] { return m_simulator.notes().size() == 2; }, patience));
    QCOMPARE(ask(first, "REL?"), QByteArray("RETURN:REL OFF"));
    Client second(m_simulator);
    QCOMPARE(second.state(), QAbstractSocket::ConnectedState);
    send(second, "OFFS?\n");
    QCOMPARE(ask(first, "GET?"), QByteArray("RETURN:GET -15.00dBm,-15.00dBm"));
    QVERIFY(!m_simulator.commands().contains(QLatin1String("OFFS?")));
    first.abort();
    QCOMPARE(line(second), QByteArray("RETURN:OFFS 5.00dB"));
}

void TestSimulator::resultsComeLate()
{
    QVERIFY(m_simulator.start(steady + words("--calibration-time 0.4")));
    Client client(m_simulator);
    QElapsedTimer timer;
    timer.start();
    send(client, "CAL:ZERO\nGET?\n");
    QCOMPARE(line(client), reading);
    QCOMPARE(line(client), QByteArray("RETURN:CAL:ZERO:OK"));
    QVERIFY(timer.elapsed() >= 350);
    // A second start takes the place of the first.
    send(client, "CAL:ZERO\nCAL\n");
    QCOMPARE(line(client), QByteArray("RETURN:CAL:OK"));
    QCOMPARE(ask(client, "GET?"), reading);
}

void TestSimulator::silentResults()
{
    QVERIFY(m_simulator.start(steady + quick +
                              words("--fault cal-silent,times=1 --fault late:50,only=OFFS?")));
    Client client(m_simulator);
    // The late answer lets the time of the calibration pass.
    send(client, "CAL\n");
    QCOMPARE(ask(client, "OFFS?"), QByteArray("RETURN:OFFS 0.00dB"));
    QCOMPARE(ask(client, "GET?"), reading);
    QCOMPARE(ask(client, "CAL"), QByteArray("RETURN:CAL:OK"));
}

void TestSimulator::resultsStayWithTheirClient()
{
    QVERIFY(
        m_simulator.start(steady + words("--calibration-time 0.2 --fault late:500,only=OFFS?")));
    Client first(m_simulator);
    send(first, "OFFS?\nCAL\nGE");
    QVERIFY(m_simulator.waitForCommand(QLatin1String("CAL")));
    first.abort();
    Client second(m_simulator);
    QCOMPARE(ask(second, "GET?"), reading);
    QCOMPARE(ask(second, "OFFS?"), QByteArray("RETURN:OFFS 0.00dB"));
    QVERIFY(!m_simulator.replies().contains(QLatin1String("RETURN:CAL:OK\\n")));
}

void TestSimulator::lateRepliesKeepTheirOrder()
{
    QVERIFY(m_simulator.start(steady + words("--fault late:300,only=GET?")));
    Client client(m_simulator);
    QElapsedTimer timer;
    timer.start();
    send(client, "GET?\nOFFS?\nGET?\n");
    QCOMPARE(line(client), reading);
    QVERIFY(timer.elapsed() >= 300);
    QCOMPARE(line(client), QByteArray("RETURN:OFFS 0.00dB"));
    QCOMPARE(line(client), reading);
    QVERIFY(timer.elapsed() >= 600);
}

void TestSimulator::swallowedReply()
{
    QVERIFY(m_simulator.start(steady +
                              words("--fault no-reply,only=GET?,times=1 --fault refuse,only=OFFS "
                                    "--fault numeric-frequency --fault no-newline,only=REL?")));
    Client client(m_simulator);
    send(client, "GET?\n");
    QCOMPARE(ask(client, "OFFS 3"), QByteArray("RETURN:ERR -221,Settings conflict"));
    QCOMPARE(ask(client, "FREQ 2GHz"), QByteArray("RETURN:ERR -104,Data type error"));
    QCOMPARE(ask(client, "FREQ 2.00"), QByteArray("RETURN:OK"));
    QCOMPARE(ask(client, "GET?"), reading);
    QCOMPARE(m_simulator.commands().count(QLatin1String("GET?")), 2);
    send(client, "REL?\n");
    QCOMPARE(ask(client, "OFFS?"), QByteArray("RETURN:REL OFFRETURN:OFFS 0.00dB"));
}

void TestSimulator::drops_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char *fault, const char *command, const QByteArray &bytes) {
        QTest::newRow(fault) << fault << QByteArray(command) << bytes;
    };
    row("drop-inside,only=GET?", "GET?", reading.left(15));
    row("drop-after,only=GET?", "GET?", reading + '\n');
    row("drop-before,only=REL", "REL ON", "");
    row("drop-inside,only=CAL", "CAL", "RETURN:");
}

void TestSimulator::drops()
{
    QFETCH(QString, fault);
    QFETCH(QByteArray, command);
    QVERIFY(m_simulator.start(steady + quick + words("--fault") +
                              QStringList(fault + QStringLiteral(",times=1"))));
    Client client(m_simulator);
    QCOMPARE(ask(client, "*IDN?").left(11), QByteArray("RETURN:IDN "));
    send(client, command + '\n');
    QVERIFY(client.state() != QAbstractSocket::ConnectedState ||
            client.waitForDisconnected(patience));
    QTEST(client.readAll(), "bytes");
    Client again(m_simulator);
    QCOMPARE(ask(again, "OFFS?"), QByteArray("RETURN:OFFS 0.00dB"));
}

void TestSimulator::hostileClient()
{
    QVERIFY(m_simulator.start(steady));
    Client client(m_simulator);
    send(client, QByteArray(1000000, 'x'));
    send(client, QByteArray("\n\0\n", 3));
    QCOMPARE(line(client), QByteArray("RETURN:ERR -113,Undefined header"));
    send(client, "\r\n\n  \nFREQ %s%n%1\n");
    QCOMPARE(line(client), QByteArray("RETURN:ERR -104,Data type error"));
    QCOMPARE(ask(client, "GET?"), reading);
}

void TestSimulator::manyCommandsAtOnce()
{
    QVERIFY(m_simulator.start(steady));
    Client client(m_simulator);
    constexpr int count = 5000;
    QByteArray commands;
    for (int i = 0; i < count; ++i)
        commands += "OFFS " + QByteArray::number(i % 100) + "\nOFFS?\n";
    send(client, commands);
    for (int i = 0; i < count; ++i) {
        QCOMPARE(line(client), QByteArray("RETURN:OK"));
        QCOMPARE(line(client), "RETURN:OFFS " + QByteArray::number(i % 100) + ".00dB");
    }
    QCOMPARE(m_simulator.commands().size(), 2 * count);
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

void TestSimulator::badCommandLine()
{
    const Run run = runToEnd(words("--port=x --noise=y"));
    QVERIFY(run.exitCode > 0);
    QCOMPARE(run.out, QString());
    // The first of two mistakes, and the usage behind it.
    const QRegularExpression told(QStringLiteral("^[^\n]*--port[^\n]*\n(.*\n)*Usage: "));
    QVERIFY2(told.match(run.err).hasMatch(), qPrintable(run.err));
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
