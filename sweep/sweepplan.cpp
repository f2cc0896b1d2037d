#include "sweep/sweepplan.h"

#include "2d/data/curvetext.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double turn = 360.0;
constexpr double speedOfLight = 299792458.0; // m/s
constexpr int greatestCount = 100000;
/// Far below what a table resolves, far above what adding up steps loses.
constexpr double sameAngle = 1e-6;

/// Steps like 0.1 add up to 0.30000000000000004: the angle that was meant.
double tidied(double angle)
{
    constexpr double places = 1e9;
    return std::round(angle * places) / places;
}

bool fits(const QVector<PlanPoint> &points, double shift, const TableLimits &limits)
{
    const auto [low, high] = std::minmax(points.first().wanted, points.last().wanted);
    return low + shift >= limits.min - sameAngle && high + shift <= limits.max + sameAngle;
}

std::optional<double> shiftInto(const TableLimits &limits, const QVector<PlanPoint> &points)
{
    for (const double shift : {0.0, turn, -turn}) {
        if (fits(points, shift, limits))
            return shift;
    }
    return std::nullopt;
}

PlanLayout::Problem problemOf(const SweepPlan &plan)
{
    for (const double value : {plan.from, plan.to, plan.step, plan.zero}) {
        if (!std::isfinite(value))
            return PlanLayout::Problem::NotFinite;
    }
    if (plan.step <= 0.0)
        return PlanLayout::Problem::Step;
    if (plan.sense != 1 && plan.sense != -1)
        return PlanLayout::Problem::Sense;
    const double span = std::abs(plan.to - plan.from);
    if (span > turn + sameAngle)
        return PlanLayout::Problem::Span;
    if (span / plan.step >= greatestCount)
        return PlanLayout::Problem::TooMany;
    return PlanLayout::Problem::None;
}

} // namespace

bool SweepPlan::operator==(const SweepPlan &other) const
{
    const auto same = [](double a, double b) { return std::abs(a - b) < sameAngle; };
    return same(from, other.from) && same(to, other.to) && same(step, other.step) &&
           same(zero, other.zero) && sense == other.sense;
}

PlanLayout layOut(const SweepPlan &plan, const std::optional<TableLimits> &limits)
{
    PlanLayout layout;
    layout.problem = problemOf(plan);
    if (layout.problem != PlanLayout::Problem::None)
        return layout;

    const auto add = [&](double theta) {
        layout.points.append({tidied(plan.zero + plan.sense * theta), wrappedTheta(theta)});
    };
    const double direction = plan.to < plan.from ? -1.0 : 1.0;
    const double span = std::abs(plan.to - plan.from);
    for (int i = 0; i * plan.step < span - sameAngle; ++i)
        add(tidied(plan.from + direction * i * plan.step));
    add(plan.to);

    if (limits) {
        const std::optional<double> shift = shiftInto(*limits, layout.points);
        if (!shift)
            return {PlanLayout::Problem::OutOfLimits, {}};
        for (PlanPoint &point : layout.points)
            point.wanted += *shift;
    }
    return layout;
}

double wrappedTheta(double angle)
{
    return std::abs(angle) <= turn / 2.0 ? angle : tidied(std::remainder(angle, turn));
}

double thetaAt(const SweepPlan &plan, double table)
{
    return wrappedTheta(tidied(plan.sense * (table - plan.zero)));
}

double angleBetween(double a, double b)
{
    return std::abs(std::remainder(a - b, turn));
}

double farFieldDistance(double diameter, double frequency)
{
    if (!(diameter > 0.0 && frequency > 0.0))
        return 0.0;
    return 2.0 * diameter * diameter * frequency / speedOfLight;
}

QString PlanText::problem(PlanLayout::Problem problem, const std::optional<TableLimits> &limits)
{
    switch (problem) {
    case PlanLayout::Problem::None:
        return {};
    case PlanLayout::Problem::NotFinite:
        return tr("An angle is no number.");
    case PlanLayout::Problem::Step:
        return tr("The step must be above 0 degrees.");
    case PlanLayout::Problem::Sense:
        return tr("The sense is 1 or -1.");
    case PlanLayout::Problem::Span:
        return tr("The sweep spans more than one turn.");
    case PlanLayout::Problem::TooMany:
        return tr("The sweep has too many points.");
    case PlanLayout::Problem::OutOfLimits:
        break;
    }
    return limits ? tr("The table does not reach all angles; it turns from %1 to %2 degrees.")
                        .arg(CurveText::number(limits->min), CurveText::number(limits->max))
                  : tr("The table does not reach all angles.");
}
