#pragma once

#include "2d/scene/curvepicture.h"

#include <QGraphicsItem>
#include <QPen>

#include <optional>

/// The grid of a chart, and the lines and ticks of its axes.
///
/// The chart's own, one item a line, take a third of a zoom step to paint and most of a press to
/// find out that they were not hit. As they hang on the plot area and the numbers of ticks alone,
/// they are painted once and kept as a picture.
class ChartGrid : public QGraphicsItem
{
public:
    /// What the picture hangs on.
    struct Lines
    {
        QRectF plotArea;
        int xTicks = 0; ///< along the bottom, or round the circle
        int yTicks = 0; ///< of the other axis
        bool round = false;
        QPen pen;
        QPen axisPen;
    };

    /// \a chart becomes the parent.
    explicit ChartGrid(QGraphicsItem *chart);

    void show(const Lines &lines);

    QRectF boundingRect() const override;
    /// Empty: nothing of the grid can be clicked.
    QPainterPath shape() const override { return {}; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    void drawLines(QPainter &painter) const;
    QVector<QRectF> areas() const;

    Lines m_lines;
    std::optional<CurvePicture> m_picture; ///< as painted last
};
