#include "commandinterpreter.h"
#include "instrument.h"
#include "linesplitter.h"
#include "powertext.h"
#include "testmain.h"

#include <cmath>

using namespace sim;

namespace {

/// Command and reply in turn.
using Talk = QList<QByteArray>;

Instrument steadyInstrument(bool microSign = false)
{
    return Instrument(PowerSource(-20.0, 0.0, 1), 7, microSign);
}

/// The standard deviation of what \a count successive readings differ by.
double jitter(int averageCount)
{
    constexpr int count = 2000;
    PowerSource source(-20.0, 1.0, 42);
    double last = source.read(averageCount);
    double sum = 0.0;
    for (int i = 0; i < count; ++i) {
        const double next = source.read(averageCount);
        sum += (next - last) * (next - last);
        last = next;
    }
    return std::sqrt(sum / count);
}

} // namespace

class TestInstrument : public QObject
{
    Q_OBJECT

private slots:
    void talk_data();
    void talk();
    void refusalChangesNothing_data();
    void refusalChangesNothing();
    void onlyNumericFrequency();
    void operations();
    void watts_data();
    void watts();
    void microSign();
    void sourceRepeatsForASeed();
    void noiseShrinksWithAveraging();
    void linesFromPieces();
};

void TestInstrument::talk_data()
{
    QTest::addColumn<Talk>("talk");

    QTest::newRow("identity") << Talk{"*IDN?", "RETURN:IDN MZ6218,SIM000007," MZ_VERSION};
    QTest::newRow("state after power-on") << Talk{
        "FREQ?", "RETURN:FREQ 50MHz",  "AVER:COUN?", "RETURN:AVER:COUN 1", "REL?", "RETURN:REL OFF",
        "OFFS?", "RETURN:OFFS 0.00dB", "UNIT:POW?",  "RETURN:UNIT:POW dBm"};
    QTest::newRow("frequency keeps its unit")
        << Talk{"FREQ 2.45GHz", "RETURN:OK", "FREQ?", "RETURN:FREQ 2.45GHz",
                "FREQ 2450MHz", "RETURN:OK", "FREQ?", "RETURN:FREQ 2450MHz",
                "FREQ 1500KHz", "RETURN:OK", "FREQ?", "RETURN:FREQ 1500KHz"};
    QTest::newRow("a frequency without unit is in GHz")
        << Talk{"FREQ 2.45", "RETURN:OK", "FREQ?", "RETURN:FREQ 2.45GHz",
                "FREQ 3.00", "RETURN:OK", "FREQ?", "RETURN:FREQ 3GHz"};
    QTest::newRow("both ends of the frequency range, to the kHz")
        << Talk{"FREQ 1KHz",        "RETURN:OK", "FREQ?", "RETURN:FREQ 1KHz",
                "FREQ 0.000001GHz", "RETURN:OK", "FREQ?", "RETURN:FREQ 0.000001GHz",
                "FREQ 40GHz",       "RETURN:OK", "FREQ?", "RETURN:FREQ 40GHz",
                "FREQ 40000000KHz", "RETURN:OK", "FREQ?", "RETURN:FREQ 40000000KHz"};
    QTest::newRow("the offset shifts the reading")
        << Talk{"OFFS 3.50",          "RETURN:OK", "OFFS?",
                "RETURN:OFFS 3.50dB", "GET?",      "RETURN:GET -16.50dBm,-16.50dBm"};
    QTest::newRow("the unit is that of the second field alone")
        << Talk{"GET?",         "RETURN:GET -20.00dBm,-20.00dBm",
                "UNIT:POW W",   "RETURN:OK",
                "UNIT:POW?",    "RETURN:UNIT:POW W",
                "GET?",         "RETURN:GET -20.00dBm,10.00uW",
                "UNIT:POW dBm", "RETURN:OK",
                "UNIT:POW?",    "RETURN:UNIT:POW dBm"};
    QTest::newRow("relative to the power at ON, anew at each ON")
        << Talk{"REL ON",     "RETURN:OK",
                "REL?",       "RETURN:REL ON",
                "GET?",       "RETURN:GET 0.00dBm,0.00dB",
                "OFFS -2.00", "RETURN:OK",
                "GET?",       "RETURN:GET -2.00dBm,-2.00dB",
                "REL ON",     "RETURN:OK",
                "GET?",       "RETURN:GET 0.00dBm,0.00dB",
                "REL OFF",    "RETURN:OK",
                "GET?",       "RETURN:GET -22.00dBm,-22.00dBm"};
    QTest::newRow("case, blanks and a carriage return do not matter")
        << Talk{" freq   2.45 ghz \r", "RETURN:OK", "Freq?\r", "RETURN:FREQ 2.45GHz"};
    QTest::newRow("what it does not know") << Talk{"READ?",
                                                   "RETURN:ERR -113,Undefined header",
                                                   "FREQ",
                                                   "RETURN:ERR -109,Missing parameter",
                                                   "GET? 1",
                                                   "RETURN:ERR -108,Parameter not allowed",
                                                   QByteArray("GE\0T?", 5),
                                                   "RETURN:ERR -113,Undefined header",
                                                   "",
                                                   "",
                                                   " \r",
                                                   ""};
}

void TestInstrument::talk()
{
    QFETCH(Talk, talk);
    Instrument instrument = steadyInstrument();
    CommandInterpreter interpreter(instrument);
    for (int i = 0; i + 1 < talk.size(); i += 2)
        QCOMPARE(interpreter.execute(talk.at(i)).line, talk.at(i + 1));
}

void TestInstrument::refusalChangesNothing_data()
{
    QTest::addColumn<QByteArray>("command");
    for (const char *command : {"FREQ 0.0009MHz",    "FREQ 0.49KHz",
                                "FREQ 40.000001GHz", "FREQ 41",
                                "FREQ 0.00",         "FREQ -1GHz",
                                "FREQ 1e300GHz",     "FREQ nan",
                                "FREQ infGHz",       "FREQ fast",
                                "FREQ 100Hz",        "FREQ 1THz",
                                "FREQ 1GHz2",        "OFFS 100.01",
                                "OFFS -100.01",      "OFFS nan",
                                "OFFS dB",           "AVER:COUN 0",
                                "AVER:COUN 1025",    "AVER:COUN -4",
                                "AVER:COUN 1.5",     "AVER:COUN 99999999999",
                                "REL MAYBE",         "UNIT:POW dB",
                                "UNIT:POW mW"})
        QTest::newRow(command) << QByteArray(command);
}

void TestInstrument::refusalChangesNothing()
{
    QFETCH(QByteArray, command);
    Instrument instrument = steadyInstrument();
    CommandInterpreter interpreter(instrument);
    const auto state = [&interpreter] {
        QList<QByteArray> lines;
        for (const char *query : {"FREQ?", "OFFS?", "AVER:COUN?", "REL?", "UNIT:POW?"})
            lines.append(interpreter.execute(query).line);
        return lines;
    };
    const QList<QByteArray> before = state();
    const QByteArray reply = interpreter.execute(command).line;
    QVERIFY2(reply.startsWith("RETURN:ERR -"), reply.constData());
    QVERIFY2(!reply.contains("OK"), reply.constData());
    QCOMPARE(state(), before);

    Quirks refusing;
    refusing.refuseSettings = true;
    QVERIFY(!interpreter.execute("FREQ 1GHz", refusing).line.contains("OK"));
    QCOMPARE(state(), before);
}

void TestInstrument::onlyNumericFrequency()
{
    Instrument instrument = steadyInstrument();
    CommandInterpreter interpreter(instrument);
    Quirks quirks;
    quirks.numericFrequencyOnly = true;
    QVERIFY(!interpreter.execute("FREQ 2450MHz", quirks).line.contains("OK"));
    QCOMPARE(interpreter.execute("FREQ?", quirks).line, QByteArray("RETURN:FREQ 50MHz"));
    QCOMPARE(interpreter.execute("FREQ 2.45", quirks).line, QByteArray("RETURN:OK"));
    QCOMPARE(interpreter.execute("FREQ?", quirks).line, QByteArray("RETURN:FREQ 2.45GHz"));
}

void TestInstrument::operations()
{
    Instrument instrument = steadyInstrument();
    CommandInterpreter interpreter(instrument);
    const Answer zeroing = interpreter.execute("CAL:ZERO");
    QVERIFY(zeroing.operation == Operation::Zeroing && zeroing.line.isEmpty());
    const Answer calibration = interpreter.execute("CAL");
    QVERIFY(calibration.operation == Operation::Calibration && calibration.line.isEmpty());

    const auto result = &CommandInterpreter::result;
    QCOMPARE(result(Operation::Zeroing, true), QByteArray("RETURN:CAL:ZERO:OK"));
    QCOMPARE(result(Operation::Zeroing, false), QByteArray("RETURN:CAL:ZERO:FAIL"));
    QCOMPARE(result(Operation::Calibration, true), QByteArray("RETURN:CAL:OK"));
    QCOMPARE(result(Operation::Calibration, false), QByteArray("RETURN:CAL:FAIL"));
}

void TestInstrument::watts_data()
{
    QTest::addColumn<double>("dBm");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("picowatts") << -70.0 << QByteArray("100.00pW");
    QTest::newRow("less than the smallest prefix") << -160.0 << QByteArray("0.00pW");
    QTest::newRow("nanowatts") << -50.0 << QByteArray("10.00nW");
    QTest::newRow("microwatts") << -20.0 << QByteArray("10.00uW");
    QTest::newRow("999.99 of one prefix") << -0.0000435 << QByteArray("999.99uW");
    QTest::newRow("what would round to 1000.00") << -0.00001 << QByteArray("1.00mW");
    QTest::newRow("milliwatts") << 0.0 << QByteArray("1.00mW");
    QTest::newRow("watts") << 33.0 << QByteArray("2.00W");
    QTest::newRow("beyond the largest prefix") << 70.0 << QByteArray("10000.00W");
}

void TestInstrument::watts()
{
    QFETCH(double, dBm);
    QTEST(wattText(dBm, false), "text");
}

void TestInstrument::microSign()
{
    Instrument instrument = steadyInstrument(true);
    instrument.setPowerUnit(PowerUnit::Watt);
    QCOMPARE(QString::fromUtf8(instrument.measure()), QStringLiteral("-20.00dBm,10.00\u00b5W"));
    instrument.setOffset(20.0);
    QCOMPARE(instrument.measure(), QByteArray("0.00dBm,1.00mW"));
}

void TestInstrument::sourceRepeatsForASeed()
{
    const auto readings = [](quint32 seed) {
        PowerSource source(-20.0, 0.1, seed);
        QList<double> list;
        for (int i = 0; i < 1000; ++i)
            list.append(source.read(1));
        return list;
    };
    const QList<double> list = readings(5);
    QCOMPARE(readings(5), list);
    QVERIFY(readings(6) != list);
    // Four deviations of drift and six of noise: nothing jumps off the bench.
    for (const double reading : list)
        QVERIFY(std::abs(reading + 20.0) < 1.0);
}

void TestInstrument::noiseShrinksWithAveraging()
{
    // Two independent readings differ by the square root of two deviations.
    const double single = jitter(1);
    QVERIFY(std::abs(single - std::sqrt(2.0)) < 0.1);
    QVERIFY(std::abs(single / jitter(16) - 4.0) < 0.4);
    QVERIFY(single / jitter(1024) > 16.0);
}

void TestInstrument::linesFromPieces()
{
    LineSplitter splitter;
    QVERIFY(splitter.feed("GE").isEmpty());
    QCOMPARE(splitter.feed("T?\n\nFREQ?\r\nOFF"), QList<QByteArray>({"GET?", "", "FREQ?\r"}));
    splitter.clear();
    QCOMPARE(splitter.feed("REL?\n"), QList<QByteArray>{"REL?"});
    QCOMPARE(splitter.feed(QByteArray(4096, 'x') + '\n').size(), 1);
    QVERIFY(splitter.feed(QByteArray(4097, 'x') + '\n').isEmpty());
    QCOMPARE(splitter.feed("GET?\n"), QList<QByteArray>{"GET?"});
}

MZ_TEST_GUILESS_MAIN(TestInstrument)
#include "tst_instrument.moc"
