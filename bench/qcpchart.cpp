#include "qcpchart.h"

#include <qcustomplot.h>

#include <cmath>

namespace {

const QPen curvePen(QColor(0, 0, 255), 2);

QCustomPlot *makePlot(bool fastPolylines)
{
    auto *plot = new QCustomPlot;
    plot->setPlottingHint(QCP::phFastPolylines, fastPolylines);
    plot->setInteractions(QCP::iSelectPlottables);
    return plot;
}

void split(const QVector<QPointF> &points, QVector<double> &keys, QVector<double> &values)
{
    keys.clear();
    values.clear();
    keys.reserve(points.size());
    values.reserve(points.size());
    for (const QPointF &point : points) {
        keys.append(point.x());
        values.append(point.y());
    }
}

} // namespace

QcpCurveChart::QcpCurveChart(bool fastPolylines)
    : m_plot(makePlot(fastPolylines))
{
    show(m_plot, m_plot);
    m_plot->xAxis->setRange(-180, 180);
    m_plot->yAxis->setRange(-80, 20);
}

void QcpCurveChart::prepare(const QVector<QPointF> &points)
{
    split(points, m_keys, m_values);
}

void QcpCurveChart::load()
{
    QCPGraph *graph = m_plot->addGraph();
    graph->setPen(curvePen);
    graph->setAntialiased(true);
    graph->setData(m_keys, m_values, true);
    m_plot->replot();
}

void QcpCurveChart::clear()
{
    m_plot->clearGraphs();
    m_plot->replot();
}

void QcpCurveChart::zoom(bool widen)
{
    const double factor = widen ? 1.05 : 1 / 1.05;
    m_plot->xAxis->scaleRange(factor);
    m_plot->yAxis->scaleRange(factor);
    m_plot->replot();
}

QPointF QcpCurveChart::position(const QPointF &value) const
{
    return {m_plot->xAxis->coordToPixel(value.x()), m_plot->yAxis->coordToPixel(value.y())};
}

void QcpCurveChart::hitTest(const QPointF &position)
{
    m_plot->graph(0)->selectTest(position, false);
}

QcpPolarChart::QcpPolarChart(bool fastPolylines)
    : m_plot(makePlot(fastPolylines))
    , m_axis(new QCPPolarAxisAngular(m_plot))
{
    m_plot->plotLayout()->clear();
    m_plot->plotLayout()->addElement(0, 0, m_axis);
    m_axis->setRange(-180, 180);
    m_axis->radialAxis()->setRange(-80, 20);
    show(m_plot, m_plot);
}

void QcpPolarChart::prepare(const QVector<QPointF> &points)
{
    split(points, m_keys, m_values);
}

void QcpPolarChart::load()
{
    m_graph = new QCPPolarGraph(m_axis, m_axis->radialAxis());
    m_graph->setPen(curvePen);
    m_graph->setAntialiased(true);
    m_graph->setData(m_keys, m_values, true);
    m_plot->replot();
}

void QcpPolarChart::clear()
{
    m_axis->removeGraph(m_graph);
    m_graph = nullptr;
    m_plot->replot();
}

void QcpPolarChart::zoom(bool widen)
{
    const QCPRange range = m_axis->radialAxis()->range();
    m_axis->radialAxis()->scaleRange(widen ? 1.05 : 1 / 1.05, range.center());
    m_plot->replot();
}

QPointF QcpPolarChart::position(const QPointF &value) const
{
    return m_axis->coordToPixel(value.x(), value.y());
}

void QcpPolarChart::hitTest(const QPointF &position)
{
    m_graph->selectTest(position, false);
}

QcpTimeChart::QcpTimeChart(bool fastPolylines)
    : m_plot(makePlot(fastPolylines))
{
    QCPGraph *graph = m_plot->addGraph();
    graph->setPen(curvePen);
    graph->setAntialiased(true);
    show(m_plot, m_plot);
}

void QcpTimeChart::tick(double minutes, double level)
{
    constexpr double period = 10;
    QCPGraph *graph = m_plot->graph(0);
    graph->addData(minutes, level);
    graph->data()->removeBefore(minutes - period);
    m_plot->xAxis->setRange(std::max(0.0, minutes - period), std::max(period, minutes));
    bool found = false;
    const QCPRange levels = graph->getValueRange(found);
    m_plot->yAxis->setRange(std::floor(levels.lower) - 10, std::ceil(levels.upper) + 10);
    m_plot->replot();
}
