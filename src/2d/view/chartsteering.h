#pragma once

#include "2d/data/viewrange.h"

#include <QPointF>
#include <Qt>

#include <optional>

/// What the mouse and the keyboard make of the range that a chart shows: the modes, and the
/// arithmetic of zooming and panning.
class ChartSteering
{
public:
    /// The range after a press of an arrow key on \a range, by a tenth of it; none for other keys.
    static std::optional<ViewRange> movedBy(int key, const ViewRange &range);
    /// The factor of plus and minus, none for other keys.
    static std::optional<double> zoomFactor(int key);
    /// The factor for a turn of the wheel: forward zooms out, as in map programs.
    static double zoomFactorOfWheel(int angle);

    bool isPanning() const { return m_panMode; }
    bool wheelZooms(Qt::KeyboardModifiers modifiers) const;
    void startZooming() { m_zoomMode = true; }
    void startPanning() { m_panMode = true; }
    void stopPanning() { m_panMode = false; }
    void stop();
    /// The pointer that tells the mode.
    Qt::CursorShape cursor() const;

    /// The middle button holds \a value until release(), which is false when it held none.
    void hold(const QPointF &value) { m_held = value; }
    bool release();
    bool holds() const { return m_held.has_value(); }
    /// \a range moved so that the value held comes to where \a pointed is; x stays unless
    /// \a movesX.
    ViewRange pulled(const ViewRange &range, const QPointF &pointed, bool movesX) const;

private:
    std::optional<QPointF> m_held;
    bool m_zoomMode = false;
    bool m_panMode = false;
};
