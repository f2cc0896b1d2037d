#include "2d/data/patternsupplement.h"

#include "2d/data/angularpattern.h"
#include "2d/data/leastsquares.h"
#include "2d/data/polarorientation.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace {

/// Below so many dB of noise the samples themselves are nearer to the truth than any fit.
constexpr double noticeableNoise = 0.03;
constexpr double lobeDrop = 6.0;     ///< dB below its top, how far a lobe is fitted
constexpr int fewestStepsOfLobe = 9; ///< that a fit needs

/// \a angle within -180 to 180 degrees.
double direction(double angle)
{
    const double rest = std::remainder(angle, 2.0 * halfCircle);
    return rest <= -halfCircle ? halfCircle : rest + 0.0;
}

/// The first point at or below \a level, going from \a from in the direction of \a step.
std::optional<int> firstBelow(const AngularPattern &pattern, int from, int step, double level)
{
    for (int count = 1; count < pattern.size(); ++count) {
        const int i = from + count * step;
        if (!pattern.has(i))
            return std::nullopt;
        if (pattern.level(i) <= level)
            return i;
    }
    return std::nullopt;
}

/// The indices between which a lobe with its top at \a top lies no more than \a drop dB below it.
std::pair<int, int> reachOf(const AngularPattern &pattern, int top, double drop)
{
    const double level = pattern.level(top) - drop;
    const int half = pattern.size() / 2;
    const int first = pattern.isClosed() ? top - half : 0;
    const int last = pattern.isClosed() ? top + half : pattern.size() - 1;
    return {firstBelow(pattern, top, -1, level).value_or(first),
            firstBelow(pattern, top, 1, level).value_or(last)};
}

/// Whether the samples are noisy. Where a lobe has few of them its shape alone would look like
/// noise and the nulls beside it like chance.
bool isNoisy(const AngularPattern &pattern)
{
    const auto [first, last] = reachOf(pattern, pattern.peak(), lobeDrop);
    return last - first >= fewestStepsOfLobe && pattern.noise() > noticeableNoise;
}

/// A polynomial through a noisy lobe, down to 6 dB below its top: a hundred points know their
/// middle better than each of them does.
class FittedLobe
{
public:
    /// Through what lies between two indices; \a noise is that of the levels, dB.
    FittedLobe(const AngularPattern &pattern, const std::pair<int, int> &reach, double noise)
    {
        const auto [first, last] = reach;
        m_from = pattern.angle(first);
        m_to = pattern.angle(last);
        m_isUsable = last - first >= fewestStepsOfLobe;
        if (!m_isUsable)
            return;
        LeastSquares<4> fit((m_from + m_to) / 2.0, (m_to - m_from) / 2.0);
        for (int i = first; i <= last; ++i)
            fit.add(pattern.angle(i), pattern.level(i));
        m_shape = fit.solved();
        // A lobe of another shape than a polynomial has is better told by its samples.
        double squares = 0.0;
        for (int i = first; i <= last; ++i) {
            const double error = pattern.level(i) - m_shape(pattern.angle(i));
            squares += error * error;
        }
        constexpr int factors = 5;
        m_isUsable = std::sqrt(squares / (last - first + 1 - factors)) <= 2.0 * noise;
        for (int i = 1; i <= steps; ++i) {
            if (level(i) > level(m_top))
                m_top = i;
        }
    }

    bool isUsable() const { return m_isUsable; }
    double topLevel() const { return level(m_top); }
    double topAngle() const { return angle(m_top); }

    /// The angle where the lobe has fallen to \a wanted on the side that \a step leads to.
    std::optional<double> angleOf(double wanted, int step) const
    {
        for (int i = m_top + step; i >= 0 && i <= steps; i += step) {
            if (level(i) > wanted)
                continue;
            const double inner = level(i - step);
            return angle(i - step) +
                   (angle(i) - angle(i - step)) * (inner - wanted) / (inner - level(i));
        }
        return std::nullopt;
    }

private:
    static constexpr int steps = 1000;

    double angle(int i) const { return m_from + (m_to - m_from) * i / steps; }
    double level(int i) const { return m_shape(angle(i)); }

    double m_from = 0.0;
    double m_to = 0.0;
    Polynomial<4> m_shape;
    int m_top = 0;
    bool m_isUsable = false;
};

/// The main lobe: its top, and where it has fallen from there.
struct MainLobe
{
    /// With \a noise (dB) its top is that of a fit.
    MainLobe(const AngularPattern &pattern, double noise)
        : peak(pattern.peak())
        , level(pattern.level(peak))
        , angle(pattern.angle(peak))
    {
        if (!(noise > 0.0))
            return;
        const FittedLobe fitted(pattern, reachOf(pattern, peak, lobeDrop), noise);
        if (!fitted.isUsable())
            return;
        fit = fitted;
        level = fitted.topLevel();
        angle = fitted.topAngle();
    }

    /// The angle where the lobe has fallen by \a drop on the side that \a step leads to.
    std::optional<double> edge(const AngularPattern &pattern, double drop, int step) const
    {
        const double wanted = level - drop;
        const std::optional<double> fitted = fit ? fit->angleOf(wanted, step) : std::nullopt;
        if (fitted)
            return fitted;
        const std::optional<int> below = firstBelow(pattern, peak, step, wanted);
        return below ? std::optional(pattern.crossing(*below - step, *below, wanted))
                     : std::nullopt;
    }

    BeamWidth width(const AngularPattern &pattern, double drop) const
    {
        return {drop, level - drop, edge(pattern, drop, -1), edge(pattern, drop, 1)};
    }

    int peak;
    double level;
    double angle; ///< degrees
    std::optional<FittedLobe> fit;
};

/// The index where the main lobe ends in the direction of \a step: the lowest point before the
/// level has risen by \a prominence from it. Equal neighbours are passed over; the end of an open
/// curve is no null.
std::optional<int> nullIndex(const AngularPattern &pattern, int peak, int step, double prominence)
{
    int lowest = peak;
    for (int count = 1; count <= pattern.size(); ++count) {
        const int i = peak + count * step;
        if (!pattern.has(i))
            return std::nullopt;
        const double rise = pattern.level(i) - pattern.level(lowest);
        if (rise < 0.0)
            lowest = i;
        const bool isDeep = pattern.level(peak) - pattern.level(lowest) >= prominence;
        if (rise > 0.0 && rise >= prominence && isDeep && lowest != peak)
            return lowest;
    }
    return std::nullopt;
}

/// The indices of the points outside the main lobe, two ranges at most.
std::vector<std::pair<int, int>> outside(const AngularPattern &pattern, std::optional<int> left,
                                         std::optional<int> right)
{
    std::vector<std::pair<int, int>> ranges;
    if (pattern.isClosed()) {
        if (left && right)
            ranges.emplace_back(*right + 1, *left + pattern.size() - 1);
    } else {
        if (left)
            ranges.emplace_back(0, *left - 1);
        if (right)
            ranges.emplace_back(*right + 1, pattern.size() - 1);
    }
    return ranges;
}

double greatestLevel(const AngularPattern &pattern, int from, int to)
{
    double greatest = pattern.level(from);
    for (int i = from + 1; i <= to; ++i)
        greatest = std::max(greatest, pattern.level(i));
    return greatest;
}

/// The greatest level in \a ranges; of noisy lobes the greatest of their fitted tops, since the
/// greatest sample of many is the one with the most noise on it.
std::optional<double> greatestLevel(const AngularPattern &pattern,
                                    const std::vector<std::pair<int, int>> &ranges, double noise)
{
    std::optional<double> greatest;
    for (const auto &[from, to] : ranges) {
        if (from <= to)
            greatest =
                std::max(greatest.value_or(pattern.level(from)), greatestLevel(pattern, from, to));
    }
    if (!greatest || !(noise > 0.0))
        return greatest;
    // Any lobe whose top comes near the greatest sample may be the greatest one.
    constexpr double nearness = 6.0;
    std::optional<double> fitted;
    for (const auto &[from, to] : ranges) {
        for (int i = from; i <= to; ++i) {
            if (pattern.level(i) < *greatest - nearness * noise)
                continue;
            // A point on the foot of the main lobe must not take that in.
            const auto [first, last] = reachOf(pattern, i, lobeDrop);
            const FittedLobe lobe(pattern, {std::max(first, from), std::min(last, to)}, noise);
            const int end = std::max(i, reachOf(pattern, i, nearness * noise + 1.0).second);
            const double level =
                lobe.isUsable() ? lobe.topLevel() : greatestLevel(pattern, i, std::min(end, to));
            fitted = std::max(fitted.value_or(level), level);
            i = end;
        }
    }
    return fitted;
}

PatternSupplement figuresOf(const AngularPattern &pattern, const MainLobe &lobe, double prominence,
                            double noise)
{
    PatternSupplement figures;
    const std::optional<int> left = nullIndex(pattern, lobe.peak, -1, prominence);
    const std::optional<int> right = nullIndex(pattern, lobe.peak, 1, prominence);
    const BeamWidth half = lobe.width(pattern, halfPowerDrop);
    figures.halfPowerBeamWidth = half.width();
    figures.peakAngle = direction(lobe.angle);
    if (half.left && half.right)
        figures.squint = direction((*half.left + *half.right) / 2.0);
    if (left && right)
        figures.firstNullBeamWidth = pattern.angle(*right) - pattern.angle(*left);
    if (const auto level = greatestLevel(pattern, outside(pattern, left, right), noise))
        figures.sideLobeLevel = std::min(0.0, *level - lobe.level);
    if (const auto level = pattern.levelAt(pattern.angle(lobe.peak) - halfCircle))
        figures.frontToBackRatio = lobe.level - *level;
    return figures;
}

/// Denser samples say more when they are averaged.
constexpr double finest = 0.1; // degrees

} // namespace

PatternSupplement supplementaryFigures(const QVector<QPointF> &points, double nullProminence)
{
    if (points.isEmpty())
        return {};
    AngularPattern pattern(points);
    if (!isNoisy(pattern))
        return figuresOf(pattern, MainLobe(pattern, 0.0), nullProminence, 0.0);
    pattern = pattern.thinned(finest);
    const double noise = pattern.noise();
    // Rises that noise alone does not make in a thousand samples.
    constexpr double certain = 8.0;
    return figuresOf(pattern, MainLobe(pattern, noise), std::max(nullProminence, certain * noise),
                     noise);
}

QVector<BeamWidth> beamWidths(const QVector<QPointF> &points, const QVector<double> &drops)
{
    QVector<BeamWidth> widths;
    if (points.isEmpty() || drops.isEmpty())
        return widths;
    AngularPattern pattern(points);
    const bool noisy = isNoisy(pattern);
    if (noisy)
        pattern = pattern.thinned(finest);
    const MainLobe lobe(pattern, noisy ? pattern.noise() : 0.0);
    for (const double drop : drops)
        widths.append(lobe.width(pattern, drop));
    return widths;
}
