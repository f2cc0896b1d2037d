#include "2d/data/angularpattern.h"

#include "2d/data/polarorientation.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

double median(std::vector<double> values)
{
    if (values.empty())
        return 0.0;
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// The step in which the levels are written: 1, 0.1 or 0.01 dB; 0 when it is finer.
double writtenStep(const QVector<QPointF> &points)
{
    for (const double perDecibel : {1.0, 10.0, 100.0}) {
        const bool onGrid = std::all_of(points.begin(), points.end(), [=](const QPointF &point) {
            const double steps = point.y() * perDecibel;
            return std::abs(steps - std::round(steps)) < 1e-6;
        });
        if (onGrid)
            return 1.0 / perDecibel;
    }
    return 0.0;
}

} // namespace

AngularPattern::AngularPattern(const QVector<QPointF> &points)
{
    sort(points);
    cutAtWidestGap();
}

void AngularPattern::sort(const QVector<QPointF> &points)
{
    m_points = points;
    const auto outside = [](const QPointF &point) {
        return point.x() < -fullCircle / 2.0 || point.x() >= fullCircle / 2.0;
    };
    if (std::any_of(m_points.cbegin(), m_points.cend(), outside)) {
        for (QPointF &point : m_points) {
            if (outside(point))
                point.rx() -= fullCircle * std::floor(point.x() / fullCircle + 0.5);
        }
    }
    if (!std::is_sorted(m_points.cbegin(), m_points.cend(), byAngle))
        std::stable_sort(m_points.begin(), m_points.end(), byAngle);
    int kept = 0;
    for (int i = 1; i < m_points.size(); ++i) {
        if (m_points[i].x() - m_points[kept].x() > sameAngle)
            m_points[++kept] = m_points[i];
        else
            m_points[kept].setY(std::max(m_points[kept].y(), m_points[i].y()));
    }
    m_points.resize(std::min(kept + 1, m_points.size()));
    if (m_points.size() > 1 &&
        m_points.first().x() + fullCircle - m_points.last().x() <= sameAngle) {
        m_points.first().setY(std::max(m_points.first().y(), m_points.last().y()));
        m_points.removeLast();
    }
}

/// An open pattern begins behind its gap, wherever that is. A single point that is missing from a
/// regular circle leaves it closed, and so do steps that are wide in several places.
void AngularPattern::cutAtWidestGap()
{
    const int count = size();
    if (count < 2)
        return;
    std::vector<double> gaps;
    for (int i = 0; i + 1 < count; ++i)
        gaps.push_back(m_points[i + 1].x() - m_points[i].x());
    gaps.push_back(m_points[0].x() + fullCircle - m_points[count - 1].x());
    const auto widest = std::max_element(gaps.begin(), gaps.end());
    const double gap = *widest;
    const auto after = static_cast<int>(widest - gaps.begin()) + 1;
    *widest = 0.0;
    const double next = *std::max_element(gaps.begin(), gaps.end());
    m_closed = count >= 4 && (gap <= 1.5 * next || gap <= 2.5 * median(gaps));
    if (m_closed || after == count)
        return;
    std::rotate(m_points.begin(), m_points.begin() + after, m_points.end());
    for (int i = count - after; i < count; ++i)
        m_points[i].rx() += fullCircle;
}

double AngularPattern::angle(int i) const
{
    const int turns = (i - wrapped(i)) / size();
    return m_points[wrapped(i)].x() + turns * fullCircle;
}

int AngularPattern::peak() const
{
    const auto greatest =
        std::max_element(m_points.begin(), m_points.end(),
                         [](const QPointF &a, const QPointF &b) { return a.y() < b.y(); });
    return static_cast<int>(greatest - m_points.begin());
}

double AngularPattern::crossing(int a, int b, double wanted) const
{
    const double rise = level(b) - level(a);
    const double part = rise == 0.0 ? 1.0 : (wanted - level(a)) / rise;
    return angle(a) + (angle(b) - angle(a)) * part;
}

std::optional<double> AngularPattern::levelAt(double wanted) const
{
    if (m_points.isEmpty())
        return std::nullopt;
    wanted -= std::floor((wanted - angle(0)) / fullCircle) * fullCircle;
    const auto after =
        std::upper_bound(m_points.begin(), m_points.end(), wanted,
                         [](double x, const QPointF &point) { return x < point.x(); });
    const int next = static_cast<int>(after - m_points.begin());
    const int before = next - 1;
    if (before >= 0 && wanted - angle(before) <= sameAngle)
        return level(before);
    if (!has(before) || !has(next))
        return std::nullopt;
    const double part = (wanted - angle(before)) / (angle(next) - angle(before));
    return level(before) + (level(next) - level(before)) * part;
}

double AngularPattern::noise() const
{
    constexpr int fewest = 16;
    if (size() < fewest)
        return 0.0;
    // Of a smooth curve the fourth differences are next to nothing; those of noise have 70 times
    // its variance. The median passes over nulls and edges.
    std::vector<double> differences;
    differences.reserve(static_cast<std::size_t>(size()));
    for (int i = 2; i + 2 < size(); ++i) {
        differences.push_back(std::abs(level(i - 2) - 4.0 * level(i - 1) + 6.0 * level(i) -
                                       4.0 * level(i + 1) + level(i + 2)));
    }
    constexpr double medianOfNormal = 0.6745;
    const double deviation = median(std::move(differences)) / (medianOfNormal * std::sqrt(70.0));
    const double step = writtenStep(m_points);
    const double rounding = step * step / 12.0;
    return std::sqrt(std::max(0.0, deviation * deviation - 1.5 * rounding));
}

AngularPattern AngularPattern::thinned(double step) const
{
    AngularPattern result;
    result.m_closed = m_closed;
    for (int i = 0; i < size();) {
        QPointF sum;
        int count = 0;
        for (const double start = angle(i); i < size() && angle(i) - start < step; ++i, ++count)
            sum += m_points[i];
        result.m_points.append(sum / count);
    }
    return result;
}
