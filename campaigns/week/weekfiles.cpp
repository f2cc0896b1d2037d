#include "weekfiles.h"

#include "testfiles.h"
#include "weekplan.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QSet>

#include <algorithm>
#include <cmath>

namespace {

struct Row
{
    QString day; ///< of the file that it stands in
    QStringList columns;
};

const QByteArray header("Time,Frequency(GHz),Offset(dB),Power(dBm),Converted Power\n");

/// The rows of all files in \a folder; what is no row becomes a fault.
QVector<Row> readRows(const QString &folder, QStringList &faults)
{
    QVector<Row> rows;
    const auto files =
        QDir(folder).entryInfoList({QStringLiteral("*.csv")}, QDir::Files, QDir::Name);
    for (const QFileInfo &info : files) {
        QFile file(info.filePath());
        if (!file.open(QIODevice::ReadOnly) || file.readLine() != header)
            faults.append(QStringLiteral("no header in ") + info.fileName());
        while (!file.atEnd()) {
            const QByteArray line = file.readLine();
            const QStringList columns = QString::fromUtf8(line).trimmed().split(QLatin1Char(','));
            if (line.endsWith('\n') && columns.size() == 5)
                rows.append({info.completeBaseName(), columns});
            else
                faults.append(QStringLiteral("no whole row in %1: %2")
                                  .arg(info.fileName(), QString::fromUtf8(line)));
        }
    }
    return rows;
}

/// What is wrong with \a row; empty when it is the one that is \a expected.
QString faultOf(const Row &row, const WeekPlan &plan, const ExpectedRecord &expected)
{
    const QString &time = row.columns.at(0);
    const auto minuteAt = [&plan](qint64 at) {
        return plan.dateOf(at).toString(QStringLiteral("yyyy/MM/dd hh:mm"));
    };
    if (time != minuteAt(expected.at) && time != minuteAt(expected.at + recordTolerance))
        return QStringLiteral("expected at %1, found %2").arg(minuteAt(expected.at), time);
    if (time.left(10).replace(QLatin1Char('/'), QLatin1Char('-')) != row.day)
        return QStringLiteral("the row of %1 stands in the file of %2").arg(time, row.day);

    // The source drifts by some tenths; the links' levels are 5 dB apart.
    constexpr double spread = 2.0;
    bool isNumber = false;
    const QString unit = QStringLiteral("dBm");
    const QString &power = row.columns.at(3);
    const double dBm = power.chopped(unit.size()).toDouble(&isNumber);
    if (!power.endsWith(unit) || !isNumber || std::abs(dBm - expected.level) > spread)
        return QStringLiteral("the row of %1 holds %2, the source gave %3 dBm")
            .arg(time, power)
            .arg(expected.level);
    return {};
}

/// The hours as "yyyy-MM-dd hh" that the lines of the log at \a path bear.
QSet<QByteArray> hoursIn(const QString &path)
{
    QSet<QByteArray> hours;
    for (const QByteArray &line : contentOf(path).trimmed().split('\n'))
        hours.insert(line.mid(line.lastIndexOf('(') + 1, 13));
    return hours;
}

} // namespace

FilesFound checkRecords(const QString &folder, const WeekPlan &plan,
                        const QVector<ExpectedRecord> &expected)
{
    FilesFound found;
    const QVector<Row> rows = readRows(folder, found.faults);
    found.records = rows.size();
    const int common = std::min(rows.size(), expected.size());
    for (int i = 0; i < common; ++i) {
        const QString fault = faultOf(rows.at(i), plan, expected.at(i));
        if (!fault.isEmpty())
            found.faults.append(QStringLiteral("record %1: %2").arg(i + 1).arg(fault));
    }
    return found;
}

FilesFound checkLogs(const QString &folder, const QStringList &expected)
{
    FilesFound found;
    QStringList missing = expected;
    QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        const QString name = QDir(folder).relativeFilePath(path).remove(QStringLiteral(".txt"));
        ++found.logs;
        if (!missing.removeOne(name))
            found.faults.append(QStringLiteral("log not expected: ") + name);
        QByteArray hourName = name.toUtf8();
        hourName.replace('/', ' ');
        if (hoursIn(path) != QSet<QByteArray>{hourName})
            found.faults.append(QStringLiteral("lines of other hours in the log ") + name);
    }
    for (const QString &name : qAsConst(missing))
        found.faults.append(QStringLiteral("log missing: ") + name);
    return found;
}
