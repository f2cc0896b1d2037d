#pragma once

#include <QPointF>
#include <QVector>

#include <optional>

constexpr double halfPowerDrop = 3.0; ///< dB

inline bool byAngle(const QPointF &a, const QPointF &b)
{
    return a.x() < b.x();
}

/// A pattern by ascending angle, directions compared modulo 360 degrees: order, duplicates and the
/// turn in which its file counts make no difference.
///
/// Indices may run over both ends: round a closed pattern they go on, with angles that go on as
/// well, and an open one has no points there.
class AngularPattern
{
public:
    /// \a points are (angle in degrees, level in dB), finite. Of several in one direction the
    /// greatest level counts.
    explicit AngularPattern(const QVector<QPointF> &points);

    int size() const { return m_points.size(); }
    /// Whether the pattern goes round the whole circle, without a gap that is out of proportion.
    bool isClosed() const { return m_closed; }
    bool has(int i) const { return m_closed || (i >= 0 && i < size()); }
    double level(int i) const { return m_points[wrapped(i)].y(); }
    double angle(int i) const;

    /// The first index of the greatest level.
    int peak() const;
    /// The angle between two neighbours at which \a level is reached.
    double crossing(int a, int b, double level) const;
    /// The level in the direction \a angle, interpolated; nothing where an open pattern has none.
    std::optional<double> levelAt(double angle) const;

    /// The standard deviation of the noise, dB: what neighbours differ by beyond any smooth curve
    /// and beyond the steps in which the levels are written. 0 for few points.
    double noise() const;
    /// The pattern with neighbours averaged to about one point every \a step degrees.
    AngularPattern thinned(double step) const;

private:
    AngularPattern() = default;

    int wrapped(int i) const
    {
        const int rest = i % size();
        return rest < 0 ? rest + size() : rest;
    }
    void sort(const QVector<QPointF> &points);
    void cutAtWidestGap();

    QVector<QPointF> m_points;
    bool m_closed = false;
};
