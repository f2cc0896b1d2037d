#include "linkbench.h"
#include "testmain.h"

namespace {

using Pieces = QList<QByteArray>;

QStringList logged; ///< as "level|text"

void log(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    const char *level = type == QtDebugMsg ? "debug|" : type == QtInfoMsg ? "info|" : "other|";
    logged.append(QLatin1String(level) + message);
}

Action setFrequency(const char *value, const char *unit)
{
    return call(qOverload<QString, QString>(&SerialLogic::setFrequency), text(value), text(unit));
}

/// An answer for each of \a lines, with a "|" between them.
QList<Answer> script(const QByteArray &lines)
{
    QList<Answer> answers;
    for (const QByteArray &line : lines.split('|'))
        answers.append(says("RETURN:" + line));
    return answers;
}

} // namespace

Q_DECLARE_METATYPE(Action)
Q_DECLARE_METATYPE(Answer)

/// What goes over either transport for each operation, what the console hears of the answers, and
/// what becomes of a line that is closed or lost.
class TestLinkCommands : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data() { addBothRoads(); }

    void operations_data()
    {
        using Link = SerialLogic;
        QTest::addColumn<Action>("action");
        QTest::addColumn<QByteArray>("answers"); // behind "RETURN:"; "|" is the end of a line
        QTest::addColumn<QByteArray>("wire");
        QTest::addColumn<QString>("told");
        const auto row = [](const char *name, const Action &action, const char *answers,
                            const char *wire, const char *told) {
            QTest::newRow(name) << action << QByteArray(answers) << QByteArray(wire) << text(told);
        };

        row("identity", &Link::queryIDN, "IDN MZ6218,V1", "*IDN?", "identity 'MZ6218,V1'");
        row("reading", &Link::readMesureData, "GET -20.00dBm,1.00µW", "GET?", "power -20 '1.00µW'");

        const Action averageOver16 = call(&Link::setAverageCount, 16);
        row("set offset", call(&Link::setOffset, -1.5), "OK|OFFS -1.50dB", "OFFS -1.50|OFFS?",
            "offset -1.5");
        row("set unit", call(&Link::setPowerUnit, text("W")), "OK|UNIT:POW W",
            "UNIT:POW W|UNIT:POW?", "unit 'W'");
        row("set relative", call(&Link::setMeasureState, text("OFF")), "OK|REL OFF", "REL OFF|REL?",
            "state 'OFF'");
        row("set averaging", averageOver16, "OK, AS YOU WISH|AVER:COUN 16",
            "AVER:COUN 16|AVER:COUN?", "count 16");
        row("refused setting", averageOver16, "ERR", "AVER:COUN 16", "");

        const char *const refused = "ERR|OK|FREQ 2.45GHz";
        const char *const told = "frequency 2.45 'GHz'";
        const auto setNumber = qOverload<double>(&Link::setFrequency);
        row("number", call(setNumber, 2.45), "OK|FREQ 2.45GHz", "FREQ 2.45|FREQ?", told);
        row("refused GHz", setFrequency("2.45", "GHz"), refused, "FREQ 2.45GHz|FREQ 2.45|FREQ?",
            told);
        row("refused MHz", setFrequency("2450", "MHz"), refused, "FREQ 2450MHz|FREQ 2.45|FREQ?",
            told);
        row("refused KHz", setFrequency("2450000", "KHz"), refused,
            "FREQ 2450000KHz|FREQ 2.45|FREQ?", told);
        row("refused twice", setFrequency("2450", "MHz"), "ERR|ERR", "FREQ 2450MHz|FREQ 2.45", "");
        row("refused, no number for the unit", setFrequency("9", "Hz"), "ERR", "FREQ 9Hz", "");

        row("no frequency came", &Link::queryFrequency, "", "FREQ?", "frequency 0 ''");
        row("no reading came", &Link::readMesureData, "", "GET?", "power 100 ''");
        row("no confirmation came", call(&Link::setOffset, 1), "", "OFFS 1.00", "");
        row("neither form confirmed", setFrequency("50", "MHz"), "", "FREQ 50MHz|FREQ 0.05", "");
    }
    void operations()
    {
        QFETCH_GLOBAL(int, mode);
        QFETCH(Action, action);
        QFETCH(QByteArray, answers);
        QFETCH(QByteArray, wire);
        LinkBench bench(mode, answers.isEmpty() ? QList<Answer>() : script(answers));
        QVERIFY(bench.open());
        if (answers.isEmpty())
            bench.shortenReading();
        action(bench.link);
        QTEST(bench.told(), "told");
        QTRY_COMPARE(bench.instrument.lines().join(), wire.replace('|', '\n') + '\n');
        QCOMPARE(bench.errors, QStringList());
    }

    void replyInPieces()
    {
        QFETCH_GLOBAL(int, mode);
        LinkBench bench(mode, {Answer{{"RETURN:UNIT:POW W", "\n"}}, says("RETURN:REL ON")});
        QVERIFY(bench.open());
        bench.letPiecesFollow();
        bench.link.queryPowerUnit();
        bench.link.queryMeasureState();
        QCOMPARE(bench.told(), text("unit 'W', state 'ON'"));
    }

    void unfinishedReplyIsContinued()
    {
        QFETCH_GLOBAL(int, mode);
        LinkBench bench(mode, {Answer{{"RETURN:OFFS 1"}}, says(".5dB")});
        QVERIFY(bench.open());
        const LinkWaits patient = bench.waits;
        // The first piece is waited for in full, the second never comes.
        const auto shortened = connect(bench.device(), &QIODevice::readyRead, &bench.link,
                                       [&] { bench.shortenReading(); });
        bench.link.queryOffset();
        disconnect(shortened);
        bench.link.setWaits(patient);
        bench.link.queryOffset();
        QCOMPARE(bench.told(), text("offset 0, offset 1.5"));
    }

    void lateReplyIsLeftBehind()
    {
        QFETCH_GLOBAL(int, mode);
        LinkBench bench(mode, {{}, says("RETURN:UNIT:POW dBm"), says("RETURN:UNIT:POW W")});
        QVERIFY(bench.open());
        const LinkWaits patient = bench.waits;
        bench.shortenReading();
        bench.link.queryMeasureState();
        bench.link.setWaits(patient);
        bench.instrument.say("RETURN:REL ON\n");
        QTRY_VERIFY(bench.device()->bytesAvailable() > 0);

        // It spoils one answer, and no more than one.
        bench.link.queryPowerUnit();
        bench.link.queryPowerUnit();
        QCOMPARE(bench.told(), text("state '', unit 'RETURN:REL ON', unit 'W'"));
    }

    void taskResults_data()
    {
        QTest::addColumn<Action>("action");
        QTest::addColumn<Pieces>("answer");
        QTest::addColumn<QString>("told");
        const auto row = [](const char *name, const Action &action, const Pieces &answer,
                            const char *told) {
            QTest::newRow(name) << action << answer << text(told);
        };
        const Action zero = &SerialLogic::setZero;
        const Action calibrate = &SerialLogic::calibrate;
        row("not calibrated", calibrate, {"RETURN:CAL:FAIL\r\n"}, "not calibrated");
        row("result in pieces", zero, {"RETURN:CAL", ":ZERO:", "OK", "\n"}, "zeroed");
        row("result repeated", zero, {"RETURN:CAL:ZERO:OK\n", "RETURN:CAL:ZERO:OK\n"}, "zeroed");
        row("another line ends the wait", calibrate, {"RETURN:ERR\n", "RETURN:CAL:OK\n"}, "");
    }
    void taskResults()
    {
        QFETCH_GLOBAL(int, mode);
        QFETCH(Action, action);
        QFETCH(Pieces, answer);
        LinkBench bench(mode, {Answer{answer}});
        QVERIFY(bench.open());
        bench.letPiecesFollow();
        action(bench.link);
        QVERIFY(bench.link.awaitsResult());
        QTRY_VERIFY(!bench.link.awaitsResult());

        // The next query comes after everything that the instrument has sent so far.
        bench.instrument.say("end\n");
        QTRY_VERIFY(bench.device()->peek(100).endsWith("end\n"));
        QTEST(bench.told(), "told");
    }
    void staleInputIsNoTaskResult()
    {
        QFETCH_GLOBAL(int, mode);
        const QByteArray stale("RETURN:CAL:FAIL\n");
        LinkBench bench(mode, {says("RETURN:CAL:ZERO:OK")});
        QVERIFY(bench.open());
        bench.instrument.say(stale);
        QTRY_COMPARE(bench.device()->bytesAvailable(), qint64(stale.size()));
        bench.link.setZero();
        QTRY_COMPARE(bench.told(), text("zeroed"));
        QCOMPARE(bench.instrument.lines().join(), QByteArray("CAL:ZERO\n"));
    }

    void abandonedTaskLeavesNothingToTheNextLink()
    {
        QFETCH_GLOBAL(int, mode);
        LinkBench bench(mode, {Answer{{"RETURN:CA"}}, says("RETURN:REL ON")});
        QVERIFY(bench.open());
        QSignalSpy arrived(bench.device(), &QIODevice::readyRead);
        bench.link.setZero();
        QTRY_VERIFY(!arrived.isEmpty());
        QVERIFY(bench.link.awaitsResult());

        bench.link.closePort();
        QVERIFY(bench.open());
        QVERIFY(!bench.link.awaitsResult());
        bench.link.queryMeasureState();
        QCOMPARE(bench.told(), text("state 'ON'"));
    }

    void closeIsDeferred()
    {
        QFETCH_GLOBAL(int, mode);
        LinkBench bench(mode, {says("RETURN:REL ON")});
        QVERIFY(bench.open());
        bench.link.closePort();
        QCOMPARE(bench.displayed.last(), text("Close serial port"));
        bench.link.queryMeasureState();
        QCOMPARE(bench.told(), text("state 'ON'"));
        QVERIFY(bench.isUp());
        QTRY_VERIFY(!bench.isUp());

        QVERIFY(!bench.link.sendCmd("GET?\n"));
        QCOMPARE(bench.errors, QStringList{bench.notOpen});
    }

    void openWhileOpenMovesToTheNewInstrument()
    {
        QFETCH_GLOBAL(int, mode);
        LinkBench bench(mode);
        QVERIFY(bench.open());
        // What the old instrument still says does not reach the new link.
        bench.instrument.say("RETURN:REL OFF\n");
        QTRY_VERIFY(bench.device()->bytesAvailable() > 0);

        FakeInstrument other(mode, {says("RETURN:REL ON")});
        QVERIFY(bench.link.openPort(other.name(), other.value()));
        bench.link.queryMeasureState();
        QCOMPARE(bench.told(), text("state 'ON'"));
        QCOMPARE(other.lines().join(), QByteArray("REL?\n"));
        QCOMPARE(bench.instrument.lines(), QList<QByteArray>());
    }

    void lostLine_data()
    {
        using Link = SerialLogic;
        QTest::addColumn<Action>("action");
        QTest::addColumn<Pieces>("answer");
        QTest::addColumn<QString>("told");
        QTest::addColumn<int>("errors");
        const auto row = [](const char *name, const Action &action, const Pieces &answer,
                            const char *told, int errors) {
            QTest::newRow(name) << action << answer << text(told) << errors;
        };
        row("inside a reply", &Link::queryMeasureState, {"RETURN:REL O"}, "state ''", 0);
        row("before the numeric form of the frequency", setFrequency("50", "MHz"), {}, "", 1);
        row("during a task", &Link::setZero, {}, "", 0);
    }
    void lostLine()
    {
        QFETCH_GLOBAL(int, mode);
        QFETCH(Action, action);
        QFETCH(Pieces, answer);
        QFETCH(int, errors);
        LinkBench bench(mode, {Answer{answer, true}});
        QVERIFY(bench.open());
        action(bench.link);
        QTEST(bench.told(), "told");
        QCOMPARE(bench.errors.size(), errors);

        QTRY_VERIFY(!bench.isUp());
        bench.link.queryOffset();
        QCOMPARE(bench.errors.size(), errors + 1);
        QCOMPARE(bench.errors.last(), bench.notOpen);

        FakeInstrument repaired(mode, {says("RETURN:OFFS 0.00dB")});
        QVERIFY(bench.link.openPort(repaired.name(), repaired.value()));
        bench.link.queryOffset();
        QVERIFY(bench.told().endsWith(text("offset 0")));
        QCOMPARE(bench.errors.size(), errors + 1);
    }
    void lineLostUnnoticed()
    {
        QFETCH_GLOBAL(int, mode);
        LinkBench bench(mode);
        QVERIFY(bench.open());
        // The event loop does not run in between, so the command itself has to find out.
        bench.instrument.hangUp();
        bench.link.setZero();
        QCOMPARE(bench.told(), QString());
        QCOMPARE(bench.errors.size(), 1);
        QVERIFY(!bench.link.awaitsResult());
        QVERIFY(!bench.isUp());
    }

    void logAndDisplay()
    {
        QFETCH_GLOBAL(int, mode);
        LinkBench bench(mode, {Answer{{"RETURN:FREQ ", "2.45GHz\n"}}, {}, says("RETURN:CAL:OK")});
        logged.clear();
        const auto restore =
            qScopeGuard([former = qInstallMessageHandler(log)] { qInstallMessageHandler(former); });
        QVERIFY(bench.open());
        bench.letPiecesFollow();
        bench.link.queryFrequency();
        connect(&bench.link, &SerialLogic::displayLog, &bench.link,
                [&] { bench.shortenReading(); });
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
        const QStringList expected = text(R"(%1
debug|send cmd: "FREQ?\n" 6
debug|read data: "RETURN:FREQ "
debug|read data: "RETURN:FREQ 2.45GHz\n"
debug|read frequency: 2.45 "GHz"
debug|send cmd: "OFFS 1.00\n" 10
debug|Read time out
debug|send cmd: "CAL\n" 4
debug|read data async: "RETURN:CAL:OK\n"
debug|send cmd: "A\xB5\x00""B" 4)")
                                         .arg(opened)
                                         .split(QLatin1Char('\n'));
        QCOMPARE(logged, expected);

        QStringList displayed{text("FREQ?\n"), text("OFFS 1.00\n"), text("CAL\n"), text("Aµ")};
        if (mode == serial)
            displayed.prepend(text("Open serial port"));
        QCOMPARE(bench.displayed, displayed);
    }
};

MZ_GUILESS_TEST(TestLinkCommands)

#include "tst_linkcommands.moc"
