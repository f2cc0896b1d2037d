#include "cases.h"

#include <QProcess>

#include <algorithm>
#include <vector>

namespace {

/// The processor time from start to first painting that \a starter reports for \a window; nothing
/// when it fails.
std::optional<double> onceMs(const QString &starter, const QString &window)
{
    QProcess process;
    process.start(starter, {window});
    if (!process.waitForFinished(60000) || process.exitCode() != 0)
        return std::nullopt;
    return process.readAllStandardOutput().trimmed().toDouble();
}

} // namespace

namespace Cases {

void startUp(const QString &starter, const DuelSink &add)
{
    std::vector<double> console;
    std::vector<double> chart;
    for (int round = 0; round < 21; ++round) {
        const auto own = onceMs(starter, QStringLiteral("console"));
        const auto empty = onceMs(starter, QStringLiteral("chart"));
        if (!own || !empty)
            return;
        console.push_back(*own);
        chart.push_back(*empty);
    }
    std::sort(console.begin(), console.end());
    std::sort(chart.begin(), chart.end());
    add({QStringLiteral("start the console, to its first painting"), console.at(console.size() / 2),
         QStringLiteral("an empty window with a chart"), chart.at(chart.size() / 2)});
}

} // namespace Cases
