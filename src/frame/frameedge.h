#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <optional>

/// Where the edges of a frameless window are gripped, and what a drag of them does to it.
namespace FrameEdge {

/// The edges, as bits; a corner is the sum of its two edges.
enum Edge { None = 0, Top = 1, Bottom = 2, Left = 4, Right = 8 };

/// How far inside its frame a window is gripped, in pixels: it draws a shadow around itself.
constexpr int inset = 18;

/// The edges that \a cursor is on, less than \a band pixels off the grip lines of \a frame; both in
/// global coordinates. Nothing when the cursor is beside the end of a grip line, where what was
/// found before is to stay.
std::optional<int> edgesAt(const QPoint &cursor, const QRect &frame, int band);

/// \a geometry with its \a edges moved under \a cursor, no smaller than \a minimum and no larger
/// than \a maximum; the opposite edges stay where they are.
QRect resized(const QRect &geometry, int edges, const QPoint &cursor, const QSize &minimum,
              const QSize &maximum);

} // namespace FrameEdge
