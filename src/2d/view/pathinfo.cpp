#include "2d/view/pathinfo.h"

#include "2d/data/patternanalysis.h"
#include "2d/scene/callout.h"
#include "2d/scene/marktable.h"
#include "2d/scene/mycustomproxy.h"
#include "2d/scene/mypathitem.h"
#include "2d/view/chartstage.h"

#include <QDebug>
#include <QLineSeries>
#include <QPen>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

using namespace QtCharts;

namespace {

constexpr double panelStep = 50.0;
constexpr double panelGap = 8.0;
constexpr double widthBesidePanels = 60.0;
constexpr double heightBesidePanels = 10.0;

QVector<QPointF> finitePoints(const QVector<QPointF> &points)
{
    const auto finite = [](const QPointF &point) {
        return std::isfinite(point.x()) && std::isfinite(point.y());
    };
    if (std::all_of(points.cbegin(), points.cend(), finite))
        return points; // shared
    QVector<QPointF> kept;
    std::copy_if(points.cbegin(), points.cend(), std::back_inserter(kept), finite);
    return kept;
}

/// Whether both are the same data, not merely equal: decided without a look at the points.
bool isShared(const QVector<QPointF> &a, const QVector<QPointF> &b)
{
    return a.size() == b.size() && a.constData() == b.constData();
}

} // namespace

PathInfo::PathInfo(int pathId, QObject *parent)
    : QObject(parent)
    , m_pathId(pathId)
    , m_series(new QLineSeries)
    , m_pathItem(new MyPathItem(pathId))
    , m_displayItem(new Callout)
    , m_markPanel(new MarkTablePanel)
    , m_paraPanel(new MyCustomProxy)
{
    connect(m_pathItem, &MyPathItem::selectPathId, this, &PathInfo::selectPathId);
    connect(m_pathItem, &MyPathItem::setAcceptDropsStatus, this, &PathInfo::setAcceptDropsStatus);
    connectSeries();
    m_pathItem->setLineWidth(m_lineWidth);
    m_displayItem->setVisible(false);
}

PathInfo::~PathInfo()
{
    const QList<QGraphicsItem *> items = furtherItems();
    qDeleteAll(items);
    delete m_displayItem;
    delete m_pathItem;
    delete m_series;
}

/// Hears of changes that came past the quiet road below.
void PathInfo::connectSeries()
{
    const auto known = [this] { m_chartHoldsPoints = true; };
    connect(m_series, &QXYSeries::pointAdded, this, known);
    connect(m_series, &QXYSeries::pointReplaced, this, known);
    connect(m_series, &QXYSeries::pointRemoved, this, known);
    connect(m_series, &QXYSeries::pointsReplaced, this, known);
    connect(m_series, &QXYSeries::pointsRemoved, this, known);
}

void PathInfo::setColor(const QColor &color)
{
    m_color = color;
    m_pathItem->setColor(color);
    m_displayItem->setColor(color);
    m_lines.setColor(color);
    // The chart draws no line, but its legend takes the colour from here.
    m_series->setPen(QPen(QBrush(color), m_lineWidth, Qt::NoPen));
    emit lookChanged();
}

void PathInfo::setName(const QString &name)
{
    m_name = name;
    m_series->setName(name);
    m_pathItem->setName(name);
    m_displayItem->setText(name);
    m_markPanel->table()->setCurveName(name);
    emit lookChanged();
}

void PathInfo::setLineWidth(int width)
{
    m_lineWidth = width;
    m_pathItem->setLineWidth(width);
    emit lookChanged();
}

void PathInfo::setHidden(bool hidden)
{
    if (hidden == m_hidden)
        return;
    m_hidden = hidden;
    applyVisibility();
    emit lookChanged();
}

void PathInfo::setLook(const CurveLook &look)
{
    if (look.name != m_name)
        setName(look.name);
    if (look.color != m_color)
        setColor(look.color);
    if (look.width != m_lineWidth)
        setLineWidth(look.width);
    setHidden(look.hidden);
}

bool PathInfo::isSelected() const
{
    return m_pathItem->isCurveSelected();
}

void PathInfo::setSelected(bool selected)
{
    m_pathItem->setCurveSelected(selected);
    placeDisplayItem();
    applyVisibility();
}

void PathInfo::applyVisibility()
{
    m_series->setVisible(!m_hidden);
    m_pathItem->setVisible(!m_hidden);
    m_displayItem->setVisible(!m_hidden && isSelected() && !points().isEmpty());
    const bool markTable = !m_hidden && m_markTableShown && getMarkTableDataStatus();
    m_markPanel->setVisible(markTable);
    m_paraPanel->setVisible(!m_hidden && getParaTableDataStatus());
    if (m_hidden)
        m_lines.hide();
}

QList<QGraphicsItem *> PathInfo::furtherItems() const
{
    QList<QGraphicsItem *> items = m_lines.items();
    items << m_markPanel << m_paraPanel;
    return items;
}

QVector<QPointF> PathInfo::points() const
{
    return m_series->pointsVector();
}

void PathInfo::setPoints(const QVector<QPointF> &points)
{
    replaceQuietly(finitePoints(points));
}

void PathInfo::appendPoint(const QPointF &point)
{
    if (m_chartHoldsPoints)
        replaceQuietly(points());
    const QSignalBlocker quiet(m_series);
    m_series->append(point);
}

void PathInfo::removeFirstPoint()
{
    if (m_chartHoldsPoints)
        replaceQuietly(points());
    const QSignalBlocker quiet(m_series);
    m_series->remove(0);
}

/// Changes the series behind the back of the chart's own line item, which would compute a line that
/// nobody sees. Should it know points already, it has to forget them first: it counts on hearing of
/// every change.
void PathInfo::replaceQuietly(const QVector<QPointF> &points)
{
    if (m_chartHoldsPoints) {
        m_series->replace(QVector<QPointF>());
        m_chartHoldsPoints = false;
    }
    const QSignalBlocker quiet(m_series);
    m_series->replace(points);
}

QVector<QPointF> PathInfo::takePointsForLayout()
{
    const QVector<QPointF> held = points();
    replaceQuietly({});
    return held;
}

void PathInfo::putPointsBack(const QVector<QPointF> &points)
{
    replaceQuietly(points);
}

void PathInfo::rebuild(const ChartStage &stage)
{
    const QVector<QPointF> values = points();
    m_mirrored.clear();
    m_pathItem->setValuePoints(values);
    drawValues(values, stage);
}

void PathInfo::drawMirrored(const ChartStage &stage)
{
    m_mirrored = m_pathItem->getSymmetricPoint(QPointF(-1, 1), QPointF(0, 0)).toVector();
    qWarning() << "list size is .." << m_mirrored.size();
    drawValues(m_mirrored, stage);
}

void PathInfo::catchUp(const ChartStage &stage)
{
    if (m_mirrored.isEmpty())
        rebuild(stage);
    else
        drawValues(m_mirrored, stage);
}

void PathInfo::redrawOutline()
{
    m_pathItem->setDrawnPoints(m_pathItem->positions());
}

void PathInfo::drawValues(const QVector<QPointF> &values, const ChartStage &stage)
{
    if (!stage.chart())
        return;
    const ChartMapping mapping = stage.mapping();
    const bool drawnAlready =
        mapping.isUsable() && isShared(values, m_drawnValues) && mapping == m_drawnMapping;
    if (!drawnAlready) {
        m_pathItem->setPlotArea(mapping.plotArea);
        if (!values.isEmpty())
            m_pathItem->setDrawnPoints(stage.toScene(values, m_pathItem->recycledPositions()));
        m_drawnValues = values;
        m_drawnMapping = mapping;
    }
    placeDisplayItem();
    if (m_displayItem->isVisible() == values.isEmpty())
        applyVisibility();
}

/// The name points at the curve's highest point in view.
void PathInfo::placeDisplayItem()
{
    if (!isSelected())
        return;
    const QRectF area = m_drawnMapping.plotArea;
    m_displayItem->setAnchor(m_pathItem->highestPoint().value_or(area.center()), area);
}

const PatternAnalysis *PathInfo::analysis()
{
    const QVector<QPointF> values = points();
    if (!isShared(values, m_analysedValues) || values.isEmpty()) {
        m_analysedValues = values;
        m_analysis.reset();
        if (const std::optional<PatternAnalysis> result = analysePattern(values))
            m_analysis = std::make_unique<PatternAnalysis>(*result);
    }
    return m_analysis.get();
}

void PathInfo::updateLines(const ChartStage &stage, bool shown)
{
    const PatternAnalysis *figures = analysis();
    if (!figures || m_hidden) {
        m_lines.hide();
        return;
    }
    m_lines.update(
        figures->lines, [&stage](const QPointF &value) { return stage.toScene(value); },
        stage.axisRange(), shown && m_linesVisible);
}

void PathInfo::setMarkTableShown(bool shown)
{
    m_markTableShown = shown;
    applyVisibility();
}

void PathInfo::placePanel(QGraphicsProxyWidget &panel, QPointF &lastSpot, const QPointF &spot)
{
    const bool movedByHand = panel.pos() != lastSpot;
    QPointF place = movedByHand ? panel.pos() : spot;
    if (movedByHand && !m_viewSize.isEmpty()) {
        const QSizeF room = m_viewSize - panel.size();
        place = {qBound(0.0, place.x(), std::max(0.0, room.width())),
                 qBound(0.0, place.y(), std::max(0.0, room.height()))};
    }
    panel.setPos(place);
    if (!movedByHand)
        lastSpot = place;
}

void PathInfo::placeMarkTable()
{
    const QPointF corner = m_drawnMapping.plotArea.topLeft() + QPointF(panelGap, panelGap);
    placePanel(*m_markPanel, m_markSpot, corner + QPointF(0.0, (m_pathId - 1) * panelStep));
}

void PathInfo::placeParaTable()
{
    placePanel(*m_paraPanel, m_paraSpot,
               {m_viewSize.width() - m_paraPanel->size().width(), (m_pathId - 1) * panelStep});
}

void PathInfo::stackParaTable(const QRectF &sceneRect)
{
    m_paraSpot = {sceneRect.right() - m_paraPanel->size().width(), (m_pathId - 1) * panelStep};
    m_paraPanel->setPos(m_paraSpot);
}

void PathInfo::updateMarkInfo(QMap<int, MyMarkItem *> map)
{
    m_markPanel->table()->setMarks(m_markIds, map);
    m_markPanel->resize(m_markPanel->table()->fittingSize());
    applyVisibility();
}

void PathInfo::updateParaInfo(ParaInfo paraInfo)
{
    m_paraPanel->updateParaInfo(paraInfo);
    applyVisibility();
}

void PathInfo::clearParaInfo()
{
    m_paraPanel->clearParaInfo();
}

void PathInfo::clearSelection()
{
    setSelected(false);
}

void PathInfo::addMarkId(int id)
{
    if (!m_markIds.contains(id))
        m_markIds.append(id);
}

void PathInfo::delMarkId(int id)
{
    m_markIds.removeAll(id);
}

bool PathInfo::containsMarkid(int id)
{
    return m_markIds.contains(id);
}

bool PathInfo::getMarkTableDataStatus()
{
    return m_markPanel->table()->hasData();
}

bool PathInfo::getParaTableDataStatus()
{
    return m_paraPanel->getParaTableDataStatus();
}

void PathInfo::setLineItemVisible(bool b)
{
    if (b == m_linesVisible)
        return;
    m_linesVisible = b;
    if (!b)
        m_lines.hide();
    emit lookChanged();
}

void PathInfo::updataSize(QSizeF size)
{
    m_viewSize = size + QSizeF(widthBesidePanels, -heightBesidePanels);
    placeMarkTable();
    placeParaTable();
}
