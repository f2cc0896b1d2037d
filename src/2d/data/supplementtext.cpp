#include "2d/data/supplementtext.h"

#include "2d/data/patternsupplement.h"

#include <QString>

namespace {

QString cell(const std::optional<double> &value)
{
    return value ? QString::number(*value, 'f', 2) : QStringLiteral("\u2013");
}

} // namespace

QStringList supplementCells(const PatternSupplement &figures)
{
    return {cell(figures.halfPowerBeamWidth), cell(figures.firstNullBeamWidth),
            cell(figures.sideLobeLevel), cell(figures.frontToBackRatio)};
}
