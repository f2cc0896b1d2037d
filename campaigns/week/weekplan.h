#pragma once

#include <QDateTime>
#include <QVector>

constexpr qint64 second = 1000; // ms
constexpr qint64 minute = 60 * second;
constexpr qint64 hour = 60 * minute;
constexpr qint64 day = 24 * hour;

/// What happens in a long run, and what the console must have written when it is over. Nothing here
/// knows the console: it is worked out from the times at which the user acts and from what is
/// promised to the user. All times in ms since the start.
struct WeekPlan
{
    /// One link, from its opening to its loss; the last one lasts to the end of the run.
    struct Link
    {
        qint64 openedAt;
        qint64 endsAt;
        int interval;     ///< of the records, in minutes
        int level;        ///< of the instrument's source in dBm, another for each link
        bool isSecondTry; ///< the user tried before, while the instrument was still off
    };

    QDateTime start;
    QVector<Link> links;

    /// A plan of \a length ms at least, in which each link lasts between \a shortest and \a longest
    /// ms, and the time without a link a third of \a shortest at most.
    static WeekPlan make(const QDateTime &start, qint64 length, qint64 shortest, qint64 longest,
                         quint32 seed);

    qint64 end() const { return links.constLast().endsAt; }
    QDateTime dateOf(qint64 time) const { return start.addMSecs(time); }
};

/// A record that must be there.
struct ExpectedRecord
{
    qint64 at; ///< the earliest time
    int level; ///< of the source, in dBm
};

/// How late a record may be, in ms: a timer of minutes fires at whole seconds, and an opening takes
/// its time.
constexpr qint64 recordTolerance = 2000;

/// The records of \a plan in their order: one a second after each opening, then one each interval.
QVector<ExpectedRecord> expectedRecords(const WeekPlan &plan);

/// The log files of \a plan as "day/hour", in no order: one for each hour that it touches.
QStringList expectedLogs(const WeekPlan &plan);
