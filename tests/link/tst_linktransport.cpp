#include "linkbench.h"
#include "testmain.h"

#include <QGuiApplication>
#include <QLoggingCategory>
#include <QSerialPort>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QtTest>

#include <functional>

namespace {

using Action = std::function<void(SerialLogic &)>;

constexpr int serial = 0;
constexpr int tcp = 1;

const QString connectFirst = QStringLiteral("Please connect first.");
const QString openFirst = QStringLiteral("Please open the serial port first.");

/// Collects what is logged for as long as it lives, as "level|text".
class LoggedLines
{
public:
    LoggedLines()
        : m_previous(qInstallMessageHandler(&LoggedLines::take))
    {
        s_lines.clear();
    }
    ~LoggedLines() { qInstallMessageHandler(m_previous); }
    Q_DISABLE_COPY_MOVE(LoggedLines)

    QStringList lines() const { return s_lines; }

private:
    static void take(QtMsgType type, const QMessageLogContext &, const QString &message)
    {
        const char *level = type == QtDebugMsg ? "debug" : type == QtInfoMsg ? "info" : "other";
        s_lines.append(QString::fromLatin1(level) + QLatin1Char('|') + message);
    }

    inline static QStringList s_lines;
    QtMessageHandler m_previous;
};

/// A TCP port of this machine where nobody listens.
quint16 closedTcpPort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

} // namespace

Q_DECLARE_METATYPE(Action)
Q_DECLARE_METATYPE(Answer)

/// Opening, closing and losing the line, and how bytes travel over it.
class TestLinkTransport : public QObject
{
    Q_OBJECT

private slots:
    void failedOpen_data();
    void failedOpen();
    void secondAttemptToConnect();
    void unknownModeDoesNothing();
    void closeIsDeferred_data();
    void closeIsDeferred();
    void pendingCloseSparesTheNewLink_data();
    void pendingCloseSparesTheNewLink();
    void openWhileOpenMovesToTheNewInstrument_data();
    void openWhileOpenMovesToTheNewInstrument();
    void serialSettings();

    void lostLine_data();
    void lostLine();
    void lineLostUnnoticed_data();
    void lineLostUnnoticed();
    void unconfirmedWrites();
    void logAndDisplay_data();
    void logAndDisplay();
    void busyPointer();
};

void TestLinkTransport::failedOpen_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("error");
    QTest::addColumn<int>("attempts");

    newRow(serial, "no such port")
        << text("no-such-port") << 9600 << text("Failed to open no-such-port") << 0;
    newRow(serial, "name that looks like a placeholder")
        << text("%1") << 9600 << text("Failed to open %1") << 0;
    newRow(tcp, "nobody listens") << text("127.0.0.1") << int(closedTcpPort())
                                  << text("Failed to connect 127.0.0.1") << 2;
}

void TestLinkTransport::failedOpen()
{
    QFETCH(int, mode);
    QFETCH(QString, name);
    QFETCH(int, value);
    QFETCH(QString, error);
    LinkBench bench(mode);
    int attempts = 0;
    connect(bench.link.findChild<QTcpSocket *>(), &QTcpSocket::stateChanged, &bench.link,
            [&](QAbstractSocket::SocketState state) {
                attempts += state == QAbstractSocket::ConnectingState ? 1 : 0;
            });
    QVERIFY(!bench.link.openPort(name, value));
    QCOMPARE(bench.errors, QStringList{error});
    QTEST(attempts, "attempts");

    bench.link.readMesureData();
    QCOMPARE(bench.errors.size(), 2);
    QCOMPARE(bench.errors.last(), mode == serial ? openFirst : connectFirst);
    QCOMPARE(bench.values, QStringList());
}

void TestLinkTransport::secondAttemptToConnect()
{
    const quint16 port = closedTcpPort();
    LinkBench bench(tcp);
    QTcpServer late;
    connect(bench.link.findChild<QTcpSocket *>(), &QTcpSocket::errorOccurred, &late,
            [&] { late.listen(QHostAddress::LocalHost, port); });
    QVERIFY(bench.link.openPort(text("127.0.0.1"), port));
    QVERIFY(bench.isUp());
    QCOMPARE(bench.errors, QStringList());
}

void TestLinkTransport::unknownModeDoesNothing()
{
    LinkBench bench(2);
    QVERIFY(bench.link.openPort(text("127.0.0.1"), 1));
    QVERIFY(!bench.link.sendCmd("GET?\n"));
    bench.link.readMesureData();
    bench.link.setZero();
    QVERIFY(!bench.link.awaitsResult());
    QCOMPARE(bench.errors, QStringList());
    QCOMPARE(bench.values, QStringList());
}

void TestLinkTransport::closeIsDeferred_data()
{
    QTest::addColumn<int>("mode");
    newRow(serial);
    newRow(tcp);
}

void TestLinkTransport::closeIsDeferred()
{
    QFETCH(int, mode);
    LinkBench bench(mode, {says("RETURN:REL ON")});
    QVERIFY(bench.open());
    bench.link.closePort();
    QCOMPARE(bench.displayed.last(), text("Close serial port"));
    bench.link.queryMeasureState();
    QCOMPARE(bench.values, QStringList{text("state 'ON'")});
    QVERIFY(bench.isUp());
    QTRY_VERIFY(!bench.isUp());

    QVERIFY(!bench.link.sendCmd("GET?\n"));
    QCOMPARE(bench.errors, QStringList{mode == serial ? openFirst : connectFirst});
}

void TestLinkTransport::pendingCloseSparesTheNewLink_data()
{
    QTest::addColumn<int>("oldMode");
    QTest::addColumn<int>("newMode");
    QTest::newRow("serial again") << serial << serial;
    QTest::newRow("TCP again") << tcp << tcp;
    QTest::newRow("from serial to TCP") << serial << tcp;
    QTest::newRow("from TCP to serial") << tcp << serial;
}

void TestLinkTransport::pendingCloseSparesTheNewLink()
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
    QCOMPARE(bench.values, QStringList{text("state 'ON'")});
    QCOMPARE(bench.errors, QStringList());
}

void TestLinkTransport::openWhileOpenMovesToTheNewInstrument_data()
{
    QTest::addColumn<int>("mode");
    newRow(serial);
    newRow(tcp);
}

void TestLinkTransport::openWhileOpenMovesToTheNewInstrument()
{
    QFETCH(int, mode);
    LinkBench bench(mode);
    QVERIFY(bench.open());
    // What the old instrument still says does not reach the new link.
    bench.instrument.say("RETURN:REL OFF\n");
    QTRY_VERIFY(bench.device()->bytesAvailable() > 0);

    FakeInstrument other(mode, {says("RETURN:REL ON")});
    QVERIFY(bench.link.openPort(other.name(), other.value()));
    bench.link.queryMeasureState();
    QCOMPARE(bench.values, QStringList{text("state 'ON'")});
    QCOMPARE(other.lines(), QList<QByteArray>{"REL?\n"});
    QCOMPARE(bench.instrument.lines(), QList<QByteArray>());
}

void TestLinkTransport::serialSettings()
{
    LinkBench bench(serial);
    QVERIFY(bench.link.openPort(bench.instrument.name(), 19200));
    const auto *port = bench.link.findChild<QSerialPort *>();
    QCOMPARE(port->baudRate(QSerialPort::Input), 19200);
    QCOMPARE(port->baudRate(QSerialPort::Output), 19200);
    QCOMPARE(port->parity(), QSerialPort::NoParity);
    QCOMPARE(port->dataBits(), QSerialPort::Data8);
    QCOMPARE(port->stopBits(), QSerialPort::OneStop);
    QCOMPARE(port->flowControl(), QSerialPort::NoFlowControl);
}

void TestLinkTransport::lostLine_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<Action>("action");
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<QStringList>("values");
    QTest::addColumn<int>("errors");

    const Action query = &SerialLogic::queryMeasureState;
    const Answer nothing{{}, true};
    for (const int mode : {serial, tcp}) {
        newRow(mode, "instead of a reply")
            << query << nothing << QStringList{text("state ''")} << 0;
        newRow(mode, "inside a reply")
            << query << Answer{{"RETURN:REL O"}, true} << QStringList{text("state ''")} << 0;
        newRow(mode, "instead of a reading") << Action(&SerialLogic::readMesureData) << nothing
                                             << QStringList{text("power 100 ''")} << 0;
        newRow(mode, "instead of a confirmation")
            << Action([](SerialLogic &link) { link.setOffset(1); }) << nothing << QStringList()
            << 0;
        newRow(mode, "before the numeric form of the frequency")
            << Action([](SerialLogic &link) { link.setFrequency(text("50"), text("MHz")); })
            << nothing << QStringList() << 1;
        newRow(mode, "during a task")
            << Action(&SerialLogic::setZero) << nothing << QStringList() << 0;
    }
    // A pseudo terminal forgets what was not read when it goes; a connection does not.
    newRow(tcp, "behind a reply") << query << Answer{{"RETURN:REL ON\n"}, true}
                                  << QStringList{text("state 'ON'")} << 0;
}

void TestLinkTransport::lostLine()
{
    QFETCH(int, mode);
    QFETCH(Action, action);
    QFETCH(Answer, answer);
    QFETCH(int, errors);
    LinkBench bench(mode, {answer});
    QVERIFY(bench.open());
    action(bench.link);
    QTEST(bench.values, "values");
    QCOMPARE(bench.errors.size(), errors);

    QTRY_VERIFY(!bench.isUp());
    bench.link.queryOffset();
    QCOMPARE(bench.errors.size(), errors + 1);
    QCOMPARE(bench.errors.last(), mode == serial ? openFirst : connectFirst);

    FakeInstrument repaired(mode, {says("RETURN:OFFS 0.00dB")});
    QVERIFY(bench.link.openPort(repaired.name(), repaired.value()));
    bench.link.queryOffset();
    QCOMPARE(bench.values.last(), text("offset 0"));
    QCOMPARE(bench.errors.size(), errors + 1);
}

void TestLinkTransport::lineLostUnnoticed_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<Action>("action");
    for (const int mode : {serial, tcp}) {
        newRow(mode, "before a query") << Action(&SerialLogic::queryOffset);
        newRow(mode, "before a task") << Action(&SerialLogic::setZero);
    }
}

void TestLinkTransport::lineLostUnnoticed()
{
    QFETCH(int, mode);
    QFETCH(Action, action);
    LinkBench bench(mode);
    QVERIFY(bench.open());
    // The event loop does not run in between, so the command itself has to find out.
    bench.instrument.hangUp();
    action(bench.link);
    QCOMPARE(bench.values, QStringList());
    QCOMPARE(bench.errors.size(), 1);
    QVERIFY(!bench.link.awaitsResult());
    QVERIFY(!bench.isUp());
}

void TestLinkTransport::unconfirmedWrites()
{
    const DeafHost host;
    LinkBench bench(tcp);
    bench.waits.tcpWriting = 20;
    bench.link.setWaits(bench.waits);
    QVERIFY(bench.link.openPort(text("127.0.0.1"), host.port()));
    auto *socket = bench.link.findChild<QTcpSocket *>();
    socket->setSocketOption(QAbstractSocket::SendBufferSizeSocketOption, 4096);

    // Until all room on the way is taken, and the process has just counted its fourth failure.
    const QByteArray command(16 * 1024, 'x');
    int calls = 0;
    bool silent = false;
    QLoggingCategory::setFilterRules(text("default.debug=false"));
    for (; calls < 1000 && !silent; ++calls) {
        bench.errors.clear();
        silent = !bench.link.sendCmd(command) && bench.errors.isEmpty();
    }
    QLoggingCategory::setFilterRules(QString());
    QVERIFY(silent);

    for (int round = 0; round < 2; ++round) {
        bench.errors.clear();
        QVERIFY(!bench.link.sendCmd("GET?\n"));
        QCOMPARE(bench.errors, QStringList{connectFirst});
        const qint64 waiting = socket->bytesToWrite();
        QVERIFY(!bench.link.sendCmd("GET?\n"));
        QCOMPARE(bench.errors, QStringList{connectFirst});
        QCOMPARE(socket->bytesToWrite(), waiting + 5);
    }
}

void TestLinkTransport::logAndDisplay_data()
{
    QTest::addColumn<int>("mode");
    newRow(serial);
    newRow(tcp);
}

void TestLinkTransport::logAndDisplay()
{
    QFETCH(int, mode);
    LinkBench bench(mode, {Answer{{"RETURN:FREQ ", "2.45GHz\n"}}, {}, says("RETURN:CAL:OK")});
    const LoggedLines logged;
    QVERIFY(bench.open());
    bench.letPiecesFollow();
    bench.link.queryFrequency();
    connect(&bench.link, &SerialLogic::displayLog, &bench.link, [&] { bench.shortenReading(); });
    bench.link.setOffset(1);
    bench.link.calibrate();
    QTRY_VERIFY(!bench.link.awaitsResult());
    bench.link.delayClose();
    bench.link.sendCmd(QByteArray("A\xB5\0B", 4));

    const QString name = bench.instrument.name();
    const QString opened =
        mode == serial
            ? text("info|Open port: %1, baud rate: 115200").arg(name)
            : text("debug|connectToHost:  \"%1\" %2").arg(name).arg(bench.instrument.value());
    QCOMPARE(logged.lines(),
             (QStringList{opened, text(R"(debug|send cmd: "FREQ?\n" 6)"),
                          text(R"(debug|read data: "RETURN:FREQ ")"),
                          text(R"(debug|read data: "RETURN:FREQ 2.45GHz\n")"),
                          text(R"(debug|read frequency: 2.45 "GHz")"),
                          text(R"(debug|send cmd: "OFFS 1.00\n" 10)"), text("debug|Read time out"),
                          text(R"(debug|send cmd: "CAL\n" 4)"),
                          text(R"(debug|read data async: "RETURN:CAL:OK\n")"),
                          text(R"(debug|send cmd: "A\xB5\x00""B" 4)")}));

    QStringList displayed{text("FREQ?\n"), text("OFFS 1.00\n"), text("CAL\n"), text("Aµ")};
    if (mode == serial)
        displayed.prepend(text("Open serial port"));
    QCOMPARE(bench.displayed, displayed);
}

void TestLinkTransport::busyPointer()
{
    LinkBench bench(tcp, {says("RETURN:REL ON"), Answer{{"", "RETURN:REL OFF\n"}}});
    QVERIFY(bench.open());
    QVERIFY(!QGuiApplication::overrideCursor());
    QList<bool> busy;
    connect(bench.device(), &QIODevice::readyRead, &bench.link,
            [&busy] { busy << (QGuiApplication::overrideCursor() != nullptr); });
    // The second answer comes when the wait for it has become one that can be felt.
    connect(bench.link.findChild<QTcpSocket *>(), &QTcpSocket::errorOccurred, &bench.link,
            [&] { bench.instrument.sendNextPiece(); });
    bench.link.queryMeasureState();
    bench.link.queryMeasureState();
    QCOMPARE(bench.values, (QStringList{text("state 'ON'"), text("state 'OFF'")}));
    QCOMPARE(busy, (QList<bool>{false, true}));
    QVERIFY(!QGuiApplication::overrideCursor());
}

MZ_TEST_MAIN(TestLinkTransport)

#include "tst_linktransport.moc"
