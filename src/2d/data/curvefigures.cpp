#include "2d/data/curvefigures.h"

#include "2d/data/patternanalysis.h"

#include <algorithm>

CurveFigures curveFigures(int id, const QVector<QPointF> &points,
                          const QVector<CurveFigures> &known)
{
    const auto same = std::find_if(known.begin(), known.end(), [&](const CurveFigures &figures) {
        return figures.id == id && figures.points.constData() == points.constData();
    });
    if (same != known.end())
        return *same;
    CurveFigures figures;
    figures.id = id;
    figures.points = points;
    if (const auto analysis = analysePattern(points))
        figures.parameters = analysis->figures;
    figures.supplement = supplementaryFigures(points);
    return figures;
}
