#include "antennapattern.h"
#include "commandinterpreter.h"
#include "faultinjector.h"
#include "instrument.h"
#include "levelscript.h"
#include "linesplitter.h"
#include "options.h"
#include "powertext.h"
#include "replay.h"
#include "rotator.h"
#include "testfiles.h"
#include "testmain.h"

#include <cmath>

using namespace sim;

namespace {

/// A column of texts, one row each, named like them.
void rows(const char *column, const QByteArray &texts)
{
    QTest::addColumn<QByteArray>(column);
    for (const QByteArray &text : texts.split('|'))
        QTest::newRow(text.constData()) << text;
}

QList<Fault> faultsFrom(const QByteArray &texts)
{
    QList<Fault> faults;
    QString error;
    for (const QString &text : words(texts))
        faults.append(parseFault(text, &error).value());
    return faults;
}

QByteArray joined(const QList<Step> &steps)
{
    QByteArray bytes;
    for (const Step &step : steps)
        bytes += step.bytes;
    return bytes;
}

/// A source of a nominal level of -20 dBm, and one that stands still.
Instrument instrumentAt(Input input)
{
    return Instrument([input] { return input; }, PowerSource(0.0, 1), 7, true);
}

/// What successive readings differ by.
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

QString fileWith(const QTemporaryDir &folder, const char *name, const QByteArray &text)
{
    return write(folder.filePath(QLatin1String(name)), text);
}

} // namespace

class TestSimulatorUnits : public QObject
{
    Q_OBJECT

private slots:
    void talk_data()
    {
        // "command > what follows RETURN: in the reply; ..."
        rows("talk",
             "*IDN? > IDN MZ6218,SIM000007," MZ_VERSION "|"
             "FREQ? > FREQ 50MHz; AVER:COUN? > AVER:COUN 1; REL? > REL OFF; OFFS? > OFFS 0.00dB|"
             "FREQ 2450MHz > OK; FREQ? > FREQ 2450MHz; FREQ 1500KHz > OK; FREQ? > FREQ 1500KHz|"
             "FREQ 2.45 > OK; FREQ? > FREQ 2.45GHz; FREQ 3.00 > OK; FREQ? > FREQ 3GHz|"
             "FREQ 1KHz > OK; FREQ 0.000001GHz > OK; FREQ? > FREQ 0.000001GHz|"
             "FREQ 40GHz > OK; FREQ 40000000KHz > OK; FREQ? > FREQ 40000000KHz|"
             "OFFS 3.50 > OK; OFFS? > OFFS 3.50dB; GET? > GET -16.50dBm,-16.50dBm|"
             "UNIT:POW W > OK; UNIT:POW? > UNIT:POW W; GET? > GET -20.00dBm,10.00\xc2\xb5W; "
             "OFFS 20 > OK; GET? > GET 0.00dBm,1.00mW; UNIT:POW dBm > OK; UNIT:POW? > UNIT:POW dBm|"
             "REL ON > OK; REL? > REL ON; GET? > GET -20.00dBm,0.00dB; OFFS -2.00 > OK; "
             "GET? > GET -22.00dBm,-2.00dB; REL ON > OK; GET? > GET -22.00dBm,0.00dB; "
             "REL OFF > OK; GET? > GET -22.00dBm,-22.00dBm|"
             " freq   2.45 ghz \r > OK; Freq?\r > FREQ 2.45GHz|"
             "READ? > ERR -113,Undefined header; FREQ > ERR -109,Missing parameter; "
             "GET? 1 > ERR -108,Parameter not allowed; CAL > ; \r > ");
    }

    void talk()
    {
        QFETCH(QByteArray, talk);
        Instrument instrument = instrumentAt({-20.0});
        CommandInterpreter interpreter(instrument);
        for (const QString &turn : QString::fromUtf8(talk).split(QLatin1String("; "))) {
            const QStringList sides = turn.split(QLatin1String(" > "));
            const QString reply =
                sides.last().isEmpty() ? QString() : QLatin1String("RETURN:") + sides.last();
            QCOMPARE(interpreter.execute(sides.first().toLatin1()).line, reply.toUtf8());
        }
    }

    void refusalChangesNothing_data()
    {
        rows("command",
             "FREQ 0.0009MHz|FREQ 40.000001GHz|FREQ 0.00|FREQ -1GHz|FREQ 1e300GHz|FREQ nan|"
             "FREQ infGHz|FREQ 100Hz|FREQ 1GHz2|FREQ 2,45GHz|OFFS 100.01|OFFS -100.01|OFFS nan|"
             "OFFS dB|AVER:COUN 0|AVER:COUN 1025|AVER:COUN 1.5|AVER:COUN 99999999999|REL MAYBE|"
             "UNIT:POW mW");
    }

    void refusalChangesNothing()
    {
        QFETCH(QByteArray, command);
        Instrument instrument = instrumentAt({-20.0});
        CommandInterpreter interpreter(instrument);
        const auto state = [&interpreter] {
            QByteArray lines;
            for (const char *query : {"FREQ?", "OFFS?", "AVER:COUN?", "REL?", "UNIT:POW?"})
                lines += interpreter.execute(query).line;
            return lines;
        };
        const QByteArray before = state();
        const QByteArray reply = interpreter.execute(command).line;
        QVERIFY2(reply.startsWith("RETURN:ERR -") && !reply.contains("OK"), reply.constData());
        Quirks refusing;
        refusing.refuseSettings = true;
        QVERIFY(!interpreter.execute("FREQ 1GHz", refusing).line.contains("OK"));
        QCOMPARE(state(), before);
    }

    void watts()
    {
        QCOMPARE(wattText(-160, false), QByteArray("0.00pW"));
        QCOMPARE(wattText(-50, false), QByteArray("10.00nW"));
        QCOMPARE(wattText(-0.0000435, false), QByteArray("999.99uW"));
        QCOMPARE(wattText(-0.00001, false), QByteArray("1.00mW")); // not 1000.00uW
        QCOMPARE(wattText(70, false), QByteArray("10000.00W"));
    }

    void source()
    {
        const auto readings = [](quint32 seed) {
            PowerSource source(0.1, seed);
            QList<double> list;
            for (int i = 0; i < 1000; ++i)
                list.append(source.read(-20.0, 1));
            return list;
        };
        QCOMPARE(readings(5), readings(5));
        QVERIFY(readings(6) != readings(5));
        // Four deviations of drift and six of noise: nothing jumps off the bench.
        for (const double reading : readings(5))
            QVERIFY(std::abs(reading + 20.0) < 1.0);
        // Two independent readings differ by the square root of two deviations.
        QVERIFY(std::abs(jitter(1) - std::sqrt(2.0)) < 0.1);
        QVERIFY(std::abs(jitter(1) / jitter(16) - 4.0) < 0.4);
    }

    void linesFromPieces()
    {
        LineSplitter splitter;
        QVERIFY(splitter.feed("GE").isEmpty());
        QCOMPARE(splitter.feed("T?\n\nFREQ?\r\nOFF"), QList<QByteArray>({"GET?", "", "FREQ?\r"}));
        splitter.clear();
        QCOMPARE(splitter.feed(QByteArray(4096, 'x') + '\n').size(), 1);
        QVERIFY(splitter.feed(QByteArray(4097, 'x') + '\n').isEmpty());
        QCOMPARE(splitter.feed("GET?\n"), QList<QByteArray>{"GET?"});
    }

    void befalling_data()
    {
        // "fault > positions in the talk": 0 *IDN?, 1 FREQ 1GHz, 2 FREQ?, 3 GET?, 4 FREQ 2, 5 GET?,
        // 6 CAL, 7 GET?, 8 CAL:ZERO, 9 GET?, 10 UNIT:POW W, 11 GET?
        rows("row", "no-reply,every=3 > 2 5 8 11|no-reply,only=FREQ > 1 4|no-reply,only=freq? > 2|"
                    "drop-inside,only=GET?,after=3,times=1 > 9|"
                    "garbage,every=2,times=2,only=GET? > 5 9|refuse,every=2 > 4|refuse > 1 4 10|"
                    "numeric-frequency > 1|cal-fail > 6 8|cal-silent,only=CAL:ZERO > 8|"
                    "no-reply,p=0 > |no-reply,p=1,only=CAL > 6|"
                    "late:10,every=8 late:5,only=GET?,every=3 > 7 7 ");
    }

    void befalling()
    {
        QFETCH(QByteArray, row);
        const QList<QByteArray> talk{"*IDN?",    "FREQ 1GHz", "FREQ?",      "GET?",
                                     "FREQ 2",   "GET?",      "CAL",        "GET?",
                                     "CAL:ZERO", "GET?",      "UNIT:POW W", "GET?"};
        const int end = row.indexOf(" > ");
        FaultInjector injector(faultsFrom(row.left(end)), 1);
        QByteArray positions;
        for (int i = 0; i < talk.size(); ++i) {
            for (int n = injector.befalling(talk.at(i)).size(); n > 0; --n)
                positions += QByteArray::number(i) + ' ';
        }
        QCOMPARE(positions.trimmed(), row.mid(end + 3).trimmed());
    }

    void delivery_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("dropped");
        QTest::addColumn<int>("delay");
        const auto row = [](const char *faults, const char *bytes, bool dropped, int delay) {
            QTest::newRow(faults) << QByteArray(bytes) << dropped << delay;
        };
        row("no-reply", "", false, 0);
        row("two-lines", "RETURN:OK\nRETURN:OK\n", false, 0);
        row("drop-before", "", true, 0);
        row("drop-inside", "RETUR", true, 0);
        row("drop-after", "RETURN:OK\n", true, 0);
        row("late:800 late:50 no-newline", "RETURN:OK", false, 850);
        row("drop-after no-reply late:7", "", true, 7);
    }

    void delivery()
    {
        QFETCH(bool, dropped);
        FaultInjector injector({}, 1);
        const QList<Step> steps =
            injector.delivery("RETURN:OK", faultsFrom(QTest::currentDataTag()));
        QTEST(joined(steps), "bytes");
        QCOMPARE(!steps.isEmpty() && steps.last().drop, dropped);
        QTEST(steps.isEmpty() ? 0 : steps.first().delay, "delay");
    }

    void randomFaults()
    {
        FaultInjector injector({}, 1);
        const QByteArray reply = "RETURN:GET -20.00dBm,10.00\xc2\xb5W";
        for (int i = 0; i < 300; ++i) {
            // Garbage hides nothing of the reply and holds no newline.
            const QByteArray bytes = joined(injector.delivery(reply, faultsFrom("garbage:20")));
            QCOMPARE(bytes.size(), reply.size() + 21);
            QVERIFY(bytes.contains('\0') && bytes.count('\n') == 1);
            int found = 0;
            for (const char byte : bytes)
                found += found < reply.size() && byte == reply.at(found) ? 1 : 0;
            QCOMPARE(found, reply.size());
            // Pieces cut the micro sign in two.
            const QList<Step> steps = injector.delivery(reply, faultsFrom("pieces:30 late:9"));
            QCOMPARE(joined(steps), reply + '\n');
            QVERIFY(steps.size() >= 2 && steps.size() <= 5);
            QVERIFY(std::any_of(steps.begin(), steps.end(),
                                [](const Step &step) { return step.bytes.startsWith('\xb5'); }));
            QCOMPARE(steps.first().delay + steps.last().delay, 39);
        }
        const auto mishaps = [](quint32 seed) {
            FaultInjector again(faultsFrom("garbage:4,p=0.5 pieces,p=0.3"), seed);
            QByteArray text;
            for (int i = 0; i < 100; ++i) {
                for (const Step &step : again.delivery("RETURN:OK", again.befalling("GET?")))
                    text += step.bytes + '|';
            }
            return text;
        };
        QCOMPARE(mishaps(9), mishaps(9));
        QVERIFY(mishaps(9) != mishaps(10));
    }

    void badOptions_data()
    {
        rows("arguments",
             "--nonsense|stray|--port|--port -1|--port 65536|--port 80.5|--level nan|--level 1,2,3|"
             "--noise -1|--seed 4294967296|--listen nowhere|--trace=yes|--calibration-time soon|"
             "--rotator 70000|--rotator-speed 0|--fault nonsense|--fault late|--fault late:-5|"
             "--fault late:99999999999|--fault no-reply:5|--fault pieces:0|--fault no-reply,|"
             "--fault no-reply,every=0|--fault no-reply,p=nan|--fault no-reply,only=GETT?");
    }

    void badOptions()
    {
        QFETCH(QByteArray, arguments);
        const CommandLine line = parseCommandLine(words("mz6218-sim " + arguments));
        QVERIFY(line.action == CommandLine::Action::PrintAndFail);
        QVERIFY(line.text.contains(QLatin1String("\nUsage: ")));
    }

    void goodOptions()
    {
        const CommandLine line = parseCommandLine(words(
            "mz6218-sim --listen ::1 --port 0 --serial --level -33,5 --noise=0 --seed 4294967295 "
            "--calibration-time 0.25 --rotator 0 --fault late:800,after=2 --fault pieces,p=0.5"));
        QVERIFY2(line.action == CommandLine::Action::Run, qPrintable(line.text));
        const Options &options = line.options;
        QCOMPARE(options.address, QHostAddress(QHostAddress::LocalHostIPv6));
        QCOMPARE(options.port, quint16(0));
        QVERIFY(options.serial && !options.trace && !options.replayTiming);
        QCOMPARE(options.level, -33.5);
        QCOMPARE(options.seed, 4294967295U);
        QCOMPARE(options.operationTime, 250);
        QCOMPARE(options.rotatorPort.value_or(1), quint16(0));
        QCOMPARE(options.rotatorSpeed, 6.0);
        QCOMPARE(options.faults.size(), 2);
        QCOMPARE(options.faults.first().amount, 800);
        QVERIFY(!parseCommandLine(words("mz6218-sim")).options.rotatorPort);
    }

    void antennaPattern_data()
    {
        QTest::addColumn<QVector<QPointF>>("points");
        QTest::addColumn<double>("angle");
        QTest::addColumn<double>("level");
        const QVector<QPointF> circle{{-180, -30}, {0, 0}, {180, -40}};
        const QVector<QPointF> part{{30, -6}, {0, 0}, {-30, -8}};
        QTest::newRow("between two points") << circle << 90.0 << -20.0;
        QTest::newRow("once around") << circle << 405.0 << -10.0;
        QTest::newRow("backwards") << circle << -270.0 << -20.0;
        QTest::newRow("one end") << circle << -180.0 << -30.0;
        QTest::newRow("the other end") << circle << 180.0 << -40.0;
        QTest::newRow("0 to 360") << QVector<QPointF>{{0, 0}, {360, -36}} << -90.0 << -27.0;
        QTest::newRow("shuffled") << part << 345.0 << -4.0;
        QTest::newRow("outside") << part << 31.0 << -8.0;
    }

    void antennaPattern()
    {
        QFETCH(QVector<QPointF>, points);
        QFETCH(double, angle);
        QTEST(AntennaPattern(points).level(angle), "level");
    }

    void badFiles()
    {
        const QTemporaryDir folder;
        QString error;
        for (const char *text : {"", "t\nn\nAngle,Power\n", "t\nn\nA,B\n1,2\n",
                                 "t\nn\nAngle,Power\n0,nan\n", "t\nn\nAngle,Power\n0,1,2\n"})
            QVERIFY2(!AntennaPattern::fromFile(fileWith(folder, "p.csv", text), &error), text);
        QVERIFY(AntennaPattern::fromFile(
            fileWith(folder, "p.csv", "t\r\nn\r\nAngle,Power\r\n0,-1\r\n"), &error));
        for (const char *text : {"level 3", "0 level", "-1 off", "0 level nan", "0 ramp 1 2",
                                 "0 overload 3", "2 off\n1 off", "0 level -1,5"})
            QVERIFY2(!LevelScript::fromText(QLatin1String(text), &error), text);
        QVERIFY(!Replay::fromLog(fileWith(folder, "l.txt", "Debug: hello\n"), &error));
        QVERIFY(!Replay::fromLog(folder.filePath(QStringLiteral("none")), &error));
    }

    void levelScript()
    {
        QString error;
        const auto script = LevelScript::fromText(
            QStringLiteral("# day\n1 level -3\r\n\n2 ramp -10 0 4\n8 overload\n9 off\n"), &error);
        QVERIFY2(script, qPrintable(error));
        const QList<QPair<int, double>> levels{{0, -20},          {999, -20},   {1000, -3},
                                               {2000, -10},       {3000, -7.5}, {7000, 0},
                                               {9500, noiseFloor}};
        for (const auto &level : levels) {
            const Input input = script->at(level.first, {-20.0});
            QCOMPARE(input.level, level.second);
            QVERIFY(!input.overload);
        }
        QVERIFY(script->at(8500, {-20.0}).overload);
    }

    void rotator()
    {
        Rotator rotator(6.0);
        const auto at = [&rotator](int ms, const char *line) { return rotator.answer(line, ms); };
        QCOMPARE(at(0, "p"), QByteArray("0.00\n0.00\n"));
        QCOMPARE(at(0, "P 30 3"), QByteArray("RPRT 0\n"));
        QCOMPARE(at(1000, "p\r"), QByteArray("6.00\n3.00\n"));
        for (const char *line : {"P 451 0", "P -180.1 0", "P nan 0", "P inf 0", "P 1,5 0", "P 5",
                                 "P 0 90.1", "P 0 -0.1"})
            QCOMPARE(at(1000, line), QByteArray("RPRT -1\n"));
        QCOMPARE(at(2000, "S"), QByteArray("RPRT 0\n"));
        QCOMPARE(at(9000, "p"), QByteArray("12.00\n3.00\n"));
        QCOMPARE(at(9000, "K"), QByteArray("RPRT 0\n"));
        QCOMPARE(at(10000, "p"), QByteArray("6.00\n0.00\n"));
        QCOMPARE(at(20000, "p"), QByteArray("0.00\n0.00\n"));
        QVERIFY(at(0, "\\dump_state").contains("min_az=-180.000000\nmax_az=450.000000\n"));
        QVERIFY(at(0, "\\dump_state").endsWith("done\n"));
        QCOMPARE(at(0, "_").count('\n'), 1);
        QCOMPARE(at(0, "q"), QByteArray());
    }

    void replay()
    {
        Replay replay;
        replay.read("Debug: read data: \"early\"(2026-01-31 09:15:01 000)\r\n"
                    "Debug: send cmd: \"GET?\\n\" 5(2026-01-31 09:15:02 000)\r\n"
                    "Debug: read data: \"RETURN\"(2026-01-31 09:15:02 100)\r\n"
                    "Debug: read data: \"RETURN:GET 1,\\\"\xc2\xb5W\\u00b5\\n\"(2026-01-31 "
                    "09:15:02 250)\r\n"
                    "Debug: send cmd: \"CAL\\n\" 4(2026-01-31 09:15:03 000)\r\n"
                    "Warning: something else(2026-01-31 09:15:03 000)\r\n"
                    "Debug: read data async: \"RETURN:CAL:OK\\n\"(2026-01-31 09:15:06 000)\r\n");
        replay.read("Debug: send cmd: \"GET?\\n\" 5(2026-01-31 10:00:00 000)\r\n"
                    "Debug: read data: \"RETU\"(2026-01-31 10:00:00 100)\r\n"
                    "Debug: Read time out(2026-01-31 10:00:05 000)\r\n");
        const auto first = replay.next("GET?\r");
        QVERIFY(first);
        QCOMPARE(first->bytes, QByteArray("RETURN:GET 1,\"\xc2\xb5W\xc2\xb5\n"));
        QCOMPARE(first->delay, 250);
        const auto calibrated = replay.next("CAL");
        QVERIFY(calibrated);
        QCOMPARE(calibrated->bytes, QByteArray("RETURN:CAL:OK\n"));
        QCOMPARE(calibrated->delay, 3000);
        for (int i = 0; i < 2; ++i)
            QCOMPARE(replay.next("GET?").value().bytes, QByteArray());
        QVERIFY(!replay.next("FREQ?"));
    }
};

MZ_GUILESS_TEST(TestSimulatorUnits)
#include "tst_simulatorunits.moc"
