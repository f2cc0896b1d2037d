#include "2d/data/patternsupplement.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double fullCircle = 360.0;
constexpr double halfCircle = 180.0;
constexpr double halfPowerDrop = 3.0;

/// A pattern by ascending angle. Indices may run over both ends: round a closed pattern they go on,
/// with angles that go on as well, and an open one has no points there.
class Pattern
{
public:
    explicit Pattern(QVector<QPointF> points)
        : m_points(std::move(points))
    {
        std::stable_sort(m_points.begin(), m_points.end(),
                         [](const QPointF &a, const QPointF &b) { return a.x() < b.x(); });
        closeIfRound();
    }

    int size() const { return m_points.size(); }
    bool isClosed() const { return m_closed; }
    bool has(int i) const { return m_closed || (i >= 0 && i < size()); }
    double level(int i) const { return m_points[wrapped(i)].y(); }

    double angle(int i) const
    {
        const int turns = (i - wrapped(i)) / size();
        return m_points[wrapped(i)].x() + turns * fullCircle;
    }

    int peak() const
    {
        const auto greatest =
            std::max_element(m_points.begin(), m_points.end(),
                             [](const QPointF &a, const QPointF &b) { return a.y() < b.y(); });
        return static_cast<int>(greatest - m_points.begin());
    }

    /// The angle between two neighbours at which the level is reached.
    double crossing(int a, int b, double wanted) const
    {
        const double rise = level(b) - level(a);
        const double part = rise == 0.0 ? 1.0 : (wanted - level(a)) / rise;
        return angle(a) + (angle(b) - angle(a)) * part;
    }

    std::optional<double> levelAt(double wanted) const;

private:
    int wrapped(int i) const
    {
        const int rest = i % size();
        return rest < 0 ? rest + size() : rest;
    }

    void closeIfRound();

    QVector<QPointF> m_points;
    bool m_closed = false;
};

/// A pattern is closed when the gap over its seam is like the gaps between its points. Its two ends
/// may be one direction, -180 and 180 degrees: of these one is kept.
void Pattern::closeIfRound()
{
    if (size() < 4)
        return;
    double widest = 0.0;
    for (int i = 1; i < size(); ++i)
        widest = std::max(widest, m_points[i].x() - m_points[i - 1].x());
    const double seam = fullCircle - (m_points.last().x() - m_points.first().x());
    constexpr double rounding = 1e-6;
    m_closed = seam >= -rounding && seam <= 1.5 * widest;
    if (m_closed && seam <= rounding) {
        m_points.first().setY(std::max(m_points.first().y(), m_points.last().y()));
        m_points.removeLast();
    }
}

std::optional<double> Pattern::levelAt(double wanted) const
{
    if (m_closed)
        wanted -= std::floor((wanted - angle(0)) / fullCircle) * fullCircle;
    const auto after =
        std::upper_bound(m_points.begin(), m_points.end(), wanted,
                         [](double x, const QPointF &point) { return x < point.x(); });
    const int next = static_cast<int>(after - m_points.begin());
    const int before = next - 1;
    if (before >= 0 && angle(before) == wanted)
        return level(before);
    if (!has(before) || !has(next))
        return std::nullopt;
    const double part = (wanted - angle(before)) / (angle(next) - angle(before));
    return level(before) + (level(next) - level(before)) * part;
}

/// Where the level has fallen by 3 dB, going from the peak in the direction of \a step.
std::optional<double> halfPowerAngle(const Pattern &pattern, int peak, int step)
{
    const double wanted = pattern.level(peak) - halfPowerDrop;
    for (int count = 1; count < pattern.size(); ++count) {
        const int i = peak + count * step;
        if (!pattern.has(i))
            return std::nullopt;
        if (pattern.level(i) <= wanted)
            return pattern.crossing(i - step, i, wanted);
    }
    return std::nullopt;
}

/// The index where the main lobe ends in the direction of \a step: the last fall before the level
/// rises again. A shoulder of equal levels does not end it, the end of an open curve is no null.
std::optional<int> nullIndex(const Pattern &pattern, int peak, int step)
{
    std::optional<int> lowest;
    for (int count = 1; count <= pattern.size(); ++count) {
        const int i = peak + count * step;
        if (!pattern.has(i))
            return std::nullopt;
        const double change = pattern.level(i) - pattern.level(i - step);
        if (change > 0.0 && lowest)
            return lowest;
        if (change < 0.0)
            lowest = i;
    }
    return std::nullopt;
}

std::optional<double> sideLobeLevel(const Pattern &pattern, int peak, std::optional<int> left,
                                    std::optional<int> right)
{
    std::optional<double> greatest;
    const auto take = [&greatest, &pattern](int from, int to) {
        for (int i = from; i <= to; ++i)
            greatest = std::max(greatest.value_or(pattern.level(i)), pattern.level(i));
    };
    if (pattern.isClosed()) {
        if (left && right)
            take(*right + 1, *left + pattern.size() - 1);
    } else {
        if (left)
            take(0, *left - 1);
        if (right)
            take(*right + 1, pattern.size() - 1);
    }
    if (!greatest)
        return std::nullopt;
    return *greatest - pattern.level(peak);
}

std::optional<double> frontToBackRatio(const Pattern &pattern, int peak)
{
    std::optional<double> back = pattern.levelAt(pattern.angle(peak) - halfCircle);
    if (!back)
        back = pattern.levelAt(pattern.angle(peak) + halfCircle);
    if (!back)
        return std::nullopt;
    return pattern.level(peak) - *back;
}

} // namespace

PatternSupplement supplementaryFigures(const QVector<QPointF> &points)
{
    PatternSupplement figures;
    if (points.isEmpty())
        return figures;
    const Pattern pattern(points);
    const int peak = pattern.peak();
    const std::optional<double> left = halfPowerAngle(pattern, peak, -1);
    const std::optional<double> right = halfPowerAngle(pattern, peak, 1);
    const std::optional<int> leftNull = nullIndex(pattern, peak, -1);
    const std::optional<int> rightNull = nullIndex(pattern, peak, 1);

    if (left && right)
        figures.halfPowerBeamWidth = *right - *left;
    if (leftNull && rightNull)
        figures.firstNullBeamWidth = pattern.angle(*rightNull) - pattern.angle(*leftNull);
    figures.sideLobeLevel = sideLobeLevel(pattern, peak, leftNull, rightNull);
    figures.frontToBackRatio = frontToBackRatio(pattern, peak);
    return figures;
}
