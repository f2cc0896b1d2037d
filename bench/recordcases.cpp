#include "cases.h"

#include "measure.h"
#include "recorddata/recordreader.h"
#include "recordview/recordchart.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>

#include <cmath>

namespace {

constexpr int rowsOfFile = 100000;
constexpr int pointsOfWeek = 6000000;

double levelAt(int row)
{
    return -20.0 + 3.0 * std::sin(row / 50000.0) + 0.1 * std::sin(row * 1.7);
}

void writeRecord(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("the record was not written");
    file.write("time,start,n_valid,n_invalid,mean_dbm,min_dbm,max_dbm,sigma_db,last_dbm,"
               "frequency_hz,offset_db,relative,averaging,valid,reason\n");
    const QDateTime begin(QDate(2026, 11, 21), QTime(0, 0), Qt::UTC);
    const auto clock = [&begin](int row) {
        return begin.addMSecs(100LL * row)
            .toString(QStringLiteral("yyyy-MM-ddThh:mm:ss.zzz+00:00"));
    };
    for (int row = 0; row < rowsOfFile; ++row)
        file.write(QStringLiteral("%1,%2,2,0,%3,%3,%3,0.0431,%3,2450000000,-3.50,0,16,1,ok\n")
                       .arg(clock(row + 1), clock(row), QString::number(levelAt(row), 'f', 4))
                       .toLatin1());
}

int readRecordBySplit(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    QVector<QPointF> points;
    file.readLine();
    while (!file.atEnd()) {
        const QStringList cells = QString::fromUtf8(file.readLine()).split(QLatin1Char(','));
        const QDateTime time = QDateTime::fromString(cells.value(0), Qt::ISODateWithMs);
        points.append({double(time.toMSecsSinceEpoch()), cells.value(4).toDouble()});
    }
    return points.size();
}

} // namespace

namespace Cases {

void records(const DuelSink &add)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("record.csv"));
    writeRecord(path);
    DuelRow opening{QStringLiteral("open a record of 100,000 rows"),
                    0.0,
                    QStringLiteral("`readLine`, `split` and `QDateTime::fromString`"),
                    {}};
    opening.own = Measure::medianMs([&path] {
        RecordReader reader;
        if (reader.open({path}, {}) != RecordReader::Outcome::Read ||
            reader.data().size() != rowsOfFile)
            qFatal("the record was not read");
    });
    opening.rivalTime = Measure::medianMs([&path] {
        if (readRecordBySplit(path) != rowsOfFile)
            qFatal("the record was not read");
    });
    add(opening);

    RecordData week;
    for (int row = 0; row < pointsOfWeek; ++row)
        week.append({0.1 * row, levelAt(row), false, row % 100000 == 777, {}});
    week.index();
    RecordChart chart;
    chart.resize(1000, 600);
    chart.show();
    QCoreApplication::processEvents(); // before it is exposed, nothing is painted
    chart.setData(&week, false);
    int step = 0;
    const double zoom = Measure::medianMs([&chart, &step] {
        constexpr int depth = 40;
        if (step++ / depth % 2 == 0)
            chart.zoomIn();
        else
            chart.zoomOut();
        chart.viewport()->repaint();
    });
    add({QStringLiteral("zoom step on a record of 6,000,000 points"), zoom,
         QStringLiteral("the goal, 5 ms"), 5.0});
}

} // namespace Cases
