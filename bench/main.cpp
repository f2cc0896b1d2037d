#include "cases.h"

#include <QApplication>
#include <QTextStream>

namespace {

const QStringList &groups()
{
    static const QStringList names{
        QStringLiteral("tick"),  QStringLiteral("curves"),  QStringLiteral("polar"),
        QStringLiteral("files"), QStringLiteral("pattern"), QStringLiteral("losses"),
        QStringLiteral("start"),
    };
    return names;
}

void run(const QStringList &wanted, QTextStream &out)
{
    const auto wants = [&wanted](int group) { return wanted.contains(groups().at(group)); };
    QVector<ReportRow> charts;
    if (wants(0))
        charts += Cases::timeChart();
    if (wants(1))
        charts += Cases::cartesianCurves();
    if (wants(2))
        charts += Cases::polarCurves();
    QVector<DuelRow> duels;
    if (wants(3))
        duels += Cases::curveFiles();
    if (wants(4))
        duels += Cases::patternAnalysis();
    if (wants(5))
        duels += Cases::lossTable();
    if (wants(6))
        duels += Cases::startUp(QStringLiteral(MZ_BENCH_STARTER));

    if (!charts.isEmpty())
        Report::printCharts(out, charts);
    if (!duels.isEmpty()) {
        out << '\n';
        Report::printDuels(out, duels);
    }
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    // What the chart engine tells the log at each step is not the drawing that is measured.
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        if (type == QtCriticalMsg || type == QtFatalMsg)
            QTextStream(stderr) << text << '\n';
    });

    QStringList wanted = app.arguments().mid(1);
    for (const QString &group : qAsConst(wanted)) {
        if (!groups().contains(group)) {
            QTextStream(stderr) << "usage: mz_bench [" << groups().join(QStringLiteral(" | "))
                                << "] ...\n";
            return 2;
        }
    }
    if (wanted.isEmpty())
        wanted = groups();
    QTextStream out(stdout);
    run(wanted, out);
    return 0;
}
