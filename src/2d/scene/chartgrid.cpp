#include "2d/scene/chartgrid.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr double belowTheAxes = -0.5;
// Ticks are as long as the chart leaves room for; those round the circle reach to either side.
constexpr double tickLength = 4.0;
constexpr double roundTickLength = 3.0;
constexpr double besideLine = 1.0; // pixels beside its middle that a line may cover

bool isSameGrid(const ChartGrid::Lines &a, const ChartGrid::Lines &b)
{
    return a.plotArea == b.plotArea && a.xTicks == b.xTicks && a.yTicks == b.yTicks &&
           a.round == b.round && a.pen == b.pen && a.axisPen == b.axisPen;
}

/// Where the lines stand along a side of the plot area, or on its radius.
QVector<double> linePlaces(double from, double length, int ticks)
{
    QVector<double> all;
    for (int tick = 0; tick < ticks; ++tick)
        all.append(from + tick * (length / std::max(1, ticks - 1)));
    return all;
}

} // namespace

ChartGrid::ChartGrid(QGraphicsItem *chart)
    : QGraphicsItem(chart)
{
    setZValue(belowTheAxes);
    setAcceptedMouseButtons(Qt::NoButton);
}

void ChartGrid::show(const Lines &lines)
{
    if (isSameGrid(lines, m_lines))
        return;
    prepareGeometryChange();
    m_lines = lines;
    m_picture.reset();
    update();
}

QRectF ChartGrid::boundingRect() const
{
    if (m_lines.round) {
        constexpr double beside = roundTickLength + besideLine;
        return m_lines.plotArea.adjusted(-beside, -beside, beside, beside);
    }
    return m_lines.plotArea.adjusted(-besideLine - tickLength, -besideLine, besideLine,
                                     besideLine + tickLength);
}

void ChartGrid::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    if (m_lines.plotArea.isEmpty())
        return;
    if (!CurvePicture::isPossible(*painter)) {
        drawLines(*painter);
        return;
    }
    const QTransform toDevice = painter->deviceTransform();
    if (!m_picture || !m_picture->fits(toDevice))
        m_picture.emplace(areas(), toDevice, [this](QPainter &pixels) { drawLines(pixels); });
    m_picture->paint(*painter);
}

void ChartGrid::drawLines(QPainter &painter) const
{
    painter.setPen(m_lines.pen);
    const QRectF &area = m_lines.plotArea;
    if (m_lines.round) {
        const QPointF centre = area.center();
        const double radius = area.width() / 2.0;
        const QVector<double> distances = linePlaces(0.0, radius, m_lines.yTicks);
        for (const double distance : distances)
            painter.drawEllipse(centre, distance, distance);
        const QVector<double> angles = linePlaces(0.0, 360.0, m_lines.xTicks);
        for (const double angle : angles)
            painter.drawLine(QLineF::fromPolar(radius, 90.0 - angle).translated(centre));
        painter.setPen(m_lines.axisPen);
        painter.drawEllipse(centre, radius, radius);
        for (const double angle : angles)
            painter.drawLine(QLineF(QLineF::fromPolar(radius - roundTickLength, 90.0 - angle).p2(),
                                    QLineF::fromPolar(radius + roundTickLength, 90.0 - angle).p2())
                                 .translated(centre));
        painter.drawLine(QLineF(centre, centre - QPointF(0.0, radius)));
        for (const double distance : distances)
            painter.drawLine(QLineF(-roundTickLength, 0.0, roundTickLength, 0.0)
                                 .translated(centre.x(), centre.y() - distance));
        return;
    }
    const QVector<double> columns = linePlaces(area.left(), area.width(), m_lines.xTicks);
    const QVector<double> rows = linePlaces(area.bottom(), -area.height(), m_lines.yTicks);
    for (const double x : columns)
        painter.drawLine(QLineF(x, area.top(), x, area.bottom()));
    for (const double y : rows)
        painter.drawLine(QLineF(area.left(), y, area.right(), y));
    painter.setPen(m_lines.axisPen);
    painter.drawLine(QLineF(area.bottomLeft(), area.bottomRight()));
    for (const double x : columns)
        painter.drawLine(QLineF(x, area.bottom(), x, area.bottom() + tickLength));
    painter.drawLine(QLineF(area.topLeft(), area.bottomLeft()));
    for (const double y : rows)
        painter.drawLine(QLineF(area.left() - tickLength, y, area.left(), y));
}

/// Where there is something to be seen, so that the space between is not painted.
QVector<QRectF> ChartGrid::areas() const
{
    const QRectF whole = boundingRect();
    if (m_lines.round)
        return {whole};
    const QRectF &area = m_lines.plotArea;
    QVector<QRectF> strips;
    for (const double x : linePlaces(area.left(), area.width(), m_lines.xTicks))
        strips.append({x - besideLine, whole.top(), 2.0 * besideLine, whole.height()});
    for (const double y : linePlaces(area.bottom(), -area.height(), m_lines.yTicks))
        strips.append({whole.left(), y - besideLine, whole.width(), 2.0 * besideLine});
    return strips;
}
