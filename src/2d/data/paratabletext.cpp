#include "2d/data/paratabletext.h"

#include <QRegularExpression>

#include <cmath>

namespace {

constexpr double naturalLogOfTen = 2.302585092994046;
constexpr double noCrossPolarData = 255.0;

FloatingTableRow row(const QPair<double, double> &figure)
{
    return {fixedNumber(figure.first, 2), fixedNumber(figure.second, 2)};
}

FloatingTableRow row(double level)
{
    return {QString(), fixedNumber(level, 2)};
}

double beforeAfterOfFloatingTable(const ParaInfo &info)
{
    return naturalLogOfTen / std::log(info.gain.second / info.backLobe.second);
}

QString crossPolarCell(double ratio)
{
    return std::abs(ratio - noCrossPolarData) <= 1e-6 ? QStringLiteral("nan")
                                                      : fixedNumber(ratio, 4);
}

} // namespace

QString fixedNumber(double value, int decimals)
{
    QString text = QStringLiteral("%1").arg(value, 0, 'f', decimals);
    // What rounds to nothing has no sign.
    static const QRegularExpression negativeZero(QStringLiteral("^-0\\.?0*$"));
    if (negativeZero.match(text).hasMatch())
        text.remove(0, 1);
    return text;
}

double beforeAfterRatio(const ParaInfo &info)
{
    return 20.0 * std::log10(info.gain.second - info.backLobe.second);
}

std::array<FloatingTableRow, floatingTableRows> floatingTableCells(const ParaInfo &info)
{
    const FloatingTableRow width{
        fixedNumber(info.halfPowerRight.first - info.halfPowerLeft.first, 2),
        fixedNumber(info.halfPowerLeft.second, 2)};
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
            fixedNumber(info.gain.second, 4),
            fixedNumber(std::abs(info.halfPowerRight.first - info.halfPowerLeft.first), 4),
            fixedNumber(info.firstSideLobeLeft.second, 4),
            fixedNumber(info.firstSideLobeRight.second, 4),
            fixedNumber(beforeAfterRatio(info), 4),
            fixedNumber(info.axialRatio.second, 4),
            crossPolarCell(info.crossPolarRatio.second)};
}

QString amplitudeCell(const ParaInfo &info)
{
    return fixedNumber(std::pow(10.0, info.gain.second / 20.0), 4);
}
