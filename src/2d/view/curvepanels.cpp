#include "2d/view/curvepanels.h"

#include "2d/scene/marktable.h"
#include "2d/scene/mycustomproxy.h"

#include <QRectF>

namespace {

constexpr double panelStep = 50.0;
constexpr double panelGap = 8.0;

} // namespace

CurvePanels::CurvePanels(int pathId)
    : m_pathId(pathId)
    , m_marks(new MarkTablePanel)
    , m_parameters(new MyCustomProxy)
{}

QList<QGraphicsItem *> CurvePanels::items() const
{
    return {m_marks, m_parameters};
}

void CurvePanels::applyVisibility(bool shown)
{
    m_marks->setVisible(shown && m_marksShown && m_marks->table()->hasData());
    m_parameters->setVisible(shown && m_parameters->getParaTableDataStatus());
}

void CurvePanels::placeMarks(const QRectF &plotArea)
{
    const QPointF corner = plotArea.topLeft() + QPointF(panelGap, panelGap);
    m_marks->place(corner + QPointF(0.0, (m_pathId - 1) * panelStep), {QPointF(), m_viewSize});
}

void CurvePanels::placeParameters()
{
    m_parameters->place(
        {m_viewSize.width() - m_parameters->size().width(), (m_pathId - 1) * panelStep},
        {QPointF(), m_viewSize});
}

void CurvePanels::stackParameters(const QRectF &sceneRect)
{
    m_parameters->placeAnew(
        {sceneRect.right() - m_parameters->size().width(), (m_pathId - 1) * panelStep});
}
