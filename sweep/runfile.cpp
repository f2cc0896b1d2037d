#include "sweep/runfile.h"

#include <QMap>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

constexpr double markedDrift = 0.3; // dB

/// Equal for angles that are the same but for what reading and writing them did.
qint64 keyOf(double angle)
{
    constexpr double resolution = 1e4;
    return std::llround(angle * resolution);
}

/// The row that counts for every wanted angle: the last one.
QMap<qint64, const RunRow *> latestRows(const QVector<RunRow> &rows)
{
    QMap<qint64, const RunRow *> latest;
    for (const RunRow &row : rows) {
        if (!row.flags.testFlag(RunFlag::Drift))
            latest.insert(keyOf(row.wanted), &row);
    }
    return latest;
}

} // namespace

bool RunRow::isOnCurve() const
{
    return mean && !(flags & (RunFlag::Angle | RunFlag::Missing | RunFlag::Drift));
}

const RunRow *RunFile::row(double wanted) const
{
    const auto found = std::find_if(rows.rbegin(), rows.rend(), [wanted](const RunRow &row) {
        return !row.flags.testFlag(RunFlag::Drift) && keyOf(row.wanted) == keyOf(wanted);
    });
    return found == rows.rend() ? nullptr : &*found;
}

const RunRow *RunFile::driftRow() const
{
    const auto found = std::find_if(rows.rbegin(), rows.rend(), [](const RunRow &row) {
        return row.flags.testFlag(RunFlag::Drift);
    });
    return found == rows.rend() ? nullptr : &*found;
}

std::optional<double> RunFile::drift() const
{
    const RunRow *again = driftRow();
    const RunRow *first = again ? row(again->wanted) : nullptr;
    if (!first || !first->isOnCurve() || !again->mean || again->flags.testFlag(RunFlag::Angle))
        return std::nullopt;
    return *again->mean - *first->mean;
}

bool RunFile::isMarked() const
{
    return std::abs(drift().value_or(0.0)) > markedDrift;
}

QVector<int> RunFile::left(const QVector<PlanPoint> &points) const
{
    const QMap<qint64, const RunRow *> latest = latestRows(rows);
    const RunRow *doubtful = driftRow() || rows.isEmpty() ? nullptr : &rows.constLast();
    QVector<int> open;
    for (int i = 0; i < points.size(); ++i) {
        const RunRow *known = latest.value(keyOf(points.at(i).wanted));
        if (!known || known == doubtful)
            open.append(i);
    }
    return open;
}

bool RunFile::isComplete(const QVector<PlanPoint> &points) const
{
    return driftRow() && left(points).isEmpty();
}

QVector<QPointF> RunFile::curve() const
{
    QVector<const RunRow *> order;
    const QMap<qint64, const RunRow *> latest = latestRows(rows);
    std::copy_if(latest.begin(), latest.end(), std::back_inserter(order),
                 [](const RunRow *row) { return row->isOnCurve(); });
    // The point that was planned first stands first among those of one θ.
    if (header.plan.sense * (header.plan.to - header.plan.from) < 0.0)
        std::reverse(order.begin(), order.end());
    std::stable_sort(order.begin(), order.end(), [](const RunRow *a, const RunRow *b) {
        return keyOf(a->theta) < keyOf(b->theta);
    });
    QVector<QPointF> points;
    for (const RunRow *row : qAsConst(order)) {
        if (points.isEmpty() || keyOf(points.constLast().x()) != keyOf(row->theta))
            points.append(QPointF(row->theta, *row->mean));
    }
    return points;
}
