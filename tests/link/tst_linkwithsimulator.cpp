#include "linkbench.h"
#include "simulatorprocess.h"
#include "testmain.h"

#include <QtTest>

Q_DECLARE_METATYPE(QList<Action>)

/// The link against an instrument that was written without it: both must mean the same by each
/// line.
class TestLinkWithSimulator : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data() { addBothRoads(); }
    void session_data();
    void session();
};

void TestLinkWithSimulator::session_data()
{
    using Link = SerialLogic;
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QList<Action>>("actions");
    QTest::addColumn<QString>("told");
    const auto row = [](const char *name, const char *fault, const QList<Action> &actions,
                        const char *told) {
        QTest::newRow(name) << text(fault) << actions << text(told);
    };
    const Action setWatts = call(&Link::setPowerUnit, text("W"));
    const Action setFrequency =
        call(qOverload<QString, QString>(&Link::setFrequency), text("2450"), text("MHz"));
    const Action readPower = &Link::readMesureData;

    row("settings are read back", "no-reply,p=0",
        {setFrequency, call(&Link::setOffset, -1.5), call(&Link::setAverageCount, 16),
         call(&Link::setMeasureState, text("ON")), call(&Link::setMeasureState, text("OFF")),
         setWatts, readPower},
        "frequency 2450 'MHz', offset -1.5, count 16, state 'ON', state 'OFF', unit 'W', "
        "power -21.5 '7.08µW'");
    row("instrument that knows numbers in GHz only", "numeric-frequency", {setFrequency},
        "frequency 2.45 'GHz'");
    row("refused setting", "refuse", {setWatts, &Link::queryPowerUnit}, "unit 'dBm'");
    row("replies in pieces, cut inside the micro sign", "pieces", {setWatts, readPower},
        "unit 'W', power -20 '10.00µW'");
    row("replies that come twice", "two-lines", {setWatts, readPower, &Link::queryPowerUnit},
        "unit 'W', power -20 '10.00µW', unit 'W'");
    row("reply later than a felt wait", "late:400", {readPower}, "power -20 '-20.00dBm'");
    row("identity and tasks", "pieces:5", {&Link::queryIDN, &Link::setZero, &Link::calibrate},
        "identity 'MZ6218,SIM000001," MZ_VERSION "', zeroed, calibrated");
    row("failed tasks", "cal-fail", {&Link::setZero, &Link::calibrate},
        "not zeroed, not calibrated");
}

void TestLinkWithSimulator::session()
{
    QFETCH_GLOBAL(int, mode);
    QFETCH(QString, fault);
    QFETCH(QList<Action>, actions);
    const QString options =
        text("--noise 0 --micro-sign --serial --calibration-time 0.1 --fault ") + fault;
    SimulatorProcess simulator;
    QVERIFY2(simulator.start(options.split(QLatin1Char(' '))), qPrintable(simulator.errorText()));

    RecordedLink bench(mode);
    const bool opened = mode == serial ? bench.link.openPort(simulator.serialPath(), 115200)
                                       : bench.link.openPort(simulator.address(), simulator.port());
    QVERIFY(opened);
    for (const Action &action : actions) {
        action(bench.link);
        QTRY_VERIFY(!bench.link.awaitsResult());
    }
    QTEST(bench.told(), "told");
    QCOMPARE(bench.errors, QStringList());
}

MZ_TEST_GUILESS_MAIN(TestLinkWithSimulator)

#include "tst_linkwithsimulator.moc"
