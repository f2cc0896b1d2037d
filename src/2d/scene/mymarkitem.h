#pragma once

#include <QColor>
#include <QGraphicsItem>
#include <QPointF>

class MyMarkItem;

/// Whoever keeps the markers hears what the mouse does to one of them.
class MarkListener
{
public:
    virtual ~MarkListener() = default;
    virtual void markPressed(MyMarkItem &mark) = 0;
    /// The user drags the marker's tip to \a position on the scene.
    virtual void markDragged(MyMarkItem &mark, const QPointF &position) = 0;
};

/// A numbered marker. Its glyph's tip stands on the scene position of its value: the item's own
/// position is that less (3, 12).
class MyMarkItem : public QGraphicsItem
{
public:
    enum { Type = UserType + 2 };

    /// \a listener must outlive the marker.
    MyMarkItem(int markId, const QColor &color, MarkListener &listener);

    int type() const override { return Type; }
    int markId() const { return m_markId; }
    QColor color() const { return m_color; }
    void setColor(const QColor &color);

    /// In chart values.
    QPointF valuePoint() const { return m_valuePoint; }
    void setValuePoint(const QPointF &value) { m_valuePoint = value; }
    /// Moves the marker so that its tip stands on \a position of the scene.
    void setTip(const QPointF &position);
    QPointF tip() const;

    /// A selected marker is larger and stands on a dark ring.
    bool isMarkSelected() const { return m_markSelected; }
    void setMarkSelected(bool selected);

    QRectF boundingRect() const override;
    QPainterPath shape() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;

private:
    int m_markId;
    QColor m_color;
    MarkListener &m_listener;
    QPointF m_valuePoint;
    QPointF m_grip; ///< from the tip to where the mouse holds the marker
    bool m_markSelected = false;
};
