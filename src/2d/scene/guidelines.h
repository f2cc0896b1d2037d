#pragma once

#include <QGraphicsPathItem>
#include <QList>
#include <QObject>

class ChartStage;
class QColor;
struct ViewRange;

QT_BEGIN_NAMESPACE
class QGraphicsScene;
QT_END_NAMESPACE

/// A thin line across the plot, behind the curves.
class GuideLine : public QObject, public QGraphicsPathItem
{
    Q_OBJECT
    Q_INTERFACES(QGraphicsItem)

public:
    explicit GuideLine(const QString &name);
};

/// The two lines that lead the eye from a point of the chart to its axes: "guideLine1" along its x
/// (on a polar chart a ray), "guideLine2" along its y (there a circle).
class GuideLines
{
public:
    /// The items belong to \a scene.
    explicit GuideLines(QGraphicsScene &scene);

    /// Draws both through the chart value \a value, as far as \a shown goes.
    void show(const QPointF &value, const QColor &color, const ChartStage &stage,
              const ViewRange &shown);
    void hide();

private:
    QList<GuideLine *> m_lines;
};
