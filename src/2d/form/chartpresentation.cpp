#include "2d/form/chartpresentation.h"

#include "2d/data/patternscale.h"
#include "2d/view/graphicsbase.h"

#include <QChart>
#include <QLegend>

using namespace QtCharts;

namespace {

/// Ticks every 30 degrees.
constexpr int circleDivisions = 12;

} // namespace

namespace ChartPresentation {

void prepare(GraphicsBase &view)
{
    QFont font = view.chart()->legend()->font();
    font.setWeight(QFont::Normal);
    view.showLegend(font);
    view.setXDivisions(circleDivisions);
    view.setLabelFormat(QStringLiteral("%g"));
    view.setFocusPolicy(Qt::StrongFocus);
}

void setTitle(GraphicsBase &view, const QString &title)
{
    view.setChartTitle(title);
}

void setAxisTitles(GraphicsBase &view, const QString &angles, const QString &levels)
{
    view.setAxisXTitle(angles);
    view.setAxisYTitle(levels);
}

void showLevels(GraphicsBase &view, const AxisScale &scale)
{
    view.setYRange(scale.min, scale.max, scale.divisions);
    // By itself the view lets the curves follow with the next events: too late for a picture.
    const QList<int> ids = view.paths().keys();
    for (const int id : ids)
        view.rebuildPath(id);
}

void showAngles(GraphicsBase &view, const AxisScale &scale)
{
    view.setXDivisions(scale.divisions);
    view.setXRange(scale.min, scale.max);
}

} // namespace ChartPresentation
