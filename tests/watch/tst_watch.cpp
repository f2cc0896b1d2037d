#include "testfiles.h"
#include "testmain.h"
#include "watch/limitwatch.h"
#include "watch/readingstatistics.h"
#include "watch/reconnector.h"
#include "watch/trafficmodel.h"
#include "watch/trafficpanel.h"
#include "watch/watchsettings.h"

#include <QAbstractItemModelTester>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>

#include <cmath>

namespace {

QStringList logged;

void keepWarning(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtWarningMsg && text.startsWith(QLatin1String("Alarm")))
        logged.append(text);
}

Reading level(double dBm)
{
    return Reading::of(dBm, {});
}

} // namespace

class TestWatch : public QObject
{
    Q_OBJECT

private slots:
    void neverMixesUnitsOrReferences()
    {
        ReadingStatistics statistics;
        const QDateTime now(QDate(2026, 11, 21), QTime(12, 0));
        statistics.add(level(-20.0), false, now, 0.0);
        statistics.add(Reading::missing(), false, now.addSecs(1), 1.0);
        statistics.add(level(-10.0), false, now.addSecs(2), 2.0);
        QCOMPARE(statistics.sinceRestart().power.count(), 2);
        QCOMPARE(statistics.sinceRestart().missed, 1);
        QCOMPARE(statistics.sinceRestart().since, now);
        QVERIFY(std::abs(*statistics.sinceRestart().power.mean() - 10 * std::log10(0.055)) < 1e-9);
        QCOMPARE(*statistics.between(1.5, 9.0).power.mean(), -10.0); // in the chart alone
        QCOMPARE(statistics.between(0.5, 1.0).missed, 1);

        statistics.add(level(0.5), true, now.addSecs(3), 3.0);
        QVERIFY(statistics.isRelative());
        QCOMPARE(statistics.sinceRestart().power.count(), 1);
        QCOMPARE(statistics.between(0.0, 9.0).power.count(), 1);
        statistics.add(level(0.7), true, now.addSecs(4), 0.1); // the chart has begun again
        QCOMPARE(statistics.between(0.0, 9.0).power.count(), 1);
        QCOMPARE(statistics.sinceRestart().power.count(), 2);
    }

    /// When an alarm begins and ends is tested with the alarm; here each is told, once.
    void logsEveryAlarmOnce()
    {
        logged.clear();
        LimitWatch watch;
        int notices = 0;
        connect(&watch, &LimitWatch::alarmBegan, this, [&notices] { ++notices; });
        Limits limits;
        limits.high = -10.0;
        const QtMessageHandler before = qInstallMessageHandler(keepWarning);
        watch.setLimits(limits);
        for (const double dBm : {-9.0, -8.0, -10.2, -9.5, -8.5})
            watch.take(level(dBm));
        watch.take(Reading::missing());
        const LimitWatch::State unread = watch.state();
        watch.setRelative(true);
        watch.take(level(-8.0));
        qInstallMessageHandler(before);
        QCOMPARE(unread, LimitWatch::State::Missing);
        QCOMPARE(watch.state(), LimitWatch::State::Resting);
        QCOMPARE(logged.join(QLatin1Char('|')),
                 text("Alarm begins: upper limit -10.00 dBm, -9.00 dBm|"
                      "Alarm ends: upper limit -10.00 dBm, -10.20 dBm|"
                      "Alarm begins: upper limit -10.00 dBm, -9.50 dBm|"
                      "Alarm ends: upper limit -10.00 dBm, the relative measurement was switched"));
        QCOMPARE(notices, 2);
    }

    void remembersSettings_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<double>("high");
        QTest::addColumn<int>("inARow");

        WatchSettings settings;
        settings.limits.high = settings.high = -3.25;
        settings.limits.low = settings.low = -40.5;
        settings.limits.inARow = 7;
        settings.windowState = "\0\xff"
                               "state";
        QTest::newRow("its own") << settings.toText() << -3.25 << 7;
        QTest::newRow("none") << QByteArray() << 0.0 << 1;
        QTest::newRow("other things than it wrote")
            << QByteArray(
                   "{\"limits\":{\"high\":\"x\",\"inARow\":0,\"hysteresis\":-4},\"window\":7}")
            << 0.0 << 1;
    }

    void remembersSettings()
    {
        QFETCH(QByteArray, text);
        const WatchSettings settings = WatchSettings::parse(text);
        QTEST(settings.high, "high");
        QTEST(settings.limits.inARow, "inARow");
        QVERIFY(settings.limits.areUsable());
        if (text.contains("window") && !text.contains("\"window\":7"))
            QCOMPARE(settings.toText(), text);
    }

    void writesNoSettingsOfANewConsole()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("console.json"));
        WatchSettings settings;
        settings.save(path);
        QVERIFY(!QFile::exists(path));
        settings.reconnects = true;
        settings.save(path);
        QVERIFY(WatchSettings::load(path).reconnects);
        WatchSettings().save(path); // switched off again
        QVERIFY(!WatchSettings::load(path).reconnects);
    }

    void keepsTheLatestLines()
    {
        TrafficModel model;
        TrafficPanel panel(&model);
        for (int i = 0; i < TrafficModel::capacity + 5; ++i)
            model.addSent(QStringLiteral("GET %1\n").arg(i));
        QCOMPARE(model.rowCount(), TrafficModel::capacity);
        QVERIFY(model.text(0).endsWith(QLatin1String("\tGET 5")));
        TrafficModel paused; // of what is held back the latest stays, too
        paused.setPaused(true);
        for (int i = 0; i <= TrafficModel::capacity; ++i)
            paused.addSent(QStringLiteral("GET %1\n").arg(i));
        paused.setPaused(false);
        QVERIFY(paused.text(0).endsWith(QLatin1String("\tGET 1")));

        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        panel.findChild<QPushButton *>(QStringLiteral("btnTrafficPause"))->setChecked(true);
        model.addReceived(QStringLiteral("RETURN:GET odd\n"), QStringLiteral("not understood"));
        QVERIFY(!model.text(model.rowCount() - 1).contains(QLatin1String("odd")));
        panel.findChild<QPushButton *>(QStringLiteral("btnTrafficPause"))->setChecked(false);
        panel.findChild<QLineEdit *>()->setText(QStringLiteral("return:"));
        const QStringList lines = panel.text().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 1);
        const QStringList cells = lines[0].split(QLatin1Char('\t'));
        QCOMPARE(cells[3], QStringLiteral("RETURN:GET odd (not understood)"));
        QVERIFY(!cells[2].isEmpty()); // the wait
        panel.findChild<QTableView *>()->selectRow(0);
        QCOMPARE(panel.text(), lines[0] + QLatin1Char('\n'));
    }

    /// The instrument serves one client: it must have seen the end of the probe before the open.
    void probesAndClosesBeforeTheOpen()
    {
        QTcpServer instrument;
        QVERIFY(instrument.listen(QHostAddress::LocalHost));
        const quint16 port = instrument.serverPort();
        Reconnector reconnector;
        reconnector.setSecond(100);
        int opens = 0;
        connect(&reconnector, &Reconnector::reachable, this,
                [&](const QString &, int) { ++opens; });

        instrument.close();
        reconnector.begin({true, QStringLiteral("127.0.0.1"), port});
        QTRY_VERIFY(reconnector.text().contains(QLatin1String("Next try in 2 s"))); // refused once
        QCOMPARE(opens, 0);
        QVERIFY(instrument.listen(QHostAddress::LocalHost, port));
        QTRY_COMPARE(opens, 1);
        QVERIFY(instrument.hasPendingConnections() || instrument.waitForNewConnection(1000));
        QTcpSocket *probe = instrument.nextPendingConnection();
        QTRY_COMPARE(probe->state(), QAbstractSocket::UnconnectedState);
        QVERIFY(probe->readAll().isEmpty());

        reconnector.goOn(); // the open failed
        QVERIFY(reconnector.isActive());
        QVERIFY(reconnector.text().contains(QLatin1String("Next try in 4 s")));
        reconnector.stop();
        QVERIFY(reconnector.text().isEmpty());
        reconnector.begin({true, QStringLiteral("127.0.0.1"), port}); // the waits begin anew
        QVERIFY(reconnector.text().contains(QLatin1String("Next try in 1 s")));
    }

    void waitsForASerialPort()
    {
        Reconnector reconnector;
        reconnector.setSecond(20);
        bool isThere = false;
        int opens = 0;
        reconnector.setPortLookup([&isThere](const QString &) { return isThere; });
        connect(&reconnector, &Reconnector::reachable, this, [&](const QString &name, int rate) {
            ++opens;
            QCOMPARE(name, QStringLiteral("COM9"));
            QCOMPARE(rate, 9600);
        });
        reconnector.begin({false, QStringLiteral("COM9"), 9600});
        QTRY_VERIFY(reconnector.text().contains(QLatin1String("Waiting for COM9")));
        QCOMPARE(opens, 0);
        isThere = true;
        QTRY_COMPARE(opens, 1);
    }
};

MZ_TEST(TestWatch)
#include "tst_watch.moc"
