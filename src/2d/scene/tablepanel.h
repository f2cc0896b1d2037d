#pragma once

#include <QGraphicsProxyWidget>

class QWidget;

constexpr int floatingRowHeight = 20; ///< pixels

/// A small table that floats on the chart's scene above the curves and is moved with the mouse.
class TablePanel : public QGraphicsProxyWidget
{
    Q_OBJECT

public:
    explicit TablePanel(QGraphicsItem *parent = nullptr);

    /// Puts the panel to \a spot, or leaves it where the user has moved it; either way inside
    /// \a room (scene coordinates), as far as that is large enough.
    void place(const QPointF &spot, const QRectF &room);
    /// Puts the panel to \a spot also when the user has moved it.
    void placeAnew(const QPointF &spot);
    /// Whether it is seen at the scene position \a place.
    bool covers(const QPointF &place) const;

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;

private:
    QPointF m_spot; ///< where the panel was put last; elsewhere it was moved by the user
};
