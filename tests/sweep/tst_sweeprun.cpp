#include "sweepbench.h"
#include "testmain.h"

using State = SweepRun::State;
using Cause = SweepRun::Cause;

namespace {

using SweepBench::Bench;
using SweepBench::levelAt;

using Deed = std::function<void(Bench &)>;

/// Takes the link of \a up away for 3 s whenever the run first comes to \a state.
Deed dropsIn(State state, bool Bench::*up)
{
    return [=](Bench &bench) {
        auto downAt = std::make_shared<qint64>(0);
        bench.onStep = [=, &bench] {
            if (*downAt == 0 && bench.sweep().state() == state) {
                *downAt = bench.now;
                bench.*up = false;
            } else if (bench.now > *downAt + 3000) {
                bench.*up = true;
            }
        };
    };
}

/// What a script of codes returns at the calls \a from to \a to, counted from 1.
std::function<int()> codeAt(int code, int from, int to)
{
    auto calls = std::make_shared<int>(0);
    return [=] { return ++*calls >= from && *calls <= to ? code : RotatorText::done; };
}

} // namespace

Q_DECLARE_METATYPE(Deed)
Q_DECLARE_METATYPE(SweepRun::State)
Q_DECLARE_METATYPE(SweepRun::Cause)
Q_DECLARE_METATYPE(RunFlags)

class TestSweepRun : public QObject
{
    Q_OBJECT

private slots:
    void survives_data()
    {
        QTest::addColumn<Deed>("deed");
        QTest::addColumn<State>("state");
        QTest::addColumn<Cause>("cause");
        QTest::addColumn<int>("onCurve"); // of 5 points
        const auto completes = [](const char *name, Deed deed, int onCurve = 5) {
            QTest::newRow(name) << deed << State::Finished << Cause::None << onCurve;
        };
        const auto ends = [](const char *name, State state, Cause cause, int onCurve, Deed deed) {
            QTest::newRow(name) << deed << state << cause << onCurve;
        };
        completes("nothing", [](Bench &) {});
        completes("whole degrees", [](Bench &bench) {
            bench.resolution = 1.0;
            bench.header().plan = {-10.0, 10.0, 5.0, 0.25, 1};
        });
        completes("overshoot", [](Bench &bench) { bench.overshoot = 2.0; });
        completes("move fails once", [](Bench &bench) { bench.moveCode = codeAt(-5, 2, 2); });
        completes("position fails twice", [](Bench &bench) { bench.readCode = codeAt(-9, 5, 6); });
        completes("reading fails twice", [](Bench &bench) {
            auto calls = std::make_shared<int>(0);
            bench.reading = [=](double level) {
                return ++*calls % 3 == 0 ? std::optional(level) : std::nullopt;
            };
        });
        for (const State state :
             {State::Sending, State::Turning, State::Settling, State::Reading, State::Checking}) {
            completes(qPrintable(QStringLiteral("rotator lost in %1").arg(int(state))),
                      dropsIn(state, &Bench::rotatorUp));
            completes(qPrintable(QStringLiteral("meter lost in %1").arg(int(state))),
                      dropsIn(state, &Bench::meterUp));
        }
        for (const State state : {State::Turning, State::Settling, State::Reading}) {
            completes(qPrintable(QStringLiteral("taken away in %1").arg(int(state))),
                      [=](Bench &bench) {
                          auto done = std::make_shared<bool>(false);
                          bench.onStep = [=, &bench] {
                              if (!*done && bench.run.rows.size() == 2 &&
                                  bench.sweep().state() == state) {
                                  *done = true;
                                  bench.target = -60.0;
                                  bench.angle = -30.0;
                              }
                          };
                      });
        }
        completes(
            "held elsewhere",
            [](Bench &bench) {
                bench.onStep = [&bench] {
                    if (bench.run.rows.size() == 2 && bench.sweep().state() == State::Reading)
                        bench.angle = bench.target = 7.0;
                };
            },
            4);
        completes(
            "meter silent at one point",
            [](Bench &bench) {
                bench.reading = [&bench](double level) {
                    return bench.run.rows.size() == 3 ? std::nullopt : std::optional(level);
                };
            },
            4);
        ends("stalls", State::Paused, Cause::Stalled, 2, [](Bench &bench) {
            bench.onStep = [&bench] {
                if (bench.run.rows.size() == 2)
                    bench.speed = 0.0;
            };
        });
        ends("fails for ever", State::Paused, Cause::RotatorFailed, 1,
             [](Bench &bench) { bench.moveCode = codeAt(-6, 2, 1000); });
        ends("out of limits", State::Finished, Cause::OutOfLimits, 0,
             [](Bench &bench) { bench.moveCode = codeAt(-1, 1, 1000); });
        ends("refused", State::Finished, Cause::RotatorRefused, 3,
             [](Bench &bench) { bench.moveCode = codeAt(-4, 4, 1000); });
        ends("disk full", State::Paused, Cause::NotWritten, 3, [](Bench &bench) {
            bench.onStep = [&bench] { bench.writes = bench.run.rows.size() < 3; };
        });
    }

    void survives()
    {
        QFETCH(Deed, deed);
        QFETCH(State, state);
        Bench bench;
        deed(bench);
        bench.work();
        QTEST(bench.sweep().state(), "state");
        QTEST(bench.sweep().cause(), "cause");
        QTEST(bench.run.curve().size(), "onCurve");
        const bool complete = state == State::Finished && bench.sweep().cause() == Cause::None;
        QCOMPARE(bench.isComplete(), complete);
        QCOMPARE(bench.stops, complete ? 0 : 1);
        for (const RunRow &row : qAsConst(bench.run.rows)) {
            if (!row.mean || row.flags.testFlag(RunFlag::Angle))
                continue;
            const double apart = bench.header().tolerance + 0.5 * bench.resolution;
            QVERIFY(std::abs(*row.mean - levelAt(row.wanted)) <= 0.1 * apart);
            QCOMPARE(row.count, bench.header().readings);
        }
    }

    void triesThreeTimesASecondApart()
    {
        Bench bench;
        QVector<qint64> times;
        bench.moveCode = [&] {
            times.append(bench.now);
            return -6;
        };
        bench.work();
        QCOMPARE(times.size(), 3);
        QVERIFY(times.at(1) - times.at(0) >= 1000 && times.at(2) - times.at(1) >= 1000);
        QCOMPARE(bench.sweep().code(), -6);
        QVERIFY(!bench.sweep().hasMoved());
    }

    void pausesAndResumes()
    {
        Bench bench;
        bench.onStep = [&] {
            if (bench.run.rows.size() == 3 && bench.stops == 0)
                bench.sweep().pause(Cause::User);
        };
        bench.work();
        QCOMPARE(bench.sweep().state(), State::Paused);
        QCOMPARE(bench.angle, bench.target);
        bench.sweep().resume(bench.now);
        bench.goOn();
        QVERIFY(bench.isComplete());
        QCOMPARE(bench.run.rows.size(), 5 + 1 + 1); // the last one twice, and the drift
        QCOMPARE(bench.run.rows.at(3).wanted, bench.run.rows.at(2).wanted);
    }

    void stops_data()
    {
        QTest::addColumn<bool>("returns");
        QTest::addColumn<bool>("rotatorUp");
        QTest::addColumn<bool>("atStart");
        QTest::newRow("where it is") << false << true << false;
        QTest::newRow("back at the start") << true << true << true;
        QTest::newRow("once the link is back") << false << false << false;
    }

    void stops()
    {
        QFETCH(bool, returns);
        QFETCH(bool, rotatorUp);
        Bench bench;
        bench.onStep = [&] {
            if (bench.sweep().state() == State::Turning && bench.run.rows.size() == 2) {
                bench.rotatorUp = rotatorUp;
                bench.sweep().setLinks(bench.now, true, rotatorUp);
                bench.sweep().stop(bench.now, returns);
                QCOMPARE(bench.stops, rotatorUp ? 1 : 0);
            }
        };
        bench.work();
        bench.sweep().setLinks(bench.now, true, true);
        QCOMPARE(bench.stops, 1);
        QCOMPARE(bench.sweep().state(), State::Finished);
        QCOMPARE(bench.sweep().cause(), Cause::User);
        QCOMPARE(bench.run.rows.size(), 2);
        QTEST(std::abs(bench.angle - 3.0) < 0.51, "atStart");
    }

    void flagsPoints_data()
    {
        QTest::addColumn<double>("spread");
        QTest::addColumn<double>("floor");
        QTest::addColumn<RunFlags>("flags");
        QTest::newRow("clean") << 0.0 << -40.0 << RunFlags();
        QTest::newRow("unsteady") << 1.0 << -40.0 << RunFlags(RunFlag::Unstable);
        QTest::newRow("near the floor") << 0.0 << -29.5 << RunFlags(RunFlag::Floor);
        QTest::newRow("both") << 1.0 << -10.0 << (RunFlag::Unstable | RunFlag::Floor);
    }

    void flagsPoints()
    {
        QFETCH(double, spread);
        QFETCH(double, floor);
        Bench bench;
        bench.header().floor = floor;
        bench.header().plan = {0.0, 0.0, 1.0, 0.0, 1};
        bench.reading = [&](double) { return -20.0 + spread * (bench.readings % 2); };
        bench.work();
        QTEST(bench.run.rows.at(0).flags, "flags");
        QVERIFY(bench.run.rows.at(1).flags.testFlag(RunFlag::Drift));
    }

    void throwsFirstReadingAway()
    {
        Bench bench;
        bench.header().plan = {0.0, 0.0, 1.0, 0.0, 1};
        bench.reading = [&](double) {
            return bench.readings == 1 ? 0.0 : bench.readings == 2 ? -10.0 : -20.0;
        };
        bench.work();
        QCOMPARE(bench.run.rows.at(0).mean, std::optional(10.0 * std::log10(0.055)));
        QVERIFY(bench.run.isMarked());
        QCOMPARE(bench.readings, 2 * (1 + bench.header().readings)); // of the drift's too
    }
};

MZ_GUILESS_TEST(TestSweepRun)
#include "tst_sweeprun.moc"
