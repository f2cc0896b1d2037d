#include "consoletester.h"
#include "simulatorprocess.h"
#include "testmain.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QRadioButton>
#include <QTimer>

#include <functional>

using Deed = std::function<void(const ConsoleTester &)>;

Q_DECLARE_METATYPE(Deed)

namespace {

Deed clicks(const char *button)
{
    return [button](const ConsoleTester &console) { console.click(button); };
}

Deed triggers(const char *action)
{
    return [action](const ConsoleTester &console) { console.trigger(action); };
}

Deed calls(const char *slot)
{
    return [slot](const ConsoleTester &console) {
        QVERIFY(QMetaObject::invokeMethod(&console.window(), slot));
    };
}

/// Types \a text into \a box and ends with \a key.
Deed types(const char *box, const char *text, Qt::Key key, const char *unit = "MHz")
{
    return [=](const ConsoleTester &console) {
        console.find<QComboBox>("comboBoxUnit")->setCurrentText(QLatin1String(unit));
        auto *widget = console.find<QAbstractSpinBox>(box);
        widget->selectAll();
        QTest::keyClicks(widget, QLatin1String(text));
        QTest::keyClick(widget, key);
    };
}

} // namespace

/// The console measures: it drives a simulated instrument over a real wire.
class TestConsole : public QObject
{
    Q_OBJECT

private slots:
    void init() { ConsoleTester::cleanFolder(); }
    void cleanupTestCase() { ConsoleTester::cleanFolder(); }

    void openingAsksForEverySettingOnce()
    {
        SimulatorProcess simulator;
        QVERIFY2(simulator.startOnInstrumentPort(), qPrintable(simulator.errorText()));
        const ConsoleTester console(simulator);
        QCOMPARE(simulator.commands(), startUpQueries);
        QCOMPARE(console.faultsOfState(true), QStringList());
        QCOMPARE(console.find<QTimer>("readTimer")->interval(), 500);
        QCOMPARE(console.find<QTimer>("saveTimer")->interval(), 60000);
        QVERIFY(console.text("labelIdentity").contains(QStringLiteral("MZ6218")));
        QCOMPARE(console.text("labelPort"), simulator.address() + QStringLiteral("/5001"));
        QCOMPARE(console.text("labelLink"), QStringLiteral("<font color = blue>Connect</font>"));
        QVERIFY(simulator.waitForCommand(QStringLiteral("GET?"), 2));
        QCOMPARE(settingsOf(simulator), startUpQueries);
        QTRY_VERIFY(!console.text("labelShowText").isEmpty());
        QVERIFY(qAbs(console.text("labelCurrentPower").toDouble() + 20.0) < 5.0);
    }

    void settingGoesOutOnceAndComesBack_data()
    {
        QTest::addColumn<Deed>("deed");
        QTest::addColumn<QString>("wire");
        const char *const frequency = "doubleSpinBoxFreq";
        const char *const offset = "doubleSpinBoxOffset";
        QTest::newRow("frequency in GHz")
            << types(frequency, "2.45", Qt::Key_Enter, "GHz") << "FREQ 2.45GHz|FREQ?";
        QTest::newRow("frequency in MHz")
            << types(frequency, "1500.125", Qt::Key_Return) << "FREQ 1500.125MHz|FREQ?";
        QTest::newRow("whole kHz")
            << types(frequency, "1500", Qt::Key_Return, "KHz") << "FREQ 1500KHz|FREQ?";
        QTest::newRow("offset") << types(offset, "-3.5", Qt::Key_Return) << "OFFS -3.50|OFFS?";
        QTest::newRow("largest offset")
            << types(offset, "100", Qt::Key_Enter) << "OFFS 100.00|OFFS?";
        QTest::newRow("average count")
            << types("spinBoxAverageCount", "1024", Qt::Key_Return) << "AVER:COUN 1024|AVER:COUN?";
        QTest::newRow("relative on sends twice")
            << clicks("radioButtonRelativeON") << "REL ON|REL?|REL ON|REL?";
        QTest::newRow("relative update and off") << Deed([](const ConsoleTester &console) {
            console.window().updateRelState(QStringLiteral("ON"));
            QVERIFY(!console.isEnabled("groupBoxUnit"));
            console.click("radioButtonRelativeON");
            console.click("radioButtonRelativeOFF");
            QVERIFY(console.isEnabled("groupBoxUnit"));
        }) << "REL ON|REL?|REL OFF|REL?";
        QTest::newRow("watts and dBm") << Deed([](const ConsoleTester &console) {
            console.click("radioButtonW");
            console.window().updatePowerUnit(QStringLiteral("DBM"));
            QVERIFY(console.find<QRadioButton>("radioButtondBm")->isChecked());
            console.window().updatePowerUnit(QStringLiteral("dbm")); // the case counts
            QVERIFY(console.find<QRadioButton>("radioButtonW")->isChecked());
            console.click("radioButtondBm");
        }) << "UNIT:POW W|UNIT:POW?|UNIT:POW dBm|UNIT:POW?";
    }

    void settingGoesOutOnceAndComesBack()
    {
        QFETCH(Deed, deed);
        QFETCH(QString, wire);
        SimulatorProcess simulator("");
        const ConsoleTester console(simulator);
        deed(console);
        QCOMPARE(settingsOf(simulator), startUpQueries + wire.split(QLatin1Char('|')));
        for (const QWidget *widget : console.window().findChildren<QWidget *>())
            QVERIFY2(!widget->property("unsent").toBool(), qPrintable(widget->objectName()));
        QVERIFY(console.isRunning("readTimer"));
    }

    void serialPanelOpensAndCloses()
    {
        if (!SimulatorProcess::hasSerialPort)
            QSKIP(SimulatorProcess::noSerialPort);
        SimulatorProcess simulator("--serial");
        const ConsoleTester console;
        console.trigger("actionCommunication_by_LAN");
        console.window().timerOut(); // which looks for ports, and leaves the choice alone
        auto *ports = console.find<QComboBox>("comboBoxCom");
        ports->addItem(simulator.serialPath());
        ports->setCurrentText(simulator.serialPath());
        console.window().timerOut();

        // The panel's button means the serial port, whatever the mode was.
        console.click("btnOpen");
        QCOMPARE(console.faultsOfState(true), QStringList());
        QCOMPARE(console.text("labelPort"), simulator.serialPath() + QStringLiteral("/115200"));
        QCOMPARE(console.text("labelLink"), QStringLiteral("<font color = blue>Open</font>"));
        QCOMPARE(settingsOf(simulator), startUpQueries);
        QVERIFY(simulator.waitForCommand(QStringLiteral("GET?"), 1));
        console.click("btnClose");
        QCOMPARE(console.faultsOfState(false), QStringList());
        QCOMPARE(console.text("labelLink"), QStringLiteral("<font color = red>Close</font>"));
    }

    void everyWayOfClosingStopsEverything_data()
    {
        QTest::addColumn<Deed>("deed");
        QTest::addColumn<QString>("shown");
        const QString closed = QStringLiteral("<font color = red>Close</font>");
        QTest::newRow("menu, disconnect") << triggers("actionDisconnect")
                                          << QStringLiteral("<font color = red>Disconnect</font>");
        QTest::newRow("other mode") << triggers("actionCommunication_by_Serial") << closed;
        QTest::newRow("panel") << calls("on_btnClose_clicked") << closed;
        QTest::newRow("menu, close") << calls("on_actionClose_triggered") << closed;
        QTest::newRow("window") << calls("close") << closed;
    }

    /// Also when it is done twice before the close is carried out.
    void everyWayOfClosingStopsEverything()
    {
        QFETCH(Deed, deed);
        SimulatorProcess simulator("");
        const ConsoleTester console(simulator);
        deed(console);
        deed(console);
        QCOMPARE(console.faultsOfState(false), QStringList());
        QVERIFY(!console.isRunning("firstSaveTimer"));
        QTEST(console.text("labelLink"), "shown");

        // Nothing goes on behind the closed link, and the next one works as the first did.
        console.window().updatePower(-20.0, {});
        console.window().timerOut();
        QVERIFY(console.chartPoints().isEmpty());
        QVERIFY(console.connectTo(simulator));
        console.window().timerOut();
        QVERIFY(console.chartPoints().isEmpty());                     // of the old link's reading
        QVERIFY(simulator.waitForCommand(QStringLiteral("GET?"), 2)); // beyond the deferred close
        QCOMPARE(settingsOf(simulator), startUpQueries + startUpQueries);
    }

    void failedOpenTellsOnce()
    {
        const ConsoleTester console;
        for (const bool lan : {false, true}) {
            const QString port = lan ? QStringLiteral("127.0.0.1") : QString();
            if (lan)
                console.trigger("actionCommunication_by_LAN");
            QStringList seen;
            const ModalScript script({readBox(seen)});
            QVERIFY(!console.window().openPort(port, 1)); // refused at once
            QCOMPARE(seen.join(QLatin1Char('|')), lan ? text("Note: Failed to connect 127.0.0.1")
                                                      : text("Note: Failed to open "));
            QVERIFY(script.isDone());
            QCOMPARE(console.faultsOfState(false), QStringList());
            QCOMPARE(console.text("labelLink"), text(lan ? "<font color = red>Disconnect</font>"
                                                         : "<font color = red>Close</font>"));
            QCOMPARE(console.text("labelPort"), port + QStringLiteral("/1"));
        }
    }

    void lineCutWhileQueryingEndsTheOpen_data()
    {
        QTest::addColumn<QByteArray>("fault");
        QTest::addColumn<int>("asked");
        const QByteArray fault("--fault drop-");
        QTest::newRow("at the identity") << fault + "before,only=*IDN?" << 1;
        QTest::newRow("after the relative state") << fault + "after,only=REL?" << 4;
        QTest::newRow("in the offset") << fault + "inside,only=OFFS?" << 5;
    }

    void lineCutWhileQueryingEndsTheOpen()
    {
        QFETCH(QByteArray, fault);
        QFETCH(int, asked);
        SimulatorProcess simulator(fault.constData());
        const ConsoleTester console;
        QStringList seen;
        const ModalScript script({readBox(seen)});
        QVERIFY(!console.connectTo(simulator));
        QCOMPARE(seen, QStringList(QStringLiteral("Note: Please connect first.")));
        QVERIFY(script.isDone());
        QCOMPARE(simulator.commands(), startUpQueries.mid(0, asked));
        QCOMPARE(console.faultsOfState(false), QStringList());
    }

    void lineCutWhileMeasuringIsToldOnce()
    {
        SimulatorProcess simulator("");
        const ConsoleTester console(simulator);
        QVERIFY(simulator.waitForCommand(QStringLiteral("GET?")));
        QStringList seen;
        const ModalScript script({readBox(seen)});
        simulator.stop();
        QTRY_COMPARE(seen, QStringList(QStringLiteral("Note: Please connect first.")));
        QTRY_COMPARE(console.faultsOfState(false), QStringList());

        // Whoever asks for a reading all the same only stops the poll, and hears nothing.
        console.find<QTimer>("readTimer")->start(0);
        QTRY_VERIFY(!console.isRunning("readTimer"));
        QVERIFY(script.isDone());
    }
};

MZ_TEST(TestConsole)
#include "tst_console.moc"
