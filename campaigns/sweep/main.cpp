#include "closedloop.h"
#include "sweepbench.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>

/// Measures patterns full of faults; to be run by scripts/campaign.sh.
///   mz_sweepcampaign run "sweep SEED"     one in a time of its own
///   mz_sweepcampaign run "chamber SEED"   one of the real program in the simulated chamber, which
///   takes minutes

namespace {

using SweepBench::Bench;

/// Faults of both devices, of somebody near the table and of the program, at random.
class Trouble
{
public:
    Trouble(Bench &bench, unsigned seed)
        : m_bench(bench)
        , m_random(seed)
    {
        const auto error = [this] {
            constexpr int codes[] = {-5, -6, -8, -9};
            return happens(0.01) ? codes[whole(0, 3)] : RotatorText::done;
        };
        bench.moveCode = error;
        bench.readCode = error;
        bench.reading = [this](double level) {
            return happens(0.05) ? std::nullopt : std::optional(level);
        };
        bench.onStep = [this] { strike(); };
    }

    int count() const { return m_count; }

    /// What is left of the run file after a kill: the last row may be torn.
    void kill()
    {
        ++m_count;
        QByteArray text = RunText::header(m_bench.header());
        for (const RunRow &row : qAsConst(m_bench.run.rows))
            text += RunText::row(row);
        if (!m_bench.run.rows.isEmpty())
            text.chop(whole(0, 60));
        const std::optional<RunFile> left = RunText::read(text);
        if (left)
            m_bench.run.rows = left->rows;
    }
    bool kills() { return happens(0.0002); }

private:
    bool happens(double chance) { return std::bernoulli_distribution(chance)(m_random); }
    int whole(int low, int high) { return std::uniform_int_distribution(low, high)(m_random); }

    /// Every 10 ms.
    void strike()
    {
        if (m_bench.now >= m_meterBack)
            m_bench.meterUp = true;
        if (m_bench.now >= m_rotatorBack)
            m_bench.rotatorUp = true;
        if (m_bench.now >= m_turnsAgain)
            m_bench.speed = 60.0;
        if (!happens(0.002))
            return;
        ++m_count;
        const qint64 until = m_bench.now + whole(100, 15000);
        switch (whole(0, 3)) {
        case 0:
            m_bench.meterUp = false;
            m_meterBack = until;
            break;
        case 1:
            m_bench.rotatorUp = false;
            m_rotatorBack = until;
            break;
        case 2:
            m_bench.speed = 0.0;
            m_turnsAgain = until;
            break;
        default:
            m_bench.takeTo(m_bench.angle + (happens(0.5) ? 1.0 : -1.0) * whole(3, 120));
        }
    }

    Bench &m_bench;
    std::mt19937 m_random;
    int m_count = 0;
    qint64 m_meterBack = 0;
    qint64 m_rotatorBack = 0;
    qint64 m_turnsAgain = 0;
};

void complain(const char *what, double angle)
{
    std::printf("WRONG: %s at %g degrees\n", what, angle);
}

/// Looks for points at a wrong angle, lost ones and invented ones.
void judge(const Bench &bench)
{
    for (const PlanPoint &point : bench.points()) {
        if (!bench.run.row(point.wanted))
            complain("lost", point.wanted);
    }
    for (const RunRow &row : bench.run.rows) {
        const bool isPlanned =
            std::any_of(bench.points().begin(), bench.points().end(), [&](const PlanPoint &point) {
                return std::abs(point.wanted - row.wanted) < 1e-6;
            });
        if (!isPlanned)
            complain("invented", row.wanted);
        const bool counts = row.mean && !row.flags.testFlag(RunFlag::Angle);
        // A whole turn leads to the same place.
        const double turn = SweepBench::levelAt(360.0) - SweepBench::levelAt(0.0);
        if (counts && std::abs(std::remainder(*row.mean - SweepBench::levelAt(row.wanted), turn)) >
                          SweepBench::levelAt(0.51) - SweepBench::levelAt(0.0))
            complain("at a wrong angle", row.wanted);
    }
}

void carryOut(unsigned seed)
{
    Bench bench;
    bench.header().plan = {-180.0, 180.0, 1.0, 0.0, 1};
    bench.header().version = QStringLiteral("campaign");
    bench.speed = 60.0;
    Trouble trouble(bench, seed);
    int starts = 0;
    int pauses = 0;
    constexpr qint64 day = 86400000;
    bench.begin();
    while (bench.sweep().state() != SweepRun::State::Finished && bench.now < day) {
        bench.step();
        if (bench.sweep().state() == SweepRun::State::Paused) {
            ++pauses;
            bench.sweep().resume(bench.now);
        } else if (trouble.kills()) {
            ++starts;
            trouble.kill();
            bench.begin();
        }
    }
    if (!bench.isComplete())
        std::puts("WRONG: not complete");
    judge(bench);
    const auto figure = [](const char *name, int value) {
        std::printf("figure\tsweeps\t%s\t%d\n", name, value);
    };
    figure("runs", 1);
    figure("points", bench.run.rows.size());
    figure("faults", trouble.count());
    figure("pauses", pauses);
    figure("kills", starts);
    figure("points off the curve", bench.points().size() - bench.run.curve().size());
}

void carryOutInChamber(unsigned seed)
{
    const ClosedLoop loop = measureInChamber(seed);
    for (const QString &wrong : loop.wrong)
        std::printf("WRONG: %s\n", qPrintable(wrong));
    const auto figure = [](const char *name, int value) {
        std::printf("figure\tin the chamber\t%s\t%d\n", name, value);
    };
    figure("runs", 1);
    figure("points", loop.rows);
    figure("faults", loop.faults);
    figure("kills", loop.starts - 1);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    const QString job = QCoreApplication::arguments().value(2);
    const unsigned seed = job.section(QLatin1Char(' '), 1).toUInt();
    if (job.startsWith(QLatin1String("chamber")))
        carryOutInChamber(seed);
    else
        carryOut(seed);
    return EXIT_SUCCESS;
}
