#pragma once

#include "charthost.h"

class QwtPlot;
class QwtPlotCurve;

/// Qwt with a curve.
class QwtCurveChart : public CurveChart
{
    Q_OBJECT

public:
    QwtCurveChart();

    void prepare(const QVector<QPointF> &points) override;
    void load() override;
    void clear() override;
    void zoom(bool widen) override;
    QPointF position(const QPointF &value) const override;
    void hitTest(const QPointF &position) override;

private:
    QwtPlot *m_plot;
    QwtPlotCurve *m_curve = nullptr;
    QVector<QPointF> m_points;
};

/// Qwt as a time chart.
class QwtTimeChart : public TimeChart
{
    Q_OBJECT

public:
    QwtTimeChart();

    void tick(double minutes, double level) override;

private:
    QwtPlot *m_plot;
    QwtPlotCurve *m_curve;
    QVector<QPointF> m_points;
};
