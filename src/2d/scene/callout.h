#pragma once

#include <QColor>
#include <QGraphicsItem>

/// A speech bubble on the chart's scene: a line of text in a box whose point stands on an anchor.
/// Its coordinates are the scene's.
class Callout : public QGraphicsItem
{
public:
    enum { Type = UserType + 3 };

    explicit Callout(QGraphicsItem *parent = nullptr);

    int type() const override { return Type; }
    QString text() const { return m_text; }
    void setText(const QString &text);
    void setColor(const QColor &color);
    /// Where the bubble points at, and the part of the scene that it stays in.
    void setAnchor(const QPointF &anchor, const QRectF &room);

    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    void placeBox();

    QString m_text;
    QString m_shownText; ///< as much of it as finds room
    QColor m_color = Qt::black;
    QPointF m_anchor;
    QRectF m_room;
    QRectF m_box;
};
