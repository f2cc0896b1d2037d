#include "recordview/recordcurve.h"

#include "2d/data/polylinedecimation.h"

#include <QPainter>
#include <QVector>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

const QColor curveColor(10, 86, 144);
constexpr double lineWidth = 1.5;
constexpr double dotWidth = 4.0;

} // namespace

void RecordCurve::show(const RecordData *data, double from, double to, int width)
{
    m_data = data;
    m_from = from;
    m_to = to;
    m_width = width;
    m_columns.clear();
    if (data && !data->isEmpty())
        m_columns = data->columns(from, to, width);
}

bool RecordCurve::levels(double &low, double &high) const
{
    if (m_columns.empty())
        return false;
    low = m_data->level(m_columns.front().low);
    high = m_data->level(m_columns.front().high);
    for (const RecordData::Column &column : m_columns) {
        low = std::min(low, m_data->level(column.low));
        high = std::max(high, m_data->level(column.high));
    }
    return true;
}

void RecordCurve::draw(QPainter &painter, const ChartMapping &mapping) const
{
    if (m_columns.empty())
        return;
    painter.save();
    painter.setClipRect(mapping.plotArea);
    // With several points to a pixel, lines would only be drawn over each other.
    constexpr int denseColumn = 2;
    const int points = m_columns.back().last - m_columns.front().first;
    if (points > denseColumn * static_cast<int>(m_columns.size()))
        drawBars(painter, mapping);
    else
        drawLines(painter, mapping);
    painter.restore();
}

/// A bar for each column from its lowest to its highest level, reaching to where the column before
/// ended. Filling rectangles of whole pixels costs a small part of stroking lines.
void RecordCurve::drawBars(QPainter &painter, const ChartMapping &mapping) const
{
    constexpr double adjacent = 1.5; // pixels
    QVector<QRect> bars;
    QVector<QLineF> lines;
    bars.reserve(static_cast<int>(m_columns.size()));
    QPointF before;
    const auto place = [&](int point) {
        return mapping.toScene(QPointF(m_data->time(point), m_data->level(point)));
    };
    // Where points lie within their columns must not leave a pixel out between two of these.
    const int left = qRound(mapping.plotArea.left());
    const auto pixel = [&](int point) {
        return left + qFloor((m_data->time(point) - m_from) / (m_to - m_from) * m_width);
    };
    for (const RecordData::Column &column : m_columns) {
        const QPointF first = place(column.first);
        double top = place(column.high).y();
        double bottom = place(column.low).y();
        if (!column.startsAnew && first.x() - before.x() <= adjacent) {
            top = std::min(top, before.y());
            bottom = std::max(bottom, before.y());
        } else if (!column.startsAnew) {
            lines.append(QLineF(before, first));
        }
        const int from = qRound(top);
        bars.append(QRect(pixel(column.first), from, 1, qRound(bottom) - from + 1));
        before = column.last == column.first ? first : place(column.last);
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(Qt::NoPen);
    painter.setBrush(curveColor);
    painter.drawRects(bars);
    painter.setPen(QPen(curveColor, 1.0));
    painter.drawLines(lines);
}

void RecordCurve::drawLines(QPainter &painter, const ChartMapping &mapping) const
{
    QVector<QPointF> line;
    QVector<QPointF> dots;
    // Smooth strokes of a noisy line cost more than all the rest of the picture.
    constexpr int smoothedColumns = 250;
    const bool isSmooth = static_cast<int>(m_columns.size()) <= smoothedColumns;
    painter.setRenderHint(QPainter::Antialiasing, isSmooth);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(
        QPen(curveColor, isSmooth ? lineWidth : 1.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    const QRectF window = mapping.plotArea.adjusted(-lineWidth, -lineWidth, lineWidth, lineWidth);
    const auto finish = [&] {
        if (line.size() == 1)
            dots.append(line.constFirst());
        else
            forEachPiece(line.constData(), line.size(), window,
                         [&painter](const QPointF *piece, int count) {
                             painter.drawPolyline(piece, count);
                         });
        line.clear();
    };
    for (const RecordData::Column &column : m_columns) {
        if (column.startsAnew)
            finish();
        int points[] = {column.first, column.low, column.high, column.last};
        std::sort(std::begin(points), std::end(points));
        int before = -1;
        for (const int point : points) {
            if (point != before)
                line.append(mapping.toScene({m_data->time(point), m_data->level(point)}));
            before = point;
        }
    }
    finish();
    painter.setPen(QPen(curveColor, dotWidth, Qt::SolidLine, Qt::RoundCap));
    painter.drawPoints(dots.constData(), dots.size());
}
