#pragma once

#include <QCoreApplication>
#include <QString>
#include <QVector>

#include <optional>

/// What is to be measured. Angles are those of the curve (θ) in degrees, but for the zero, which is
/// the table's angle where θ is 0. The table's angle is zero + sense · θ.
struct SweepPlan
{
    double from = -180.0;
    double to = 180.0;
    double step = 5.0; ///< above 0, whichever way the sweep goes
    double zero = 0.0;
    int sense = 1; ///< 1 or -1

    bool operator==(const SweepPlan &other) const;
};

/// The angles that a table reaches, degrees.
struct TableLimits
{
    double min = 0.0;
    double max = 0.0;
};

/// One point of a plan.
struct PlanPoint
{
    double wanted = 0.0; ///< the table's angle, unwrapped, degrees
    double theta = 0.0;  ///< on the curve, -180 to 180
};

/// The points of a plan in the order in which they are measured, or what is wrong with it.
struct PlanLayout
{
    enum class Problem {
        None,
        NotFinite,   ///< an angle is no number
        Step,        ///< not above 0
        Sense,       ///< neither 1 nor -1
        Span,        ///< more than one turn
        TooMany,     ///< more than 100,000 points
        OutOfLimits, ///< the table does not reach it, turned by ±360 neither
    };

    Problem problem = Problem::None;
    QVector<PlanPoint> points; ///< table angles monotonic; empty with a problem
};

/// Lays out \a plan: the last point is its end, also where the step does not divide. As a whole it
/// is shifted by ±360 where that brings it into \a limits; without limits it stands as it is.
PlanLayout layOut(const SweepPlan &plan, const std::optional<TableLimits> &limits);

/// \a angle turned into -180 to 180; both ends stay what they are.
double wrappedTheta(double angle);

/// θ, wrapped, at the table's angle \a table.
double thetaAt(const SweepPlan &plan, double table);

/// How far two angles are apart on the circle, 0 to 180.
double angleBetween(double a, double b);

/// 2D²/λ in metres: beyond it an antenna of \a diameter metres is in the far field at \a frequency
/// hertz. 0 where one of them is not above 0.
double farFieldDistance(double diameter, double frequency);

/// What is told of plans in the user's language.
class PlanText
{
    Q_DECLARE_TR_FUNCTIONS(PlanText)

public:
    /// One sentence about \a problem; empty for none.
    static QString problem(PlanLayout::Problem problem, const std::optional<TableLimits> &limits);
};
