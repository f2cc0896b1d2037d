#pragma once

#include "2d/data/parainfo.h"
#include "2d/data/patternsupplement.h"

#include <QPointF>
#include <QVector>

/// All that is computed of one curve.
struct CurveFigures
{
    int id = 0;              ///< number of the curve
    QVector<QPointF> points; ///< what the figures were computed of, shared with the chart
    ParaInfo parameters;
    PatternSupplement supplement;
    double nullProminence = usualNullProminence; ///< that of the supplement, dB
};

/// The figures of curve \a id with \a points. Those of \a known are taken over where the points are
/// the very same ones, since a curve of a million points takes its time.
CurveFigures curveFigures(int id, const QVector<QPointF> &points,
                          const QVector<CurveFigures> &known,
                          double nullProminence = usualNullProminence);
