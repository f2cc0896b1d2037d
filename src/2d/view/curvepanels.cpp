#include "2d/view/curvepanels.h"

#include "2d/scene/marktable.h"
#include "2d/scene/mycustomproxy.h"

#include <QGraphicsScene>
#include <QRectF>

namespace {

constexpr double panelStep = 50.0;
constexpr double panelGap = 8.0;

} // namespace

CurvePanels::CurvePanels(int pathId)
    : m_pathId(pathId)
{}

MarkTablePanel *CurvePanels::marks()
{
    if (!m_marks) {
        m_marks = new MarkTablePanel;
        m_marks->table()->setCurveName(m_curveName);
        m_marks->table()->setPattern(m_isPattern);
        m_marks->table()->setDeltas(m_deltas);
        m_marks->hide();
        if (m_scene)
            m_scene->addItem(m_marks);
    }
    return m_marks;
}

MyCustomProxy *CurvePanels::parameters()
{
    if (!m_parameters) {
        m_parameters = new MyCustomProxy;
        m_parameters->hide();
        if (m_scene)
            m_scene->addItem(m_parameters);
        placeParameters();
    }
    return m_parameters;
}

QList<QGraphicsItem *> CurvePanels::items() const
{
    QList<QGraphicsItem *> made{m_marks, m_parameters};
    made.removeAll(nullptr);
    return made;
}

bool CurvePanels::cover(const QPointF &place) const
{
    return (m_marks && m_marks->covers(place)) || (m_parameters && m_parameters->covers(place));
}

bool CurvePanels::hasMarks() const
{
    return m_marks && m_marks->table()->hasData();
}

bool CurvePanels::hasParameters() const
{
    return m_parameters && m_parameters->getParaTableDataStatus();
}

void CurvePanels::showMarks(const QList<int> &numbers, const QMap<int, MyMarkItem *> &all)
{
    if (!m_marks && numbers.isEmpty())
        return;
    marks()->table()->setMarks(numbers, all);
    m_marks->resize(m_marks->table()->fittingSize());
}

void CurvePanels::showParameters(const ParaInfo &figures)
{
    parameters()->updateParaInfo(figures);
}

void CurvePanels::clearParameters()
{
    if (m_parameters)
        m_parameters->clearParaInfo();
}

void CurvePanels::setCurveName(const QString &name)
{
    m_curveName = name;
    if (m_marks)
        m_marks->table()->setCurveName(name);
}

void CurvePanels::setPattern(bool isPattern)
{
    m_isPattern = isPattern;
    if (m_marks)
        m_marks->table()->setPattern(isPattern);
}

void CurvePanels::setDeltas(bool on)
{
    m_deltas = on;
    if (m_marks)
        m_marks->table()->setDeltas(on);
}

void CurvePanels::applyVisibility(bool shown)
{
    if (m_marks)
        m_marks->setVisible(shown && m_marksShown && hasMarks());
    if (m_parameters)
        m_parameters->setVisible(shown && hasParameters());
}

void CurvePanels::placeMarks(const QRectF &plotArea)
{
    if (!m_marks)
        return;
    const QPointF corner = plotArea.topLeft() + QPointF(panelGap, panelGap);
    m_marks->place(corner + QPointF(0.0, (m_pathId - 1) * panelStep), {QPointF(), m_viewSize});
}

void CurvePanels::placeParameters()
{
    if (!m_parameters)
        return;
    m_parameters->place(
        {m_viewSize.width() - m_parameters->size().width(), (m_pathId - 1) * panelStep},
        {QPointF(), m_viewSize});
}

void CurvePanels::stackParameters(const QRectF &sceneRect)
{
    if (!m_parameters)
        return;
    m_parameters->placeAnew(
        {sceneRect.right() - m_parameters->size().width(), (m_pathId - 1) * panelStep});
}
