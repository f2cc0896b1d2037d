#pragma once

#include "charthost.h"

class QCPGraph;
class QCPPolarAxisAngular;
class QCPPolarGraph;
class QCustomPlot;

/// QCustomPlot with a curve, as it comes or with fast polylines.
class QcpCurveChart : public CurveChart
{
    Q_OBJECT

public:
    explicit QcpCurveChart(bool fastPolylines);

    void prepare(const QVector<QPointF> &points) override;
    void load() override;
    void clear() override;
    void zoom(bool widen) override;
    QPointF position(const QPointF &value) const override;
    void hitTest(const QPointF &position) override;

private:
    QCustomPlot *m_plot;
    QVector<double> m_keys;
    QVector<double> m_values;
};

/// QCustomPlot's polar chart, which its makers call a preview.
class QcpPolarChart : public CurveChart
{
    Q_OBJECT

public:
    explicit QcpPolarChart(bool fastPolylines);

    void prepare(const QVector<QPointF> &points) override;
    void load() override;
    void clear() override;
    void zoom(bool widen) override;
    QPointF position(const QPointF &value) const override;
    void hitTest(const QPointF &position) override;

private:
    QCustomPlot *m_plot;
    QCPPolarAxisAngular *m_axis;
    QCPPolarGraph *m_graph = nullptr;
    QVector<double> m_keys;
    QVector<double> m_values;
};

/// QCustomPlot as a time chart.
class QcpTimeChart : public TimeChart
{
    Q_OBJECT

public:
    explicit QcpTimeChart(bool fastPolylines);

    void tick(double minutes, double level) override;

private:
    QCustomPlot *m_plot;
};
