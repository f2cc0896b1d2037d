#pragma once

#include <QPointF>
#include <QVector>

#include <memory>

QT_BEGIN_NAMESPACE
class QPen;
class QString;
namespace QtCharts {
class QLineSeries;
}
QT_END_NAMESPACE

/// The points of one curve, in a series of the chart that the chart draws nothing of.
///
/// The line that is seen is MyPathItem's. The chart's own line item would compute its geometry,
/// point by point, on every change of the data, of a range, a title or the size: by far the most
/// expensive part of a zoom step. So it is kept from hearing of the points, and finds the series
/// empty while the chart lays itself out.
///
/// Whoever deletes this first takes the series off its ChartStage.
class CurveSeries
{
public:
    CurveSeries();
    ~CurveSeries();
    CurveSeries(const CurveSeries &) = delete;
    CurveSeries &operator=(const CurveSeries &) = delete;

    QtCharts::QLineSeries *line() const { return m_line.get(); }

    /// The points, shared with the series.
    QVector<QPointF> points() const;
    int count() const;
    /// Replaces the points; those that are not finite are left out.
    void setPoints(const QVector<QPointF> &points);
    void append(const QPointF &point);
    void removeFirst();

    /// Empties the series until putBack(). In between all of the above acts on what was taken out.
    void takeOut();
    void putBack();

private:
    void replaceQuietly(const QVector<QPointF> &points);

    std::unique_ptr<QtCharts::QLineSeries> m_line;
    QVector<QPointF> m_heldPoints;
    bool m_held = false;
    bool m_chartHoldsPoints = false; ///< the chart's own line item knows points of the series
};
