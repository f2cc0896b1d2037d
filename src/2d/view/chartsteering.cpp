#include "2d/view/chartsteering.h"

namespace {

constexpr double zoomStep = 1.05;
constexpr double keyStep = 0.1;

} // namespace

std::optional<ViewRange> ChartSteering::movedBy(int key, const ViewRange &range)
{
    switch (key) {
    case Qt::Key_Left:
        return range.movedBy(-keyStep, 0.0);
    case Qt::Key_Right:
        return range.movedBy(keyStep, 0.0);
    case Qt::Key_Down:
        return range.movedBy(0.0, -keyStep);
    case Qt::Key_Up:
        return range.movedBy(0.0, keyStep);
    default:
        return std::nullopt;
    }
}

std::optional<double> ChartSteering::zoomFactor(int key)
{
    if (key == Qt::Key_Plus)
        return 1.0 / zoomStep;
    return key == Qt::Key_Minus ? std::optional(zoomStep) : std::nullopt;
}

double ChartSteering::zoomFactorOfWheel(int angle)
{
    return angle >= 1 ? zoomStep : 1.0 / zoomStep;
}

bool ChartSteering::wheelZooms(Qt::KeyboardModifiers modifiers) const
{
    return m_zoomMode || modifiers.testFlag(Qt::ControlModifier);
}

void ChartSteering::stop()
{
    m_zoomMode = false;
    m_panMode = false;
}

Qt::CursorShape ChartSteering::cursor() const
{
    if (m_panMode)
        return Qt::OpenHandCursor;
    return m_zoomMode ? Qt::CrossCursor : Qt::ArrowCursor;
}

bool ChartSteering::release()
{
    const bool held = m_held.has_value();
    m_held.reset();
    return held;
}

ViewRange ChartSteering::pulled(const ViewRange &range, const QPointF &pointed, bool movesX) const
{
    const QPointF way = *m_held - pointed;
    ViewRange moved = range;
    if (movesX) {
        moved.xMin += way.x();
        moved.xMax += way.x();
    }
    moved.yMin += way.y();
    moved.yMax += way.y();
    return moved;
}
