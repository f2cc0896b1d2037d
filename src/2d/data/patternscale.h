#pragma once

#include <QPointF>
#include <QVector>

/// The range of an axis and into how many equal divisions its ticks part it.
struct AxisScale
{
    double min = 0.0;
    double max = 1.0;
    int divisions = 1;
};

/// The level axis that shows \a curves sensibly at first sight: round ends and round ticks, every
/// peak inside, and of each curve between 30 and 40 dB below its peak. So one deep null does not
/// press all patterns against the rim, and an almost round one looks almost round. -40 to 0 without
/// any point.
AxisScale levelScale(const QVector<QVector<QPointF>> &curves);

/// The angle axis that shows \a curves: the half circle, the circle from -180 or from 0 degrees, or
/// round ends around what the points cover. The circle from -180 degrees without any point.
AxisScale angleScale(const QVector<QVector<QPointF>> &curves);

/// \a level in dB to a tenth, as the fields for levels show it.
double roundedLevel(double level);

/// The range from \a min to \a max as given, with round ticks where they fit the range.
AxisScale dividedScale(double min, double max);
