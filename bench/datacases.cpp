#include "cases.h"

#include "2d/data/curvetext.h"
#include "2d/data/patternanalysis.h"
#include "measure.h"
#include "module/formulacalc.h"
#include "storage/filewriting.h"
#include "testcurve.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <functional>

namespace {

constexpr int fileRows = 1000000;

void writeByArg(const QString &path, const QVector<QPointF> &points)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return;
    QTextStream stream(&file);
    stream << "title\ncurve\nAngle,Power\n";
    for (const QPointF &point : points)
        stream << QStringLiteral("%1,%2\n").arg(point.x()).arg(point.y());
}

int readBySplit(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    QVector<QPointF> points;
    for (int i = 0; i < 3; ++i)
        file.readLine();
    while (!file.atEnd()) {
        const QStringList fields = QString::fromUtf8(file.readLine()).split(QLatin1Char(','));
        if (fields.size() >= 2)
            points.append(QPointF(fields.at(0).toDouble(), fields.at(1).toDouble()));
    }
    return points.size();
}

int readOwn(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? CurveText::fromFile(file.readAll()).points.size() : 0;
}

QByteArray bigLossTable(int frequencies, int rows)
{
    QByteArray text = "category,path,description,unit";
    QByteArray row = "\npart,upside,,dB";
    for (int i = 0; i < frequencies; ++i) {
        text += ',' + QByteArray::number(600 + i * 0.5);
        row += ',' + QByteArray::number(0.31 + i * 0.0001);
    }
    return text + row.repeated(rows) + '\n';
}

/// The same table by splitting into strings and searching the map for each cell.
QMap<double, double> readTableBySplit(const QString &path)
{
    QMap<double, double> sums;
    QList<double> keys;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return sums;
    QTextStream stream(&file);
    while (!stream.atEnd()) {
        const QString line = stream.readLine();
        const QStringList fields = line.split(QLatin1Char(','));
        const bool header = fields.contains(QStringLiteral("category"), Qt::CaseInsensitive);
        for (int i = 4; header && i < fields.size(); ++i) {
            keys.append(fields.at(i).toDouble());
            sums.insert(keys.constLast(), 0.0);
        }
        if (!line.contains(QStringLiteral("upside"), Qt::CaseInsensitive))
            continue;
        for (int i = 4; i < fields.size(); ++i)
            sums[keys.at(i - 4)] = sums.value(keys.at(i - 4)) + fields.at(i).toDouble();
    }
    return sums;
}

/// The neighbours of \a frequency by a walk down the sorted keys.
double walkDown(const QMap<double, double> &map, double frequency)
{
    QList<double> keys = map.keys();
    std::sort(keys.begin(), keys.end(), std::greater<double>());
    double upper = 0.0;
    for (const double key : qAsConst(keys)) {
        if (key <= frequency)
            return map.value(upper) - map.value(key);
        upper = key;
    }
    return 0.0;
}

} // namespace

namespace Cases {

void curveFiles(const DuelSink &add)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("curve.csv"));
    const QVector<QPointF> points = testCurve(CurveShape::Pattern, fileRows);
    const QString title = QStringLiteral("title");
    const QString name = QStringLiteral("curve");

    DuelRow writing{QStringLiteral("write a curve file of 1,000,000 rows"),
                    0.0,
                    QStringLiteral("`arg` and `QTextStream`, six digits"),
                    {}};
    writing.rivalTime = Measure::medianMs([&] { writeByArg(path, points); });
    writing.own =
        Measure::medianMs([&] { replaceFile(path, CurveText::toFile(title, name, points)); });

    DuelRow reading{
        QStringLiteral("read it"), 0.0, QStringLiteral("`readLine`, `split` and `toDouble`"), {}};
    reading.own = Measure::medianMs([&] {
        if (readOwn(path) != fileRows)
            qFatal("the curve file was not read");
    });
    reading.rivalTime = Measure::medianMs([&] {
        if (readBySplit(path) != fileRows)
            qFatal("the curve file was not read");
    });
    add(writing);
    add(reading);
}

void patternAnalysis(const DuelSink &add)
{
    const QVector<QPointF> points = testCurve(CurveShape::Pattern, 100000);
    QVector<QPointF> sorted = points;
    DuelRow row{QStringLiteral("analyse a pattern of 100,000 points"),
                0.0,
                QStringLiteral("sorting the points by level once"),
                {}};
    row.own = Measure::medianMs([&] {
        if (!analysePattern(points))
            qFatal("the pattern was not analysed");
    });
    row.rivalTime = Measure::medianMs(
        [&] {
            std::sort(sorted.begin(), sorted.end(),
                      [](const QPointF &a, const QPointF &b) { return a.y() < b.y(); });
        },
        [&] { sorted = points; });
    add(row);
}

void lossTable(const DuelSink &add)
{
    constexpr int frequencies = 10000;
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("losses.csv")));
    if (!file.open(QIODevice::WriteOnly))
        return;
    file.write(bigLossTable(frequencies, 100));
    file.close();

    FormulaCalc *calc = FormulaCalc::Instance();
    DuelRow loading{QStringLiteral("load a loss table of 10,000 frequencies and 100 rows"),
                    0.0,
                    QStringLiteral("`split`, `toDouble` and a search for each cell"),
                    {}};
    loading.own = Measure::medianMs([&] { calc->queryLossCompensationFromFile(file.fileName()); });
    loading.rivalTime = Measure::medianMs([&] { readTableBySplit(file.fileName()); });

    DuelRow asking{QStringLiteral("ask it once"), 0.0, QStringLiteral("a walk down the keys"), {}};
    int asked = 0;
    const auto next = [&asked] { return 600.25 + 0.5 * (asked++ * 7919 % (frequencies - 1)); };
    double sum = 0.0; // used, so that nothing is left out
    asking.own = Measure::medianMs(
        [&] { sum += calc->queryLossCompensation(QStringLiteral("TRP"), next()); });
    asking.rivalTime = Measure::medianMs([&] { sum += walkDown(calc->upsideMap(), next()); });
    if (sum == 0.0)
        qFatal("the loss table did not answer");
    add(loading);
    add(asking);
}

} // namespace Cases
