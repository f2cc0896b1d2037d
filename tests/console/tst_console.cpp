#include "consoletester.h"
#include "simulatorprocess.h"
#include "testmain.h"

#include <QAction>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QRadioButton>
#include <QTimer>

#include <functional>

namespace {

using Deed = std::function<void(const ConsoleTester &)>;

QStringList lines(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char('|'), Qt::SkipEmptyParts);
}

void press(const ConsoleTester &console, const char *box, Qt::Key key)
{
    QTest::keyClick(console.find<QWidget>(box), key);
}

void setFrequency(const ConsoleTester &console, const char *unit, double value)
{
    console.find<QComboBox>("comboBoxUnit")->setCurrentText(QLatin1String(unit));
    console.find<QDoubleSpinBox>("doubleSpinBoxFreq")->setValue(value);
}

} // namespace

Q_DECLARE_METATYPE(Deed)

namespace {

void addRow(const char *name, const Deed &deed, const char *wire, const Deed &check,
            const char *fault = "")
{
    QTest::newRow(name) << QString::fromLatin1(fault) << deed << lines(wire) << check;
}

void addFrequencyRows()
{
    const auto shows = [](const char *unit, double value) -> Deed {
        return [unit, value](const ConsoleTester &console) {
            QCOMPARE(console.find<QComboBox>("comboBoxUnit")->currentText(), QLatin1String(unit));
            QCOMPARE(console.find<QDoubleSpinBox>("doubleSpinBoxFreq")->value(), value);
        };
    };
    addRow(
        "frequency in GHz",
        [](const ConsoleTester &console) {
            setFrequency(console, "GHz", 2.45);
            console.click("btnSetFreq");
        },
        "FREQ 2.45GHz|FREQ?", shows("GHz", 2.45));
    addRow(
        "Enter in the frequency box",
        [](const ConsoleTester &console) {
            setFrequency(console, "MHz", 1500.125);
            press(console, "doubleSpinBoxFreq", Qt::Key_Enter);
        },
        "FREQ 1500.125MHz|FREQ?", shows("MHz", 1500.125));
    addRow(
        "whole kHz",
        [](const ConsoleTester &console) {
            setFrequency(console, "KHz", 1500);
            console.click("btnSetFreq");
        },
        "FREQ 1500KHz|FREQ?", shows("KHz", 1500));
    addRow(
        "instrument that knows GHz numbers only",
        [](const ConsoleTester &console) {
            setFrequency(console, "MHz", 2450);
            console.click("btnSetFreq");
        },
        "FREQ 2450MHz|FREQ 2.45|FREQ?", [](const ConsoleTester &) {}, "numeric-frequency");
}

void addNumberRows()
{
    addRow(
        "offset",
        [](const ConsoleTester &console) {
            console.find<QDoubleSpinBox>("doubleSpinBoxOffset")->setValue(-3.5);
            console.click("btnSetOffset");
        },
        "OFFS -3.50|OFFS?",
        [](const ConsoleTester &console) {
            QCOMPARE(console.find<QDoubleSpinBox>("doubleSpinBoxOffset")->value(), -3.5);
        });
    addRow(
        "Return in the offset box",
        [](const ConsoleTester &console) {
            console.find<QDoubleSpinBox>("doubleSpinBoxOffset")->setValue(100);
            press(console, "doubleSpinBoxOffset", Qt::Key_Return);
        },
        "OFFS 100.00|OFFS?", [](const ConsoleTester &) {});
    addRow(
        "average count",
        [](const ConsoleTester &console) {
            console.find<QSpinBox>("spinBoxAverageCount")->setValue(1024);
            console.click("btnSetAverageCount");
        },
        "AVER:COUN 1024|AVER:COUN?",
        [](const ConsoleTester &console) {
            QCOMPARE(console.find<QSpinBox>("spinBoxAverageCount")->value(), 1024);
        });
    addRow(
        "typed count and Return",
        [](const ConsoleTester &console) {
            auto *box = console.find<QSpinBox>("spinBoxAverageCount");
            box->selectAll();
            QTest::keyClicks(box, QStringLiteral("16"));
            press(console, "spinBoxAverageCount", Qt::Key_Return);
        },
        "AVER:COUN 16|AVER:COUN?", [](const ConsoleTester &) {});
    addRow(
        "refused setting is not asked for",
        [](const ConsoleTester &console) {
            console.find<QDoubleSpinBox>("doubleSpinBoxOffset")->setValue(7);
            console.click("btnSetOffset");
            QVERIFY(!console.isRunning("readTimer"));
        },
        "OFFS 7.00", [](const ConsoleTester &) {}, "refuse");
}

void addChoiceRows()
{
    const auto checks = [](const char *button, bool unitEnabled) -> Deed {
        return [button, unitEnabled](const ConsoleTester &console) {
            QVERIFY(console.find<QRadioButton>(button)->isChecked());
            QCOMPARE(console.isEnabled("groupBoxUnit"), unitEnabled);
        };
    };
    addRow(
        "relative on sends twice",
        [](const ConsoleTester &console) { console.click("radioButtonRelativeON"); },
        "REL ON|REL?|REL ON|REL?", checks("radioButtonRelativeON", false));
    addRow(
        "relative update",
        [](const ConsoleTester &console) {
            console.window().updateRelState(QStringLiteral("ON"));
            console.click("radioButtonRelativeON");
        },
        "REL ON|REL?", checks("radioButtonRelativeON", false));
    addRow(
        "relative off",
        [](const ConsoleTester &console) {
            console.window().updateRelState(QStringLiteral("ON"));
            console.click("radioButtonRelativeOFF");
        },
        "REL OFF|REL?", checks("radioButtonRelativeOFF", true));
    addRow(
        "watts", [](const ConsoleTester &console) { console.click("radioButtonW"); },
        "UNIT:POW W|UNIT:POW?", checks("radioButtonW", true));
    addRow(
        "dBm",
        [](const ConsoleTester &console) {
            console.window().updatePowerUnit(QStringLiteral("dbm")); // not dBm: the case counts
            QVERIFY(console.find<QRadioButton>("radioButtonW")->isChecked());
            console.click("radioButtondBm");
        },
        "UNIT:POW dBm|UNIT:POW?", checks("radioButtondBm", true));
}

} // namespace

/// The console measures: it drives a simulated instrument over a real wire.
class TestConsole : public QObject
{
    Q_OBJECT

private slots:
    void init() { ConsoleTester::cleanFolder(); }
    void cleanupTestCase() { ConsoleTester::cleanFolder(); }

    void openingAsksForEverySettingOnce();
    void settingGoesOutOnceAndComesBack_data();
    void settingGoesOutOnceAndComesBack();
    void serialPanelOpensAndCloses();
    void everyWayOfClosingStopsEverything_data();
    void everyWayOfClosingStopsEverything();
    void failedOpenTellsOnce_data();
    void failedOpenTellsOnce();
    void lineCutWhileQueryingEndsTheOpen_data();
    void lineCutWhileQueryingEndsTheOpen();
    void lineCutWhileMeasuringIsToldOnce();
    void connectingElsewhereDropsTheOldLink();
    void chartGetsOnePointASecond();
};

void TestConsole::openingAsksForEverySettingOnce()
{
    SimulatorProcess simulator;
    QVERIFY2(simulator.startOnInstrumentPort(), qPrintable(simulator.errorText()));
    const ConsoleTester console;
    QVERIFY(console.connectTo(simulator));
    QCOMPARE(simulator.commands(), startUpQueries);
    QCOMPARE(console.faultsOfState(true), QStringList());
    QCOMPARE(console.find<QTimer>("readTimer")->interval(), 500);
    QCOMPARE(console.find<QTimer>("saveTimer")->interval(), 60000);
    QVERIFY(console.text("labelIdentity").contains(QStringLiteral("MZ6218")));
    QCOMPARE(console.text("labelPort"), simulator.address() + QStringLiteral("/5001"));
    QCOMPARE(console.text("labelLink"), QStringLiteral("<font color = blue>Connect</font>"));

    QVERIFY(simulator.waitForCommand(QStringLiteral("GET?"), 3));
    QCOMPARE(settingsOf(simulator), startUpQueries);
    QTRY_VERIFY(!console.text("labelShowText").isEmpty());
    const double power = console.text("labelCurrentPower").toDouble();
    QVERIFY2(power > -25.0 && power < -15.0, qPrintable(console.text("labelCurrentPower")));
}

void TestConsole::settingGoesOutOnceAndComesBack_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<Deed>("deed");
    QTest::addColumn<QStringList>("wire");
    QTest::addColumn<Deed>("check");

    addFrequencyRows();
    addNumberRows();
    addChoiceRows();
}

void TestConsole::settingGoesOutOnceAndComesBack()
{
    QFETCH(QString, fault);
    QFETCH(Deed, deed);
    QFETCH(QStringList, wire);
    QFETCH(Deed, check);
    SimulatorProcess simulator;
    QVERIFY(simulator.start(fault.isEmpty() ? QStringList()
                                            : QStringList{QStringLiteral("--fault"), fault}));
    const ConsoleTester console;
    QVERIFY(console.connectTo(simulator));
    deed(console);
    QCOMPARE(settingsOf(simulator), startUpQueries + wire);
    check(console);
    if (fault != QStringLiteral("refuse"))
        QVERIFY(console.isRunning("readTimer"));
}

void TestConsole::serialPanelOpensAndCloses()
{
    SimulatorProcess simulator;
    QVERIFY(simulator.start({QStringLiteral("--serial")}));
    if (simulator.serialPath().isEmpty())
        QSKIP("the simulator has no serial port on this system");
    const ConsoleTester console;
    console.trigger("actionCommunication_by_LAN");
    auto *ports = console.find<QComboBox>("comboBoxCom");
    ports->addItem(simulator.serialPath());
    ports->setCurrentText(simulator.serialPath());

    // The panel's button means the serial port, whatever the mode was.
    console.click("btnOpen");
    QCOMPARE(console.faultsOfState(true), QStringList());
    QVERIFY(!console.isEnabled("btnOpen") && console.isEnabled("btnClose"));
    QCOMPARE(console.text("labelPort"), simulator.serialPath() + QStringLiteral("/115200"));
    QCOMPARE(console.text("labelLink"), QStringLiteral("<font color = blue>Open</font>"));
    QCOMPARE(settingsOf(simulator), startUpQueries);
    QVERIFY(simulator.waitForCommand(QStringLiteral("GET?"), 2));

    console.click("btnClose");
    QCOMPARE(console.faultsOfState(false), QStringList());
    QCOMPARE(console.text("labelLink"), QStringLiteral("<font color = red>Close</font>"));
}

void TestConsole::everyWayOfClosingStopsEverything_data()
{
    QTest::addColumn<Deed>("deed");
    QTest::addColumn<QString>("shown");

    const QString closed = QStringLiteral("<font color = red>Close</font>");
    const auto trigger = [](const char *action) -> Deed {
        return [action](const ConsoleTester &console) { console.trigger(action); };
    };
    QTest::newRow("menu, disconnect")
        << trigger("actionDisconnect") << QStringLiteral("<font color = red>Disconnect</font>");
    QTest::newRow("other mode") << trigger("actionCommunication_by_Serial") << closed;
    QTest::newRow("close slot of the panel") << Deed([](const ConsoleTester &console) {
        QMetaObject::invokeMethod(&console.window(), "on_btnClose_clicked");
    }) << closed;
    QTest::newRow("close slot of the menu") << Deed([](const ConsoleTester &console) {
        QMetaObject::invokeMethod(&console.window(), "on_actionClose_triggered");
    }) << closed;
    QTest::newRow("window closed")
        << Deed([](const ConsoleTester &console) { console.window().close(); }) << closed;
}

void TestConsole::everyWayOfClosingStopsEverything()
{
    QFETCH(Deed, deed);
    QFETCH(QString, shown);
    SimulatorProcess simulator;
    QVERIFY(simulator.start());
    const ConsoleTester console;
    QVERIFY(console.connectTo(simulator));
    QVERIFY(simulator.waitForCommand(QStringLiteral("GET?")));
    deed(console);
    QCOMPARE(console.faultsOfState(false), QStringList());
    QVERIFY(!console.isRunning("firstSaveTimer"));
    QCOMPARE(console.text("labelLink"), shown);

    // Nothing goes on behind the closed link, and the next one works as the first did.
    const int points = console.chartPoints().size();
    console.window().timerOut();
    QCOMPARE(console.chartPoints().size(), points);
    QVERIFY(console.connectTo(simulator));
    QVERIFY(simulator.waitForCommand(QStringLiteral("GET?"), 3));
    QCOMPARE(settingsOf(simulator), startUpQueries + startUpQueries);
}

void TestConsole::failedOpenTellsOnce_data()
{
    QTest::addColumn<bool>("lan");
    QTest::addColumn<QString>("port");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("shown");

    QTest::newRow("no such serial port")
        << false << "/dev/no such port" << 9600 << "Note: Failed to open /dev/no such port"
        << "<font color = red>Close</font>";
    QTest::newRow("no port chosen") << false << "" << 115200 << "Note: Failed to open "
                                    << "<font color = red>Close</font>";
    // Port 1 of the loopback address is refused at once.
    QTest::newRow("nobody listens")
        << true << "127.0.0.1" << 1 << "Note: Failed to connect 127.0.0.1"
        << "<font color = red>Disconnect</font>";
    QTest::newRow("no address") << true << "" << 1 << "Note: Failed to connect "
                                << "<font color = red>Disconnect</font>";
}

void TestConsole::failedOpenTellsOnce()
{
    QFETCH(bool, lan);
    QFETCH(QString, port);
    QFETCH(int, value);
    QFETCH(QString, box);
    QFETCH(QString, shown);
    const ConsoleTester console;
    if (lan)
        console.trigger("actionCommunication_by_LAN");
    QStringList seen;
    const ModalScript script({readBox(seen)});
    QVERIFY(!console.window().openPort(port, value));
    QCOMPARE(seen, QStringList(box));
    QVERIFY(script.isDone());
    QCOMPARE(console.faultsOfState(false), QStringList());
    QCOMPARE(console.text("labelLink"), shown);
    QCOMPARE(console.text("labelPort"), port + QStringLiteral("/%1").arg(value));
}

void TestConsole::lineCutWhileQueryingEndsTheOpen_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<int>("asked");

    QTest::newRow("at the identity") << "drop-before,only=*IDN?" << 1;
    QTest::newRow("in the frequency") << "drop-inside,only=FREQ?" << 2;
    QTest::newRow("after the relative state") << "drop-after,only=REL?" << 4;
    QTest::newRow("at the offset") << "drop-before,only=OFFS?" << 5;
}

void TestConsole::lineCutWhileQueryingEndsTheOpen()
{
    QFETCH(QString, fault);
    QFETCH(int, asked);
    SimulatorProcess simulator;
    QVERIFY(simulator.start({QStringLiteral("--fault"), fault}));
    const ConsoleTester console;
    QStringList seen;
    const ModalScript script({readBox(seen)});
    QVERIFY(!console.connectTo(simulator));
    QCOMPARE(seen, QStringList(QStringLiteral("Note: Please connect first.")));
    QVERIFY(script.isDone());
    QCOMPARE(simulator.commands(), startUpQueries.mid(0, asked));
    QCOMPARE(console.faultsOfState(false), QStringList());
    QCOMPARE(console.text("labelLink"), QStringLiteral("<font color = red>Disconnect</font>"));
}

void TestConsole::lineCutWhileMeasuringIsToldOnce()
{
    SimulatorProcess simulator;
    QVERIFY(simulator.start());
    const ConsoleTester console;
    QVERIFY(console.connectTo(simulator));
    QVERIFY(simulator.waitForCommand(QStringLiteral("GET?")));
    QStringList seen;
    const ModalScript script({readBox(seen)});
    simulator.stop();
    QTRY_COMPARE(seen, QStringList(QStringLiteral("Note: Please connect first.")));
    QTRY_COMPARE(console.faultsOfState(false), QStringList());
    QCOMPARE(console.text("labelLink"), QStringLiteral("<font color = red>Close</font>"));

    // Whoever asks for a reading all the same only stops the poll, and hears nothing.
    console.find<QTimer>("readTimer")->start(0);
    QTRY_VERIFY(!console.isRunning("readTimer"));
    QVERIFY(script.isDone());
}

void TestConsole::connectingElsewhereDropsTheOldLink()
{
    SimulatorProcess first;
    SimulatorProcess second;
    QVERIFY(first.start() && second.start());
    const ConsoleTester console;
    QVERIFY(console.connectTo(first));
    QVERIFY(first.waitForCommand(QStringLiteral("GET?")));
    QVERIFY(console.connectTo(second));
    const int polls = first.commands().count(QStringLiteral("GET?"));
    // Longer than the deferred close of the old link, which must not reach the new one.
    QVERIFY(second.waitForCommand(QStringLiteral("GET?"), 4));
    QCOMPARE(first.commands().count(QStringLiteral("GET?")), polls);
    QCOMPARE(console.faultsOfState(true), QStringList());
}

void TestConsole::chartGetsOnePointASecond()
{
    SimulatorProcess simulator;
    QVERIFY(simulator.start({QStringLiteral("--noise"), QStringLiteral("0")}));
    const ConsoleTester console;
    QVERIFY(console.connectTo(simulator));
    QTRY_VERIFY(!console.text("labelShowText").isEmpty());
    console.find<QTimer>("clockTimer")->stop();
    console.click("btnResetChart");
    for (int second = 0; second < 3; ++second)
        console.window().timerOut();
    const double power = console.text("labelCurrentPower").toDouble();
    const QVector<QPointF> minutes{{0.0, power}, {1.0 / 60.0, power}, {2.0 / 60.0, power}};
    QCOMPARE(console.chartPoints(), minutes);

    console.click("btnResetChart");
    QVERIFY(console.chartPoints().isEmpty());
    console.window().timerOut();
    QCOMPARE(console.chartPoints(), (QVector<QPointF>{{0.0, power}}));

    QVERIFY(console.connectTo(simulator));
    QVERIFY(console.chartPoints().isEmpty());
}

MZ_TEST_MAIN(TestConsole)
#include "tst_console.moc"
