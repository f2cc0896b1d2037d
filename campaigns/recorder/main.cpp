#include "faultrun.h"
#include "month.h"

#include <QCoreApplication>
#include <QTextStream>

#include <ctime>

/// Tries the recorder; to be run by scripts/campaign.sh.
///   mz_recordcampaign list       the names of all jobs
///   mz_recordcampaign run NAME   one of them: "month FIRST-DAY, N days" or "fault FAULT"

namespace {

QStringList jobs()
{
    QStringList names{QStringLiteral("month 2026-10-10, 30 days"),
                      QStringLiteral("month 2027-03-15, 30 days")};
    for (const QString &fault : faults())
        names << QStringLiteral("fault ") + fault;
    return names;
}

Verdict carryOut(const QString &job)
{
    const QString what = job.section(QLatin1Char(' '), 1);
    if (job.startsWith(QLatin1String("fault")))
        return runWithFault(what);
    const int days = what.section(QLatin1Char(' '), 1, 1).toInt();
    return runMonth(what.section(QLatin1Char(','), 0, 0), days, 1);
}

int run(const QString &job, QTextStream &out)
{
    const Verdict verdict = carryOut(job);
    const QString group = job.section(QLatin1Char(':'), 0, 0).section(QLatin1Char(','), 0, 0);
    out << "figure\t" << group << "\truns\t1\n";
    out << "figure\t" << group << "\trows\t" << verdict.rows << '\n';
    out << "figure\t" << group << "\tvalid\t" << verdict.valid << '\n';
    for (const QString &wrong : verdict.wrong)
        out << "WRONG: " << wrong << '\n';
    return verdict.wrong.isEmpty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
    ::tzset();
    const QCoreApplication app(argc, argv);
    const QString job = QCoreApplication::arguments().value(2);
    QTextStream out(stdout);
    if (!job.isEmpty())
        return run(job, out);
    out << jobs().join(QLatin1Char('\n')) << '\n';
    return EXIT_SUCCESS;
}
