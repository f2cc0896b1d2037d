#include "2d/scene/directionlabels.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainter>
#include <QtMath>

#include <cmath>

namespace {

constexpr int labelStep = 30;    // degrees
constexpr double labelGap = 4.0; // pixels between circle and label
constexpr double margin = 60.0;  // pixels round the circle that labels may take

} // namespace

DirectionLabels::DirectionLabels(QGraphicsItem *parent)
    : QGraphicsItem(parent)
{}

void DirectionLabels::show(const PolarView &view, const QRectF &plotArea, const QFont &font)
{
    prepareGeometryChange();
    m_view = view;
    m_plotArea = plotArea;
    // On paper points would be taken for those of the page, the plot area for that of the screen.
    m_font = font;
    m_font.setPixelSize(QFontInfo(font).pixelSize());
    update();
}

QRectF DirectionLabels::boundingRect() const
{
    return m_plotArea.adjusted(-margin, -margin, margin, margin);
}

void DirectionLabels::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    const double radius = m_plotArea.height() / 2.0;
    const QFontMetricsF metrics(m_font);
    painter->setFont(m_font);
    painter->setPen(Qt::black);
    for (int direction = 0; direction < 360; direction += labelStep) {
        const QString text =
            angleName(m_view.labels, angleOfDirection(m_view.orientation, direction));
        const double width = metrics.horizontalAdvance(text);
        const double height = metrics.ascent();
        const double radians = qDegreesToRadians(double(direction));
        const QPointF outwards(std::sin(radians), -std::cos(radians));
        const QPointF centre = m_plotArea.center() + outwards * (radius + labelGap) +
                               QPointF(outwards.x() * width, outwards.y() * height) / 2.0;
        const QRectF place(centre - QPointF(width, height) / 2.0, QSizeF(width, height));
        painter->drawText(place, Qt::AlignCenter | Qt::TextDontClip, text);
    }
}
