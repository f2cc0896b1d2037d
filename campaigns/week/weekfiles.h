#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

struct ExpectedRecord;
struct WeekPlan;

/// What is in the files that a console has written.
struct FilesFound
{
    int records = 0;
    int logs = 0;
    QStringList faults; ///< one line each: what is missing, misplaced or untrue
};

/// Compares the record files in \a folder with \a expected, row by row: the day's file, the minute,
/// the header, and a power that the instrument of that link can have given.
FilesFound checkRecords(const QString &folder, const WeekPlan &plan,
                        const QVector<ExpectedRecord> &expected);

/// Compares the log files in \a folder with \a expected ("day/hour"), and the hours that their
/// lines bear with their names.
FilesFound checkLogs(const QString &folder, const QStringList &expected);
