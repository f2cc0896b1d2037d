#include "2d/data/chartmapping.h"

#include "2d/data/polarorientation.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

// Every expression below keeps the order of operations of the chart's own domains: another order
// would differ in the last bit.

class CartesianRule
{
public:
    explicit CartesianRule(const ChartMapping &mapping)
        : m_origin(mapping.plotArea.topLeft())
        , m_xMin(mapping.axes.xMin)
        , m_yMin(mapping.axes.yMin)
        , m_height(mapping.plotArea.height())
        , m_xScale(mapping.plotArea.width() / (mapping.axes.xMax - mapping.axes.xMin))
        , m_yScale(m_height / (mapping.axes.yMax - mapping.axes.yMin))
    {}

    QPointF operator()(const QPointF &value) const
    {
        const double x = (value.x() - m_xMin) * m_xScale;
        const double y = m_height - (value.y() - m_yMin) * m_yScale;
        return {m_origin.x() + x, m_origin.y() + y};
    }

private:
    QPointF m_origin;
    double m_xMin;
    double m_yMin;
    double m_height;
    double m_xScale;
    double m_yScale;
};

class PolarRule
{
public:
    explicit PolarRule(const ChartMapping &mapping)
        : m_origin(mapping.plotArea.topLeft())
        , m_centre(QPointF(mapping.plotArea.width() / 2.0, mapping.plotArea.height() / 2.0))
        , m_axes(mapping.axes)
        , m_radius(mapping.plotArea.height() / 2.0)
        , m_orientation(mapping.orientation)
    {}

    QPointF operator()(const QPointF &value) const
    {
        const double angle =
            m_orientation == PolarOrientation::DownClockwise
                ? fullCircle * ((value.x() - m_axes.xMin) / (m_axes.xMax - m_axes.xMin))
                : screenDirection(m_orientation, value.x());
        const double level = value.y() < m_axes.yMin ? m_axes.yMin : value.y();
        const double distance = m_radius * ((level - m_axes.yMin) / (m_axes.yMax - m_axes.yMin));
        const double radians = qDegreesToRadians(angle);
        return m_origin + QPointF(m_centre.x() + std::sin(radians) * distance,
                                  m_centre.y() - std::cos(radians) * distance);
    }

private:
    QPointF m_origin;
    QPointF m_centre;
    ViewRange m_axes;
    double m_radius;
    PolarOrientation m_orientation;
};

template<typename Rule>
QVector<QPointF> mapped(const QVector<QPointF> &values, const Rule &rule)
{
    QVector<QPointF> positions(values.size());
    std::transform(values.cbegin(), values.cend(), positions.begin(), rule);
    return positions;
}

} // namespace

bool ChartMapping::isUsable() const
{
    return !plotArea.isEmpty() && axes.xMax > axes.xMin && axes.yMax > axes.yMin;
}

QPointF ChartMapping::toScene(const QPointF &value) const
{
    return kind == Kind::Polar ? PolarRule(*this)(value) : CartesianRule(*this)(value);
}

QPointF ChartMapping::polarValue(const QPointF &position) const
{
    const QPointF offset =
        position - plotArea.topLeft() - QPointF(plotArea.width() / 2.0, plotArea.height() / 2.0);
    const double direction = qRadiansToDegrees(std::atan2(offset.x(), -offset.y()));
    const double part = std::hypot(offset.x(), offset.y()) / (plotArea.height() / 2.0);
    return {angleOfDirection(orientation, direction), axes.yMin + part * (axes.yMax - axes.yMin)};
}

double ChartMapping::turns(double angle) const
{
    return orientation == PolarOrientation::DownClockwise
               ? (angle - axes.xMin) / (axes.xMax - axes.xMin)
               : screenDirection(orientation, angle) / fullCircle;
}

double ChartMapping::distance(double level) const
{
    return 0.5 * plotArea.height() * std::max(0.0, (level - axes.yMin) / (axes.yMax - axes.yMin));
}

QPointF ChartMapping::fromCentre(double turns, double distance) const
{
    const double radians = 2.0 * M_PI * turns;
    return plotArea.center() + QPointF(std::sin(radians) * distance, -std::cos(radians) * distance);
}

QVector<QPointF> ChartMapping::toScene(const QVector<QPointF> &values) const
{
    return kind == Kind::Polar ? mapped(values, PolarRule(*this))
                               : mapped(values, CartesianRule(*this));
}

bool operator==(const ChartMapping &a, const ChartMapping &b)
{
    // Exact on purpose: positions that differ in the last bit are other positions.
    const auto same = [](double first, double second) {
        return !(first < second) && !(second < first);
    };
    return a.kind == b.kind && a.orientation == b.orientation &&
           same(a.plotArea.x(), b.plotArea.x()) && same(a.plotArea.y(), b.plotArea.y()) &&
           same(a.plotArea.width(), b.plotArea.width()) &&
           same(a.plotArea.height(), b.plotArea.height()) && same(a.axes.xMin, b.axes.xMin) &&
           same(a.axes.xMax, b.axes.xMax) && same(a.axes.yMin, b.axes.yMin) &&
           same(a.axes.yMax, b.axes.yMax);
}
