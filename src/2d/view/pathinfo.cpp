#include "2d/view/pathinfo.h"

#include "2d/data/patternanalysis.h"
#include "2d/scene/callout.h"
#include "2d/scene/chartstage.h"
#include "2d/scene/mypathitem.h"

#include <QDebug>
#include <QGraphicsScene>
#include <QLineSeries>
#include <QPen>

using namespace QtCharts;

namespace {

constexpr double widthBesidePanels = 60.0;
constexpr double heightBesidePanels = 10.0;

/// Whether both are the same data, not merely equal: decided without a look at the points.
bool isShared(const QVector<QPointF> &a, const QVector<QPointF> &b)
{
    return a.size() == b.size() && a.constData() == b.constData();
}

} // namespace

PathInfo::PathInfo(int pathId, QObject *parent)
    : QObject(parent)
    , m_pathId(pathId)
    , m_pathItem(new MyPathItem(pathId))
    , m_displayItem(new Callout)
    , m_panels(pathId)
{
    connect(m_pathItem, &MyPathItem::selectPathId, this, &PathInfo::selectPathId);
    connect(m_pathItem, &MyPathItem::setAcceptDropsStatus, this, &PathInfo::setAcceptDropsStatus);
    m_pathItem->setLineWidth(m_lineWidth);
    m_displayItem->setVisible(false);
}

PathInfo::~PathInfo()
{
    const QList<QGraphicsItem *> items = furtherItems();
    qDeleteAll(items);
    delete m_displayItem;
    delete m_pathItem;
}

void PathInfo::setColor(const QColor &color)
{
    m_color = color;
    m_pathItem->setColor(color);
    m_displayItem->setColor(color);
    m_lines.setColor(color);
    // The chart draws no line, but its legend takes the colour from here.
    series()->setPen(QPen(QBrush(color), m_lineWidth, Qt::NoPen));
    emit lookChanged();
}

void PathInfo::setName(const QString &name)
{
    m_name = name;
    series()->setName(name);
    m_pathItem->setName(name);
    m_displayItem->setText(name);
    m_panels.setCurveName(name);
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
    series()->setVisible(!m_hidden);
    m_pathItem->setVisible(!m_hidden);
    m_displayItem->setVisible(!m_hidden && isSelected() && !points().isEmpty());
    m_panels.applyVisibility(!m_hidden);
    if (m_hidden)
        m_lines.hide();
}

QList<QGraphicsItem *> PathInfo::furtherItems() const
{
    return m_lines.items() + m_panels.items();
}

void PathInfo::addTo(QGraphicsScene &scene)
{
    m_panels.setScene(scene);
    scene.addItem(m_displayItem);
    scene.addItem(m_pathItem);
    const QList<QGraphicsItem *> items = furtherItems();
    for (QGraphicsItem *item : items)
        scene.addItem(item);
}

MarkTablePanel *PathInfo::markTablePanel() const
{
    MarkTablePanel *panel = m_panels.marks();
    placeMarkTable();
    return panel;
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
        if (stage.mapsInClosedForm(values))
            m_pathItem->drawValues(values, mapping);
        else
            m_pathItem->setDrawnPoints(stage.toScene(values));
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

const PatternAnalysis *PathInfo::analysis() const
{
    const QVector<QPointF> values = points();
    if (!isShared(values, m_analysedValues) || values.isEmpty()) {
        m_analysedValues = values;
        m_analysis.reset();
        if (const std::optional<PatternAnalysis> result = analysePattern(values))
            m_analysis = std::make_unique<PatternAnalysis>(*result);
        m_beams = beamWidths(values, m_beamDrops);
    }
    return m_analysis.get();
}

void PathInfo::setBeamLevels(const QVector<double> &drops)
{
    m_beamDrops = drops;
    m_beams = beamWidths(m_analysedValues, drops);
}

void PathInfo::updateLines(const ChartStage &stage, bool shown)
{
    const PatternAnalysis *figures = analysis();
    if (!figures || m_hidden) {
        m_lines.hide();
        return;
    }
    const auto toScene = [&stage](const QPointF &value) { return stage.toScene(value); };
    m_lines.update(figures->lines, toScene, stage.axisRange(), shown && m_linesVisible);
    m_lines.updateBeams(m_beams, toScene, stage.axisRange());
}

void PathInfo::setMarkTableShown(bool shown)
{
    m_panels.setMarksShown(shown);
    applyVisibility();
}

void PathInfo::placeMarkTable() const
{
    m_panels.placeMarks(m_drawnMapping.plotArea);
}

void PathInfo::placeParaTable()
{
    m_panels.placeParameters();
}

void PathInfo::stackParaTable(const QRectF &sceneRect)
{
    m_panels.stackParameters(sceneRect);
}

void PathInfo::updateMarkInfo(QMap<int, MyMarkItem *> map)
{
    m_panels.showMarks(m_markIds, map);
    placeMarkTable();
    applyVisibility();
}

void PathInfo::updateParaInfo(ParaInfo paraInfo)
{
    m_panels.showParameters(paraInfo);
    applyVisibility();
}

void PathInfo::clearParaInfo()
{
    m_panels.clearParameters();
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
    return m_panels.hasMarks();
}

bool PathInfo::getParaTableDataStatus()
{
    return m_panels.hasParameters();
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
    m_panels.setViewSize(size + QSizeF(widthBesidePanels, -heightBesidePanels));
    placeMarkTable();
    placeParaTable();
}
