#include "2d/data/supplementtext.h"

#include "2d/data/curvefigures.h"
#include "2d/data/curvetext.h"
#include "2d/data/paratabletext.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

constexpr int usualColumns = 6;
constexpr int differenceColumns = 3;

QString cell(const std::optional<double> &value)
{
    return value ? fixedNumber(*value, 2) : QStringLiteral("\u2013");
}

} // namespace

int SupplementColumns::count() const
{
    return usualColumns + drops.size() + (differences ? differenceColumns : 0);
}

std::optional<QVector<double>> readDrops(const QString &text)
{
    static const QRegularExpression separators(QStringLiteral("[,;\\s]+"));
    constexpr double greatest = 200.0; // dB
    QVector<double> drops;
    for (const QString &part : text.split(separators, Qt::SkipEmptyParts)) {
        bool isNumber = false;
        const double drop = std::abs(QLocale::c().toDouble(part, &isNumber));
        if (!isNumber || !(drop > 0.0) || drop > greatest)
            return std::nullopt;
        if (!drops.contains(drop))
            drops.append(drop);
    }
    std::sort(drops.begin(), drops.end());
    return drops;
}

QString dropsText(const QVector<double> &drops)
{
    QStringList parts;
    for (const double drop : drops)
        parts.append(CurveText::number(-drop));
    return parts.join(QStringLiteral(", "));
}

QStringList supplementCells(const CurveFigures &figures, const SupplementColumns &columns)
{
    const PatternSupplement &supplement = figures.supplement;
    QStringList cells{cell(supplement.halfPowerBeamWidth), cell(supplement.firstNullBeamWidth),
                      cell(supplement.sideLobeLevel),      cell(supplement.frontToBackRatio),
                      cell(supplement.peakAngle),          cell(supplement.squint)};
    for (int i = 0; i < columns.drops.size(); ++i)
        cells.append(cell(figures.beams.value(i).width()));
    if (!columns.differences)
        return cells;
    const auto &difference = figures.difference;
    cells.append(cell(difference ? std::optional(difference->mean) : std::nullopt));
    cells.append(cell(difference ? std::optional(difference->greatest) : std::nullopt));
    cells.append(cell(difference ? std::optional(difference->rms) : std::nullopt));
    return cells;
}
