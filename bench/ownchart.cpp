#include "ownchart.h"

#include "2d/scene/mypathitem.h"
#include "2d/view/graphicsbase.h"
#include "2d/view/pathinfo.h"

#include <QCoreApplication>
#include <QWheelEvent>

namespace {

void turnWheel(QWidget *target, int delta)
{
    const QPointF middle = target->rect().center();
    QWheelEvent event(middle, target->mapToGlobal(middle.toPoint()), QPoint(), QPoint(0, delta),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(target, &event);
}

} // namespace

OwnCurveChart::OwnCurveChart(int kind)
    : m_view(new GraphicsBase(kind))
{
    show(m_view, m_view->viewport());
    if (kind == 0)
        m_view->setXRange(-180, 180);
    m_view->setYRange(-80, 20, 5);
    QMetaObject::invokeMethod(m_view, "zoomSlot");
}

void OwnCurveChart::prepare(const QVector<QPointF> &points)
{
    m_points = points;
}

void OwnCurveChart::load()
{
    m_view->addCurve(QStringLiteral("curve"), m_points);
}

void OwnCurveChart::clear()
{
    m_view->clearChart();
}

void OwnCurveChart::zoom(bool widen)
{
    turnWheel(m_view->viewport(), widen ? 120 : -120);
}

QPointF OwnCurveChart::position(const QPointF &value) const
{
    return m_view->toScene(value);
}

void OwnCurveChart::hitTest(const QPointF &position)
{
    m_view->paths().first()->pathItem()->hits(position);
}

OwnTimeChart::OwnTimeChart()
    : m_view(new GraphicsBase(0))
{
    show(m_view, m_view->viewport());
    m_view->resetChart({QStringLiteral("Power Meter")});
}

void OwnTimeChart::tick(double minutes, double level)
{
    m_view->updateChart(1, QPointF(minutes, level));
}
