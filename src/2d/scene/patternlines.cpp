#include "2d/scene/patternlines.h"

#include "2d/data/patternanalysis.h"
#include "2d/data/viewrange.h"

#include <QGraphicsPathItem>
#include <QPen>

#include <cmath>

namespace {

constexpr qreal belowTheCurves = 4.0;
constexpr double greatestSteps = 360.0;

/// Dashes for what belongs to the main lobe, dots for the side lobes: told apart without colours.
Qt::PenStyle styleOf(PatternLine line)
{
    switch (line) {
    case PatternLine::SideLobeLeft:
    case PatternLine::SideLobeRight:
        return Qt::DotLine;
    case PatternLine::Peak:
        return Qt::DashDotLine;
    default:
        return Qt::DashLine;
    }
}

/// The line on the scene, in steps of a degree along the angle: on a polar chart a level is an arc.
QPainterPath pathOf(const QLineF &line, const PatternLines::Mapping &toScene)
{
    QPainterPath path(toScene(line.p1()));
    const int steps = static_cast<int>(qBound(1.0, std::ceil(line.dx()), greatestSteps));
    for (int step = 1; step < steps; ++step)
        path.lineTo(toScene(line.pointAt(static_cast<double>(step) / steps)));
    path.lineTo(toScene(line.p2()));
    return path;
}

} // namespace

PatternLines::PatternLines()
{
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        auto *item = new QGraphicsPathItem;
        item->setPen(QPen(Qt::black, 1.0, styleOf(allPatternLines[i])));
        item->setZValue(belowTheCurves);
        item->setAcceptedMouseButtons(Qt::NoButton);
        item->setVisible(false);
        m_lines[i] = item;
    }
}

QList<QGraphicsItem *> PatternLines::items() const
{
    return {m_lines.begin(), m_lines.end()};
}

void PatternLines::setColor(const QColor &color)
{
    for (QGraphicsPathItem *item : m_lines) {
        QPen pen = item->pen();
        pen.setColor(color);
        item->setPen(pen);
    }
}

void PatternLines::update(const PatternLineValues &values, const Mapping &toScene,
                          const ViewRange &axes, bool shown)
{
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        const std::optional<QLineF> line = patternLine(allPatternLines[i], values, axes);
        if (line)
            m_lines[i]->setPath(pathOf(*line, toScene));
        m_lines[i]->setVisible(shown && line.has_value());
    }
}

void PatternLines::hide()
{
    for (QGraphicsPathItem *item : m_lines)
        item->setVisible(false);
}
