#include "2d/view/graphicsbase.h"

#include "2d/scene/mycustomproxy.h"
#include "2d/view/chartviewstate.h"
#include "2d/view/pathinfo.h"

#include <QChart>
#include <QDebug>
#include <QGraphicsScene>
#include <QLegend>
#include <QLegendMarker>
#include <QLineSeries>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QValueAxis>

using namespace QtCharts;

using Panels = ChartViewState::Panels;

GraphicsBase::GraphicsBase(int kind, QWidget *parent)
    : QGraphicsView(parent)
    , m_scene(std::make_unique<QGraphicsScene>())
{
    // Few items, most of which move with every change: an index would only have to be kept up.
    m_scene->setItemIndexMethod(QGraphicsScene::NoIndex);
    // One plain ground below everything, instead of those of window, viewport and chart: a fifth of
    // the cost of a tick of the time chart.
    m_scene->setBackgroundBrush(Qt::white);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    setScene(m_scene.get());
    m_state = std::make_unique<ChartViewState>(kind, *this, *m_scene);
    retitle();

    m_state->tableProxy = new MyCustomProxy;
    m_scene->addItem(m_state->tableProxy);
    m_state->tableProxy->hide();
    connect(this, &GraphicsBase::updateParaInfoToTable, m_state->tableProxy,
            &MyCustomProxy::updateParaInfo);
    connect(this, &GraphicsBase::clearParaInfoToTable, m_state->tableProxy,
            &MyCustomProxy::clearParaInfo);

    setFocusPolicy(Qt::ClickFocus);
    setAttribute(Qt::WA_MouseTracking);
    setRenderHint(QPainter::Antialiasing);
    setAcceptDrops(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setStyleSheet(QStringLiteral("border-width: 1px;border-style: none;"));
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &QWidget::customContextMenuRequested, this, &GraphicsBase::showMenu);
    if (QChart *current = chart())
        connect(current, &QChart::plotAreaChanged, this, [this] { m_state->catchUpLater(); });
}

GraphicsBase::~GraphicsBase()
{
    if (chart())
        chart()->disconnect(this);
}

QChart *GraphicsBase::chart() const
{
    return m_state->stage.chart();
}

int GraphicsBase::kind() const
{
    return m_state->stage.kind();
}

const QMap<int, PathInfo *> &GraphicsBase::paths() const
{
    return m_state->paths;
}

const QMap<int, MyMarkItem *> &GraphicsBase::marks() const
{
    return m_state->marks.all();
}

PathInfo *GraphicsBase::selectedPath() const
{
    return m_state->selectedPath();
}

MyMarkItem *GraphicsBase::selectedMark() const
{
    return m_state->marks.selected();
}

ViewRange GraphicsBase::shownRange() const
{
    return m_state->shownRange();
}

QPointF GraphicsBase::toScene(const QPointF &value) const
{
    return m_state->stage.toScene(value);
}

QPointF GraphicsBase::toValue(const QPointF &scenePosition) const
{
    return m_state->stage.toValue(scenePosition);
}

QString GraphicsBase::defaultDirectory() const
{
    return m_state->defaultDirectory;
}

void GraphicsBase::setDefaultDirectory(const QString &directory)
{
    m_state->defaultDirectory = directory;
}

QString GraphicsBase::seriesName() const
{
    return m_state->seriesName;
}

void GraphicsBase::retitle()
{
    ChartViewState &state = *m_state;
    setAccessibleName(tr("Chart"));
    if (!state.stage.isPolar())
        setAxisXTitle(tr("Last %1 minutes").arg(state.period));
    setAxisYTitle(tr("Power[dBm]"));
    // What a running chart has scrolled to stays in view when the language changes.
    const double shownPeriod = state.shown.xMax - state.shown.xMin;
    if (state.shown.xMin <= 0.0 || !qFuzzyCompare(shownPeriod, double(state.period))) {
        state.shown.xMin = 0.0;
        state.shown.xMax = state.period;
    }
    setScaleLevel(5, 20.0, -30.0);
    state.updateFinished = false;
    state.zoomMode = false;
    state.panMode = false;
    state.symmetryApplied = false;
    state.xOffset = 0.0;
    state.yOffset = 0.0;
}

// Hovering over a curve shows nothing, by intent.
void GraphicsBase::tooltip(QPointF point, bool state)
{
    Q_UNUSED(point)
    Q_UNUSED(state)
}

void GraphicsBase::setChartTitle(QString title)
{
    if (!chart())
        return;
    const SeriesLayoutGuard guard(m_state->stage, m_state->paths);
    chart()->setTitle(title);
}

void GraphicsBase::setChartTitle(QString title, QFont font)
{
    if (!chart())
        return;
    const SeriesLayoutGuard guard(m_state->stage, m_state->paths);
    chart()->setTitleFont(font);
    chart()->setTitle(title);
}

void GraphicsBase::setSeriesName(QString name)
{
    m_state->seriesName = name;
}

void GraphicsBase::setAxisXTitle(QString str)
{
    if (!chart())
        return;
    const SeriesLayoutGuard guard(m_state->stage, m_state->paths);
    setAxisTitle(*m_state->stage.xAxis(), str);
}

void GraphicsBase::setAxisYTitle(QString str)
{
    if (!chart())
        return;
    const SeriesLayoutGuard guard(m_state->stage, m_state->paths);
    setAxisTitle(*m_state->stage.yAxis(), str);
}

void GraphicsBase::setScaleLevel(int div, double scaleDiv, double reference)
{
    ChartViewState &state = *m_state;
    state.divisionCount = div;
    state.scalePerDivision = scaleDiv;
    state.referenceLevel = reference;
    const ValueSpan span = divisionSpan(div, scaleDiv, reference);
    state.shown.yMin = span.low;
    state.shown.yMax = span.high;
    state.home = state.shown;
    if (chart()) {
        const SeriesLayoutGuard guard(state.stage, state.paths);
        state.stage.yAxis()->setTickCount(div + 1);
        state.applyAxes();
    }
    state.refresh(Panels::AllTables);
}

bool GraphicsBase::needsXRange(const char *operation) const
{
    if (m_state->stage.rangedXAxis())
        return true;
    qWarning() << operation << "needs a chart whose X range can change";
    return false;
}

void GraphicsBase::setXPeriod(int period)
{
    if (!needsXRange("setXPeriod"))
        return;
    m_state->period = period;
    const ViewRange axes = m_state->stage.axisRange();
    setXRange(axes.xMin, axes.xMax);
}

void GraphicsBase::setXRange(double min, double max)
{
    if (!needsXRange("setXRange"))
        return;
    ChartViewState &state = *m_state;
    {
        const SeriesLayoutGuard guard(state.stage, state.paths);
        setAxisRange(*state.stage.rangedXAxis(), min, max);
    }
    state.shown.xMin = min;
    state.shown.xMax = max;
    state.home.xMin = min;
    state.home.xMax = max;
    state.refresh(Panels::MarkTables);
}

void GraphicsBase::setYRange(double min, double max, int div)
{
    ChartViewState &state = *m_state;
    if (chart()) {
        const SeriesLayoutGuard guard(state.stage, state.paths);
        state.stage.yAxis()->setTickCount(div + 1);
        setAxisRange(*state.stage.yAxis(), min, max);
    }
    state.shown.yMin = min;
    state.shown.yMax = max;
    state.home.yMin = min;
    state.home.yMax = max;
    // Markers and curves stay where they are for whoever asks now; what is seen follows.
    state.catchUpLater();
}

void GraphicsBase::setOffset(double xOffset, double yOffset)
{
    m_state->xOffset = xOffset;
    m_state->yOffset = yOffset;
}

void GraphicsBase::resetChart(QStringList list)
{
    clearChart();
    for (const QString &name : qAsConst(list))
        m_state->newPath(name);
    reconnectLegendMarkers();
    emit curvesChanged();
}

void GraphicsBase::updateChart(int index, QPointF point)
{
    if (!needsXRange("updateChart"))
        return;
    ChartViewState &state = *m_state;
    state.updateFinished = false;
    PathInfo *path = state.paths.value(index);
    if (!path)
        qFatal("updateChart: there is no curve %d", index);
    constexpr int pointsPerMinute = 60;
    if (path->series()->count() > state.period * pointsPerMinute)
        path->removeFirstPoint();
    const double x = point.x() + state.xOffset;
    const double y = point.y() + state.yOffset;
    state.shown.followTime(x, state.period);
    state.lastX[index] = {x};
    state.lastY[index] = {y};
    const ValueSpan span = autoscaledSpan(path->points());
    {
        const SeriesLayoutGuard guard(state.stage, state.paths);
        setAxisRange(*state.stage.rangedXAxis(), state.shown.xMin, state.shown.xMax);
        setYRange(span.low, span.high, 5);
    }
    path->appendPoint({x, y});
    updataResize();
}

void GraphicsBase::setPathInfoHide(int index)
{
    for (PathInfo *path : qAsConst(m_state->paths))
        path->setHidden(path->pathId() != index);
}

void GraphicsBase::finishUpdateChart()
{
    ChartViewState &state = *m_state;
    if (state.paths.isEmpty())
        return;
    state.updateFinished = true;
    for (PathInfo *path : qAsConst(state.paths)) {
        path->stackParaTable(sceneRect());
        path->updateMarkInfo(state.marks.all());
    }
}

void GraphicsBase::clearChart()
{
    ChartViewState &state = *m_state;
    deselect();
    state.marks.clear();
    const QList<int> ids = state.paths.keys();
    for (const int id : ids)
        state.removePath(id);
    state.lastX.clear();
    state.lastY.clear();
    if (!ids.isEmpty())
        emit curvesChanged();
}

void GraphicsBase::clearChartData(int index)
{
    if (!needsXRange("clearChartData"))
        return;
    ChartViewState &state = *m_state;
    PathInfo *path = state.paths.value(index);
    if (!path)
        qFatal("clearChartData: there is no curve %d", index);
    state.lastX.clear();
    state.lastY.clear();
    state.shown.xMin = 0.0;
    state.shown.xMax = state.period;
    {
        const SeriesLayoutGuard guard(state.stage, state.paths);
        setAxisRange(*state.stage.rangedXAxis(), state.shown.xMin, state.shown.xMax);
    }
    path->setPoints({});
    path->rebuild(state.stage);
    state.catchUpLater();
}

void GraphicsBase::clearChart(int index)
{
    PathInfo *path = m_state->paths.value(index);
    if (!path)
        return;
    if (path->isSelected())
        deselect();
    m_state->removePath(index);
    emit curvesChanged();
}

PathInfo *GraphicsBase::createPath(const QString &name)
{
    PathInfo *path = m_state->newPath(name);
    emit curvesChanged();
    return path;
}

PathInfo *GraphicsBase::addCurve(const QString &name, const QVector<QPointF> &points)
{
    PathInfo *path = m_state->newPath(name);
    path->setPoints(points);
    reconnectLegendMarkers();
    m_state->refresh(Panels::AllTables);
    emit curvesChanged();
    return path;
}

void GraphicsBase::rebuildPath(int pathId)
{
    if (PathInfo *path = m_state->paths.value(pathId))
        path->rebuild(m_state->stage);
}

ParaInfo GraphicsBase::patternParameters(int pathId)
{
    PathInfo *path = m_state->paths.value(pathId);
    return path ? m_state->recompute(*path) : ParaInfo();
}

bool GraphicsBase::parameterLinesVisible() const
{
    return m_state->parameterLinesVisible;
}

void GraphicsBase::setParameterLinesVisible(bool visible)
{
    m_state->parameterLinesVisible = visible;
    for (PathInfo *path : qAsConst(m_state->paths))
        m_state->recompute(*path);
}

void GraphicsBase::SymmetrySlot()
{
    ChartViewState &state = *m_state;
    state.symmetryApplied = true;
    for (PathInfo *path : qAsConst(state.paths)) {
        state.marks.snap(*path);
        path->rebuild(state.stage);
        path->drawMirrored(state.stage);
    }
}

void GraphicsBase::SymmetryResetSlot()
{
    ChartViewState &state = *m_state;
    for (PathInfo *path : qAsConst(state.paths)) {
        state.marks.snap(*path);
        path->rebuild(state.stage);
        path->redrawOutline();
    }
}

void GraphicsBase::reconnectLegendMarkers()
{
    if (!chart())
        return;
    const QList<QLegendMarker *> markers = chart()->legend()->markers();
    for (QLegendMarker *marker : markers) {
        disconnect(marker, &QLegendMarker::clicked, this, &GraphicsBase::handleMarkerClicked);
        connect(marker, &QLegendMarker::clicked, this, &GraphicsBase::handleMarkerClicked);
    }
}

void GraphicsBase::handleMarkerClicked()
{
    auto *marker = qobject_cast<QLegendMarker *>(sender());
    if (!marker)
        return;
    for (PathInfo *path : qAsConst(m_state->paths)) {
        if (path->series() == marker->series())
            path->setHidden(!path->isHidden());
    }
}

// The colours of the curves are not given from outside.
void GraphicsBase::setColorList(QList<QColor> colorList)
{
    Q_UNUSED(colorList)
}

/// Makes the view a pixel smaller and as large as before: the chart lays itself out and repaints.
void GraphicsBase::updataResize()
{
    ChartViewState &state = *m_state;
    const QSize full = size();
    state.resized = false;
    {
        const QScopedValueRollback<bool> inner(state.nudging, true);
        resize(full - QSize(1, 1));
    }
    resize(full);
    if (isVisible() && !state.resized) // at its smallest size the view cannot be nudged
        state.refresh(Panels::AllTables);
}

void GraphicsBase::resizeEvent(QResizeEvent *event)
{
    ChartViewState &state = *m_state;
    const QSizeF size = event->size();
    if (scene())
        scene()->setSceneRect(QRectF(QPointF(0.0, 0.0), size));
    if (chart() && !state.nudging) {
        const SeriesLayoutGuard guard(state.stage, state.paths);
        chart()->resize(size);
    }
    QGraphicsView::resizeEvent(event);
    if (state.nudging) // the real size follows at once
        return;
    state.resized = true;
    state.refresh(Panels::AllTables);
    if (chart())
        emit updataSize(chart()->size() + QSizeF(-60.0, 10.0));
}
