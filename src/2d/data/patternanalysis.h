#pragma once

#include "2d/data/parainfo.h"

#include <QLineF>
#include <QPointF>
#include <QVector>

#include <array>
#include <optional>

struct ViewRange;

/// Where the marker lines of one pattern stand, in chart values (degrees, dB).
///
/// The half-power points are those found, from before a missing side makes both angles 0 in the
/// figures; a missing point has no line.
struct PatternLineValues
{
    QPointF peak;
    std::optional<QPointF> halfPowerLeft;
    std::optional<QPointF> halfPowerRight;
    QPointF sideLobeLeft;
    QPointF sideLobeRight;
};

/// The marker lines of a pattern. Gain and axial ratio both draw the line of the peak.
enum class PatternLine {
    Peak,
    HalfPowerLeft,
    HalfPowerRight,
    HalfPowerLevel,
    SideLobeLeft,
    SideLobeRight,
};

constexpr std::array<PatternLine, 6> allPatternLines{
    PatternLine::Peak,           PatternLine::HalfPowerLeft, PatternLine::HalfPowerRight,
    PatternLine::HalfPowerLevel, PatternLine::SideLobeLeft,  PatternLine::SideLobeRight,
};

/// All that one pass over a pattern finds.
struct PatternAnalysis
{
    ParaInfo figures;
    PatternLineValues lines;
    QPointF lowest; ///< the point of the least level
};

/// Analyses a pattern: \a points are (angle in degrees, level in dB) in the curve's own order,
/// which the back lobe needs. Nothing for an empty curve.
///
/// Takes one pass when the angles ascend, else sorts once. Among several greatest levels the peak
/// is the one of the lowest angle.
std::optional<PatternAnalysis> analysePattern(const QVector<QPointF> &points);

/// The ends of a marker line in chart values, nothing when an end lies outside \a axes (inclusive)
/// or what it marks was not found. All lines but the level's rise from the lower end of the y axis.
std::optional<QLineF> patternLine(PatternLine line, const PatternLineValues &values,
                                  const ViewRange &axes);
