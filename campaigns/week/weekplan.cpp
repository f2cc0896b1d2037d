#include "weekplan.h"

#include <QRandomGenerator>
#include <QSet>

#include <algorithm>
#include <array>

namespace {

/// A time not before \a time that is well clear of the records of a link opened at \a openedAt,
/// whatever its interval.
qint64 clearOfRecords(qint64 time, qint64 openedAt, qint64 offset)
{
    const qint64 minutes = (time - openedAt + minute - 1) / minute;
    return openedAt + minutes * minute + offset;
}

} // namespace

WeekPlan WeekPlan::make(const QDateTime &start, qint64 length, qint64 shortest, qint64 longest,
                        quint32 seed)
{
    constexpr std::array<int, 6> intervals{1, 1, 1, 2, 5, 30};
    QRandomGenerator random(seed);
    const auto between = [&random](qint64 low, qint64 high) {
        return low + qint64(random.bounded(double(high - low)));
    };

    const qint64 longestOutage = shortest / 3;

    WeekPlan plan{start, {}};
    qint64 openedAt = between(5 * second, minute);
    bool isSecondTry = false;
    while (plan.links.isEmpty() || plan.end() < length) {
        Link link{};
        link.openedAt = openedAt;
        link.interval = intervals.at(size_t(random.bounded(int(intervals.size()))));
        link.level = -10 - 5 * (plan.links.size() % 8);
        link.isSecondTry = isSecondTry;
        const qint64 wished = openedAt + between(shortest, longest);
        // The run ends with a link, and no link is too short for some records.
        const bool isLast = wished + longestOutage + 5 * minute > length;
        link.endsAt =
            clearOfRecords(isLast ? length : wished, openedAt, between(10 * second, 50 * second));
        plan.links.append(link);
        openedAt = link.endsAt + between(30 * second, longestOutage);
        isSecondTry = random.bounded(2) == 0;
    }
    return plan;
}

QVector<ExpectedRecord> expectedRecords(const WeekPlan &plan)
{
    QVector<ExpectedRecord> records;
    for (const WeekPlan::Link &link : plan.links) {
        records.append({link.openedAt + second, link.level});
        for (qint64 at = link.openedAt + link.interval * minute; at < link.endsAt;
             at += link.interval * minute)
            records.append({at, link.level});
    }
    return records;
}

QStringList expectedLogs(const WeekPlan &plan)
{
    QSet<QString> hours;
    for (qint64 time = 0; time < plan.end() + minute; time += minute)
        hours.insert(
            plan.dateOf(std::min(time, plan.end())).toString(QStringLiteral("yyyy-MM-dd/hh")));
    return hours.values();
}
