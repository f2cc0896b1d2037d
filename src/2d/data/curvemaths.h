#pragma once

#include <QPointF>
#include <QVector>

#include <optional>

/// The y of a curve at \a x: linear on the first segment whose ends enclose x, in either order.
/// A vertical segment gives the y of its second point. Nothing when no segment encloses x.
std::optional<double> interpolateAt(const QVector<QPointF> &points, double x);

/// The same where x is a direction in degrees, which the points may count in another turn: the
/// point of the curve, with its own angle.
std::optional<QPointF> pointInDirection(const QVector<QPointF> &points, double x);

/// The x between which a curve runs, nothing for an empty one.
struct HorizontalExtent
{
    double least = 0.0;
    double greatest = 0.0;
};
std::optional<HorizontalExtent> horizontalExtent(const QVector<QPointF> &points);

/// A straight line y = k x + b to mirror points at. Lines parallel to an axis are not guarded: they
/// give infinite or undefined points.
class MirrorLine
{
public:
    MirrorLine(const QPointF &point1, const QPointF &point2);

    /// The slope of every perpendicular.
    double perpendicularSlope() const { return m_k2; }
    /// Where the perpendicular through \a point starts on the y axis.
    double perpendicularIntercept(const QPointF &point) const;
    /// The foot of the perpendicular through \a point.
    QPointF foot(const QPointF &point) const;
    /// The image of \a point.
    QPointF image(const QPointF &point) const;

private:
    double m_k;
    double m_b;
    double m_k2;
};
