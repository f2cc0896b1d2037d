#include "2d/view/axisranges.h"

#include "2d/scene/chartstage.h"

void AxisRanges::setX(double min, double max)
{
    shown.xMin = min;
    shown.xMax = max;
    home.xMin = min;
    home.xMax = max;
}

void AxisRanges::setY(double min, double max)
{
    shown.yMin = min;
    shown.yMax = max;
    home.yMin = min;
    home.yMax = max;
}

void AxisRanges::startPeriod()
{
    shown.xMin = 0.0;
    shown.xMax = period;
}

ViewRange AxisRanges::inView(const ChartStage &stage) const
{
    ViewRange range = shown;
    if (stage.isPolar()) {
        const ViewRange axes = stage.axisRange();
        range.xMin = axes.xMin;
        range.xMax = axes.xMax;
        range.isRound = axes.isRound;
    }
    return range;
}

void AxisRanges::apply(ChartStage &stage) const
{
    const ChartStage::LayoutGuard guard(stage);
    stage.setYRange(shown.yMin, shown.yMax);
    stage.setXRange(shown.xMin, shown.xMax);
}
