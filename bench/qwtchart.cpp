#include "qwtchart.h"

#include <qwt_picker_machine.h>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_picker.h>
#include <qwt_scale_map.h>

#include <algorithm>
#include <cmath>

namespace {

QwtPlot *makePlot()
{
    auto *plot = new QwtPlot;
    auto *grid = new QwtPlotGrid;
    grid->setPen(QColor(150, 150, 150), 0.0, Qt::DotLine);
    grid->attach(plot);
    return plot;
}

QwtPlotCurve *addCurve(QwtPlot *plot)
{
    auto *curve = new QwtPlotCurve;
    curve->setPen(QColor(0, 0, 255), 2.0);
    curve->setRenderHint(QwtPlotItem::RenderAntialiased);
    curve->attach(plot);
    return curve;
}

void scale(QwtPlot *plot, int axis, double factor)
{
    const QwtInterval range = plot->axisInterval(axis);
    const double middle = (range.minValue() + range.maxValue()) / 2;
    const double half = range.width() / 2 * factor;
    plot->setAxisScale(axis, middle - half, middle + half);
}

} // namespace

QwtCurveChart::QwtCurveChart()
    : m_plot(makePlot())
{
    auto *picker = new QwtPlotPicker(QwtPlot::xBottom, QwtPlot::yLeft, m_plot->canvas());
    picker->setStateMachine(new QwtPickerClickPointMachine);
    connect(picker, qOverload<const QPointF &>(&QwtPlotPicker::selected), this,
            [this](const QPointF &value) { hitTest(position(value)); });
    show(m_plot, m_plot->canvas());
    m_plot->setAxisScale(QwtPlot::xBottom, -180, 180);
    m_plot->setAxisScale(QwtPlot::yLeft, -80, 20);
    m_plot->replot();
}

void QwtCurveChart::prepare(const QVector<QPointF> &points)
{
    m_points = points;
}

void QwtCurveChart::load()
{
    m_curve = addCurve(m_plot);
    m_curve->setSamples(m_points);
    m_plot->replot();
}

void QwtCurveChart::clear()
{
    delete m_curve;
    m_curve = nullptr;
    m_plot->replot();
}

void QwtCurveChart::zoom(bool widen)
{
    const double factor = widen ? 1.05 : 1 / 1.05;
    scale(m_plot, QwtPlot::xBottom, factor);
    scale(m_plot, QwtPlot::yLeft, factor);
    m_plot->replot();
}

QPointF QwtCurveChart::position(const QPointF &value) const
{
    return {m_plot->canvasMap(QwtPlot::xBottom).transform(value.x()),
            m_plot->canvasMap(QwtPlot::yLeft).transform(value.y())};
}

void QwtCurveChart::hitTest(const QPointF &position)
{
    double distance = 0.0;
    m_curve->closestPoint(position.toPoint(), &distance);
}

QwtTimeChart::QwtTimeChart()
    : m_plot(makePlot())
    , m_curve(addCurve(m_plot))
{
    show(m_plot, m_plot->canvas());
}

void QwtTimeChart::tick(double minutes, double level)
{
    constexpr double period = 10;
    m_points.append(QPointF(minutes, level));
    if (m_points.constFirst().x() < minutes - period)
        m_points.removeFirst();
    m_curve->setSamples(m_points);
    const QRectF extent = m_curve->boundingRect();
    m_plot->setAxisScale(QwtPlot::xBottom, std::max(0.0, minutes - period),
                         std::max(period, minutes));
    m_plot->setAxisScale(QwtPlot::yLeft, std::floor(extent.top()) - 10,
                         std::ceil(extent.bottom()) + 10);
    m_plot->replot();
}
