#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
namespace QtCharts {
class QValueAxis;
} // namespace QtCharts
QT_END_NAMESPACE

/// The numbers along an axis.
namespace TickLabels {

/// A printf format with the digits that the numbers at the ticks of \a axis need: those of
/// \a format as long as they tell every number to a twentieth of the step and none as "-0".
QString fittingFormat(const QtCharts::QValueAxis &axis, const QString &format);

/// The most divisions, \a wanted or a part of it, whose numbers find room beside each other on
/// \a width pixels.
int fittingDivisions(const QtCharts::QValueAxis &axis, int wanted, const QString &format,
                     double width);

/// \a min, moved by next to nothing when rounding has left a tick of so many divisions up to \a max
/// just below 0, which would read as "-0".
double settledMin(double min, double max, int divisions);
/// Moves the range by next to nothing when rounding has left a tick just below 0, which would read
/// as "-0".
void settleZero(QtCharts::QValueAxis &axis);

} // namespace TickLabels
