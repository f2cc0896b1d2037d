#pragma once

#include "2d/view/chartmenu.h"
#include "2d/view/graphicsbase.h"
#include "modalscript.h"
#include "testfiles.h"

#include <QImage>
#include <QMetaType>
#include <QPointF>
#include <QString>
#include <QVector>

#include <functional>

class MyMarkItem;
class PathInfo;
class QMimeData;

/// What the tests of charts do to a view and look for in its picture.
namespace ChartProbe {

using Points = QVector<QPointF>;
using Steps = QVector<ModalScript::Step>;

/// Shows \a view at \a width x \a height and lets it settle: before that a chart maps nothing.
void show(GraphicsBase &view, int width = 800, int height = 500);

/// Runs one of the slots that the view keeps for its menu.
void run(GraphicsBase &view, const char *slot);

/// A left press and release at \a position of the scene.
void click(GraphicsBase &view, const QPointF &position);

/// A turn of the wheel by \a delta eighths of a degree at \a position of the scene.
void turnWheel(GraphicsBase &view, const QPointF &position, int delta,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// Drags \a data onto \a target, which has to take it.
void dropOn(QWidget &target, const QMimeData &data);

/// Answers the question for a name that is still free; null cancels.
ModalScript::Step rename(const char *name);

/// The range shown: x from, x to, y from, y to.
QVector<double> shown(const GraphicsBase &view);

/// The names of the curves by their ids, as "A|B".
QString names(const GraphicsBase &view);

QImage picture(GraphicsBase &view);

/// The pixels of \a area that are of \a color, each part of it within \a tolerance.
QVector<QPoint> pixelsOf(const QImage &picture, const QRect &area, const QColor &color,
                         int tolerance);

/// Whether the color of the curve \a pathId shows within \a reach pixels of the chart value \a
/// value.
bool showsCurve(GraphicsBase &view, const QImage &picture, int pathId, const QPointF &value,
                int reach = 2);

/// A line at the level -20 from 0 to 100.
Points flat();

/// A sine of \a count points over \a from to \a to, \a level plus or minus 10.
Points sine(int count, double from, double to, double level);

/// A pattern of three lobes, \a count points round the circle, from -25 to -5.
Points pattern(int count);

} // namespace ChartProbe

Q_DECLARE_METATYPE(ChartProbe::Steps)

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
    MyMarkItem *mark(int number) const { return view.marks().value(number); }
    /// Where the curve's points are drawn.
    QList<QPointF> drawn() const;

    GraphicsBase view;
    PathInfo *path = nullptr;
};
