#include "2d/scene/curvedrag.h"

#include "2d/data/chartmapping.h"
#include "2d/data/curvetext.h"

#include <QChartView>
#include <QGraphicsLayout>
#include <QLineSeries>
#include <QMimeData>
#include <QPolarChart>
#include <QValueAxis>

#include <algorithm>
#include <memory>

using namespace QtCharts;

namespace {

constexpr QSize pictureSize(180, 140);
constexpr int enoughPoints = 720; // half a degree each: more than the small picture can show

QVector<QPointF> thinned(const QVector<QPointF> &points)
{
    const int step = points.size() / enoughPoints + 1;
    QVector<QPointF> some;
    for (int i = 0; i < points.size(); i += step)
        some.append(points[i]);
    return some;
}

QValueAxis *bareAxis(double least, double greatest)
{
    auto *axis = new QValueAxis;
    axis->setRange(least, least < greatest ? greatest : least + 1.0);
    axis->setLabelsVisible(false);
    axis->setTickCount(5);
    return axis;
}

std::unique_ptr<QChart> bareChart(int kind)
{
    std::unique_ptr<QChart> chart;
    if (kind == polarKind)
        chart = std::make_unique<QPolarChart>();
    else
        chart = std::make_unique<QChart>();
    chart->legend()->hide();
    chart->setMargins(QMargins(8, 8, 8, 8));
    chart->setBackgroundRoundness(0.0);
    chart->layout()->setContentsMargins(0.0, 0.0, 0.0, 0.0);
    return chart;
}

void addAxes(QChart &chart, int kind, QLineSeries *series)
{
    const QVector<QPointF> points = series->pointsVector();
    const auto levels =
        std::minmax_element(points.begin(), points.end(),
                            [](const QPointF &a, const QPointF &b) { return a.y() < b.y(); });
    const auto angles =
        std::minmax_element(points.begin(), points.end(),
                            [](const QPointF &a, const QPointF &b) { return a.x() < b.x(); });
    const bool polar = kind == polarKind;
    QValueAxis *angle =
        polar ? bareAxis(-180.0, 180.0) : bareAxis(angles.first->x(), angles.second->x());
    QValueAxis *level = bareAxis(levels.first->y(), levels.second->y());
    chart.addAxis(angle,
                  polar ? Qt::Alignment(QPolarChart::PolarOrientationAngular) : Qt::AlignBottom);
    chart.addAxis(level,
                  polar ? Qt::Alignment(QPolarChart::PolarOrientationRadial) : Qt::AlignLeft);
    series->attachAxis(angle);
    series->attachAxis(level);
}

} // namespace

QMimeData *curveDragData(const QString &name, const QVector<QPointF> &points)
{
    auto *data = new QMimeData;
    data->setText(CurveText::toClipboard(name, points));
    return data;
}

QPixmap curveDragPixmap(int kind, const QColor &color, const QVector<QPointF> &points)
{
    auto *series = new QLineSeries;
    series->replace(thinned(points));
    series->setPen(QPen(color, 2.0));
    QChart *chart = bareChart(kind).release();
    chart->addSeries(series);
    if (!points.isEmpty())
        addAxes(*chart, kind, series);

    QChartView view(chart);
    view.setRenderHint(QPainter::Antialiasing);
    view.setFrameStyle(QFrame::Box | QFrame::Plain);
    view.resize(pictureSize);
    return view.grab();
}
