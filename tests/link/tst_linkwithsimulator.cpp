#include "linkbench.h"
#include "simulatorprocess.h"
#include "testmain.h"

#include <QtTest>

#include <functional>

namespace {

using Action = std::function<void(SerialLogic &)>;

constexpr int serial = 0;
constexpr int tcp = 1;

const Action queryUnit = &SerialLogic::queryPowerUnit;
const Action readPower = &SerialLogic::readMesureData;

Action setUnit(const char *unit)
{
    return [unit](SerialLogic &link) { link.setPowerUnit(text(unit)); };
}

Action setFrequency(const char *value, const char *unit)
{
    return [=](SerialLogic &link) { link.setFrequency(text(value), text(unit)); };
}

} // namespace

Q_DECLARE_METATYPE(QList<Action>)

/// The link against an instrument that was written without it: both must mean the same by each
/// line.
class TestLinkWithSimulator : public QObject
{
    Q_OBJECT

private slots:
    void session_data();
    void session();
    void identity();
    void task_data();
    void task();
    void droppedLine_data();
    void droppedLine();
};

void TestLinkWithSimulator::session_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QStringList>("faults");
    QTest::addColumn<QList<Action>>("actions");
    QTest::addColumn<QStringList>("values");

    for (const int mode : {serial, tcp}) {
        newRow(mode, "settings are read back")
            << QStringList()
            << QList<Action>{setFrequency("2.45", "GHz"),
                             [](SerialLogic &link) { link.setOffset(-1.5); },
                             [](SerialLogic &link) { link.setAverageCount(16); },
                             [](SerialLogic &link) { link.setMeasureState(text("ON")); },
                             [](SerialLogic &link) { link.setMeasureState(text("OFF")); },
                             setUnit("W"),
                             readPower}
            << QStringList{text("frequency 2.45 'GHz'"), text("offset -1.5"), text("count 16"),
                           text("state 'ON'"),           text("state 'OFF'"), text("unit 'W'"),
                           text("power -21.5 '7.08µW'")};
        newRow(mode, "instrument that knows numbers in GHz only")
            << QStringList{text("numeric-frequency")} << QList<Action>{setFrequency("2450", "MHz")}
            << QStringList{text("frequency 2.45 'GHz'")};
        newRow(mode, "refused setting")
            << QStringList{text("refuse")} << QList<Action>{setUnit("W"), queryUnit}
            << QStringList{text("unit 'dBm'")};
        newRow(mode, "replies in pieces, cut inside the micro sign")
            << QStringList{text("pieces")} << QList<Action>{setUnit("W"), readPower}
            << QStringList{text("unit 'W'"), text("power -20 '10.00µW'")};
        newRow(mode, "replies that come twice")
            << QStringList{text("two-lines")} << QList<Action>{setUnit("W"), readPower, queryUnit}
            << QStringList{text("unit 'W'"), text("power -20 '10.00µW'"), text("unit 'W'")};
        newRow(mode, "reply later than a felt wait")
            << QStringList{text("late:400")} << QList<Action>{readPower}
            << QStringList{text("power -20 '-20.00dBm'")};
    }
}

void TestLinkWithSimulator::session()
{
    QFETCH(int, mode);
    QFETCH(QStringList, faults);
    QFETCH(QList<Action>, actions);
    QStringList options{text("--noise"), text("0"), text("--micro-sign")};
    for (const QString &fault : faults)
        options << text("--fault") << fault;
    SimulatorProcess simulator;
    QVERIFY2(simulator.start(options << text("--serial")), qPrintable(simulator.errorText()));

    RecordedLink bench(mode);
    const bool opened = mode == serial ? bench.link.openPort(simulator.serialPath(), 115200)
                                       : bench.link.openPort(simulator.address(), simulator.port());
    QVERIFY(opened);
    for (const Action &action : actions)
        action(bench.link);
    QTEST(bench.values, "values");
    QCOMPARE(bench.errors, QStringList());
}

void TestLinkWithSimulator::identity()
{
    SimulatorProcess simulator;
    QVERIFY2(simulator.start(), qPrintable(simulator.errorText()));
    RecordedLink bench(tcp);
    QVERIFY(bench.link.openPort(simulator.address(), simulator.port()));
    bench.link.queryIDN();
    QCOMPARE(bench.values.size(), 1);
    QVERIFY2(bench.values.first().contains(text("MZ6218")), qPrintable(bench.values.first()));
    QVERIFY2(!bench.values.first().contains(text("RETURN")), qPrintable(bench.values.first()));
}

void TestLinkWithSimulator::task_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QStringList>("values");
    QTest::newRow("done") << text("pieces:5") << QStringList{text("zeroed"), text("calibrated")};
    QTest::newRow("failed") << text("cal-fail")
                            << QStringList{text("not zeroed"), text("not calibrated")};
}

void TestLinkWithSimulator::task()
{
    QFETCH(QString, fault);
    SimulatorProcess simulator;
    QVERIFY2(simulator.start({text("--calibration-time"), text("0.1"), text("--fault"), fault}),
             qPrintable(simulator.errorText()));
    RecordedLink bench(tcp);
    QVERIFY(bench.link.openPort(simulator.address(), simulator.port()));
    bench.link.setZero();
    QTRY_VERIFY(!bench.link.awaitsResult());
    bench.link.calibrate();
    QTRY_VERIFY(!bench.link.awaitsResult());
    QTEST(bench.values, "values");
}

void TestLinkWithSimulator::droppedLine_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("firstValue");
    QTest::newRow("before the reply") << text("drop-before,times=1") << text("unit ''");
    QTest::newRow("inside the reply") << text("drop-inside,times=1") << text("unit ''");
    QTest::newRow("after the reply") << text("drop-after,times=1") << text("unit 'dBm'");
}

void TestLinkWithSimulator::droppedLine()
{
    QFETCH(QString, fault);
    QFETCH(QString, firstValue);
    SimulatorProcess simulator;
    QVERIFY2(simulator.start({text("--fault"), fault}), qPrintable(simulator.errorText()));
    RecordedLink bench(tcp);
    QVERIFY(bench.link.openPort(simulator.address(), simulator.port()));
    bench.link.queryPowerUnit();
    QTRY_VERIFY(!bench.isUp());
    bench.link.queryPowerUnit();
    QCOMPARE(bench.errors, QStringList{text("Please connect first.")});

    QVERIFY(bench.link.openPort(simulator.address(), simulator.port()));
    bench.link.queryPowerUnit();
    QCOMPARE(bench.values, (QStringList{firstValue, text("unit 'dBm'")}));
    QCOMPARE(bench.errors.size(), 1);
}

MZ_TEST_GUILESS_MAIN(TestLinkWithSimulator)

#include "tst_linkwithsimulator.moc"
