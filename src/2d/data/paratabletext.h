#pragma once

#include "2d/data/parainfo.h"

#include <QString>
#include <QStringList>

#include <array>

/// \a value with so many decimals, but without the sign of what rounds to nothing.
QString fixedNumber(double value, int decimals);

/// The two figures of one row of the table that floats on the chart.
struct FloatingTableRow
{
    QString angle; ///< degrees, empty for the three ratios
    QString level; ///< dB, two decimals
};

constexpr int floatingTableRows = 11;

/// The figures of the floating table's rows: gain, the half-power points left and right, their
/// width, the nulls, the side lobes, before-after ratio, axial ratio and cross-polar ratio.
std::array<FloatingTableRow, floatingTableRows> floatingTableCells(const ParaInfo &info);

/// The before-after ratio of the frequency table, 20 log10(gain - level opposite the peak); the
/// floating table has another figure of that name on purpose. Minus infinity or NaN where the
/// formula has no value.
double beforeAfterRatio(const ParaInfo &info);

/// The cells of one row of the frequency table, four decimals: \a frequency as it is, gain, 3 dB
/// width, left and right side-lobe level, before-after ratio, axial ratio, cross-polar ratio ("nan"
/// for 255, which says that there are no cross-polar data).
QStringList frequencyTableCells(const ParaInfo &info, const QString &frequency);

/// The cell of the column "Amplitude": the peak's field strength against that of 0 dB,
/// 10^(gain / 20), four decimals.
QString amplitudeCell(const ParaInfo &info);
