#pragma once

#include "2d/data/viewrange.h"

class ChartStage;

/// The ranges of a chart view: what it shows and where "reset" goes back to.
struct AxisRanges
{
    ViewRange shown;
    ViewRange home;
    int period = 10; ///< the window of the time chart, minutes

    /// Sets limits of what is shown, which become home too.
    void setX(double min, double max);
    void setY(double min, double max);
    /// Shows the window of the time chart from its start.
    void startPeriod();

    /// What is in view on \a stage: a polar chart always shows the whole angular axis.
    ViewRange inView(const ChartStage &stage) const;
    /// Gives the axes of \a stage the range shown, with one layout.
    void apply(ChartStage &stage) const;
};
