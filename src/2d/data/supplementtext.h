#pragma once

#include <QStringList>
#include <QVector>

#include <optional>

struct CurveFigures;

/// The columns that the supplementary table has beside the usual ones.
struct SupplementColumns
{
    QVector<double> drops;    ///< beam widths so many dB below the peak
    bool differences = false; ///< the figures of differences of two curves

    int count() const;
};

/// The levels in \a text, "-3, -6, -10", as what they lie below the peak: dB, ascending. Nothing
/// when it holds something else; empty for an empty text.
std::optional<QVector<double>> readDrops(const QString &text);

/// \a drops as readDrops() reads them: "-3, -6, -10".
QString dropsText(const QVector<double> &drops);

/// The cells of one row of the supplementary table: half-power beam width and first-null beam width
/// in degrees, side-lobe level and front-to-back ratio in dB, direction of the peak and squint in
/// degrees, then the further \a columns; two decimals; a dash for what is missing.
QStringList supplementCells(const CurveFigures &figures, const SupplementColumns &columns);
