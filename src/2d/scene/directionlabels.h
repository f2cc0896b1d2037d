#pragma once

#include "2d/data/polarorientation.h"

#include <QFont>
#include <QGraphicsItem>

/// The names of the directions round a polar chart, every 30 degrees: the chart's own axis can
/// begin at no other angle and run no other way.
class DirectionLabels : public QGraphicsItem
{
public:
    explicit DirectionLabels(QGraphicsItem *parent = nullptr);

    /// Names the directions as \a view says, round the circle in \a plotArea (scene coordinates).
    void show(const PolarView &view, const QRectF &plotArea, const QFont &font);

    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    PolarView m_view;
    QRectF m_plotArea;
    QFont m_font;
};
