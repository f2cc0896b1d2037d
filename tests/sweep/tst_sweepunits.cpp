#include "sweep/rotatortext.h"
#include "sweep/runfile.h"
#include "sweep/tablewatch.h"
#include "testmain.h"

using Limits = std::optional<TableLimits>;
using Problem = PlanLayout::Problem;
using Verdict = TableWatch::Verdict;

namespace {

RunRow measured(double wanted, double mean, RunFlags flags = {})
{
    RunRow row;
    row.time = QStringLiteral("2026-11-21T20:03:02.117+01:00");
    row.wanted = row.read = wanted;
    row.theta = wrappedTheta(wanted);
    if (!flags.testFlag(RunFlag::Missing))
        row.mean = mean;
    row.count = 3;
    row.flags = flags;
    return row;
}

RunHeader header(double from, double to, double step)
{
    RunHeader header;
    header.version = QStringLiteral("1.0.0");
    header.frequency = 2.45e9;
    header.limits = TableLimits{-180.0, 450.0};
    header.plan = {from, to, step, 0.0, 1};
    header.floor = -60.5;
    header.title = QStringLiteral("Horn: first\nline");
    return header;
}

} // namespace

Q_DECLARE_METATYPE(SweepPlan)
Q_DECLARE_METATYPE(Limits)
Q_DECLARE_METATYPE(PlanLayout::Problem)
Q_DECLARE_METATYPE(TableWatch::Verdict)

class TestSweepUnits : public QObject
{
    Q_OBJECT

private slots:
    void laysOutPlan_data()
    {
        QTest::addColumn<SweepPlan>("plan");
        QTest::addColumn<Limits>("limits");
        QTest::addColumn<Problem>("problem");
        QTest::addColumn<QVector<double>>("wanted");
        QTest::addColumn<QVector<double>>("thetas");
        const Limits wide = TableLimits{-180.0, 450.0};
        const Limits turn = TableLimits{0.0, 360.0};
        const QVector<double> none;
        const auto row = [](const char *name, SweepPlan plan, Limits limits, Problem problem,
                            QVector<double> wanted, QVector<double> thetas) {
            QTest::newRow(name) << plan << limits << problem << wanted << thetas;
        };
        row("both ends of the seam", {-180, 180, 180, 0, 1}, wide, Problem::None, {-180, 0, 180},
            {-180, 0, 180});
        row("step does not divide", {0, 1, 0.4, 0, 1}, wide, Problem::None, {0, 0.4, 0.8, 1},
            {0, 0.4, 0.8, 1});
        row("tenths stay tenths", {0.1, 0.4, 0.1, 0, 1}, {}, Problem::None, {0.1, 0.2, 0.3, 0.4},
            {0.1, 0.2, 0.3, 0.4});
        row("downwards", {10, -10, 10, 0, 1}, wide, Problem::None, {10, 0, -10}, {10, 0, -10});
        row("mirrored, with a zero", {-10, 10, 10, 90, -1}, wide, Problem::None, {100, 90, 80},
            {-10, 0, 10});
        row("shifted as a whole", {-30, -10, 10, 0, 1}, turn, Problem::None, {330, 340, 350},
            {-30, -20, -10});
        row("shifted down", {350, 370, 10, 100, 1}, turn, Problem::None, {90, 100, 110},
            {-10, 0, 10});
        row("across the seam", {170, 190, 10, 0, 1}, turn, Problem::None, {170, 180, 190},
            {170, 180, -170});
        row("over the stop", {-30, 30, 10, 0, 1}, turn, Problem::OutOfLimits, none, none);
        row("no step", {0, 10, 0, 0, 1}, wide, Problem::Step, none, none);
        row("backward step", {0, 10, -1, 0, 1}, wide, Problem::Step, none, none);
        row("cable wound up", {-181, 180, 1, 0, 1}, {}, Problem::Span, none, none);
        row("no sense", {0, 10, 1, 0, 0}, {}, Problem::Sense, none, none);
        row("endless", {0, 360, 1e-9, 0, 1}, {}, Problem::TooMany, none, none);
        row("no number", {0, qQNaN(), 1, 0, 1}, {}, Problem::NotFinite, none, none);
    }

    void laysOutPlan()
    {
        QFETCH(SweepPlan, plan);
        QFETCH(Limits, limits);
        const PlanLayout layout = layOut(plan, limits);
        QTEST(layout.problem, "problem");
        QVector<double> wanted;
        QVector<double> thetas;
        for (const PlanPoint &point : layout.points) {
            wanted.append(point.wanted);
            thetas.append(point.theta);
        }
        QTEST(wanted, "wanted");
        QTEST(thetas, "thetas");
    }

    void understandsRotator()
    {
        using namespace RotatorText;
        QCOMPARE(move(-12.5, 3.0), QByteArray("P -12.5000 3.0000\n"));
        QCOMPARE(move(qQNaN(), 0.0), QByteArray());
        QCOMPARE(move(0.0, qInf()), QByteArray());
        QCOMPARE(report("RPRT -5"), std::optional(-5));
        QVERIFY(!report("RPRT") && !report("12.00"));
        QCOMPARE(position("-12.50", " 3.00")->azimuth, -12.5);
        QVERIFY(!position("nan", "0.00") && !position("1,5", "0.00") && !position("", "0.00"));
    }

    void readsState_data()
    {
        QTest::addColumn<QByteArrayList>("lines");
        QTest::addColumn<bool>("whole");
        QTest::addColumn<QVector<double>>("ends");
        const QByteArrayList keyed{"1", "1", "min_az=-180.000000", "max_az=450.000000",
                                   "min_el=0.000000"};
        QTest::newRow("present") << QByteArrayList(keyed + QByteArrayList{"done"}) << true
                                 << QVector<double>{-180, 450};
        QTest::newRow("cut off") << keyed << false << QVector<double>{-180, 450};
        QTest::newRow("seven lines")
            << QByteArrayList{"0", "902", "0.000000", "360.000000", "0.0", "90.0", "0"} << true
            << QVector<double>{0, 360};
        QTest::newRow("six of seven")
            << QByteArrayList{"0", "902", "0.000000", "360.000000", "0.0", "90.0"} << false
            << QVector<double>{0, 360};
        QTest::newRow("refused") << QByteArrayList{"RPRT -4"} << true << QVector<double>();
    }

    void readsState()
    {
        QFETCH(QByteArrayList, lines);
        const Limits limits = RotatorText::limits(lines);
        QTEST(RotatorText::isWholeState(lines), "whole");
        QTEST(limits ? QVector<double>({limits->min, limits->max}) : QVector<double>(), "ends");
    }

    void watchesTable_data()
    {
        QTest::addColumn<QVector<double>>("reads"); // every 200 ms on the way from 0 to 10
        QTest::addColumn<Verdict>("last");
        QTest::addColumn<int>("sentAgain");
        QTest::addColumn<int>("looks");
        using Reads = QVector<double>;
        QTest::newRow("arrives") << Reads{5, 9.6, 10} << Verdict::Arrived << 0 << 3;
        QTest::newRow("runs through")
            << Reads{5, 9.6, 12, 11, 10.1, 10} << Verdict::Arrived << 0 << 6;
        QTest::newRow("counts from 0 to 360") << Reads{369.6, 370} << Verdict::Arrived << 0 << 2;
        QTest::newRow("taken away")
            << Reads{5, 4, 2, -1, -1, 5, 8, 10, 10} << Verdict::Arrived << 1 << 9;
        QTest::newRow("stopped on the way") << Reads{5} << Verdict::Stalled << 1 << 51;
        // 3 · 10 s and 10 s for a table that trembles and does not come
        Reads trembles;
        for (int i = 0; i < 300; ++i)
            trembles << 3.0 + 0.1 * (i % 2);
        QTest::newRow("trembles") << trembles << Verdict::Stalled << 0 << 200;
    }

    void watchesTable()
    {
        QFETCH(QVector<double>, reads);
        TableWatch watch;
        watch.start(0, 0.0, 10.0, 0.5, 1.0);
        Verdict last = Verdict::Wait;
        int sentAgain = 0;
        int looks = 0;
        while (looks < 1000 && last != Verdict::Arrived && last != Verdict::Stalled) {
            last = watch.look(200 * (looks + 1), reads.at(qMin(looks, reads.size() - 1)));
            sentAgain += last == Verdict::SendAgain ? 1 : 0;
            ++looks;
        }
        QTEST(last, "last");
        QTEST(sentAgain, "sentAgain");
        QTEST(looks, "looks");
    }

    void runFileReturns()
    {
        RunHeader written = header(-0.1, 0.1, 0.1);
        written.offset = -3.5;
        RunRow row = measured(0.1, -20.12346, RunFlag::Unstable | RunFlag::Floor);
        row.sigma = 0.75;
        const std::optional<RunFile> run =
            RunText::read(RunText::header(written) + RunText::row(row));
        QVERIFY(run);
        QCOMPARE(run->header.plan, written.plan);
        QCOMPARE(run->header.limits->max, 450.0);
        QCOMPARE(*run->header.floor, -60.5);
        QCOMPARE(run->header.offset, written.offset);
        QCOMPARE(run->header.title, QStringLiteral("Horn: first line"));
        QVERIFY(!run->header.averaging);
        QCOMPARE(run->rows.size(), 1);
        QCOMPARE(RunText::row(run->rows.first()),
                 QByteArray("2026-11-21T20:03:02.117+01:00,0.1,0.1,0.1,-20.1235,0.7500,3,"
                            "unstable;floor\n"));
        QCOMPARE(RunText::pathBeside(QStringLiteral("a.b/horn.csv")),
                 QStringLiteral("a.b/horn.run.csv"));
    }

    void resumesRunFile_data()
    {
        QTest::addColumn<QByteArray>("rows");
        QTest::addColumn<QVector<int>>("left"); // of -180, 0, 180
        QTest::addColumn<bool>("complete");
        QTest::addColumn<QVector<QPointF>>("curve");
        using Points = QVector<QPointF>;
        const QByteArray first = RunText::row(measured(-180, -30));
        const QByteArray middle = RunText::row(measured(0, -10));
        const QByteArray last = RunText::row(measured(180, -31));
        const QByteArray drift = RunText::row(measured(-180, -29.5, RunFlag::Drift));
        const QByteArray missing = RunText::row(measured(0, 0, RunFlag::Missing));
        const QByteArray all = first + middle + last;
        QTest::newRow("no row") << QByteArray() << QVector<int>{0, 1, 2} << false << Points();
        QTest::newRow("killed behind a row") << QByteArray(first + middle) << QVector<int>{1, 2}
                                             << false << Points{{-180, -30}, {0, -10}};
        for (int cut = 1; cut < middle.size(); cut += 7)
            QTest::addRow("torn at %d", cut)
                << QByteArray(first + middle.left(cut)) << QVector<int>{0, 1, 2} << false
                << Points{{-180, -30}};
        QTest::newRow("torn and gone on")
            << QByteArray(first + middle.left(40) + '\n' + first + middle + last + drift)
            << QVector<int>() << true << Points{{-180, -30}, {0, -10}, {180, -31}};
        QTest::newRow("hole of a power cut")
            << QByteArray(first + QByteArray(20, '\0') + '\n' + last + drift) << QVector<int>{1}
            << false << Points{{-180, -30}, {180, -31}};
        QTest::newRow("before the drift")
            << all << QVector<int>{2} << false << Points{{-180, -30}, {0, -10}, {180, -31}};
        QTest::newRow("complete") << QByteArray(all + drift) << QVector<int>() << true
                                  << Points{{-180, -30}, {0, -10}, {180, -31}};
        QTest::newRow("measured again")
            << QByteArray(first + missing + middle + last + drift) << QVector<int>() << true
            << Points{{-180, -30}, {0, -10}, {180, -31}};
        QTest::newRow("missing point") << QByteArray(first + missing + last + drift)
                                       << QVector<int>() << true << Points{{-180, -30}, {180, -31}};
    }

    void resumesRunFile()
    {
        QFETCH(QByteArray, rows);
        const RunHeader plan = header(-180, 180, 180);
        const auto run = RunText::read(RunText::header(plan) + rows);
        QVERIFY(run);
        const QVector<PlanPoint> points = layOut(plan.plan, plan.limits).points;
        QTEST(run->left(points), "left");
        QTEST(run->isComplete(points), "complete");
        QTEST(run->curve(), "curve");
        if (run->isComplete(points)) {
            QCOMPARE(*run->drift(), 0.5);
            QVERIFY(run->isMarked());
        }
    }

    void refusesOtherFiles()
    {
        QVERIFY(!RunText::read("Horn\nHorn 10 GHz\nAngle,Power\n0,1\n"));
        QByteArray noPlan = RunText::header(header(0, 1, 1));
        QVERIFY(!RunText::read(noPlan.replace("# step_deg: 1", "# step_deg: ?")));
    }

    void sortsCurve()
    {
        for (const int sense : {1, -1}) {
            RunFile run;
            run.header = header(90, 450, 90);
            run.header.plan.sense = sense;
            for (const double theta : {90.0, 180.0, 270.0, 360.0, 450.0}) {
                run.rows.append(measured(sense * theta, -theta));
                run.rows.last().theta = wrappedTheta(theta);
            }
            const QVector<QPointF> sorted{{-90, -270}, {0, -360}, {90, -90}, {180, -180}};
            QCOMPARE(run.curve(), sorted); // one point a θ, the first that was planned
        }
    }
};

MZ_GUILESS_TEST(TestSweepUnits)
#include "tst_sweepunits.moc"
