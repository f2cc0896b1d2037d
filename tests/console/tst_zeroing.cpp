#include "consoletester.h"
#include "simulatorprocess.h"
#include "testmain.h"

#include <QDir>
#include <QLabel>
#include <QTimer>

#include <functional>

namespace {

/// A step that reads the line of the wait dialog into \a seen, and then does \a deed.
ModalScript::Step readWait(
    QStringList &seen, const std::function<void()> &deed = [] {})
{
    return [&seen, deed](QWidget *window) {
        const auto *label = window->findChild<QLabel *>(QStringLiteral("labelText"));
        seen.append(label != nullptr ? label->text() : QStringLiteral("no wait dialog"));
        ModalScript::leaveOpen(window);
        deed();
    };
}

} // namespace

/// Zeroing and calibration, which take the instrument seconds: the wait, its end and what may
/// befall it.
class TestZeroing : public QObject
{
    Q_OBJECT

private slots:
    void init() { ConsoleTester::cleanFolder(); }
    void cleanupTestCase() { ConsoleTester::cleanFolder(); }

    void zeroingAndCalibrationTellTheirResult_data()
    {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("wait");
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("command");

        const QString none;
        QTest::newRow("zeroing") << none << "btnSetZero"
                                 << "Set zero,waiting...30 s"
                                 << "Info: Set zero success!"
                                 << "CAL:ZERO";
        QTest::newRow("zeroing fails") << "cal-fail"
                                       << "btnSetZero"
                                       << "Set zero,waiting...30 s"
                                       << "Warning: Set zero failed!"
                                       << "CAL:ZERO";
        QTest::newRow("calibration") << none << "btnCalibration"
                                     << "Calibration,waiting...30 s"
                                     << "Info: Calibration success!"
                                     << "CAL";
    }

    void zeroingAndCalibrationTellTheirResult()
    {
        QFETCH(QString, fault);
        QFETCH(QString, button);
        QFETCH(QString, wait);
        QFETCH(QString, box);
        QFETCH(QString, command);
        SimulatorProcess simulator;
        QStringList options{QStringLiteral("--calibration-time"), QStringLiteral("0.2")};
        if (!fault.isEmpty())
            options << QStringLiteral("--fault") << fault;
        QVERIFY(simulator.start(options));
        const ConsoleTester console;
        QVERIFY(console.connectTo(simulator));

        // The second run begins where the first began.
        for (int run = 1; run <= 2; ++run) {
            QStringList seen;
            const ModalScript script(
                {readWait(seen, [&console] { QVERIFY(!console.isRunning("readTimer")); }),
                 readBox(seen)});
            console.click(button.toLatin1().constData());
            QCOMPARE(seen, (QStringList{wait, box}));
            QVERIFY(script.isDone());
            QVERIFY(console.isRunning("readTimer") && !console.isRunning("loadingTimer"));
            QCOMPARE(console.faultsOfState(true), QStringList());
            const int polls = simulator.commands().count(QStringLiteral("GET?"));
            QVERIFY(simulator.waitForCommand(QStringLiteral("GET?"), polls + 1));
        }
        QCOMPARE(settingsOf(simulator), (startUpQueries + QStringList{command, command}));
    }

    void zeroingThatNeverEndsTimesOut()
    {
        SimulatorProcess simulator;
        QVERIFY(simulator.start({QStringLiteral("--fault"), QStringLiteral("cal-silent")}));
        const ConsoleTester console;
        QVERIFY(console.connectTo(simulator));
        const auto hurry = [&console] { console.find<QTimer>("loadingTimer")->setInterval(1); };
        QStringList seen;
        {
            const ModalScript script({readWait(seen, hurry), readBox(seen)});
            console.click("btnSetZero");
            QVERIFY(script.isDone());
        }
        QCOMPARE(seen, (QStringList{QStringLiteral("Set zero,waiting...30 s"),
                                    QStringLiteral("Note: Set zero time out!")}));
        QCOMPARE(console.faultsOfState(false), QStringList());
        QCOMPARE(console.text("labelLink"), QStringLiteral("<font color = red>Close</font>"));

        seen.clear();
        QVERIFY(console.connectTo(simulator));
        const ModalScript script({readWait(seen, hurry), readBox(seen)});
        console.click("btnCalibration");
        QCOMPARE(seen, (QStringList{QStringLiteral("Calibration,waiting...30 s"),
                                    QStringLiteral("Note: Calibration time out!")}));
        QVERIFY(script.isDone());
    }

    void recordDueMeanwhileWaitsForAReading()
    {
        SimulatorProcess simulator;
        QVERIFY(simulator.start({QStringLiteral("--calibration-time"), QStringLiteral("0.3")}));
        const ConsoleTester console;
        QVERIFY(console.connectTo(simulator));
        QVERIFY(simulator.waitForCommand(QStringLiteral("GET?")));
        const auto rows = [] {
            const QDir folder(ConsoleTester::path(QStringLiteral("DataRecord")));
            QList<QByteArray> lines;
            const QStringList files = folder.entryList({QStringLiteral("*.csv")});
            for (const QString &file : files)
                lines +=
                    ConsoleTester::contentOf(folder.filePath(file)).trimmed().split('\n').mid(1);
            return lines;
        };
        QStringList seen;
        QList<int> counts;
        const auto record = [&] {
            console.window().saveValue();
            counts.append(rows().size());
        };
        const ModalScript script({readWait(seen, record), [&](QWidget *window) {
                                      record(); // the user may be away from the box for days
                                      readBox(seen)(window);
                                  }});
        console.click("btnSetZero");
        QCOMPARE(seen.last(), QStringLiteral("Info: Set zero success!"));
        QCOMPARE(counts, (QList<int>{0, 1}));
        QTRY_COMPARE(rows().size(), 2);

        const QString replies = simulator.replies().join(QLatin1Char('\n'));
        const QString after = replies.mid(replies.indexOf(QStringLiteral("RETURN:CAL:ZERO:OK")));
        const QList<QByteArray> written = rows();
        for (const QByteArray &row : written) {
            const QString power = QString::fromUtf8(row.split(',').at(3));
            QVERIFY2(after.contains(QStringLiteral("RETURN:GET ") + power), row.constData());
        }
    }

    void closingTheWindowEndsTheWait()
    {
        SimulatorProcess simulator;
        QVERIFY(simulator.start({QStringLiteral("--fault"), QStringLiteral("cal-silent")}));
        const ConsoleTester console;
        QVERIFY(console.connectTo(simulator));
        QStringList seen;
        const ModalScript script({readWait(seen, [&console] { console.window().close(); })});
        console.click("btnSetZero");
        QCOMPARE(seen, QStringList(QStringLiteral("Set zero,waiting...30 s")));
        QVERIFY(script.isDone() && !console.isRunning("loadingTimer"));
    }

    /// Before the wait as within it the user hears of it once, and at once.
    void zeroingEndsWithTheLink()
    {
        SimulatorProcess simulator;
        QVERIFY(simulator.start({QStringLiteral("--fault"), QStringLiteral("cal-silent")}));
        const ConsoleTester console;
        QVERIFY(console.connectTo(simulator));
        QStringList seen;
        const ModalScript script(
            {readWait(seen, [&simulator] { simulator.stop(); }), readBox(seen), readBox(seen)});
        console.click("btnSetZero");
        QVERIFY(!console.isRunning("loadingTimer"));
        QCOMPARE(console.faultsOfState(false), QStringList());
        QMetaObject::invokeMethod(&console.window(), "on_btnSetZero_clicked");
        QCOMPARE(seen,
                 (QStringList{QStringLiteral("Set zero,waiting...30 s"),
                              QStringLiteral("Note: The connection to the instrument is lost."),
                              QStringLiteral("Note: Please connect first.")}));
        QVERIFY(script.isDone());
    }
};

MZ_TEST_MAIN(TestZeroing)
#include "tst_zeroing.moc"
