#pragma once

#include "2d/data/markjump.h"

class ChartStage;
class CurveList;
class PathInfo;
struct AxisRanges;

/// Puts markers onto the curves of a view, sends the selected one along its curve and takes it
/// away. The tables of markers follow.
class MarkEditing
{
public:
    /// All three must outlive this object.
    MarkEditing(const ChartStage &stage, CurveList &curves, const AxisRanges &ranges)
        : m_stage(stage)
        , m_curves(curves)
        , m_ranges(ranges)
    {}

    /// Puts a marker onto \a path at \a x, unless that is out of view or beyond the curve.
    void add(PathInfo &path, double x);
    /// Puts one onto the selected curve's highest point in view, and selects it.
    void addAtHighest();
    /// Sends the selected marker of the selected curve along it, or puts one there. False without a
    /// curve or such a place.
    bool jump(MarkJump jump);
    void removeSelected();

private:
    const ChartStage &m_stage;
    CurveList &m_curves;
    const AxisRanges &m_ranges;
};
