#include "closedloop.h"

#include "2d/data/curvetext.h"
#include "simulatorprocess.h"
#include "sweep/runfile.h"
#include "testfiles.h"

#include <QProcess>

#include <algorithm>
#include <cmath>
#include <random>

namespace {

const char *const instrumentFaults[] = {"late:300,only=GET?,p=0.01", "no-reply,only=GET?,p=0.002",
                                        "garbage,only=GET?,p=0.004", "drop-inside,p=0.002",
                                        "pieces:5,p=0.05"};
const char *const tableFaults[] = {
    "late:700,p=0.005",     "no-reply,p=0.0008",         "refuse,p=0.004",
    "garbage,p=0.002",      "pieces:5,p=0.05",           "drop-before,p=0.0008",
    "drop-inside,p=0.0008", "drop-after,only=P,p=0.003", "two-lines,only=p,p=0.01"};

/// Whether the program says that there is nothing left to do; it is killed after \a patience ms.
bool isFinished(const QStringList &arguments, int patience, QStringList &wrong)
{
    QProcess program;
    program.setStandardErrorFile(QProcess::nullDevice());
    program.start(QStringLiteral(MZ_BIN_DIR "/mz6218-cli"), arguments);
    if (!program.waitForFinished(patience)) {
        program.kill();
        program.waitForFinished();
        return false;
    }
    // A stall or a device that just then does not answer is for somebody to look at: another start.
    const int status = program.exitCode();
    if (program.exitStatus() != QProcess::NormalExit || (status != 0 && status != 1 && status != 3))
        wrong << QStringLiteral("the program ended with %1").arg(status);
    return status == 0;
}

/// Looks for points at a wrong angle, lost ones and invented ones.
void judge(const RunFile &run, const QVector<QPointF> &source, QStringList &wrong)
{
    const QVector<PlanPoint> points = layOut(run.header.plan, run.header.limits).points;
    const auto complain = [&wrong](const char *what, double angle) {
        wrong << QStringLiteral("%1 at %2 degrees").arg(QLatin1String(what)).arg(angle);
    };
    for (const PlanPoint &point : points) {
        if (!run.row(point.wanted))
            complain("lost", point.wanted);
    }
    for (const RunRow &row : run.rows) {
        const auto level =
            std::find_if(source.begin(), source.end(), [&row](const QPointF &candidate) {
                return std::abs(candidate.x() - row.wanted) < 1e-6;
            });
        if (level == source.end() || row.wanted != std::round(row.wanted))
            complain("invented", row.wanted);
        else if (row.isOnCurve() && std::abs(*row.mean - level->y()) > 0.01)
            complain("at a wrong angle", row.wanted);
    }
}

} // namespace

ClosedLoop measureInChamber(unsigned seed)
{
    const QString sample = QStringLiteral(MZ_SAMPLES "/horn.csv");
    QStringList options{QStringLiteral("--pattern"),       sample,
                        QStringLiteral("--rotator"),       QStringLiteral("0"),
                        QStringLiteral("--rotator-speed"), QStringLiteral("60"),
                        QStringLiteral("--noise"),         QStringLiteral("0"),
                        QStringLiteral("--seed"),          QString::number(seed)};
    for (const char *fault : instrumentFaults)
        options << QStringLiteral("--fault") << QLatin1String(fault);
    for (const char *fault : tableFaults)
        options << QStringLiteral("--rotator-fault") << QLatin1String(fault);
    ClosedLoop result;
    SimulatorProcess chamber;
    QTemporaryDir folder;
    if (!chamber.start(options))
        return {0, 0, 0, {chamber.errorText()}};
    const QString curve = folder.filePath(QStringLiteral("out.csv"));
    const QString address = QStringLiteral("127.0.0.1:%1");
    const QStringList arguments =
        QStringList{QStringLiteral("--lan"),
                    address.arg(chamber.port()),
                    QStringLiteral("sweep"),
                    QStringLiteral("--rotator"),
                    address.arg(chamber.rotatorPort()),
                    QStringLiteral("--out"),
                    curve} +
        QStringLiteral("--from -180 --to 180 --step 1 --settle 0 --readings 1 --resume")
            .split(QLatin1Char(' '));
    std::mt19937 random(seed);
    constexpr int mostStarts = 60;
    bool isOver = false;
    while (!isOver && result.starts++ < mostStarts)
        isOver = isFinished(arguments, std::uniform_int_distribution(5, 120)(random) * 1000,
                            result.wrong);
    const auto run = RunText::read(contentOf(RunText::pathBeside(curve)));
    if (!isOver || !run) {
        result.wrong << QStringLiteral("it does not come to its end");
        return result;
    }
    judge(*run, CurveText::fromFile(contentOf(sample)).points, result.wrong);
    if (CurveText::fromFile(contentOf(curve)).points.size() != run->curve().size())
        result.wrong << QStringLiteral("the curve is not that of the run");
    result.rows = run->rows.size();
    result.faults = chamber.notes().filter(QStringLiteral("fault ")).size();
    return result;
}
