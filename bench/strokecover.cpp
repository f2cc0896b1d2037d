#include "bench/strokecover.h"

#include <QPainter>
#include <QPainterPath>

namespace {

/// Cover in parts of 16 for each pixel, from a stroke on a grid four times as fine. There it takes
/// no smoothing, and can be painted in pieces: one long path takes minutes.
QVector<int> coverOf(const QSize &size, const QVector<QPointF> &positions, const QRectF &area,
                     bool round, double scale)
{
    constexpr int finer = 4;
    constexpr int piece = 8; // segments, of which the first one is the last of the piece before
    QImage fine(size * finer, QImage::Format_ARGB32_Premultiplied);
    fine.fill(Qt::black);
    QPainter painter(&fine);
    painter.scale(scale * finer, scale * finer);
    QPainterPath room;
    if (round)
        room.addEllipse(area);
    else
        room.addRect(area.adjusted(-1, -1, 1, 1));
    painter.setClipPath(room);
    painter.setPen(QPen(Qt::white, 2.0, Qt::SolidLine, Qt::FlatCap, Qt::BevelJoin));
    for (int i = 0; i + 1 < positions.size(); i += piece - 1)
        painter.drawPolyline(positions.constData() + i, qMin(piece + 1, positions.size() - i));
    painter.end();
    QVector<int> covers(size.width() * size.height(), 0);
    for (int y = 0; y < fine.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(fine.constScanLine(y));
        for (int x = 0; x < fine.width(); ++x)
            covers[y / finer * size.width() + x / finer] += qRed(line[x]) / 255;
    }
    return covers;
}

} // namespace

StrokeDifference comparedWithStroke(const QImage &picture, const QVector<QPointF> &positions,
                                    const QRectF &area, bool round, double scale)
{
    const QVector<int> stroke = coverOf(picture.size(), positions, area, round, scale);
    int covered = 0;
    int missing = 0;
    int beside = 0;
    for (int i = 0; i < stroke.size(); ++i) {
        const int seen = qRed(picture.pixel(i % picture.width(), i / picture.width()));
        covered += stroke[i] >= 8 ? 1 : 0;
        missing += stroke[i] >= 8 && seen < 64 ? 1 : 0;
        beside += stroke[i] < 4 && seen >= 128 ? 1 : 0;
    }
    if (covered == 0)
        return {};
    return {100.0 * missing / covered, 100.0 * beside / covered};
}
