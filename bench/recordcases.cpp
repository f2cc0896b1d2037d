#include "cases.h"

#include "measure.h"
#include "recorddata/recordreader.h"
#include "recordview/recordchart.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <cmath>

namespace {

constexpr int rowsOfDay = 6000000;
constexpr int missingEvery = 100000; // a reading that did not come
constexpr int pointsOfDay = rowsOfDay - rowsOfDay / missingEvery;
constexpr double stepMs = 14.3; // nearly a day

double levelAt(int row)
{
    return -20.0 + 3.0 * std::sin(row / 50000.0) + 0.1 * std::sin(row * 1.7);
}

QString clockAt(int row)
{
    const qint64 ms = qRound64(stepMs * row);
    return QString::asprintf("2026-11-21T%02d:%02d:%02d.%03d+00:00", int(ms / 3600000 % 24),
                             int(ms / 60000 % 60), int(ms / 1000 % 60), int(ms % 1000));
}

/// A day of readings, a few of which did not come.
void writeDay(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("the record was not written");
    file.write("time,start,n_valid,n_invalid,mean_dbm,min_dbm,max_dbm,sigma_db,last_dbm,"
               "frequency_hz,offset_db,relative,averaging,valid,reason\n");
    QByteArray start = clockAt(0).toLatin1();
    for (int row = 0; row < rowsOfDay; ++row) {
        const QByteArray time = clockAt(row + 1).toLatin1();
        const QByteArray level = QByteArray::number(levelAt(row), 'f', 4);
        if (row % missingEvery == missingEvery / 2)
            file.write(time + ',' + start + ",0,1,,,,,,2450000000,-3.50,0,16,0,timeout\n");
        else
            file.write(time + ',' + start + ",2,0," + level + ',' + level + ',' + level +
                       ",0.0431," + level + ",2450000000,-3.50,0,16,1,ok\n");
        start = time;
    }
}

/// What pandas takes for the same columns of the same file; nothing where there is none.
std::optional<double> pandasMs(const QString &path)
{
    const QString program =
        QStringLiteral("import sys, time, pandas\n"
                       "begin = time.process_time()\n"
                       "day = pandas.read_csv(sys.argv[1], usecols=['time', 'mean_dbm', 'valid'],"
                       " parse_dates=['time'])\n"
                       "assert len(day) == int(sys.argv[2])\n"
                       "print(1000 * (time.process_time() - begin))\n");
    QProcess python;
    python.start(QStringLiteral("/usr/bin/python3"), // whose packages are Debian's
                 {QStringLiteral("-c"), program, path, QString::number(rowsOfDay)});
    if (!python.waitForFinished(-1) || python.exitCode() != 0)
        return std::nullopt;
    return python.readAllStandardOutput().trimmed().toDouble();
}

double zoomStepMs(const RecordData &day)
{
    RecordChart chart;
    chart.resize(1000, 600);
    chart.show();
    QCoreApplication::processEvents(); // before it is exposed, nothing is painted
    chart.setData(&day, false);
    int step = 0;
    return Measure::medianMs([&chart, &step] {
        constexpr int depth = 40;
        if (step++ / depth % 2 == 0)
            chart.zoomIn();
        else
            chart.zoomOut();
        chart.repaint();
    });
}

} // namespace

namespace Cases {

void records(const DuelSink &add)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("day.csv"));
    writeDay(path);
    const double opening = Measure::medianMs([&path] {
        RecordReader reader;
        if (reader.open({path}, {}) != RecordReader::Outcome::Read ||
            reader.data().size() != pointsOfDay)
            qFatal("the record was not read");
    });
    add({QStringLiteral("open a day of 6,000,000 rows"), opening,
         QStringLiteral("pandas, the same three columns"), pandasMs(path)});

    RecordReader reader;
    reader.open({path}, {});
    add({QStringLiteral("zoom step on it"), zoomStepMs(reader.data()),
         QStringLiteral("the goal, 5 ms"), 5.0});
    const double saving = Measure::medianMs([&reader, &folder] {
        QFile copy(folder.filePath(QStringLiteral("rows.csv")));
        const RecordData &day = reader.data();
        if (!copy.open(QIODevice::WriteOnly) ||
            !reader.copyRows(day.between(day.time(0), day.time(day.size() - 1)), copy))
            qFatal("the rows were not saved");
    });
    add({QStringLiteral("save all its rows"), saving, QStringLiteral("-"), std::nullopt});
}

} // namespace Cases
