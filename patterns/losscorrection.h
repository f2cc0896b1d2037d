#pragma once

#include <QPointF>
#include <QString>
#include <QVector>

#include <optional>

/// The corrections of curves by the shared loss table (FormulaCalc), whose frequencies are taken as
/// MHz and whose losses as dB.
namespace LossCorrection {

enum class Link { Up, Down };

/// What a link loses at one frequency.
struct Loss
{
    double value = 0.0;        ///< dB, to be added to a level
    bool extrapolated = false; ///< the frequency lies outside the table
};

/// Loads the loss table in \a file for the whole program. Returns an empty text, or why the file
/// was refused; the table loaded before is kept then.
QString load(const QString &file);

/// The name of the file that was loaded last, without its folder; empty when there is none.
QString tableName();

/// The loss of \a link at \a frequency in MHz; nothing when the table cannot tell: none is loaded,
/// or it has but one frequency and not this one.
std::optional<Loss> at(Link link, double frequency);

/// The \a points with \a loss added to every level.
QVector<QPointF> corrected(const QVector<QPointF> &points, const Loss &loss);

} // namespace LossCorrection
