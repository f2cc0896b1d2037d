#include "2d/scene/mymarkitem.h"

#include <QGraphicsSceneMouseEvent>
#include <QPainter>
#include <QtMath>

#include <cmath>

namespace {

constexpr QPointF tipOfGlyph(3.0, 12.0);
constexpr qreal markLevel = 8.0;
constexpr qreal selectedMarkLevel = 8.5;
constexpr double headRadius = 9.0;
constexpr double selectedHeadRadius = 11.5;
constexpr double stalk = 7.0;
constexpr double ringWidth = 2.5;

double radiusOf(bool selected)
{
    return selected ? selectedHeadRadius : headRadius;
}

QPointF headCentre(double radius)
{
    return tipOfGlyph - QPointF(0.0, radius + stalk);
}

/// A pin: a round head for the number that runs out into the tip.
QPainterPath pin(double radius)
{
    const QPointF centre = headCentre(radius);
    const QRectF head(centre.x() - radius, centre.y() - radius, 2.0 * radius, 2.0 * radius);
    // The tangents from the tip touch the head at this angle from the downward direction.
    const double touch = qRadiansToDegrees(std::acos(radius / (radius + stalk)));
    QPainterPath path(tipOfGlyph);
    path.arcTo(head, 270.0 + touch, 360.0 - 2.0 * touch);
    path.closeSubpath();
    return path;
}

QColor readableOn(const QColor &color)
{
    constexpr int halfBright = 140;
    return qGray(color.rgb()) > halfBright ? Qt::black : Qt::white;
}

} // namespace

MyMarkItem::MyMarkItem(int markId, const QColor &color, MarkListener &listener)
    : m_markId(markId)
    , m_color(color)
    , m_listener(listener)
{
    setZValue(markLevel);
    setAcceptedMouseButtons(Qt::LeftButton | Qt::RightButton);
}

void MyMarkItem::setColor(const QColor &color)
{
    m_color = color;
    update();
}

void MyMarkItem::setTip(const QPointF &position)
{
    setPos(position - tipOfGlyph);
}

QPointF MyMarkItem::tip() const
{
    return pos() + tipOfGlyph;
}

void MyMarkItem::setMarkSelected(bool selected)
{
    if (selected == m_markSelected)
        return;
    prepareGeometryChange();
    m_markSelected = selected;
    setZValue(selected ? selectedMarkLevel : markLevel);
    update();
}

QRectF MyMarkItem::boundingRect() const
{
    const double margin = ringWidth + 1.0;
    const double radius = radiusOf(m_markSelected);
    const QPointF corner = headCentre(radius) - QPointF(radius, radius);
    return QRectF(corner, QSizeF(2.0 * radius, 2.0 * radius + stalk))
        .adjusted(-margin, -margin, margin, margin);
}

QPainterPath MyMarkItem::shape() const
{
    return pin(radiusOf(m_markSelected));
}

void MyMarkItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    Q_UNUSED(option)
    Q_UNUSED(widget)
    const double radius = radiusOf(m_markSelected);
    const QPainterPath outline = pin(radius);
    painter->setRenderHint(QPainter::Antialiasing);
    const QColor rim = m_markSelected ? QColor(Qt::black) : m_color.darker(170);
    painter->setPen(
        QPen(rim, m_markSelected ? ringWidth : 1.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->setBrush(m_color.isValid() ? m_color : QColor(Qt::black));
    painter->drawPath(outline);

    QFont font = painter->font();
    font.setBold(true);
    font.setPixelSize(m_markSelected ? 13 : 11);
    if (m_markId > 99)
        font.setPixelSize(font.pixelSize() - 3);
    painter->setFont(font);
    painter->setPen(readableOn(m_color));
    const QPointF centre = headCentre(radius);
    painter->drawText(QRectF(centre.x() - radius, centre.y() - radius, 2.0 * radius, 2.0 * radius),
                      Qt::AlignCenter, QString::number(m_markId));
}

void MyMarkItem::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    m_grip = event->scenePos() - tip();
    m_listener.markPressed(*this);
    // The release of a right press goes to the menu: the marker would hold the mouse for ever.
    event->setAccepted(event->button() == Qt::LeftButton);
}

void MyMarkItem::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    if (event->buttons() & Qt::LeftButton)
        m_listener.markDragged(*this, event->scenePos() - m_grip);
}

void MyMarkItem::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    event->accept();
}
