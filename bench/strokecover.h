#pragma once

#include <QImage>
#include <QPointF>
#include <QRectF>
#include <QVector>

/// How far a picture of a curve differs from a plain stroke of all its points, in percent of the
/// pixels that the stroke covers. Without such pixels all of them are missing.
struct StrokeDifference
{
    double missing = 100.0; ///< covered by the stroke and dark in the picture
    double beside = 100.0;  ///< bright in the picture, where the stroke is not
};

/// \a picture has the curve in white on black, drawn \a scale times as large as \a positions tell,
/// with a pen two units wide, within \a area or the circle in it.
StrokeDifference comparedWithStroke(const QImage &picture, const QVector<QPointF> &positions,
                                    const QRectF &area, bool round, double scale = 1.0);
