#include "faultinjector.h"
#include "options.h"
#include "testmain.h"

using namespace sim;

namespace {

QList<Fault> faultsFrom(const QStringList &texts)
{
    QList<Fault> faults;
    QString error;
    for (const QString &text : texts) {
        const auto fault = parseFault(text, &error);
        if (!fault)
            qFatal("%s", qPrintable(error));
        faults.append(*fault);
    }
    return faults;
}

QStringList words(const QByteArray &line)
{
    return QString::fromLatin1(line).split(QLatin1Char(' '));
}

QByteArray joined(const QList<Step> &steps)
{
    QByteArray bytes;
    for (const Step &step : steps)
        bytes += step.bytes;
    return bytes;
}

CommandLine commandLine(const QStringList &arguments)
{
    return parseCommandLine(words("mz6218-sim") + arguments);
}

} // namespace

class TestFaults : public QObject
{
    Q_OBJECT

private slots:
    void befalling_data();
    void befalling();
    void probability();
    void countedEachForItself();
    void delivery_data();
    void delivery();
    void garbageHidesNothing();
    void piecesCutCharacters();
    void repeatsForASeed();
    void badOptions_data();
    void badOptions();
    void goodOptions();
};

void TestFaults::befalling_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QList<int>>("positions");

    const auto row = [](const char *name, const char *fault, const QList<int> &positions) {
        QTest::newRow(name) << QString::fromLatin1(fault) << positions;
    };
    // The talk is: 0 *IDN?, 1 FREQ 1GHz, 2 FREQ?, 3 GET?, 4 FREQ 2, 5 GET?, 6 CAL, 7 GET?, 8
    // CAL:ZERO, 9 GET?, 10 UNIT:POW W, 11 GET?
    row("each third", "no-reply,every=3", {2, 5, 8, 11});
    row("a setting and not its query", "no-reply,only=FREQ", {1, 4});
    row("a query and not its setting", "no-reply,only=freq?", {2});
    row("the fourth reading, once", "drop-inside,only=GET?,after=3,times=1", {9});
    row("every other reading, twice at most", "garbage,every=2,times=2,only=GET?", {5, 9});
    row("refusals count settings alone", "refuse,every=2", {4});
    row("every setting refused", "refuse", {1, 4, 10});
    row("a number in GHz is always known", "numeric-frequency", {1});
    row("calibration and zeroing fail", "cal-fail", {6, 8});
    row("zeroing alone is silent", "cal-silent,only=CAL:ZERO", {8});
    row("never", "no-reply,p=0", {});
    row("always", "no-reply,p=1,only=CAL", {6});
}

void TestFaults::befalling()
{
    QFETCH(QString, fault);
    const QList<QByteArray> talk{"*IDN?", "FREQ 1GHz", "FREQ?",    "GET?", "FREQ 2",     "GET?",
                                 "CAL",   "GET?",      "CAL:ZERO", "GET?", "UNIT:POW W", "GET?"};
    FaultInjector injector(faultsFrom({fault}), 1);
    QList<int> positions;
    for (int i = 0; i < talk.size(); ++i) {
        if (!injector.befalling(talk.at(i)).isEmpty())
            positions.append(i);
    }
    QTEST(positions, "positions");
}

void TestFaults::probability()
{
    FaultInjector injector(faultsFrom(words("no-reply,p=0.25")), 3);
    int count = 0;
    for (int i = 0; i < 4000; ++i)
        count += injector.befalling("GET?").size();
    QVERIFY2(count > 900 && count < 1100, QByteArray::number(count).constData());
}

void TestFaults::countedEachForItself()
{
    FaultInjector injector(faultsFrom(words("late:10,every=2 garbage,every=3 late:5,only=GET?")),
                           1);
    QList<int> counts;
    for (int i = 0; i < 6; ++i)
        counts.append(injector.befalling("GET?").size());
    QCOMPARE(counts, QList<int>({1, 2, 2, 2, 1, 3}));
}

void TestFaults::delivery_data()
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
    row("refuse", "RETURN:OK\n", false, 0); // it changes the reply elsewhere
    row("late:800 late:50 no-newline", "RETURN:OK", false, 850);
    row("two-lines no-newline", "RETURN:OK\nRETURN:OK", false, 0);
    row("drop-after no-reply late:7", "", true, 7);
}

void TestFaults::delivery()
{
    QFETCH(bool, dropped);
    FaultInjector injector({}, 1);
    const QList<Step> steps =
        injector.delivery("RETURN:OK", faultsFrom(words(QTest::currentDataTag())));
    QTEST(joined(steps), "bytes");
    QCOMPARE(!steps.isEmpty() && steps.last().drop, dropped);
    QTEST(steps.isEmpty() ? 0 : steps.first().delay, "delay");
}

void TestFaults::garbageHidesNothing()
{
    FaultInjector injector({}, 1);
    const QByteArray reply = "RETURN:GET -20.00dBm,10.00uW";
    const QList<Fault> faults = faultsFrom(words("garbage:20"));
    for (int i = 0; i < 500; ++i) {
        const QByteArray bytes = joined(injector.delivery(reply, faults));
        QCOMPARE(bytes.size(), reply.size() + 21);
        QVERIFY(bytes.contains('\0'));
        QCOMPARE(bytes.count('\n'), 1);
        int found = 0;
        for (const char byte : bytes)
            found += found < reply.size() && byte == reply.at(found) ? 1 : 0;
        QCOMPARE(found, reply.size());
    }
}

void TestFaults::piecesCutCharacters()
{
    FaultInjector injector({}, 1);
    const QByteArray reply = "RETURN:GET -20.00dBm,10.00\xc2\xb5W";
    const QList<Fault> faults = faultsFrom(words("pieces:30 late:9"));
    for (int i = 0; i < 500; ++i) {
        const QList<Step> steps = injector.delivery(reply, faults);
        QCOMPARE(joined(steps), reply + '\n');
        QVERIFY(steps.size() >= 2 && steps.size() <= 5);
        bool cutInside = false;
        for (int j = 0; j < steps.size(); ++j) {
            QVERIFY(!steps.at(j).bytes.isEmpty());
            QCOMPARE(steps.at(j).delay, j == 0 ? 9 : 30);
            cutInside = cutInside || steps.at(j).bytes.startsWith('\xb5');
        }
        QVERIFY(cutInside);
    }
}

void TestFaults::repeatsForASeed()
{
    const auto mishaps = [](quint32 seed) {
        FaultInjector injector(faultsFrom(words("garbage:4,p=0.5 pieces,p=0.3")), seed);
        QList<QByteArray> list;
        for (int i = 0; i < 100; ++i) {
            for (const Step &step : injector.delivery("RETURN:OK", injector.befalling("GET?")))
                list.append(step.bytes);
        }
        return list;
    };
    QCOMPARE(mishaps(9), mishaps(9));
    QVERIFY(mishaps(9) != mishaps(10));
}

void TestFaults::badOptions_data()
{
    QTest::addColumn<QStringList>("arguments");
    const QByteArray lines =
        "--nonsense|stray|--port|--port -1|--port 65536|--port 80.5|--level nan|--noise -1|"
        "--seed 1.5|--seed 4294967296|--listen nowhere|--trace=yes|--calibration-time -1|"
        "--calibration-time soon|--fault|--fault ";
    for (const QByteArray &line : lines.split('|'))
        QTest::newRow(line.constData()) << words(line);
    const QByteArray faults =
        "nonsense|late|late:|late:-5|late:soon|late:99999999999|no-reply:5|pieces:0|no-reply,|"
        "no-reply,every=0|no-reply,times=0|no-reply,after=-1|no-reply,p=1.5|no-reply,p=nan|"
        "no-reply,only=GETT?|no-reply,only|no-reply,sometimes=3";
    for (const QByteArray &fault : faults.split('|'))
        QTest::newRow(fault.constData()) << words("--fault refuse --fault " + fault);
}

void TestFaults::badOptions()
{
    QFETCH(QStringList, arguments);
    const CommandLine line = commandLine(arguments);
    QVERIFY(line.action == CommandLine::Action::PrintAndFail);
    QVERIFY(!line.text.startsWith(QLatin1Char('\n')));
    QVERIFY(line.text.contains(QLatin1String("Usage: ")));
    QVERIFY(line.text.contains(QLatin1String("drop-inside")));
}

void TestFaults::goodOptions()
{
    const CommandLine line = commandLine(words(
        "--listen ::1 --port 0 --serial --level -33.5 --noise=0 --seed 4294967295 "
        "--calibration-time 0.25 --fault pieces,only=AVER:COUN?,p=0.5 --fault late:800,after=2"));
    QVERIFY2(line.action == CommandLine::Action::Run, qPrintable(line.text));
    const Options &options = line.options;
    QCOMPARE(options.address, QHostAddress(QHostAddress::LocalHostIPv6));
    QCOMPARE(options.port, quint16(0));
    QVERIFY(options.serial && !options.trace);
    QCOMPARE(options.level, -33.5);
    QCOMPARE(options.noise, 0.0);
    QCOMPARE(options.seed, 4294967295U);
    QCOMPARE(options.operationTime, 250);
    QCOMPARE(options.faults.size(), 2);
    QCOMPARE(options.faults.first().amount, 20);
    QCOMPARE(options.faults.first().only, QByteArray("AVER:COUN?"));
    QCOMPARE(options.faults.last().amount, 800);
    QCOMPARE(options.faults.last().after, 2);
    QCOMPARE(commandLine({}).options.port, quint16(5001));
}

MZ_TEST_GUILESS_MAIN(TestFaults)
#include "tst_faults.moc"
