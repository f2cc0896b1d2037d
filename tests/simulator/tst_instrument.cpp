#include "commandinterpreter.h"
#include "instrument.h"
#include "linesplitter.h"
#include "powertext.h"
#include "testmain.h"

#include <cmath>

using namespace sim;

namespace {

Instrument steadyInstrument(bool microSign = false)
{
    return Instrument([] { return Input{-20.0}; }, PowerSource(0.0, 1), 7, microSign);
}

/// The standard deviation of what \a count successive readings differ by.
double jitter(int averageCount)
{
    constexpr int count = 2000;
    PowerSource source(1.0, 42);
    double last = source.read(-20.0, averageCount);
    double sum = 0.0;
    for (int i = 0; i < count; ++i) {
        const double next = source.read(-20.0, averageCount);
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
    void watts();
    void microSign();
    void sourceRepeatsForASeed();
    void noiseShrinksWithAveraging();
    void linesFromPieces();
};

void TestInstrument::talk_data()
{
    QTest::addColumn<QByteArray>("talk"); // "command > what follows RETURN: in the reply | ..."
    const auto row = [](const char *name, const char *talk) {
        QTest::newRow(name) << QByteArray(talk);
    };
    row("identity", "*IDN? > IDN MZ6218,SIM000007," MZ_VERSION);
    row("state after power-on", "FREQ? > FREQ 50MHz | AVER:COUN? > AVER:COUN 1 | REL? > REL OFF | "
                                "OFFS? > OFFS 0.00dB | UNIT:POW? > UNIT:POW dBm");
    row("frequency keeps its unit", "FREQ 2450MHz > OK | FREQ? > FREQ 2450MHz | "
                                    "FREQ 1500KHz > OK | FREQ? > FREQ 1500KHz");
    row("a frequency without unit is in GHz", "FREQ 2.45 > OK | FREQ? > FREQ 2.45GHz | "
                                              "FREQ 3.00 > OK | FREQ? > FREQ 3GHz");
    row("both ends of the frequency range, to the kHz",
        "FREQ 1KHz > OK | FREQ 0.000001GHz > OK | FREQ? > FREQ 0.000001GHz | "
        "FREQ 40GHz > OK | FREQ 40000000KHz > OK | FREQ? > FREQ 40000000KHz");
    row("the offset shifts the reading",
        "OFFS 3.50 > OK | OFFS? > OFFS 3.50dB | GET? > GET -16.50dBm,-16.50dBm");
    row("the unit is that of the second field alone",
        "UNIT:POW W > OK | UNIT:POW? > UNIT:POW W | GET? > GET -20.00dBm,10.00uW | "
        "UNIT:POW dBm > OK | UNIT:POW? > UNIT:POW dBm | GET? > GET -20.00dBm,-20.00dBm");
    row("relative to the power at ON, anew at each ON",
        "REL ON > OK | REL? > REL ON | GET? > GET -20.00dBm,0.00dB | "
        "OFFS -2.00 > OK | GET? > GET -22.00dBm,-2.00dB | REL ON > OK | GET? > GET "
        "-22.00dBm,0.00dB | "
        "REL OFF > OK | GET? > GET -22.00dBm,-22.00dBm");
    row("case, blanks and a carriage return do not matter",
        " freq   2.45 ghz \r > OK | Freq?\r > FREQ 2.45GHz");
    row("what it does not know",
        "READ? > ERR -113,Undefined header | "
        "FREQ > ERR -109,Missing parameter | GET? 1 > ERR -108,Parameter not allowed | "
        "CAL > | \r >");
}

void TestInstrument::talk()
{
    QFETCH(QByteArray, talk);
    Instrument instrument = steadyInstrument();
    CommandInterpreter interpreter(instrument);
    for (const QString &turn : QString::fromLatin1(talk).split(QLatin1String(" | "))) {
        const QStringList sides = turn.split(QLatin1String(" >"));
        QString reply = sides.last();
        if (!reply.isEmpty())
            reply.replace(0, 1, QLatin1String("RETURN:"));
        QCOMPARE(interpreter.execute(sides.first().toLatin1()).line, reply.toLatin1());
    }
}

void TestInstrument::refusalChangesNothing_data()
{
    QTest::addColumn<QByteArray>("command");
    const QByteArray commands =
        "FREQ 0.0009MHz|FREQ 0.49KHz|FREQ 40.000001GHz|FREQ 41|FREQ 0.00|FREQ -1GHz|FREQ 1e300GHz|"
        "FREQ nan|FREQ infGHz|FREQ 100Hz|FREQ 1GHz2|OFFS 100.01|OFFS -100.01|OFFS nan|OFFS dB|"
        "AVER:COUN 0|AVER:COUN 1025|AVER:COUN 1.5|AVER:COUN 99999999999|REL MAYBE|UNIT:POW mW";
    for (const QByteArray &command : commands.split('|'))
        QTest::newRow(command.constData()) << command;
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

void TestInstrument::watts()
{
    QCOMPARE(wattText(-160, false), QByteArray("0.00pW"));
    QCOMPARE(wattText(-70, false), QByteArray("100.00pW"));
    QCOMPARE(wattText(-50, false), QByteArray("10.00nW"));
    QCOMPARE(wattText(-0.0000435, false), QByteArray("999.99uW"));
    QCOMPARE(wattText(-0.00001, false), QByteArray("1.00mW")); // not 1000.00uW
    QCOMPARE(wattText(33, false), QByteArray("2.00W"));
    QCOMPARE(wattText(70, false), QByteArray("10000.00W"));
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
        PowerSource source(0.1, seed);
        QList<double> list;
        for (int i = 0; i < 1000; ++i)
            list.append(source.read(-20.0, 1));
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
