#include "2d/view/graphicsbase.h"

#include "2d/scene/chartstage.h"
#include "2d/scene/mycustomproxy.h"
#include "2d/view/curvelist.h"
#include "2d/view/markediting.h"
#include "2d/view/pathinfo.h"

#include <QChart>
#include <QDebug>
#include <QGraphicsScene>
#include <QLegend>
#include <QLegendMarker>
#include <QLineSeries>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QtMath>

using namespace QtCharts;

using Panels = CurveList::Panels;

GraphicsBase::GraphicsBase(int kind, QWidget *parent)
    : ChartCanvas(parent)
    , m_stage(std::make_unique<ChartStage>(kind, *scene()))
    , m_curves(std::make_unique<CurveList>(*m_stage, *scene(), m_ranges))
    , m_markEditing(std::make_unique<MarkEditing>(*m_stage, *m_curves, m_ranges))
    , m_exchange(*this)
{
    retitle();

    setAcceptDrops(true);
    setContextMenuPolicy(Qt::CustomContextMenu);
    connectParts();
}

void GraphicsBase::connectParts()
{
    connect(this, &GraphicsBase::updateParaInfoToTable, this,
            [this](const ParaInfo &figures) { figuresPanel().updateParaInfo(figures); });
    connect(this, &GraphicsBase::clearParaInfoToTable, this, [this] {
        if (m_figuresPanel)
            m_figuresPanel->clearParaInfo();
    });
    connect(this, &GraphicsBase::updataSize, m_curves.get(), &CurveList::updataSize);
    connect(m_curves.get(), &CurveList::selectionAsked, this, &GraphicsBase::updatePathSelection);
    connect(m_curves.get(), &CurveList::acceptDropsAsked, this,
            &GraphicsBase::setAcceptDropsStatus);
    connect(m_curves.get(), &CurveList::lookChanged, this, &GraphicsBase::lookChanged);
    connect(this, &QWidget::customContextMenuRequested, this, &GraphicsBase::showMenu);
    if (QChart *current = chart()) {
        connect(current, &QChart::plotAreaChanged, m_curves.get(), &CurveList::catchUpLater);
        // Axes that make room for a title do not repaint all of the place where they were.
        connect(current, &QChart::plotAreaChanged, viewport(), qOverload<>(&QWidget::update));
    }
}

GraphicsBase::~GraphicsBase()
{
    if (chart())
        chart()->disconnect(m_curves.get());
}

QChart *GraphicsBase::chart() const
{
    return m_stage->chart();
}

int GraphicsBase::kind() const
{
    return m_stage->kind();
}

const QMap<int, PathInfo *> &GraphicsBase::paths() const
{
    return m_curves->paths();
}

const QMap<int, MyMarkItem *> &GraphicsBase::marks() const
{
    return m_curves->marks().all();
}

PathInfo *GraphicsBase::selectedPath() const
{
    return m_curves->selected();
}

MyMarkItem *GraphicsBase::selectedMark() const
{
    return m_curves->marks().selected();
}

ViewRange GraphicsBase::shownRange() const
{
    return m_ranges.inView(*m_stage);
}

QPointF GraphicsBase::toScene(const QPointF &value) const
{
    return m_stage->toScene(value);
}

QPointF GraphicsBase::toValue(const QPointF &scenePosition) const
{
    return m_stage->toValue(scenePosition);
}

QString GraphicsBase::defaultDirectory() const
{
    return m_exchange.defaultDirectory();
}

void GraphicsBase::setDefaultDirectory(const QString &directory)
{
    m_exchange.setDefaultDirectory(directory);
}

QString GraphicsBase::seriesName() const
{
    return m_seriesName;
}

QString GraphicsBase::chartTitle() const
{
    return m_stage->title();
}

bool GraphicsBase::hasCurve(const QString &name) const
{
    return m_curves->hasName(name);
}

void GraphicsBase::retitle()
{
    setAccessibleName(tr("Chart"));
    if (!m_stage->isPolar())
        setAxisXTitle(tr("Last %1 minutes").arg(m_ranges.period));
    setAxisYTitle(tr("Power[dBm]"));
    // What a running chart has scrolled to stays in view when the language changes.
    const ViewRange &shown = m_ranges.shown;
    if (shown.xMin <= 0.0 || !qFuzzyCompare(shown.xMax - shown.xMin, double(m_ranges.period)))
        m_ranges.startPeriod();
    setScaleLevel(5, 20.0, -30.0);
    m_curves->setComplete(false);
    m_steering.stop();
    m_offset = {};
}

void GraphicsBase::setLabelFormat(const QString &format)
{
    m_stage->setLabelFormat(format);
}

void GraphicsBase::showLegend(const QFont &font)
{
    m_stage->showLegend(font);
}

QRect GraphicsBase::areaAboveLegend() const
{
    return {0, 0, width(), height() - qCeil(m_stage->legendHeight())};
}

// Hovering over a curve shows nothing: names and values stand in the tables.
void GraphicsBase::tooltip(QPointF point, bool state)
{
    Q_UNUSED(point)
    Q_UNUSED(state)
}

void GraphicsBase::setChartTitle(QString title)
{
    m_stage->setTitle(title);
}

void GraphicsBase::setChartTitle(QString title, QFont font)
{
    m_stage->setTitle(title, font);
}

void GraphicsBase::setSeriesName(QString name)
{
    m_seriesName = name;
}

void GraphicsBase::setAxisXTitle(QString str)
{
    m_stage->setXTitle(str);
}

void GraphicsBase::setAxisYTitle(QString str)
{
    m_stage->setYTitle(str);
}

void GraphicsBase::setScaleLevel(int div, double scaleDiv, double reference)
{
    const ValueSpan span = divisionSpan(div, scaleDiv, reference);
    m_ranges.shown.yMin = span.low;
    m_ranges.shown.yMax = span.high;
    m_ranges.home = m_ranges.shown;
    {
        const ChartStage::LayoutGuard guard(*m_stage);
        m_stage->setYDivisions(div);
        m_ranges.apply(*m_stage);
    }
    m_curves->refresh(Panels::AllTables);
}

bool GraphicsBase::needsXRange(const char *operation) const
{
    if (m_stage->hasXRange())
        return true;
    qWarning() << operation << "needs a chart whose X range can change";
    return false;
}

PathInfo &GraphicsBase::existingPath(int index, const char *operation) const
{
    PathInfo *path = paths().value(index);
    if (!path)
        qFatal("%s: there is no curve %d", operation, index);
    return *path;
}

void GraphicsBase::setXPeriod(int period)
{
    if (!needsXRange("setXPeriod"))
        return;
    m_ranges.period = period;
    const ViewRange axes = m_stage->axisRange();
    setXRange(axes.xMin, axes.xMax);
}

void GraphicsBase::setXRange(double min, double max)
{
    if (!needsXRange("setXRange"))
        return;
    m_ranges.setX(min, max);
    m_stage->setXRange(min, max);
    m_curves->refresh(Panels::MarkTables);
}

void GraphicsBase::setYRange(double min, double max, int div)
{
    m_ranges.setY(min, max);
    {
        const ChartStage::LayoutGuard guard(*m_stage);
        m_stage->setYDivisions(div);
        m_stage->setYRange(min, max);
    }
    // Markers and curves stay where they are for whoever asks now; what is seen follows.
    m_curves->catchUpLater();
}

void GraphicsBase::setXDivisions(int div)
{
    m_stage->setXDivisions(div);
}

void GraphicsBase::setPolarView(const PolarView &view)
{
    m_stage->setPolarView(view);
    m_curves->refresh(CurveList::Panels::AllTables);
    viewport()->update();
}

void GraphicsBase::setOffset(double xOffset, double yOffset)
{
    m_offset = {xOffset, yOffset};
}

void GraphicsBase::resetChart(QStringList list)
{
    clearChart();
    for (const QString &name : qAsConst(list))
        m_curves->add(name);
    reconnectLegendMarkers();
    emit curvesChanged();
}

void GraphicsBase::updateChart(int index, QPointF point)
{
    if (!needsXRange("updateChart"))
        return;
    m_curves->setComplete(false);
    CurveSeries &curve = existingPath(index, "updateChart").curve();
    constexpr int pointsPerMinute = 60;
    const QPointF fed = point + m_offset;
    {
        const ChartStage::LayoutGuard guard(*m_stage);
        if (curve.count() > m_ranges.period * pointsPerMinute)
            curve.removeFirst();
        m_ranges.shown.followTime(fed.x(), m_ranges.period);
        m_stage->setXRange(m_ranges.shown.xMin, m_ranges.shown.xMax);
        const ValueSpan span = autoscaledSpan(curve.points());
        setYRange(span.low, span.high, 5);
        curve.append(fed);
    }
    updataResize();
}

void GraphicsBase::setPathInfoHide(int index)
{
    for (PathInfo *path : paths())
        path->setHidden(path->pathId() != index);
}

void GraphicsBase::finishUpdateChart()
{
    if (paths().isEmpty())
        return;
    m_curves->setComplete(true);
    for (PathInfo *path : paths()) {
        path->stackParaTable(sceneRect());
        path->updateMarkInfo(marks());
    }
}

void GraphicsBase::clearChart()
{
    deselect();
    const bool hadCurves = !paths().isEmpty();
    m_curves->clear();
    if (hadCurves)
        emit curvesChanged();
}

void GraphicsBase::clearChartData(int index)
{
    if (!needsXRange("clearChartData"))
        return;
    PathInfo &path = existingPath(index, "clearChartData");
    m_ranges.startPeriod();
    m_stage->setXRange(m_ranges.shown.xMin, m_ranges.shown.xMax);
    path.setPoints({});
    path.rebuild(*m_stage);
    m_curves->removeMarks(path); // they would float over an empty chart
    m_curves->catchUpLater();
}

void GraphicsBase::clearChart(int index)
{
    PathInfo *path = paths().value(index);
    if (!path)
        return;
    if (path->isSelected())
        deselect();
    m_curves->remove(index);
    emit curvesChanged();
}

PathInfo *GraphicsBase::createPath(const QString &name)
{
    PathInfo *path = m_curves->add(name);
    emit curvesChanged();
    return path;
}

PathInfo *GraphicsBase::addCurve(const QString &name, const QVector<QPointF> &points)
{
    PathInfo *path = m_curves->add(name);
    path->setPoints(points);
    reconnectLegendMarkers();
    m_curves->refresh(Panels::AllTables);
    emit curvesChanged();
    return path;
}

void GraphicsBase::rebuildPath(int pathId)
{
    if (PathInfo *path = paths().value(pathId))
        path->rebuild(*m_stage);
}

ParaInfo GraphicsBase::figures(int pathId) const
{
    const PathInfo *path = paths().value(pathId);
    return path ? m_curves->figures(*path) : ParaInfo();
}

bool GraphicsBase::parameterLinesVisible() const
{
    return m_curves->parameterLinesVisible();
}

void GraphicsBase::setBeamLevels(int pathId, const QVector<double> &drops)
{
    m_curves->setBeamLevels(pathId, drops);
}

void GraphicsBase::setParameterLinesVisible(bool visible)
{
    m_curves->setParameterLinesVisible(visible);
}

void GraphicsBase::SymmetrySlot()
{
    for (PathInfo *path : paths()) {
        m_curves->marks().snap(*path);
        path->rebuild(*m_stage);
        path->drawMirrored(*m_stage);
    }
}

void GraphicsBase::SymmetryResetSlot()
{
    for (PathInfo *path : paths()) {
        m_curves->marks().snap(*path);
        path->rebuild(*m_stage);
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
    for (PathInfo *path : paths()) {
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
    const QSize full = size();
    m_resized = false;
    {
        const QScopedValueRollback<bool> inner(m_nudging, true);
        resize(full - QSize(1, 1));
    }
    resize(full);
    if (isVisible() && !m_resized) // at its smallest size the view cannot be nudged
        m_curves->refresh(Panels::AllTables);
}

void GraphicsBase::resizeEvent(QResizeEvent *event)
{
    const QSizeF size = event->size();
    if (scene())
        scene()->setSceneRect(QRectF(QPointF(0.0, 0.0), size));
    if (!m_nudging)
        m_stage->resize(size);
    QGraphicsView::resizeEvent(event);
    if (m_nudging) // the real size follows at once
        return;
    m_resized = true;
    m_curves->refresh(Panels::AllTables);
    placeFigures();
    if (chart())
        emit updataSize(chart()->size() + QSizeF(-60.0, 10.0));
}
