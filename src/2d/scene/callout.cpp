#include "2d/scene/callout.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>

#include <cmath>

namespace {

constexpr qreal calloutLevel = 7.0;
constexpr double distance = 12.0;
constexpr double halfFoot = 5.0;
constexpr double padding = 5.0;
constexpr double cornerRadius = 4.0;

QFont calloutFont()
{
    constexpr int size = 9;
    QFont font = QGuiApplication::font();
    font.setPointSize(size);
    font.setBold(true);
    return font;
}

} // namespace

Callout::Callout(QGraphicsItem *parent)
    : QGraphicsItem(parent)
{
    setZValue(calloutLevel);
    setAcceptedMouseButtons(Qt::NoButton);
}

void Callout::setText(const QString &text)
{
    if (m_text == text)
        return;
    prepareGeometryChange();
    m_text = text;
    placeBox();
    update();
}

void Callout::setColor(const QColor &color)
{
    m_color = color;
    update();
}

void Callout::setAnchor(const QPointF &anchor, const QRectF &room)
{
    if (m_anchor == anchor && m_room == room)
        return;
    prepareGeometryChange();
    m_anchor = anchor;
    m_room = room;
    placeBox();
    update();
}

/// Above the anchor where there is room, else below it, and never past the sides.
void Callout::placeBox()
{
    if (m_room.isEmpty())
        return; // nowhere to be seen yet
    const QFontMetricsF metrics(calloutFont());
    m_shownText = metrics.elidedText(m_text, Qt::ElideMiddle, m_room.width() - 2.0 * padding - 1.0);
    const QSizeF size(std::ceil(metrics.horizontalAdvance(m_shownText)) + 2.0 * padding,
                      std::ceil(metrics.height()) + padding);
    m_box = QRectF(
        QPointF(m_anchor.x() - size.width() / 2.0, m_anchor.y() - distance - size.height()), size);
    if (m_box.top() < m_room.top())
        m_box.moveTop(m_anchor.y() + distance);
    if (m_box.right() > m_room.right())
        m_box.moveRight(m_room.right());
    if (m_box.left() < m_room.left())
        m_box.moveLeft(m_room.left());
}

QRectF Callout::boundingRect() const
{
    return m_box.united(QRectF(m_anchor, QSizeF(1.0, 1.0))).adjusted(-2.0, -2.0, 2.0, 2.0);
}

void Callout::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    Q_UNUSED(option)
    Q_UNUSED(widget)
    if (m_text.isEmpty())
        return;
    const double foot = m_anchor.y() > m_box.center().y() ? m_box.bottom() : m_box.top();
    const double middle = qBound(m_box.left() + cornerRadius + halfFoot, m_anchor.x(),
                                 m_box.right() - cornerRadius - halfFoot);
    QPainterPath box;
    box.addRoundedRect(m_box, cornerRadius, cornerRadius);
    QPainterPath pointer(m_anchor);
    pointer.lineTo(middle - halfFoot, foot);
    pointer.lineTo(middle + halfFoot, foot);
    pointer.closeSubpath();

    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(m_color, 1.5));
    painter->setBrush(Qt::white);
    painter->drawPath(box.united(pointer));
    painter->setFont(calloutFont());
    painter->setPen(Qt::black);
    painter->drawText(m_box, Qt::AlignCenter, m_shownText);
}
