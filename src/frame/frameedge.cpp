#include "frame/frameedge.h"

#include <cstdlib>

namespace {

/// \a length, but no shorter than \a least and no longer than \a most; the longest wins, as it is
/// tested first.
int clamped(int length, int least, int most)
{
    if (length > most)
        return most;
    return length < least ? least : length;
}

} // namespace

namespace FrameEdge {

std::optional<int> edgesAt(const QPoint &cursor, const QRect &frame, int band)
{
    const auto isNear = [band](int position, int line) { return std::abs(position - line) < band; };
    const QPoint first = frame.topLeft() + QPoint(inset, inset);
    const QPoint last = frame.bottomRight() - QPoint(inset, inset);
    const bool left = isNear(cursor.x(), first.x());
    const bool right = isNear(cursor.x(), last.x());

    for (const Edge edge : {Top, Bottom}) {
        if (!isNear(cursor.y(), edge == Top ? first.y() : last.y()))
            continue;
        if (left)
            return edge | Left;
        if (right)
            return edge | Right;
        if (cursor.x() > first.x() && cursor.x() < last.x())
            return edge;
        return std::nullopt;
    }
    if (left || right) {
        if (cursor.y() > first.y() && cursor.y() < last.y())
            return left ? Left : Right;
        return std::nullopt;
    }
    return None;
}

QRect resized(const QRect &geometry, int edges, const QPoint &cursor, const QSize &minimum,
              const QSize &maximum)
{
    QRect result = geometry;
    const auto heightFor = [&](int wished) {
        return clamped(wished, minimum.height(), maximum.height());
    };
    const auto widthFor = [&](int wished) {
        return clamped(wished, minimum.width(), maximum.width());
    };
    if ((edges & Top) != 0) {
        result.setTop(cursor.y() - inset);
        result.setTop(result.bottom() + 1 - heightFor(result.height()));
    }
    if ((edges & Bottom) != 0) {
        result.setBottom(cursor.y() + inset);
        result.setHeight(heightFor(result.height()));
    }
    if ((edges & Left) != 0) {
        result.setLeft(cursor.x() - inset);
        result.setLeft(result.right() + 1 - widthFor(result.width()));
    }
    if ((edges & Right) != 0) {
        result.setRight(cursor.x() + inset);
        result.setWidth(widthFor(result.width()));
    }
    return result;
}

} // namespace FrameEdge
