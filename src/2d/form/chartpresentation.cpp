#include "2d/form/chartpresentation.h"

#include "2d/data/patternscale.h"
#include "2d/view/graphicsbase.h"

#include <QLegend>
#include <QPolarChart>
#include <QValueAxis>

using namespace QtCharts;

namespace {

/// Ticks every 30 degrees.
constexpr int circleDivisions = 12;

QValueAxis *firstAxis(const GraphicsBase &view, Qt::Orientation orientation)
{
    if (auto *polar = qobject_cast<QPolarChart *>(view.chart())) {
        const auto kind = orientation == Qt::Horizontal ? QPolarChart::PolarOrientationAngular
                                                        : QPolarChart::PolarOrientationRadial;
        return qobject_cast<QValueAxis *>(polar->axes(kind).value(0));
    }
    return qobject_cast<QValueAxis *>(view.chart()->axes(orientation).value(0));
}

} // namespace

namespace ChartPresentation {

void prepare(GraphicsBase &view)
{
    QLegend *legend = view.chart()->legend();
    legend->setAlignment(Qt::AlignBottom);
    QFont font = legend->font();
    font.setWeight(QFont::Normal);
    legend->setFont(font);
    legend->show();
    QValueAxis *angles = firstAxis(view, Qt::Horizontal);
    angles->setTickCount(circleDivisions + 1);
    angles->setLabelFormat(QStringLiteral("%g"));
    firstAxis(view, Qt::Vertical)->setLabelFormat(QStringLiteral("%g"));
}

void setTitle(GraphicsBase &view, const QString &title)
{
    if (view.chart()->title() != title)
        view.setChartTitle(title);
}

void setAxisTitles(GraphicsBase &view, const QString &angles, const QString &levels)
{
    firstAxis(view, Qt::Horizontal)->setTitleText(angles);
    firstAxis(view, Qt::Vertical)->setTitleText(levels);
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
    firstAxis(view, Qt::Horizontal)->setTickCount(scale.divisions + 1);
    view.setXRange(scale.min, scale.max);
}

} // namespace ChartPresentation
