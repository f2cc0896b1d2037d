#include "2d/scene/guidelines.h"

#include "2d/data/viewrange.h"
#include "2d/scene/chartstage.h"

#include <QGraphicsScene>
#include <QPen>

namespace {

constexpr qreal guideLevel = 3.0;
constexpr int stepsRoundTheCircle = 360;

QPainterPath pathOf(const QLineF &values, const ChartStage &stage)
{
    // On a polar chart the line along a level is round.
    const int steps = stage.isPolar() ? stepsRoundTheCircle : 1;
    QPainterPath path(stage.toScene(values.p1()));
    for (int step = 1; step <= steps; ++step)
        path.lineTo(stage.toScene(values.pointAt(static_cast<double>(step) / steps)));
    return path;
}

} // namespace

GuideLine::GuideLine(const QString &name)
{
    setObjectName(name);
    setZValue(guideLevel);
    setAcceptedMouseButtons(Qt::NoButton);
    setVisible(false);
}

GuideLines::GuideLines(QGraphicsScene &scene)
{
    for (const auto &name : {QStringLiteral("guideLine1"), QStringLiteral("guideLine2")}) {
        auto *line = new GuideLine(name);
        scene.addItem(line);
        m_lines.append(line);
    }
}

void GuideLines::show(const QPointF &value, const QColor &color, const ChartStage &stage,
                      const ViewRange &shown)
{
    m_lines[0]->setPath(pathOf({value.x(), shown.yMin, value.x(), shown.yMax}, stage));
    m_lines[1]->setPath(pathOf({shown.xMin, value.y(), shown.xMax, value.y()}, stage));
    for (GuideLine *line : qAsConst(m_lines)) {
        line->setPen(QPen(color, 1.0, Qt::DotLine));
        line->setVisible(true);
    }
}

void GuideLines::hide()
{
    for (GuideLine *line : qAsConst(m_lines))
        line->setVisible(false);
}
