#include "cases.h"
#include "ratiotable.h"

#include <QApplication>
#include <QTextStream>

#include <algorithm>
#include <functional>

namespace {

/// A group of cases, which can be asked for by its name.
struct Group
{
    QString name;
    std::function<void(Report &)> run;
};

Group chartGroup(const QString &name, void (*run)(const ChartSink &))
{
    return {name,
            [run](Report &report) { run([&report](const ReportRow &row) { report.add(row); }); }};
}

Group duelGroup(const QString &name, void (*run)(const DuelSink &))
{
    return {name,
            [run](Report &report) { run([&report](const DuelRow &row) { report.add(row); }); }};
}

void measureStart(const DuelSink &add)
{
    Cases::startUp(QStringLiteral(MZ_BENCH_STARTER), add);
}

const QVector<Group> &groups()
{
    static const QVector<Group> all{
        chartGroup(QStringLiteral("tick"), Cases::timeChart),
        chartGroup(QStringLiteral("curves"), Cases::cartesianCurves),
        chartGroup(QStringLiteral("shapes"), Cases::curveShapes),
        chartGroup(QStringLiteral("polar"), Cases::polarCurves),
        duelGroup(QStringLiteral("files"), Cases::curveFiles),
        duelGroup(QStringLiteral("pattern"), Cases::patternAnalysis),
        duelGroup(QStringLiteral("losses"), Cases::lossTable),
        duelGroup(QStringLiteral("records"), Cases::records),
        duelGroup(QStringLiteral("start"), measureStart),
    };
    return all;
}

bool knowsAll(const QStringList &wanted)
{
    return std::all_of(wanted.begin(), wanted.end(), [](const QString &name) {
        return std::any_of(groups().begin(), groups().end(),
                           [&name](const Group &group) { return group.name == name; });
    });
}

/// Keeps \a ratios in \a table; those of a run of \a all groups replace what it holds.
bool store(const QString &table, const QMap<QString, double> &ratios, bool all)
{
    QMap<QString, double> kept = all ? QMap<QString, double>() : RatioTable::read(table);
    for (auto it = ratios.cbegin(); it != ratios.cend(); ++it)
        kept.insert(it.key(), it.value());
    return RatioTable::write(table, kept);
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
    const bool checks = wanted.removeAll(QStringLiteral("--check")) > 0;
    const bool stores = wanted.removeAll(QStringLiteral("--store")) > 0;
    if (!knowsAll(wanted)) {
        QTextStream(stderr) << "usage: mz_bench [--check | --store] [tick | curves | shapes | "
                               "polar | files | pattern | "
                               "losses | records | start] ...\n";
        return 2;
    }
    QTextStream out(stdout);
    Report report(out);
    for (const Group &group : groups()) {
        if (wanted.isEmpty() || wanted.contains(group.name))
            group.run(report);
    }
    const QString table = QStringLiteral(MZ_BENCH_RATIOS);
    if (stores && !store(table, report.ratios(), wanted.isEmpty())) {
        QTextStream(stderr) << "the ratios could not be written: " << table << '\n';
        return 1;
    }
    if (!checks)
        return 0;
    const int worse = RatioTable::printWorse(RatioTable::read(table), report.ratios(), out);
    out << worse << " ratios are worse by more than 15 %\n";
    return worse > 0 ? 1 : 0;
}
