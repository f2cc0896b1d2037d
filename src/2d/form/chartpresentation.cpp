#include "2d/form/chartpresentation.h"

#include "2d/data/patternscale.h"
#include "2d/view/curveview.h"

#include <QChart>
#include <QLegend>

using namespace QtCharts;

namespace {

/// Ticks every 30 degrees.
constexpr int circleDivisions = 12;

} // namespace

namespace ChartPresentation {

void prepare(CurveView &view)
{
    QFont font = view.chart()->legend()->font();
    font.setWeight(QFont::Normal);
    view.showLegend(font);
    view.setXDivisions(circleDivisions);
    view.setLabelFormat(QStringLiteral("%g"));
    view.setFocusPolicy(Qt::StrongFocus);
}

void setTitle(CurveView &view, const QString &title)
{
    view.setChartTitle(title);
}

void setAxisTitles(CurveView &view, const QString &angles, const QString &levels)
{
    view.setAxisXTitle(angles);
    view.setAxisYTitle(levels);
}

void showLevels(CurveView &view, const AxisScale &scale)
{
    view.setYRange(scale.min, scale.max, scale.divisions);
    // By itself the view lets the curves follow with the next events: too late for a picture.
    const QList<int> ids = view.paths().keys();
    for (const int id : ids)
        view.rebuildPath(id);
}

void showAngles(CurveView &view, const AxisScale &scale)
{
    view.setXDivisions(scale.divisions);
    view.setXRange(scale.min, scale.max);
}

} // namespace ChartPresentation
