#include "patterns/figuretable.h"

#include "2d/data/curvetext.h"
#include "2d/data/paratabletext.h"
#include "2d/data/patternanalysis.h"
#include "2d/data/patternsupplement.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

constexpr double missingOnTheLeft = -100.0; // as in ParaInfo
constexpr double missingOnTheRight = 10000.0;

QString cell(const QString &text)
{
    const bool needsQuotes = std::any_of(text.begin(), text.end(), [](QChar c) {
        return c == QLatin1Char(',') || c == QLatin1Char('"') || c == QLatin1Char('\n') ||
               c == QLatin1Char('\r');
    });
    if (!needsQuotes)
        return text;
    return QLatin1Char('"') + QString(text).replace(QLatin1Char('"'), QStringLiteral("\"\"")) +
           QLatin1Char('"');
}

QString cell(const std::optional<double> &value)
{
    return value && std::isfinite(*value) ? CurveText::number(*value) : QString();
}

/// A level that may be one of the signs for "not found".
QString levelCell(double level)
{
    const bool found = level != missingOnTheLeft && level != missingOnTheRight;
    return found ? cell(std::optional<double>(level)) : QString();
}

QStringList figureCells(const ParaInfo &figures)
{
    const double width = std::abs(figures.halfPowerRight.first - figures.halfPowerLeft.first);
    std::optional<double> beforeAfter;
    if (figures.backLobe.second != missingOnTheLeft)
        beforeAfter = beforeAfterRatio(figures);
    return {levelCell(figures.gain.second),
            width > 0.0 ? cell(std::optional<double>(width)) : QString(),
            levelCell(figures.firstSideLobeLeft.second),
            levelCell(figures.firstSideLobeRight.second),
            cell(beforeAfter),
            cell(std::optional<double>(figures.axialRatio.second))};
}

QByteArray line(const QStringList &cells)
{
    return cells.join(QLatin1Char(',')).toUtf8() + '\n';
}

} // namespace

namespace FigureTable {

QByteArray header()
{
    return QByteArrayLiteral("file,curve,frequency_mhz,points,gain_db,width_3db_deg,"
                             "side_lobe_left_db,side_lobe_right_db,before_after_ratio,"
                             "axial_ratio_db,hpbw_deg,fnbw_deg,sll_db,front_to_back_db\n");
}

QByteArray row(const QString &file, const QString &curve, const QString &frequency,
               const QVector<QPointF> &points)
{
    QStringList cells{cell(file), cell(curve), cell(frequency), QString::number(points.size())};
    if (const std::optional<PatternAnalysis> analysis = analysePattern(points))
        cells += figureCells(analysis->figures);
    else
        cells += {QString(), QString(), QString(), QString(), QString(), QString()};
    const PatternSupplement supplement = supplementaryFigures(points);
    cells += {cell(supplement.halfPowerBeamWidth), cell(supplement.firstNullBeamWidth),
              cell(supplement.sideLobeLevel), cell(supplement.frontToBackRatio)};
    return line(cells);
}

} // namespace FigureTable
