#pragma once

#include "charthost.h"

class GraphicsBase;

/// Our chart engine with a curve; \a kind is 0 for cartesian, 1 for polar.
class OwnCurveChart : public CurveChart
{
    Q_OBJECT

public:
    explicit OwnCurveChart(int kind);

    void prepare(const QVector<QPointF> &points) override;
    void load() override;
    void clear() override;
    void zoom(bool widen) override;
    QPointF position(const QPointF &value) const override;
    void hitTest(const QPointF &position) override;

private:
    GraphicsBase *m_view;
    QVector<QPointF> m_points;
};

/// Our chart engine as the console's time chart.
class OwnTimeChart : public TimeChart
{
    Q_OBJECT

public:
    OwnTimeChart();

    void tick(double minutes, double level) override;

private:
    GraphicsBase *m_view;
};
