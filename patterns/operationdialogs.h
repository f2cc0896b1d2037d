#pragma once

#include <QList>
#include <QString>

#include <optional>
#include <utility>

class CurveSet;
class QWidget;

/// What the operations of the *Edit* menu ask. Nothing is returned when the user cancels.
namespace OperationDialogs {

/// A number as a dialog asks for it.
struct NumberQuestion
{
    QString title;
    QString label; ///< with its mnemonic
    QString unit;
    double value = 0.0; ///< proposed
    double least = 0.0;
    double greatest = 0.0;
};

std::optional<double> askNumber(QWidget *parent, const NumberQuestion &question);

/// What is to be added to the levels of a curve whose peak is at \a peak, dB: what brings that to a
/// chosen level, or a chosen offset.
std::optional<double> askOffset(QWidget *parent, double peak);

/// Two of the curves \a ids, the first two proposed.
std::optional<std::pair<int, int>> askPair(QWidget *parent, const CurveSet &curves,
                                           const QList<int> &ids);

} // namespace OperationDialogs
