#include "2d/data/paratabletext.h"

#include <QRegularExpression>

#include <cmath>

namespace {

constexpr double naturalLogOfTen = 2.302585092994046;
constexpr double noCrossPolarData = 255.0;

QString fixed(double value, int decimals)
{
    QString text = QStringLiteral("%1").arg(value, 0, 'f', decimals);
    // What rounds to nothing has no sign.
    static const QRegularExpression negativeZero(QStringLiteral("^-0\\.?0*$"));
    if (negativeZero.match(text).hasMatch())
        text.remove(0, 1);
    return text;
}

FloatingTableRow row(const QPair<double, double> &figure)
{
    return {fixed(figure.first, 2), fixed(figure.second, 2)};
}

FloatingTableRow row(double level)
{
    return {QString(), fixed(level, 2)};
}

double beforeAfterOfFloatingTable(const ParaInfo &info)
{
    return naturalLogOfTen / std::log(info.gain.second / info.backLobe.second);
}

QString crossPolarCell(double ratio)
{
    return std::abs(ratio - noCrossPolarData) <= 1e-6 ? QStringLiteral("nan") : fixed(ratio, 4);
}

} // namespace

double beforeAfterRatio(const ParaInfo &info)
{
    return 20.0 * std::log10(info.gain.second - info.backLobe.second);
}

std::array<FloatingTableRow, floatingTableRows> floatingTableCells(const ParaInfo &info)
{
    const FloatingTableRow width{fixed(info.halfPowerRight.first - info.halfPowerLeft.first, 2),
                                 fixed(info.halfPowerLeft.second, 2)};
    return {row(info.gain),
            row(info.halfPowerLeft),
            row(info.halfPowerRight),
            width,
            row(info.firstNullLeft),
            row(info.firstNullRight),
            row(info.firstSideLobeLeft),
            row(info.firstSideLobeRight),
            row(beforeAfterOfFloatingTable(info)),
            row(info.axialRatio.second),
            row(info.crossPolarRatio.second)};
}

QStringList frequencyTableCells(const ParaInfo &info, const QString &frequency)
{
    return {frequency,
            fixed(info.gain.second, 4),
            fixed(std::abs(info.halfPowerRight.first - info.halfPowerLeft.first), 4),
            fixed(info.firstSideLobeLeft.second, 4),
            fixed(info.firstSideLobeRight.second, 4),
            fixed(beforeAfterRatio(info), 4),
            fixed(info.axialRatio.second, 4),
            crossPolarCell(info.crossPolarRatio.second)};
}

QString amplitudeCell(const ParaInfo &info)
{
    return fixed(std::pow(10.0, info.gain.second / 20.0), 4);
}
