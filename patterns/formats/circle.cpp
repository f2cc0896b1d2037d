#include "patterns/formats/circle.h"

#include "2d/data/polarorientation.h"
#include "patterns/formats/textfields.h"

#include <algorithm>

namespace {

/// From point \a i of \a cut to the next one round the circle, degrees.
double stepAfter(const QVector<QPointF> &cut, int i)
{
    const bool last = i + 1 == cut.size();
    return last ? cut.first().x() + fullCircle - cut.last().x() : cut.at(i + 1).x() - cut.at(i).x();
}

} // namespace

namespace Circle {

std::optional<Gap> gapIn(const QVector<QPointF> &cut)
{
    if (cut.isEmpty())
        return Gap{};
    QVector<double> steps;
    steps.reserve(cut.size());
    for (int i = 0; i < cut.size(); ++i)
        steps.append(stepAfter(cut, i));
    const int widest =
        static_cast<int>(std::max_element(steps.begin(), steps.end()) - steps.begin());
    const double gap = steps.at(widest);
    // Measured finely in the main lobe and coarsely elsewhere, most of a circle has the coarse
    // step.
    auto usual = steps.begin() + (steps.size() - 1) * 9 / 10;
    std::nth_element(steps.begin(), usual, steps.end());
    constexpr double halfSpace = 180.0;
    constexpr double rounding = 1e-6;
    if (gap < halfSpace && gap <= 2.5 * *usual + rounding && cut.size() > 2)
        return std::nullopt;
    return Gap{cut.at(widest).x(), cut.at((widest + 1) % cut.size()).x()};
}

double levelAt(const QVector<QPointF> &cut, double degrees)
{
    const double wanted = PatternFormats::wrappedAngle(degrees);
    const auto after =
        std::upper_bound(cut.begin(), cut.end(), wanted,
                         [](double angle, const QPointF &point) { return angle < point.x(); });
    const int next = static_cast<int>(after - cut.begin()) % cut.size();
    const int before = (next + cut.size() - 1) % cut.size();
    const QPointF &a = cut.at(before);
    double along = wanted - a.x();
    if (along < 0.0)
        along += fullCircle;
    const double step = stepAfter(cut, before);
    return step > 0.0 ? a.y() + (cut.at(next).y() - a.y()) * along / step : a.y();
}

} // namespace Circle
