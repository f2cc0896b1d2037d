#include "2d/view/curveview.h"

#include "2d/scene/chartstage.h"
#include "2d/view/curvelist.h"
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

CurveView::CurveView(int kind, QWidget *parent)
    : ChartCanvas(parent)
    , m_stage(std::make_unique<ChartStage>(kind, *scene()))
    , m_curves(std::make_unique<CurveList>(*m_stage, *scene(), m_ranges))
{
    connect(this, &CurveView::updataSize, m_curves.get(), &CurveList::updataSize);
    connect(m_curves.get(), &CurveList::selectionAsked, this, &CurveView::updatePathSelection);
    connect(m_curves.get(), &CurveList::lookChanged, this, &CurveView::lookChanged);
    if (QChart *current = chart()) {
        connect(current, &QChart::plotAreaChanged, m_curves.get(), &CurveList::catchUpLater);
        // Axes that make room for a title do not repaint all of the place where they were.
        connect(current, &QChart::plotAreaChanged, viewport(), qOverload<>(&QWidget::update));
    }
}

CurveView::~CurveView()
{
    if (chart())
        chart()->disconnect(m_curves.get());
}

QChart *CurveView::chart() const
{
    return m_stage->chart();
}

int CurveView::kind() const
{
    return m_stage->kind();
}

const QMap<int, PathInfo *> &CurveView::paths() const
{
    return m_curves->paths();
}

const QMap<int, MyMarkItem *> &CurveView::marks() const
{
    return m_curves->marks().all();
}

PathInfo *CurveView::selectedPath() const
{
    return m_curves->selected();
}

MyMarkItem *CurveView::selectedMark() const
{
    return m_curves->marks().selected();
}

ViewRange CurveView::shownRange() const
{
    return m_ranges.inView(*m_stage);
}

QPointF CurveView::toScene(const QPointF &value) const
{
    return m_stage->toScene(value);
}

QPointF CurveView::toValue(const QPointF &scenePosition) const
{
    return m_stage->toValue(scenePosition);
}

QString CurveView::chartTitle() const
{
    return m_stage->title();
}

bool CurveView::hasCurve(const QString &name) const
{
    return m_curves->hasName(name);
}

void CurveView::setLabelFormat(const QString &format)
{
    m_stage->setLabelFormat(format);
}

void CurveView::showLegend(const QFont &font)
{
    m_stage->showLegend(font);
}

QRect CurveView::areaAboveLegend() const
{
    return {0, 0, width(), height() - qCeil(m_stage->legendHeight())};
}

void CurveView::tooltip(QPointF point, bool state)
{
    Q_UNUSED(point)
    Q_UNUSED(state)
}

void CurveView::setChartTitle(QString title)
{
    m_stage->setTitle(title);
}

void CurveView::setChartTitle(QString title, QFont font)
{
    m_stage->setTitle(title, font);
}

void CurveView::setAxisXTitle(QString str)
{
    m_stage->setXTitle(str);
}

void CurveView::setAxisYTitle(QString str)
{
    m_stage->setYTitle(str);
}

void CurveView::setScaleLevel(int div, double scaleDiv, double reference)
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

bool CurveView::needsXRange(const char *operation) const
{
    if (m_stage->hasXRange())
        return true;
    qWarning() << operation << "needs a chart whose X range can change";
    return false;
}

PathInfo &CurveView::existingPath(int index, const char *operation) const
{
    PathInfo *path = paths().value(index);
    if (!path)
        qFatal("%s: there is no curve %d", operation, index);
    return *path;
}

void CurveView::setXPeriod(int period)
{
    if (!needsXRange("setXPeriod"))
        return;
    m_ranges.period = period;
    const ViewRange axes = m_stage->axisRange();
    setXRange(axes.xMin, axes.xMax);
}

void CurveView::setXRange(double min, double max)
{
    if (!needsXRange("setXRange"))
        return;
    m_ranges.setX(min, max);
    m_stage->setXRange(min, max);
    m_curves->refresh(Panels::MarkTables);
}

void CurveView::setYRange(double min, double max, int div)
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

void CurveView::setXDivisions(int div)
{
    m_stage->setXDivisions(div);
}

void CurveView::setPolarView(const PolarView &view)
{
    m_stage->setPolarView(view);
    m_curves->refresh(CurveList::Panels::AllTables);
    viewport()->update();
}

void CurveView::setOffset(double xOffset, double yOffset)
{
    m_offset = {xOffset, yOffset};
}

void CurveView::resetChart(QStringList list)
{
    clearChart();
    for (const QString &name : qAsConst(list))
        m_curves->add(name);
    reconnectLegendMarkers();
    emit curvesChanged();
}

void CurveView::updateChart(int index, QPointF point)
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

void CurveView::setPathInfoHide(int index)
{
    for (PathInfo *path : paths())
        path->setHidden(path->pathId() != index);
}

void CurveView::finishUpdateChart()
{
    if (paths().isEmpty())
        return;
    m_curves->setComplete(true);
    for (PathInfo *path : paths()) {
        path->stackParaTable(sceneRect());
        path->updateMarkInfo(marks());
    }
}

void CurveView::clearChart()
{
    deselect();
    const bool hadCurves = !paths().isEmpty();
    m_curves->clear();
    if (hadCurves)
        emit curvesChanged();
}

void CurveView::clearChart(int index)
{
    PathInfo *path = paths().value(index);
    if (!path)
        return;
    if (path->isSelected())
        deselect();
    m_curves->remove(index);
    emit curvesChanged();
}

void CurveView::clearChartData(int index)
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

PathInfo *CurveView::createPath(const QString &name)
{
    PathInfo *path = m_curves->add(name);
    emit curvesChanged();
    return path;
}

PathInfo *CurveView::addCurve(const QString &name, const QVector<QPointF> &points)
{
    PathInfo *path = m_curves->add(name);
    path->setPoints(points);
    reconnectLegendMarkers();
    m_curves->refresh(Panels::AllTables);
    emit curvesChanged();
    return path;
}

void CurveView::rebuildPath(int pathId)
{
    if (PathInfo *path = paths().value(pathId))
        path->rebuild(*m_stage);
}

ParaInfo CurveView::figures(int pathId) const
{
    const PathInfo *path = paths().value(pathId);
    return path ? m_curves->figures(*path) : ParaInfo();
}

bool CurveView::parameterLinesVisible() const
{
    return m_curves->parameterLinesVisible();
}

void CurveView::setBeamLevels(int pathId, const QVector<double> &drops)
{
    m_curves->setBeamLevels(pathId, drops);
}

void CurveView::setParameterLinesVisible(bool visible)
{
    m_curves->setParameterLinesVisible(visible);
}

void CurveView::SymmetrySlot()
{
    for (PathInfo *path : paths()) {
        m_curves->marks().snap(*path);
        path->rebuild(*m_stage);
        path->drawMirrored(*m_stage);
    }
}

void CurveView::SymmetryResetSlot()
{
    for (PathInfo *path : paths()) {
        m_curves->marks().snap(*path);
        path->rebuild(*m_stage);
        path->redrawOutline();
    }
}

void CurveView::reconnectLegendMarkers()
{
    if (!chart())
        return;
    const QList<QLegendMarker *> markers = chart()->legend()->markers();
    for (QLegendMarker *marker : markers) {
        disconnect(marker, &QLegendMarker::clicked, this, &CurveView::handleMarkerClicked);
        connect(marker, &QLegendMarker::clicked, this, &CurveView::handleMarkerClicked);
    }
}

void CurveView::handleMarkerClicked()
{
    auto *marker = qobject_cast<QLegendMarker *>(sender());
    if (!marker)
        return;
    for (PathInfo *path : paths()) {
        if (path->series() == marker->series())
            path->setHidden(!path->isHidden());
    }
}

void CurveView::setColorList(QList<QColor> colorList)
{
    Q_UNUSED(colorList)
}

MyMarkItem *CurveView::addMark(const QPointF &position, const QColor &color)
{
    return m_curves->marks().add(position, color);
}

void CurveView::setMarkDeltas(bool on)
{
    m_curves->setMarkDeltas(on);
}

void CurveView::updataResize()
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

void CurveView::updatePathSelection(int pathId)
{
    for (PathInfo *path : paths())
        path->setSelected(path->pathId() == pathId);
    emit selectionChanged();
}

void CurveView::deselect()
{
    m_curves->marks().select(nullptr);
    PathInfo *path = selectedPath();
    if (!path)
        return;
    path->clearSelection();
    emit selectionChanged();
}

void CurveView::paintPicture(QPainter &painter, const QRectF &target, const QRect &source)
{
    const PlainLook look(*m_curves);
    render(&painter, target, source);
}

QPixmap CurveView::picture()
{
    const PlainLook look(*m_curves);
    return unfocusedPicture();
}

void CurveView::resizeEvent(QResizeEvent *event)
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
    if (chart())
        emit updataSize(chart()->size() + QSizeF(-60.0, 10.0));
}
