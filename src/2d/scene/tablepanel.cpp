#include "2d/scene/tablepanel.h"

#include <QGraphicsSceneMouseEvent>

#include <algorithm>

namespace {

constexpr qreal aboveTheCurves = 10.0;

} // namespace

TablePanel::TablePanel(QGraphicsItem *parent)
    : QGraphicsProxyWidget(parent, Qt::Window | Qt::FramelessWindowHint)
{
    setFlag(ItemIsMovable);
    setZValue(aboveTheCurves);
}

void TablePanel::place(const QPointF &spot, const QRectF &room)
{
    const bool movedByHand = pos() != m_spot;
    QPointF target = movedByHand ? pos() : spot;
    if (!room.isEmpty()) {
        const QPointF last(std::max(room.left(), room.right() - size().width()),
                           std::max(room.top(), room.bottom() - size().height()));
        target = {std::clamp(target.x(), room.left(), last.x()),
                  std::clamp(target.y(), room.top(), last.y())};
    }
    setPos(target);
    if (!movedByHand)
        m_spot = target;
}

void TablePanel::placeAnew(const QPointF &spot)
{
    m_spot = spot;
    setPos(spot);
}

bool TablePanel::covers(const QPointF &place) const
{
    return isVisible() && sceneBoundingRect().contains(place);
}

// The table reacts to no mouse. Were the events handed to it, it would swallow what moves the
// panel.
// NOLINTBEGIN(bugprone-parent-virtual-call)
void TablePanel::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    QGraphicsItem::mousePressEvent(event);
}

void TablePanel::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    QGraphicsItem::mouseMoveEvent(event);
}

void TablePanel::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    QGraphicsItem::mouseReleaseEvent(event);
}
// NOLINTEND(bugprone-parent-virtual-call)
