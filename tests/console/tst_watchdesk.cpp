#include "consoletester.h"
#include "simulatorprocess.h"
#include "testmain.h"

#include <QAction>
#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QTableWidget>

class TestWatchDesk : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_console = std::make_unique<ConsoleTester>(); }
    void cleanup() { m_console.reset(); }
    void leavesNothingBehindUntilUsed()
    {
        const QString path = ConsoleTester::path(QStringLiteral("console.json"));
        QFile::remove(path);
        m_console->restart();
        for (const char *dock : {"dockStatistics", "dockLimits", "dockTraffic"})
            QVERIFY(!m_console->find<QWidget>(dock)->isVisible());
        QVERIFY(!m_console->find<QAction>("actionReconnect")->isChecked());
        m_console->end();
        QVERIFY(!QFile::exists(path));

        m_console->restart();
        m_console->find<QWidget>("dockLimits")->show();
        m_console->restart();
        QVERIFY(m_console->find<QWidget>("dockLimits")->isVisible());
        QVERIFY(!m_console->find<QWidget>("dockTraffic")->isVisible());
        m_console->end();
        QFile::remove(path);
    }

    void opensTheLinkAgain()
    {
        ModalScript noBoxes({});
        SimulatorProcess simulator;
        QVERIFY(simulator.startOnInstrumentPort());
        QVERIFY(m_console->connectTo(simulator));
        const QString address = simulator.address();
        m_console->trigger("actionReconnect");
        QTRY_VERIFY(!m_console->chartPoints().isEmpty());

        simulator.stop();
        const auto notice = [this] { return m_console->text("labelNotice"); };
        QTRY_VERIFY_WITH_TIMEOUT(notice().contains(QLatin1String("Next try in")), 8000);
        QVERIFY(!m_console->isRunning("readTimer"));
        SimulatorProcess again;
        QVERIFY(again.startOnGivenAddress(address));
        QTRY_VERIFY_WITH_TIMEOUT(m_console->isRunning("readTimer"), 10000);
        QVERIFY(again.waitForCommand(QStringLiteral("GET?"), 2));
        QVERIFY(notice().isEmpty());
        QVERIFY(!m_console->chartPoints().isEmpty()); // what was before the gap
        QVERIFY(!again.commands().contains(QStringLiteral("CAL:ZERO")));

        again.stop();
        QTRY_VERIFY_WITH_TIMEOUT(notice().contains(QLatin1String("Next try in")), 8000);
        m_console->trigger("actionDisconnect");
        QVERIFY(notice().isEmpty());
        QVERIFY(noBoxes.isDone());
    }

    void watchesReadings()
    {
        SimulatorProcess simulator("--noise 0");
        QVERIFY(m_console->connectTo(simulator));
        m_console->find<QWidget>("dockStatistics")->show();
        QTRY_VERIFY(statistic(6).toInt() >= 2); // readings
        QCOMPARE(statistic(1), QStringLiteral("-20.0000 dBm"));
        QCOMPARE(statistic(4), QStringLiteral("0.00 dB")); // peak to peak

        m_console->find<QWidget>("dockLimits")->show();
        m_console->find<QDoubleSpinBox>("doubleSpinBoxHigh")->setValue(-15.0);
        m_console->find<QCheckBox>("checkBoxHigh")->setChecked(true);
        QTRY_COMPARE(m_console->text("labelLimitState"), QStringLiteral("Inside the limits."));
        QVERIFY(!m_console->find<QLabel>("labelAlarm")->isVisible());

        // an offset of the instrument counts, and begins the statistics anew
        m_console->find<QDoubleSpinBox>("doubleSpinBoxOffset")->setValue(10.0);
        m_console->click("btnSetOffset");
        QTRY_VERIFY(m_console->find<QLabel>("labelAlarm")->isVisible());
        QVERIFY(m_console->text("labelAlarm").contains(QLatin1String("above -15.00 dBm")));
        QCOMPARE(statistic(2), QStringLiteral("-10.00 dBm")); // the minimum

        m_console->find<QAbstractButton>("radioButtonRelativeON")->click();
        QTRY_VERIFY(m_console->text("labelAlarm").contains(QLatin1String("rest")));
        QTRY_COMPARE(statistic(0), QStringLiteral("0.00 dB"));
        m_console->find<QCheckBox>("checkBoxHigh")->setChecked(false);
        QVERIFY(!m_console->find<QLabel>("labelAlarm")->isVisible());
        m_console->end();
        QFile::remove(ConsoleTester::path(QStringLiteral("console.json")));
    }

private:
    QString statistic(int row) const
    {
        return m_console->find<QTableWidget>("tableStatistics")->item(row, 0)->text();
    }

    std::unique_ptr<ConsoleTester> m_console;
};

MZ_TEST(TestWatchDesk)
#include "tst_watchdesk.moc"
