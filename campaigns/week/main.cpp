#include "appinit.h"
#include "campaigns/memory.h"
#include "frame/appstyle.h"
#include "messagelog.h"
#include "testmain.h"
#include "virtualclock.h"
#include "weekfiles.h"
#include "weekrun.h"

#include <QTextStream>

#include <cstdio>

/// Runs the console in virtual time, and leaves its files beside the program, which is to be alone
/// in its folder; to be run by scripts/campaign.sh.
///   mz_longrun MINUTES SEED

namespace {

constexpr qint64 memoryBound = 2048; // KiB above the first figure

/// The fourth night of a week is the one in which summer time ends, and an hour comes twice. A run
/// of less than a day has one midnight and one loss.
WeekPlan makePlan(qint64 length, quint32 seed)
{
    const QDateTime start(QDate(2026, 10, 21), QTime(23, 40), Qt::LocalTime);
    return length < day ? WeekPlan::make(start, length, 25 * minute, 27 * minute, seed)
                        : WeekPlan::make(start, length, 2 * hour, 12 * hour, seed);
}

/// Prints what was expected and what was found, and counts what differed.
class Report
{
public:
    void compare(const char *what, qint64 expected, qint64 found)
    {
        tell(what, QString::number(found));
        if (expected != found)
            fail({QLatin1String(what) + QStringLiteral(": expected %1").arg(expected)});
    }
    void tell(const QString &what, const QString &figure)
    {
        m_out << "figure\t" << what << "\tfound\t" << figure << '\n';
    }
    void tell(const char *what, const QString &figure) { tell(QLatin1String(what), figure); }
    void fail(const QStringList &faults)
    {
        for (const QString &fault : faults)
            m_out << "WRONG: " << fault << '\n';
        m_failures += faults.size();
    }
    int failures() const { return m_failures; }

private:
    QTextStream m_out{stdout};
    int m_failures = 0;
};

void reportMemory(const WeekRun &run, Report &report)
{
    const QMap<qint64, qint64> &memory = run.findings().memory;
    for (auto at = memory.begin(); at != memory.end(); ++at)
        report.tell(
            QStringLiteral("memory after %1 h, KiB").arg(double(at.key()) / hour, 0, 'f', 1),
            QString::number(*at));
    const qint64 growth = memory.last() - memory.first();
    report.tell("growth of it since the first figure, KiB", QString::number(growth));
    if (isMemoryTelling && growth > memoryBound)
        report.fail({QStringLiteral("the memory grew by more than %1 KiB").arg(memoryBound)});
}

void reportRun(const WeekPlan &plan, const WeekRun &run, Report &report)
{
    qint64 open = 0;
    int restarts = 0;
    int boxes = plan.links.size() - 1;
    for (const WeekPlan::Link &link : plan.links) {
        const qint64 seconds = (link.endsAt - link.openedAt) / 1000;
        open += seconds;
        restarts += int(seconds / 3601);
        boxes += link.isSecondTry ? 1 : 0;
    }
    report.tell("hours of virtual time", QString::number(double(plan.end()) / hour, 'f', 1));
    report.tell("links (one more than losses)", QString::number(plan.links.size()));
    report.tell("readings", QString::number(run.findings().readings));
    report.tell("waits that a busy machine left unanswered",
                QString::number(VirtualClock::unansweredWaits()));
    report.compare("warning boxes", boxes, run.findings().boxes);
    report.tell("seconds with a link", QString::number(open));
    report.tell("chart points", QString::number(run.findings().chartPoints));
    report.tell("most chart points at once (601 shown)",
                QString::number(run.findings().mostChartPoints));
    report.compare("chart restarts after an hour", restarts, run.findings().chartRestarts);
    report.fail(run.findings().faults);
}

void reportFiles(const WeekPlan &plan, Report &report)
{
    const QVector<ExpectedRecord> records = expectedRecords(plan);
    const FilesFound rows =
        checkRecords(ConsoleTester::path(QStringLiteral("DataRecord")), plan, records);
    report.compare("records", records.size(), rows.records);
    report.fail(rows.faults);

    const QStringList hours = expectedLogs(plan);
    const FilesFound logs = checkLogs(ConsoleTester::path(QStringLiteral("Log")), hours);
    report.compare("log files", hours.size(), logs.logs);
    report.fail(logs.faults);
}

/// Everything as in the console's own start, with the log's copy on standard error put away.
void prepare()
{
    std::fflush(stderr);
    if (std::freopen(isMemoryTelling ? "/dev/null" : "stderr.txt", "w", stderr) == nullptr)
        std::perror("stderr");
    qInstallMessageHandler(MessageLog::handler);
    QApplication::setFont(AppStyle::applicationFont());
    AppStyle::applyStyleSheet();
    AppInit::Instance()->start();
}

} // namespace

int main(int argc, char **argv)
{
    TestMain::pinEnvironment();
    qputenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
    // GLib's event loop has descriptors of its own to wait for; Qt's own is all that is needed.
    qputenv("QT_NO_GLIB", "1");
    AppStyle::enableHighDpi();
    QApplication app(argc, argv);
    // A box may come up and be closed while the console's window is hidden.
    QApplication::setQuitOnLastWindowClosed(false);
    const QStringList words = QCoreApplication::arguments();
    const quint32 seed = words.value(2).toUInt();
    const WeekPlan plan = makePlan(words.value(1).toInt() * minute, seed);

    QDir::setCurrent(QCoreApplication::applicationDirPath());
    prepare();
    VirtualClock::start(plan.start.toMSecsSinceEpoch(), seed);
    Report report;
    WeekRun run(plan, seed);
    QObject::connect(&run, &WeekRun::finished, &app, &QCoreApplication::quit);
    QApplication::exec();

    reportRun(plan, run, report);
    reportFiles(plan, report);
    reportMemory(run, report);
    report.tell("real time, s", QString::number(VirtualClock::realElapsed() / 1000));
    return report.failures() == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
