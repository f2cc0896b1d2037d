#pragma once

#include "2d/data/chartmapping.h"

#include <QMap>
#include <QPointF>
#include <QVector>

class PathInfo;

QT_BEGIN_NAMESPACE
class QGraphicsScene;
namespace QtCharts {
class QChart;
class QValueAxis;
} // namespace QtCharts
QT_END_NAMESPACE

/// The chart of a view with its two axes: how it is built, and the way from values to positions.
///
/// Whoever changes ranges, titles or the size holds a SeriesLayoutGuard meanwhile.
class ChartStage
{
public:
    /// Builds the chart of \a kind (0 cartesian, 1 polar, else none) and adds it to \a scene.
    ChartStage(int kind, QGraphicsScene &scene);

    int kind() const { return m_kind; }
    bool isPolar() const;
    /// Null for an unknown kind, and so are the axes.
    QtCharts::QChart *chart() const { return m_chart; }
    /// The axis along the bottom, or the angular one.
    QtCharts::QValueAxis *xAxis() const { return m_xAxis; }
    /// The axis on the left, or the radial one.
    QtCharts::QValueAxis *yAxis() const { return m_yAxis; }
    /// The axis that the operations on the X range act on: an angular axis keeps its range, so a
    /// polar chart has none.
    QtCharts::QValueAxis *rangedXAxis() const { return isPolar() ? nullptr : m_xAxis; }

    /// The ranges that the axes have now.
    ViewRange axisRange() const;
    QRectF plotArea() const;

    ChartMapping mapping() const;
    QPointF toScene(const QPointF &value) const;
    QVector<QPointF> toScene(const QVector<QPointF> &values,
                             QVector<QPointF> recycled = QVector<QPointF>()) const;
    QPointF toValue(const QPointF &position) const;

private:
    int m_kind;
    QtCharts::QChart *m_chart = nullptr;
    QtCharts::QValueAxis *m_xAxis = nullptr;
    QtCharts::QValueAxis *m_yAxis = nullptr;
};

/// Sets the range of an axis, with one layout of the chart where both limits allow it.
void setAxisRange(QtCharts::QValueAxis &axis, double min, double max);

/// Sets an axis' title by way of the empty one, which makes the chart lay itself out again.
void setAxisTitle(QtCharts::QValueAxis &axis, const QString &title);

/// Keeps the chart from computing lines that nobody sees.
///
/// The curves are drawn by their MyPathItem; the line items that the chart itself makes for the
/// series have no pen. Still they would compute their geometry, point by point, on every change of
/// range, title or size: by far the dearest part of a zoom step. So the series are empty, with
/// their signals blocked, while the chart lays itself out, and full again (the points are shared,
/// not copied) before anyone can look.
class SeriesLayoutGuard
{
public:
    SeriesLayoutGuard(const ChartStage &stage, const QMap<int, PathInfo *> &paths);
    ~SeriesLayoutGuard();
    SeriesLayoutGuard(const SeriesLayoutGuard &) = delete;
    SeriesLayoutGuard &operator=(const SeriesLayoutGuard &) = delete;

private:
    struct Held
    {
        PathInfo *path;
        QVector<QPointF> points;
    };

    const ChartStage &m_stage;
    QVector<Held> m_held;
};
