#include "2d/scene/patternlines.h"

#include "2d/data/patternanalysis.h"
#include "2d/data/patternsupplement.h"
#include "2d/data/polarorientation.h"
#include "2d/data/viewrange.h"

#include <QGraphicsPathItem>
#include <QPen>

#include <algorithm>
#include <cmath>

namespace {

constexpr qreal patternLineLevel = 4.0;
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

/// The level of a beam as far as it is in view, and the lines up to those of its ends that are.
void addBeam(QPainterPath &path, const QLineF &beam, const PatternLines::Mapping &toScene,
             const ViewRange &axes)
{
    const double from = axes.isRound ? beam.x1() : std::max(beam.x1(), axes.xMin);
    const double to = axes.isRound ? beam.x2() : std::min(beam.x2(), axes.xMax);
    if (from >= to)
        return;
    path.addPath(pathOf({from, beam.y1(), to, beam.y2()}, toScene));
    for (const double edge : {beam.x1(), beam.x2()}) {
        if (edge < from || edge > to)
            continue;
        path.moveTo(toScene({edge, axes.yMin}));
        path.lineTo(toScene({edge, beam.y1()}));
    }
}

} // namespace

PatternLines::PatternLines()
{
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        auto *item = new QGraphicsPathItem;
        const bool isBeam = i == allPatternLines.size();
        item->setPen(QPen(Qt::black, 1.0, isBeam ? Qt::DashLine : styleOf(allPatternLines[i])));
        item->setZValue(patternLineLevel);
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
    for (std::size_t i = 0; i < allPatternLines.size(); ++i) {
        const std::optional<QLineF> line = patternLine(allPatternLines[i], values, axes);
        if (line)
            m_lines[i]->setPath(pathOf(*line, toScene));
        m_lines[i]->setVisible(shown && line.has_value());
    }
}

void PatternLines::updateBeams(const QVector<BeamWidth> &beams, const Mapping &toScene,
                               const ViewRange &axes)
{
    QPainterPath path;
    for (const BeamWidth &beam : beams) {
        if (!beam.width() || beam.level < axes.yMin || beam.level > axes.yMax)
            continue;
        for (const double turn : {-fullCircle, 0.0, fullCircle}) {
            if (axes.isRound && turn != 0.0)
                continue;
            addBeam(path, {*beam.left + turn, beam.level, *beam.right + turn, beam.level}, toScene,
                    axes);
        }
    }
    m_lines.back()->setPath(path);
    m_lines.back()->setVisible(!path.isEmpty());
}

void PatternLines::hide()
{
    for (QGraphicsPathItem *item : m_lines)
        item->setVisible(false);
}
