#pragma once

#include "2d/data/curvealgebra.h"
#include "2d/data/parainfo.h"
#include "2d/data/patternsupplement.h"

#include <QPointF>
#include <QVector>

/// What the user chose of the figures.
struct FigureOptions
{
    double nullProminence = usualNullProminence; ///< dB
    QVector<double> drops; ///< where the beam's width is told, dB below the peak

    bool operator==(const FigureOptions &other) const
    {
        return nullProminence == other.nullProminence && drops == other.drops;
    }
};

/// All that is computed of one curve.
struct CurveFigures
{
    int id = 0;              ///< number of the curve
    QVector<QPointF> points; ///< what the figures were computed of, shared with the chart
    ParaInfo parameters;
    PatternSupplement supplement;
    QVector<BeamWidth> beams; ///< in the order of the options' drops
    FigureOptions options;
    /// Of a difference of two curves; not computed of its points.
    std::optional<CurveAlgebra::DifferenceFigures> difference;
};

/// The figures of curve \a id with \a points. Those of \a known are taken over where the points are
/// the very same ones, since a curve of a million points takes its time.
CurveFigures curveFigures(int id, const QVector<QPointF> &points,
                          const QVector<CurveFigures> &known, const FigureOptions &options = {});
