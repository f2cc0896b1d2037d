#pragma once

class GraphicsBase;
class QString;
struct AxisScale;

/// How the list chart form presents antenna patterns in a chart view, beyond what the view does
/// itself.
namespace ChartPresentation {

/// Gives \a view its legend, round angle ticks and the tabulator, once after it was made.
void prepare(GraphicsBase &view);

void setTitle(GraphicsBase &view, const QString &title);
void setAxisTitles(GraphicsBase &view, const QString &angles, const QString &levels);

/// Shows \a scale on the level axis, which is the radial one of a polar view, and draws anew.
void showLevels(GraphicsBase &view, const AxisScale &scale);
/// Shows \a scale on the angle axis of a cartesian view; that of a polar one is the whole circle.
void showAngles(GraphicsBase &view, const AxisScale &scale);

} // namespace ChartPresentation
