#include "2d/scene/curveseries.h"

#include <QLineSeries>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>
#include <iterator>

using namespace QtCharts;

namespace {

QVector<QPointF> finitePoints(const QVector<QPointF> &points)
{
    const auto finite = [](const QPointF &point) {
        return std::isfinite(point.x()) && std::isfinite(point.y());
    };
    if (std::all_of(points.cbegin(), points.cend(), finite))
        return points; // shared
    QVector<QPointF> kept;
    std::copy_if(points.cbegin(), points.cend(), std::back_inserter(kept), finite);
    return kept;
}

} // namespace

CurveSeries::CurveSeries()
    : m_line(std::make_unique<QLineSeries>())
{
    // Changes that come past this object reach the chart's line item.
    const auto known = [this] { m_chartHoldsPoints = true; };
    QLineSeries *line = m_line.get();
    QObject::connect(line, &QXYSeries::pointAdded, line, known);
    QObject::connect(line, &QXYSeries::pointReplaced, line, known);
    QObject::connect(line, &QXYSeries::pointRemoved, line, known);
    QObject::connect(line, &QXYSeries::pointsReplaced, line, known);
    QObject::connect(line, &QXYSeries::pointsRemoved, line, known);
}

CurveSeries::~CurveSeries() = default;

QVector<QPointF> CurveSeries::points() const
{
    return m_held ? m_heldPoints : m_line->pointsVector();
}

int CurveSeries::count() const
{
    return m_held ? m_heldPoints.size() : m_line->count();
}

void CurveSeries::setPoints(const QVector<QPointF> &points)
{
    if (m_held)
        m_heldPoints = finitePoints(points);
    else
        replaceQuietly(finitePoints(points));
}

void CurveSeries::append(const QPointF &point)
{
    if (m_held) {
        m_heldPoints.append(point);
        return;
    }
    if (m_chartHoldsPoints)
        replaceQuietly(points());
    const QSignalBlocker quiet(m_line.get());
    m_line->append(point);
}

void CurveSeries::removeFirst()
{
    if (m_held) {
        m_heldPoints.removeFirst();
        return;
    }
    if (m_chartHoldsPoints)
        replaceQuietly(points());
    const QSignalBlocker quiet(m_line.get());
    m_line->remove(0);
}

void CurveSeries::takeOut()
{
    m_heldPoints = m_line->pointsVector();
    m_held = true;
    replaceQuietly({});
}

void CurveSeries::putBack()
{
    m_held = false;
    replaceQuietly(m_heldPoints);
    m_heldPoints.clear();
}

/// Changes the series behind the back of the chart's line item. Should that know points already, it
/// has to forget them first: it counts on hearing of every change.
void CurveSeries::replaceQuietly(const QVector<QPointF> &points)
{
    if (m_chartHoldsPoints) {
        m_line->replace(QVector<QPointF>());
        m_chartHoldsPoints = false;
    }
    const QSignalBlocker quiet(m_line.get());
    m_line->replace(points);
}
