#include "linkbench.h"
#include "testmain.h"

#include <QLoggingCategory>
#include <QtTest>

#include <functional>

namespace {

using Action = std::function<void(SerialLogic &)>;
using Answers = QList<Answer>;
using Lines = QList<QByteArray>;
using Pieces = QList<QByteArray>;

const Answer ok{{"RETURN:OK\n"}};
const Answer refused{{"RETURN:ERR\n"}};

} // namespace

Q_DECLARE_METATYPE(Action)
Q_DECLARE_METATYPE(Answer)

/// What goes over the wire for each operation, and what the console hears of the answers.
class TestLinkCommands : public QObject
{
    Q_OBJECT

private slots:
    void operations_data();
    void operations();
    void unansweredOperations_data();
    void unansweredOperations();
    void pieces_data();
    void pieces();
    void unfinishedReplyIsContinued_data();
    void unfinishedReplyIsContinued();
    void lateReplyIsLeftBehind_data();
    void lateReplyIsLeftBehind();
    void endlessLineIsDropped();

    void taskResults_data();
    void taskResults();
    void staleInputIsNoTaskResult_data();
    void staleInputIsNoTaskResult();
    void abandonedTaskDoesNotAnswerForTheNext_data();
    void abandonedTaskDoesNotAnswerForTheNext();
    void taskResultNeverComesBeforeTheCallReturns();
    void replyThatCameWithTheWriteConfirmation();
    void abandonedTaskLeavesNothingToTheNextLink_data();
    void abandonedTaskLeavesNothingToTheNextLink();
    void unsentTaskIsNotAwaited_data();
    void unsentTaskIsNotAwaited();
};

namespace {

const Answer gigahertz = says("RETURN:FREQ 2.45GHz");

void addQueries(int mode)
{
    newRow(mode, "identity") << Action(&SerialLogic::queryIDN)
                             << Answers{says("RETURN:IDN MZ6218,SN001,V1.0")} << Lines{"*IDN?\n"}
                             << QStringList{text("identity 'MZ6218,SN001,V1.0'")};
    newRow(mode, "frequency") << Action(&SerialLogic::queryFrequency) << Answers{gigahertz}
                              << Lines{"FREQ?\n"} << QStringList{text("frequency 2.45 'GHz'")};
    newRow(mode, "offset") << Action(&SerialLogic::queryOffset)
                           << Answers{says("RETURN:OFFS -1.50dB")} << Lines{"OFFS?\n"}
                           << QStringList{text("offset -1.5")};
    newRow(mode, "power unit") << Action(&SerialLogic::queryPowerUnit)
                               << Answers{says("RETURN:UNIT:POW DBM\r")} << Lines{"UNIT:POW?\n"}
                               << QStringList{text("unit 'DBM'")};
    newRow(mode, "relative state")
        << Action(&SerialLogic::queryMeasureState) << Answers{says("RETURN:REL ON")}
        << Lines{"REL?\n"} << QStringList{text("state 'ON'")};
    newRow(mode, "averaging") << Action(&SerialLogic::queryAverageCount)
                              << Answers{says("RETURN:AVER:COUN 1024")} << Lines{"AVER:COUN?\n"}
                              << QStringList{text("count 1024")};
    newRow(mode, "reading") << Action(&SerialLogic::readMesureData)
                            << Answers{says("RETURN:GET -20.00dBm,10.00µW")} << Lines{"GET?\n"}
                            << QStringList{text("power -20 '10.00µW'")};
    newRow(mode, "reading of one field")
        << Action(&SerialLogic::readMesureData) << Answers{says("RETURN:GET -20.00dBm")}
        << Lines{"GET?\n"} << QStringList{text("power 100 ''")};
}

void addSettings(int mode)
{
    newRow(mode, "set offset") << Action([](SerialLogic &link) { link.setOffset(-1.5); })
                               << Answers{ok, says("RETURN:OFFS -1.50dB")}
                               << Lines{"OFFS -1.50\n", "OFFS?\n"}
                               << QStringList{text("offset -1.5")};
    newRow(mode, "set power unit")
        << Action([](SerialLogic &link) { link.setPowerUnit(text("W")); })
        << Answers{ok, says("RETURN:UNIT:POW W")} << Lines{"UNIT:POW W\n", "UNIT:POW?\n"}
        << QStringList{text("unit 'W'")};
    newRow(mode, "set relative state")
        << Action([](SerialLogic &link) { link.setMeasureState(text("OFF")); })
        << Answers{ok, says("RETURN:REL OFF")} << Lines{"REL OFF\n", "REL?\n"}
        << QStringList{text("state 'OFF'")};
    newRow(mode, "set averaging") << Action([](SerialLogic &link) { link.setAverageCount(16); })
                                  << Answers{says("OK, AS YOU WISH"), says("RETURN:AVER:COUN 16")}
                                  << Lines{"AVER:COUN 16\n", "AVER:COUN?\n"}
                                  << QStringList{text("count 16")};
    newRow(mode, "refused setting") << Action([](SerialLogic &link) { link.setAverageCount(0); })
                                    << Answers{refused} << Lines{"AVER:COUN 0\n"} << QStringList();
}

void addFrequencySettings(int mode)
{
    const auto setFrequency = [](const char *value, const char *unit) -> Action {
        return [=](SerialLogic &link) { link.setFrequency(text(value), text(unit)); };
    };
    newRow(mode, "set frequency as text")
        << setFrequency("2.45", "GHz") << Answers{ok, gigahertz}
        << Lines{"FREQ 2.45GHz\n", "FREQ?\n"} << QStringList{text("frequency 2.45 'GHz'")};
    newRow(mode, "set frequency as number")
        << Action([](SerialLogic &link) { link.setFrequency(2.45); }) << Answers{ok, gigahertz}
        << Lines{"FREQ 2.45\n", "FREQ?\n"} << QStringList{text("frequency 2.45 'GHz'")};
    newRow(mode, "instrument that knows numbers only, GHz")
        << setFrequency("2.45", "GHz") << Answers{refused, ok, gigahertz}
        << Lines{"FREQ 2.45GHz\n", "FREQ 2.45\n", "FREQ?\n"}
        << QStringList{text("frequency 2.45 'GHz'")};
    newRow(mode, "instrument that knows numbers only, MHz")
        << setFrequency("2450", "MHz") << Answers{refused, ok, gigahertz}
        << Lines{"FREQ 2450MHz\n", "FREQ 2.45\n", "FREQ?\n"}
        << QStringList{text("frequency 2.45 'GHz'")};
    newRow(mode, "instrument that knows numbers only, KHz")
        << setFrequency("2450000", "KHz") << Answers{refused, ok, gigahertz}
        << Lines{"FREQ 2450000KHz\n", "FREQ 2.45\n", "FREQ?\n"}
        << QStringList{text("frequency 2.45 'GHz'")};
    newRow(mode, "frequency refused in both forms")
        << setFrequency("2450", "MHz") << Answers{refused, refused}
        << Lines{"FREQ 2450MHz\n", "FREQ 2.45\n"} << QStringList();
    newRow(mode, "no numeric form of another unit")
        << setFrequency("2450000000", "Hz") << Answers{refused} << Lines{"FREQ 2450000000Hz\n"}
        << QStringList();
}

} // namespace

void TestLinkCommands::operations_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<Action>("action");
    QTest::addColumn<Answers>("answers");
    QTest::addColumn<Lines>("wire");
    QTest::addColumn<QStringList>("values");

    for (const int mode : {0, 1}) {
        addQueries(mode);
        addSettings(mode);
        addFrequencySettings(mode);
    }
}

void TestLinkCommands::operations()
{
    QFETCH(int, mode);
    QFETCH(Action, action);
    QFETCH(Answers, answers);
    LinkBench bench(mode, answers);
    QVERIFY(bench.open());
    action(bench.link);
    QTEST(bench.values, "values");
    QTEST(bench.instrument.lines(), "wire");
    QCOMPARE(bench.errors, QStringList());
}

void TestLinkCommands::unansweredOperations_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<Action>("action");
    QTest::addColumn<Lines>("wire");
    QTest::addColumn<QStringList>("values");

    for (const int mode : {0, 1}) {
        newRow(mode, "identity") << Action(&SerialLogic::queryIDN) << Lines{"*IDN?\n"}
                                 << QStringList{text("identity ''")};
        newRow(mode, "frequency") << Action(&SerialLogic::queryFrequency) << Lines{"FREQ?\n"}
                                  << QStringList{text("frequency 0 ''")};
        newRow(mode, "averaging") << Action(&SerialLogic::queryAverageCount)
                                  << Lines{"AVER:COUN?\n"} << QStringList{text("count 0")};
        newRow(mode, "reading") << Action(&SerialLogic::readMesureData) << Lines{"GET?\n"}
                                << QStringList{text("power 100 ''")};
        newRow(mode, "setting") << Action([](SerialLogic &link) { link.setOffset(1); })
                                << Lines{"OFFS 1.00\n"} << QStringList();
        newRow(mode, "frequency in both forms")
            << Action([](SerialLogic &link) { link.setFrequency(text("50"), text("MHz")); })
            << Lines{"FREQ 50MHz\n", "FREQ 0.05\n"} << QStringList();
    }
}

void TestLinkCommands::unansweredOperations()
{
    QFETCH(int, mode);
    QFETCH(Action, action);
    QFETCH(Lines, wire);
    LinkBench bench(mode);
    QVERIFY(bench.open());
    bench.shortenReading();
    action(bench.link);
    QTEST(bench.values, "values");
    QTRY_COMPARE(bench.instrument.lines(), wire);
    QCOMPARE(bench.errors, QStringList());
}

void TestLinkCommands::pieces_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<Pieces>("pieces");
    QTest::addColumn<QString>("value");

    Pieces dribble;
    for (const char byte : QByteArray("RETURN:UNIT:POW \xC2\xB5W\n"))
        dribble.append(QByteArray(1, byte));
    for (const int mode : {0, 1}) {
        newRow(mode, "newline late") << Pieces{"RETURN:UNIT:POW W", "\n"} << text("unit 'W'");
        newRow(mode, "byte by byte") << dribble << text("unit 'µW'");
        newRow(mode, "NUL") << Pieces{QByteArray("RETURN:UNIT:\0\xFF\n", 15), "POW W\n"}
                            << text("unit 'W'");
        newRow(mode, "second line lost")
            << Pieces{"RETURN:UNIT:POW W\nRETURN:UNIT:POW dBm\n"} << text("unit 'W'");
    }
}

void TestLinkCommands::pieces()
{
    QFETCH(int, mode);
    QFETCH(Pieces, pieces);
    QFETCH(QString, value);
    LinkBench bench(mode, {Answer{pieces}, says("RETURN:REL ON")});
    QVERIFY(bench.open());
    bench.letPiecesFollow();
    bench.link.queryPowerUnit();
    bench.link.queryMeasureState();
    QCOMPARE(bench.values, (QStringList{value, text("state 'ON'")}));
}

void TestLinkCommands::unfinishedReplyIsContinued_data()
{
    QTest::addColumn<int>("mode");
    newRow(0);
    newRow(1);
}

void TestLinkCommands::unfinishedReplyIsContinued()
{
    QFETCH(int, mode);
    LinkBench bench(mode, {Answer{{"RETURN:OFFS 1"}}, says(".5dB")});
    QVERIFY(bench.open());
    const LinkWaits patient = bench.waits;
    // The first piece is waited for in full, the second never comes.
    const auto shortened = connect(bench.device(), &QIODevice::readyRead, &bench.link,
                                   [&] { bench.shortenReading(); });
    bench.link.queryOffset();
    disconnect(shortened);
    bench.link.setWaits(patient);
    QCOMPARE(bench.values, QStringList{text("offset 0")});
    bench.link.queryOffset();
    QCOMPARE(bench.values.last(), text("offset 1.5"));
}

void TestLinkCommands::lateReplyIsLeftBehind_data()
{
    QTest::addColumn<int>("mode");
    newRow(0);
    newRow(1);
}

void TestLinkCommands::lateReplyIsLeftBehind()
{
    QFETCH(int, mode);
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
    QCOMPARE(bench.values,
             (QStringList{text("state ''"), text("unit 'RETURN:REL ON'"), text("unit 'W'")}));
}

void TestLinkCommands::endlessLineIsDropped()
{
    const QByteArray endless(70 * 1024, 'x');
    LinkBench bench(1, {Answer{{endless}}});
    QVERIFY(bench.open());
    QLoggingCategory::setFilterRules(text("default.debug=false"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(text("no end of line, dropped \\d+")));
    bench.link.queryOffset();
    QLoggingCategory::setFilterRules(QString());
    QCOMPARE(bench.values, QStringList{text("offset 0")});
}

void TestLinkCommands::taskResults_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<Action>("action");
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<Lines>("wire");
    QTest::addColumn<QStringList>("values");

    const Action zero = &SerialLogic::setZero;
    const Action calibrate = &SerialLogic::calibrate;
    for (const int mode : {0, 1}) {
        newRow(mode, "zeroed") << zero << says("RETURN:CAL:ZERO:OK") << Lines{"CAL:ZERO\n"}
                               << QStringList{text("zeroed")};
        newRow(mode, "not zeroed") << zero << says("RETURN:CAL:ZERO:FAIL") << Lines{"CAL:ZERO\n"}
                                   << QStringList{text("not zeroed")};
        newRow(mode, "calibrated") << calibrate << says("#1 RETURN:CAL:OK done") << Lines{"CAL\n"}
                                   << QStringList{text("calibrated")};
        newRow(mode, "not calibrated") << calibrate << says("RETURN:CAL:FAIL\r") << Lines{"CAL\n"}
                                       << QStringList{text("not calibrated")};
        newRow(mode, "result in pieces") << zero << Answer{{"RETURN:CAL", ":ZERO:", "OK", "\n"}}
                                         << Lines{"CAL:ZERO\n"} << QStringList{text("zeroed")};
        newRow(mode, "result twice in one piece")
            << zero << says("RETURN:CAL:ZERO:OK\nRETURN:CAL:ZERO:OK") << Lines{"CAL:ZERO\n"}
            << QStringList{text("zeroed")};
        newRow(mode, "result repeated later")
            << zero << Answer{{"RETURN:CAL:ZERO:OK\n", "RETURN:CAL:ZERO:OK\n"}}
            << Lines{"CAL:ZERO\n"} << QStringList{text("zeroed")};
        newRow(mode, "another line ends the wait")
            << calibrate << Answer{{"RETURN:ERR\n", "RETURN:CAL:OK\n"}} << Lines{"CAL\n"}
            << QStringList();
    }
}

void TestLinkCommands::taskResults()
{
    QFETCH(int, mode);
    QFETCH(Action, action);
    QFETCH(Answer, answer);
    LinkBench bench(mode, {answer});
    QVERIFY(bench.open());
    bench.letPiecesFollow();
    action(bench.link);
    QVERIFY(bench.link.awaitsResult());
    QTRY_VERIFY(!bench.link.awaitsResult());

    // The next query comes after everything that the instrument has sent so far.
    bench.instrument.say("end\n");
    QTRY_VERIFY(bench.device()->peek(100).endsWith("end\n"));
    QTEST(bench.values, "values");
    QTEST(bench.instrument.lines(), "wire");
}

void TestLinkCommands::staleInputIsNoTaskResult_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("readAlready");
    QTest::addColumn<QByteArray>("stale");

    for (const int mode : {0, 1}) {
        newRow(mode, "late reading") << true << QByteArray("RETURN:GET -20.00dBm,10.00uW\n");
        newRow(mode, "late reading, not read yet") << false << QByteArray("RETURN:GET 0dBm,1mW\n");
        newRow(mode, "result of an earlier task") << true << QByteArray("RETURN:CAL:FAIL\n");
    }
}

void TestLinkCommands::staleInputIsNoTaskResult()
{
    QFETCH(int, mode);
    QFETCH(bool, readAlready);
    QFETCH(QByteArray, stale);
    LinkBench bench(mode, {says("RETURN:CAL:ZERO:OK")});
    QVERIFY(bench.open());
    bench.instrument.say(stale);
    if (readAlready)
        QTRY_COMPARE(bench.device()->bytesAvailable(), qint64(stale.size()));
    bench.link.setZero();
    QTRY_COMPARE(bench.values, QStringList{text("zeroed")});
}

void TestLinkCommands::abandonedTaskDoesNotAnswerForTheNext_data()
{
    QTest::addColumn<int>("mode");
    newRow(0);
    newRow(1);
}

void TestLinkCommands::abandonedTaskDoesNotAnswerForTheNext()
{
    QFETCH(int, mode);
    LinkBench bench(mode, {Answer{{"RETURN:CAL:FAIL"}}, says("RETURN:CAL:ZERO:OK")});
    QVERIFY(bench.open());
    QSignalSpy arrived(bench.device(), &QIODevice::readyRead);
    bench.link.calibrate();
    QTRY_VERIFY(!arrived.isEmpty());
    bench.link.setZero();
    QTRY_COMPARE(bench.values, QStringList{text("zeroed")});
}

void TestLinkCommands::taskResultNeverComesBeforeTheCallReturns()
{
    LinkBench bench(1, {says("RETURN:CAL:ZERO:OK")});
    QVERIFY(bench.open());
    QIODevice *const device = bench.device();
    // The result arrives while the link still waits for the confirmation of its write.
    connect(device, &QIODevice::bytesWritten, &bench.link,
            [device] { QVERIFY(device->waitForReadyRead(30000)); });
    bench.link.setZero();
    QCOMPARE(bench.values, QStringList());
    QVERIFY(bench.link.awaitsResult());

    // A receiver sees the task as under way until its slot has returned.
    bool awaitedInSlot = false;
    connect(&bench.link, &SerialLogic::updateSetZeroSuccess, &bench.link,
            [&] { awaitedInSlot = bench.link.awaitsResult(); });
    QTRY_COMPARE(bench.values, QStringList{text("zeroed")});
    QVERIFY(awaitedInSlot);
    QVERIFY(!bench.link.awaitsResult());
}

void TestLinkCommands::replyThatCameWithTheWriteConfirmation()
{
    LinkBench bench(1, {says("RETURN:REL ON")});
    QVERIFY(bench.open());
    QIODevice *const device = bench.device();
    connect(device, &QIODevice::bytesWritten, &bench.link,
            [device] { QVERIFY(device->waitForReadyRead(30000)); });
    bench.link.queryMeasureState();
    QCOMPARE(bench.values, QStringList{text("state 'ON'")});
}

void TestLinkCommands::abandonedTaskLeavesNothingToTheNextLink_data()
{
    QTest::addColumn<int>("mode");
    newRow(0);
    newRow(1);
}

void TestLinkCommands::abandonedTaskLeavesNothingToTheNextLink()
{
    QFETCH(int, mode);
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
    QCOMPARE(bench.values, QStringList{text("state 'ON'")});
}

void TestLinkCommands::unsentTaskIsNotAwaited_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("error");
    newRow(0) << text("Please open the serial port first.");
    newRow(1) << text("Please connect first.");
}

void TestLinkCommands::unsentTaskIsNotAwaited()
{
    QFETCH(int, mode);
    QFETCH(QString, error);
    LinkBench bench(mode);
    SerialLogic &link = bench.link;
    QVERIFY(bench.open());
    link.setZero();
    QVERIFY(link.awaitsResult());
    link.delayClose();
    QStringList heard;
    connect(&link, &SerialLogic::errors, &link, [&](const QString &text) {
        heard << text;
        QVERIFY(!link.awaitsResult());
    });
    link.calibrate();
    QCOMPARE(heard, QStringList{error});
    QVERIFY(!link.awaitsResult());
}

MZ_TEST_GUILESS_MAIN(TestLinkCommands)

#include "tst_linkcommands.moc"
