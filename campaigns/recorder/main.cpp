#include "faultrun.h"
#include "month.h"

#include <QCoreApplication>
#include <QTextStream>

#include <ctime>

namespace {

QStringList jobs()
{
    QStringList names{QStringLiteral("month 2026-10-10"), QStringLiteral("month 2027-03-15")};
    for (const QString &fault : faults())
        names << QStringLiteral("fault ") + fault;
    return names;
}

Verdict carryOut(const QString &job, bool isSlice)
{
    const QString what = job.section(QLatin1Char(' '), 1);
    if (job.startsWith(QLatin1String("fault")))
        return runWithFault(what);
    // The slice lies around the change of the clocks.
    return isSlice ? runMonth(what.startsWith(QLatin1String("2026")) ? QStringLiteral("2026-10-24")
                                                                     : QStringLiteral("2027-03-27"),
                              2, 1)
                   : runMonth(what, 30, 1);
}

} // namespace

/// usage: list [slice] | run JOB [slice]
int main(int argc, char **argv)
{
    qputenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
    ::tzset();
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const bool isSlice = arguments.last() == QLatin1String("slice");
    QTextStream out(stdout);
    if (arguments.value(1) == QLatin1String("list")) {
        // Each kind of fault once in a slice would take too long for a test.
        const QStringList names = isSlice ? jobs().mid(0, 2) : jobs();
        out << names.join(QLatin1Char('\n')) << '\n';
        return 0;
    }
    const QString job = arguments.value(2);
    const Verdict verdict = carryOut(job, isSlice);
    const QString group = job.section(QLatin1Char(':'), 0, 0).section(QLatin1Char(','), 0, 0);
    out << "figure\t" << group << "\truns\t1\n";
    out << "figure\t" << group << "\trows\t" << verdict.rows << '\n';
    out << "figure\t" << group << "\tvalid\t" << verdict.valid << '\n';
    for (const QString &wrong : verdict.wrong)
        out << "WRONG: " << wrong << '\n';
    return verdict.wrong.isEmpty() ? 0 : 1;
}
