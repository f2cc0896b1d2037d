#include "report.h"

#include <algorithm>
#include <numeric>

namespace {

struct Row
{
    int scenarios = 0;
    int faults = 0;
    int links = 0;
    int boxes = 0;
    int rows = 0;
    QVector<int> failures = QVector<int>(Result::checks.size());

    void add(const Result &result)
    {
        ++scenarios;
        links += result.links;
        boxes += result.boxes;
        rows += result.rows;
        faults = std::accumulate(result.faults.begin(), result.faults.end(), faults);
        for (int i = 0; i < failures.size(); ++i) {
            const auto belongs = [i](const Result::Failure &failure) {
                return failure.check == Result::checks.at(i);
            };
            failures[i] +=
                int(std::count_if(result.failures.begin(), result.failures.end(), belongs));
        }
    }

    QString toText(const QString &name) const
    {
        QStringList cells{name};
        for (const int number : QVector<int>{scenarios, faults, links, boxes, rows} + failures)
            cells.append(QString::number(number));
        return QStringLiteral("| ") + cells.join(QStringLiteral(" | ")) + QStringLiteral(" |\n");
    }
};

} // namespace

QString reportOf(const QVector<Scenario> &scenarios, const QVector<Result> &results)
{
    QStringList groups;
    QMap<QString, Row> rows;
    Row all;
    QMap<QString, int> kinds;
    for (int i = 0; i < scenarios.size(); ++i) {
        const QString &group = scenarios.at(i).group;
        if (!groups.contains(group))
            groups.append(group);
        rows[group].add(results.at(i));
        all.add(results.at(i));
        const QMap<QString, int> &faults = results.at(i).faults;
        for (auto fault = faults.begin(); fault != faults.end(); ++fault)
            kinds[fault.key()] += fault.value();
    }

    QString text = QStringLiteral("| Fault in | scenarios | faults | links | boxes | rows | ") +
                   Result::checks.join(QStringLiteral(" | ")) + QStringLiteral(" |\n|---|") +
                   QStringLiteral("--:|").repeated(5 + Result::checks.size()) + QLatin1Char('\n');
    for (const QString &group : qAsConst(groups))
        text += rows.value(group).toText(group);
    text += all.toText(QStringLiteral("**all**")) +
            QStringLiteral("\n| Kind of fault | times |\n|---|--:|\n");
    for (auto kind = kinds.begin(); kind != kinds.end(); ++kind)
        text += QStringLiteral("| `%1` | %2 |\n").arg(kind.key()).arg(kind.value());
    return text;
}
