#pragma once

#include "2d/chartmenu.h"
#include "2d/graphicsbase.h"

#include <QImage>
#include <QPointF>
#include <QString>
#include <QVector>

#include <functional>

class MyMarkItem;
class PathInfo;

/// What the tests of the chart view do to a view and look for in its picture.
namespace ChartProbe {

using Points = QVector<QPointF>;

/// Shows \a view at \a width x \a height and lets it settle: before that a chart maps nothing.
bool show(GraphicsBase &view, int width = 800, int height = 500);

/// Runs one of the slots that the view keeps for its menu.
void run(GraphicsBase &view, const char *slot);

/// A left press and release at \a position of the scene.
void click(GraphicsBase &view, const QPointF &position);

/// A turn of the wheel by \a delta eighths of a degree at \a position of the scene.
void turnWheel(GraphicsBase &view, const QPointF &position, int delta);

QImage picture(GraphicsBase &view);

/// Whether the color of the curve \a pathId shows within \a reach pixels of the chart value \a
/// value.
bool showsCurve(GraphicsBase &view, const QImage &picture, int pathId, const QPointF &value,
                int reach = 2);

/// A sine of \a count points over \a from to \a to, \a level plus or minus 10.
Points sine(int count, double from, double to, double level);

} // namespace ChartProbe

/// A view that is shown, with levels from -40 to 0 (and x from 0 to 100 when cartesian) and one
/// curve.
struct ChartBench
{
    explicit ChartBench(const ChartProbe::Points &points, int kind = 0);

    /// Opens the context menu at \a value, lets \a choose act on it, and closes it.
    void openMenu(const QPointF &value, const std::function<void(ChartMenu &)> &choose);
    void chooseEntry(const QPointF &value, ChartMenu::Entry entry);

    /// Puts a marker on the curve at \a x by way of the menu.
    void addMark(double x);
    MyMarkItem *mark(int number) const;

    GraphicsBase view;
    PathInfo *path = nullptr;
    bool ready = false;
};
