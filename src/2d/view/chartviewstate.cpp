#include "2d/view/chartviewstate.h"

#include "2d/data/patternanalysis.h"
#include "2d/scene/callout.h"
#include "2d/scene/generatecolors.h"
#include "2d/scene/mycustomproxy.h"
#include "2d/scene/mypathitem.h"
#include "2d/view/graphicsbase.h"
#include "2d/view/idallocation.h"
#include "2d/view/pathinfo.h"

#include <QChart>
#include <QGraphicsScene>
#include <QLegend>
#include <QLegendMarker>
#include <QLineSeries>
#include <QTimer>
#include <QValueAxis>

#include <algorithm>

using namespace QtCharts;

ChartViewState::ChartViewState(int kind, GraphicsBase &owner, QGraphicsScene &scene)
    : view(owner)
    , stage(kind, scene)
    , marks(stage, scene, paths, [this] { return shownRange(); })
{}

ChartViewState::~ChartViewState()
{
    marks.clear();
    const QList<int> ids = paths.keys();
    for (const int id : ids)
        removePath(id);
}

ViewRange ChartViewState::shownRange() const
{
    ViewRange range = shown;
    if (stage.isPolar()) {
        range.xMin = stage.xAxis()->min();
        range.xMax = stage.xAxis()->max();
    }
    return range;
}

PathInfo *ChartViewState::selectedPath() const
{
    const auto found = std::find_if(paths.cbegin(), paths.cend(),
                                    [](const PathInfo *path) { return path->isSelected(); });
    return found == paths.cend() ? nullptr : *found;
}

PathInfo *ChartViewState::newPath(const QString &name)
{
    const int id = smallestFreeId(paths);
    auto *path = new PathInfo(id);
    path->setLineWidth(2);
    connectPath(*path);
    path->setColor(curveColor(id));
    addToChart(*path, name);
    view.scene()->addItem(path->displayItem());
    view.scene()->addItem(path->pathItem());
    const QList<QGraphicsItem *> items = path->furtherItems();
    for (QGraphicsItem *item : items)
        view.scene()->addItem(item);
    path->setMarkTableShown(markTablesShown);
    paths.insert(id, path);
    QObject::connect(path, &PathInfo::lookChanged, &view, [this, path] {
        if (path->isHidden() && path->isSelected())
            view.updatePathSelection(0);
        updateLegend();
        updateMarks(*path);
        if (parameterLinesVisible)
            recompute(*path);
        emit view.curvesChanged();
    });
    return path;
}

void ChartViewState::addToChart(PathInfo &path, const QString &name)
{
    const SeriesLayoutGuard guard(stage, paths); // one layout for all that follows
    QChart *chart = stage.chart();
    if (chart)
        chart->addSeries(path.series());
    QObject::connect(path.series(), &QLineSeries::hovered, &view, &GraphicsBase::tooltip);
    path.pathItem()->adoptView(stage.kind(), shownRange());
    path.setName(name);
    if (chart) {
        path.series()->attachAxis(stage.xAxis());
        path.series()->attachAxis(stage.yAxis());
    }
}

void ChartViewState::connectPath(PathInfo &path)
{
    QObject::connect(&path, &PathInfo::selectPathId, &view, &GraphicsBase::updatePathSelection);
    QObject::connect(&path, &PathInfo::setAcceptDropsStatus, &view,
                     [this](bool status) { view.setAcceptDrops(status); });
    QObject::connect(&view, &GraphicsBase::updataSize, &path, &PathInfo::updataSize);
}

void ChartViewState::removePath(int pathId)
{
    PathInfo *path = paths.take(pathId);
    if (!path)
        return;
    const QList<int> numbers = path->markIds();
    for (const int number : numbers)
        marks.remove(number);
    lastX.remove(pathId);
    lastY.remove(pathId);
    if (QChart *chart = stage.chart()) {
        const SeriesLayoutGuard guard(stage, paths);
        chart->removeSeries(path->series());
    }
    delete path;
}

void ChartViewState::applyAxes()
{
    if (!stage.chart())
        return;
    const SeriesLayoutGuard guard(stage, paths);
    setAxisRange(*stage.yAxis(), shown.yMin, shown.yMax);
    if (QValueAxis *axis = stage.rangedXAxis())
        setAxisRange(*axis, shown.xMin, shown.xMax);
}

void ChartViewState::refresh(Panels panels)
{
    marks.reposition();
    for (PathInfo *path : qAsConst(paths)) {
        path->rebuild(stage);
        if (updateFinished)
            recompute(*path);
        path->placeMarkTable();
        if (panels == Panels::AllTables)
            path->placeParaTable();
    }
}

ParaInfo ChartViewState::recompute(PathInfo &path)
{
    ParaInfo info;
    path.updateLines(stage, parameterLinesVisible);
    const PatternAnalysis *figures = path.analysis();
    if (!figures || !stage.chart() || path.isHidden())
        return info;
    const QList<QLegendMarker *> legend = stage.chart()->legend()->markers(path.series());
    if (legend.isEmpty() || legend.first()->label() != path.name())
        return info;
    info = figures->figures;
    if (path.getParaTableDataStatus())
        path.updateParaInfo(info);
    return info;
}

void ChartViewState::catchUpLater()
{
    if (catchUpPending)
        return;
    catchUpPending = true;
    QTimer::singleShot(0, &view, [this] { catchUp(); });
}

void ChartViewState::catchUp()
{
    catchUpPending = false;
    marks.reposition();
    for (PathInfo *path : qAsConst(paths)) {
        path->catchUp(stage);
        if (updateFinished)
            recompute(*path);
    }
}

void ChartViewState::updateLegend()
{
    if (!stage.chart())
        return;
    const SeriesLayoutGuard guard(stage, paths);
    for (const PathInfo *path : qAsConst(paths)) {
        const QList<QLegendMarker *> legend = stage.chart()->legend()->markers(path->series());
        for (QLegendMarker *marker : legend) {
            constexpr double dimmed = 0.3;
            QColor color = path->color();
            color.setAlphaF(path->isHidden() ? dimmed : 1.0);
            marker->setVisible(true);
            marker->setBrush(color);
            marker->setPen(QPen(color));
            marker->setLabelBrush(path->isHidden() ? QColor(Qt::gray) : QColor(Qt::black));
        }
    }
}

void ChartViewState::updateMarks(PathInfo &path)
{
    const QList<int> numbers = path.markIds();
    for (const int number : numbers) {
        if (MyMarkItem *mark = marks.all().value(number))
            mark->setColor(path.color());
    }
    marks.reposition();
}
