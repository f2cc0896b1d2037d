#include "2d/data/curvefigures.h"

#include "2d/data/patternanalysis.h"

#include <algorithm>

CurveFigures curveFigures(int id, const QVector<QPointF> &points,
                          const QVector<CurveFigures> &known, const FigureOptions &options)
{
    const auto same = std::find_if(known.begin(), known.end(), [&](const CurveFigures &figures) {
        return figures.id == id && figures.points.constData() == points.constData();
    });
    CurveFigures figures;
    if (same != known.end()) {
        figures = *same;
        if (figures.options == options)
            return figures;
    } else {
        figures.id = id;
        figures.points = points;
        if (const auto analysis = analysePattern(points))
            figures.parameters = analysis->figures;
    }
    figures.options = options;
    figures.supplement = supplementaryFigures(points, options.nullProminence);
    figures.beams = beamWidths(points, options.drops);
    return figures;
}
