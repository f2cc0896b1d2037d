#include "2d/scene/mycustomproxy.h"

#include "2d/scene/myparainfotable.h"

#include <QGraphicsSceneMouseEvent>

namespace {

constexpr qreal aboveTheCurves = 10.0;

} // namespace

MyCustomProxy::MyCustomProxy(QGraphicsItem *parent)
    : QGraphicsProxyWidget(parent, Qt::Window | Qt::FramelessWindowHint)
    , m_table(new MyParaInfoTable)
{
    setWidget(m_table);
    setFlag(ItemIsMovable);
    setZValue(aboveTheCurves);
}

MyParaInfoTable *MyCustomProxy::table() const
{
    return m_table;
}

bool MyCustomProxy::getParaTableDataStatus() const
{
    return m_table->getParaTableDataStatus();
}

void MyCustomProxy::updateParaInfo(ParaInfo paraInfo)
{
    m_table->updateParaInfo(paraInfo);
}

void MyCustomProxy::clearParaInfo()
{
    m_table->clearParaInfo();
}

// The table reacts to no mouse. Were the events handed to it, it would swallow what moves the
// panel.
// NOLINTBEGIN(bugprone-parent-virtual-call)
void MyCustomProxy::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    QGraphicsItem::mousePressEvent(event);
}

void MyCustomProxy::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    QGraphicsItem::mouseMoveEvent(event);
}

void MyCustomProxy::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    QGraphicsItem::mouseReleaseEvent(event);
}
// NOLINTEND(bugprone-parent-virtual-call)
