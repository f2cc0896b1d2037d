#pragma once

#include <QPointF>
#include <QRectF>
#include <QVector>

#include <algorithm>
#include <array>
#include <cmath>

/// What decides that neighbouring points of a drawn curve cover the same pixels.
struct PixelGrid
{
    bool polar = false;         ///< columns are rays from the centre of the area, else vertical
    QRectF area;                ///< the plot area
    double pixelsPerUnit = 1.0; ///< device pixels to one unit of the points
};

/// The points of \a points that a picture needs: of each run of points within one pixel column the
/// first, the lowest, the highest and the last, in their order. What lies left or right of the area
/// counts as one column each.
QVector<QPointF> decimatedPolyline(const QVector<QPointF> &points, const PixelGrid &grid);

/// The part of the segment \a from - \a to inside \a window, false when there is none.
bool clipSegment(QPointF &from, QPointF &to, const QRectF &window);

/// Whether both ends of a segment lie beyond the same side of \a window.
inline bool segmentMisses(const QPointF &from, const QPointF &to, const QRectF &window)
{
    return (from.x() < window.left() && to.x() < window.left()) ||
           (from.x() > window.right() && to.x() > window.right()) ||
           (from.y() < window.top() && to.y() < window.top()) ||
           (from.y() > window.bottom() && to.y() > window.bottom());
}

/// Hands the polyline to \a draw(const QPointF *points, int count) in pieces of at most sixteen
/// segments, without those outside \a window. Stroking short pieces is far cheaper than one long
/// path, whose stroke has to be tested against all of itself; and coordinates far outside the
/// window would overflow the painter.
template<typename Draw>
void forEachPiece(const QVector<QPointF> &points, const QRectF &window, const Draw &draw)
{
    constexpr int segmentsPerPiece = 16;
    std::array<QPointF, segmentsPerPiece + 1> piece;
    std::size_t count = 0;
    const auto flush = [&] {
        if (count > 1)
            draw(piece.data(), static_cast<int>(count));
        count = 0;
    };
    for (int i = 0; i + 1 < points.size(); ++i) {
        QPointF from = points[i];
        QPointF to = points[i + 1];
        if (segmentMisses(from, to, window) || !clipSegment(from, to, window)) {
            flush();
            continue;
        }
        if (count > 0 && piece[count - 1] != from)
            flush();
        if (count == 0)
            piece[count++] = from;
        piece[count++] = to;
        if (count == piece.size())
            flush();
    }
    flush();
}
