#include "consoletester.h"
#include "simulatorprocess.h"
#include "testmain.h"

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
        QTest::addColumn<QString>("told"); // what it waits for, and the box at its end
        QTest::addColumn<QString>("command");
        const auto row = [](const char *name, const char *fault, const char *button,
                            const char *told, const char *command) {
            QTest::newRow(name) << text(fault) << text(button) << text(told) << text(command);
        };
        row("zeroing", "late:1,p=0", "btnSetZero",
            "Set zero,waiting...30 s|Info: Set zero success!", "CAL:ZERO");
        row("zeroing fails", "cal-fail", "btnSetZero",
            "Set zero,waiting...30 s|Warning: Set zero failed!", "CAL:ZERO");
        row("calibration", "late:1,p=0", "btnCalibration",
            "Calibration,waiting...30 s|Info: Calibration success!", "CAL");
    }

    void zeroingAndCalibrationTellTheirResult()
    {
        QFETCH(QString, fault);
        QFETCH(QString, button);
        QFETCH(QString, command);
        SimulatorProcess simulator(qPrintable(text("--calibration-time 0.2 --fault ") + fault));
        const ConsoleTester console(simulator);

        // The second run begins where the first began.
        for (int run = 1; run <= 2; ++run) {
            QStringList seen;
            const ModalScript script(
                {readWait(seen, [&console] { QVERIFY(!console.isRunning("readTimer")); }),
                 readBox(seen)});
            console.click(button.toLatin1().constData());
            QTEST(seen.join(QLatin1Char('|')), "told");
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
        SimulatorProcess simulator("--fault cal-silent");
        const ConsoleTester console(simulator);
        const auto hurry = [&console] { console.find<QTimer>("loadingTimer")->setInterval(1); };
        for (const char *button : {"btnSetZero", "btnCalibration"}) {
            QStringList seen;
            const ModalScript script({readWait(seen, hurry), readBox(seen)});
            console.click(button);
            QVERIFY(script.isDone());
            const QString task =
                text(QByteArray(button) == "btnSetZero" ? "Set zero" : "Calibration");
            QCOMPARE(seen, (QStringList{task + QStringLiteral(",waiting...30 s"),
                                        text("Note: %1 time out!").arg(task)}));
            QCOMPARE(console.faultsOfState(false), QStringList());
            QVERIFY(console.connectTo(simulator));
        }
    }

    void recordDueMeanwhileWaitsForAReading()
    {
        SimulatorProcess simulator("--calibration-time 0.3");
        const ConsoleTester console(simulator);
        QVERIFY(simulator.waitForCommand(QStringLiteral("GET?")));
        const auto rows = [] {
            const QDir folder(ConsoleTester::path(QStringLiteral("DataRecord")));
            QList<QByteArray> lines;
            const QStringList files = folder.entryList({QStringLiteral("*.csv")});
            for (const QString &file : files)
                lines += contentOf(folder.filePath(file)).trimmed().split('\n').mid(1);
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
        SimulatorProcess simulator("--fault cal-silent");
        const ConsoleTester console(simulator);
        QStringList seen;
        const ModalScript script({readWait(seen, [&console] { console.window().close(); })});
        console.click("btnSetZero");
        QCOMPARE(seen, QStringList(QStringLiteral("Set zero,waiting...30 s")));
        QVERIFY(script.isDone() && !console.isRunning("loadingTimer"));
    }

    /// Before the wait as within it the user hears of it once, and at once.
    void zeroingEndsWithTheLink()
    {
        SimulatorProcess simulator("--fault cal-silent");
        const ConsoleTester console(simulator);
        QStringList seen;
        // What the system still holds when a program is killed may hide the loss.
        const auto stop = [&simulator] {
            QVERIFY(simulator.waitForCommand(text("CAL:ZERO")));
            simulator.stop();
        };
        const ModalScript script({readWait(seen, stop), readBox(seen), readBox(seen)});
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

MZ_TEST(TestZeroing)
#include "tst_zeroing.moc"
