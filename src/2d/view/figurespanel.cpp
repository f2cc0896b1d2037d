#include "2d/view/figurespanel.h"

#include "2d/scene/chartstage.h"
#include "2d/scene/mycustomproxy.h"

#include <QGraphicsScene>

FiguresPanel::FiguresPanel(const ChartStage &stage, QGraphicsScene &scene)
    : m_stage(stage)
    , m_scene(scene)
{}

bool FiguresPanel::isShown() const
{
    return m_panel && m_panel->getParaTableDataStatus();
}

bool FiguresPanel::covers(const QPointF &place) const
{
    return m_panel && m_panel->covers(place);
}

void FiguresPanel::show(const ParaInfo &figures)
{
    if (!m_panel) {
        m_panel = new MyCustomProxy;
        m_scene.addItem(m_panel);
        m_panel->hide();
    }
    if (!isShown())
        place();
    m_panel->updateParaInfo(figures);
}

void FiguresPanel::clear()
{
    if (m_panel)
        m_panel->clearParaInfo();
}

void FiguresPanel::place()
{
    constexpr double gap = 8.0;
    if (m_panel)
        m_panel->place(m_stage.plotArea().topRight() - QPointF(m_panel->size().width() + gap, -gap),
                       m_scene.sceneRect());
}
