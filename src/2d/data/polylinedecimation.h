#pragma once

#include "2d/data/chartmapping.h"
#include "2d/data/valuepyramid.h"

#include <QLineF>
#include <QPointF>
#include <QRectF>
#include <QVector>

#include <array>

/// Straight segments whose strokes cover what the stroke of the whole curve through \a values would
/// cover, to a quarter of a device pixel, in scene coordinates. Where several points fall into one
/// column of pixels (on a polar chart: one narrow sector) only those that stand out are left.
///
/// \a pixelsPerUnit are the device pixels to a unit of the scene. With \a pyramid, taken of
/// levelsOf() \a values, only points in view are looked at; their x must not turn back then.
QVector<QLineF> visibleSegments(const QVector<QPointF> &values, const ChartMapping &mapping,
                                double pixelsPerUnit, const ValuePyramid *pyramid = nullptr);

/// The same of a curve through \a positions of the scene, as far as it comes near \a area.
QVector<QLineF> visibleSegments(const QVector<QPointF> &positions, const QRectF &area,
                                double pixelsPerUnit);

/// The y of \a values, in their memory.
ValueList levelsOf(const QVector<QPointF> &values);

/// Whether the x of \a values never turn back.
bool isMonotone(const QVector<QPointF> &values);

/// Cuts the segment \a from - \a to off at \a window; false when none of it is inside.
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
void forEachPiece(const QPointF *points, int pointCount, const QRectF &window, const Draw &draw)
{
    constexpr int segmentsPerPiece = 16;
    std::array<QPointF, segmentsPerPiece + 1> piece;
    std::size_t count = 0;
    const auto flush = [&] {
        if (count > 1)
            draw(piece.data(), static_cast<int>(count));
        count = 0;
    };
    for (int i = 0; i + 1 < pointCount; ++i) {
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
