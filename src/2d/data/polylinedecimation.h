#pragma once

#include <QLineF>
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

/// A polyline with the points that a picture needs.
struct ThinnedLine
{
    /// A run of points that fell into one pixel column, by indices into the points.
    struct Column
    {
        int first = 0;
        int low = 0;
        int high = 0;
        int last = 0;
    };

    QVector<QPointF> points;
    QVector<Column> columns;
};

/// The points of \a points that a picture needs: of each run of points within one pixel column the
/// first, the lowest, the highest and the last, in their order. What lies left or right of the area
/// counts as one column each.
ThinnedLine thinnedLine(const QVector<QPointF> &points, const PixelGrid &grid);

/// Whether every point has a column to itself, but for those in the outermost two columns, which
/// hold what lies beside the area.
bool pointsStandApart(const ThinnedLine &line);

/// Neighbouring columns, by index, both inclusive.
struct ColumnStretch
{
    int from = 0;
    int to = 0;
};

/// The stretches of at least four columns in which the line runs up and down within every column,
/// so that it fills the pixels between its lowest and its highest points.
QVector<ColumnStretch> solidStretches(const ThinnedLine &line, double pixelsPerUnit);

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

/// The ends of the line through \a column from its lowest to its highest point, \a reach longer on
/// both sides and cut off at \a window.
QLineF columnBar(const ThinnedLine &line, int column, double reach, const QRectF &window);

/// Hands the area between the lowest and the highest points of a solid stretch, with \a reach
/// around it, to \a draw(const QPointF *outline, int count): a few columns at a time, since the
/// filling of a large outline is dear too.
template<typename Draw>
void forEachBand(const ThinnedLine &line, const ColumnStretch &stretch, double reach,
                 const QRectF &window, const Draw &draw)
{
    constexpr std::size_t columnsPerBand = 16;
    constexpr int sharedColumns = 2; // with one the smoothed edges of both would show
    std::array<QPointF, 2 * columnsPerBand> outline;
    constexpr int wholeBand = columnsPerBand;
    for (int from = stretch.from; from < stretch.to; from += wholeBand - sharedColumns) {
        const int count = std::min(wholeBand, stretch.to - from + 1);
        for (int i = 0; i < count; ++i) {
            const QLineF bar = columnBar(line, from + i, reach, window);
            outline[static_cast<std::size_t>(i)] = bar.p1();
            outline[static_cast<std::size_t>(2 * count - 1 - i)] = bar.p2();
        }
        draw(outline.data(), 2 * count);
    }
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
