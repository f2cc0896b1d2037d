#pragma once

class CurveView;
class QString;
struct AxisScale;

/// How the list chart form presents antenna patterns in a chart view, beyond what the view does
/// itself.
namespace ChartPresentation {

/// Gives \a view its legend, round angle ticks and the tabulator, once after it was made.
void prepare(CurveView &view);

void setTitle(CurveView &view, const QString &title);
void setAxisTitles(CurveView &view, const QString &angles, const QString &levels);

/// Shows \a scale on the level axis, which is the radial one of a polar view, and draws anew.
void showLevels(CurveView &view, const AxisScale &scale);
/// Shows \a scale on the angle axis of a cartesian view; that of a polar one is the whole circle.
void showAngles(CurveView &view, const AxisScale &scale);

} // namespace ChartPresentation
