#pragma once

#include <QString>
#include <QStringList>

/// What a job found: figures, and what is wrong.
struct Verdict
{
    qint64 rows = 0;
    qint64 valid = 0;
    QStringList wrong;

    void expect(bool isTrue, const QString &what)
    {
        // The first ones tell enough.
        if (!isTrue && wrong.size() < 10)
            wrong << what;
    }
};

/// Looks at the rows of a csv file, or of several one after the other: times that follow each
/// other without gap or overlap but at steps of the clock, levels in valid rows alone and near
/// -20 dBm.
void judgeRows(const QStringList &rows, Verdict &verdict);
