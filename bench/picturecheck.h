#pragma once

#include <QPointF>
#include <QString>
#include <QVector>

/// What is painted of a curve beside a plain stroke of all its points, 2 pixels wide, in the chart
/// of \a kind (0 cartesian, 1 polar): "missing ... %, beside ... %" of the stroke's pixels. Missing
/// are pixels that the stroke covers for more than half and we for less than a quarter, beside it
/// those the other way round.
QString comparedWithStroke(int kind, const QVector<QPointF> &points);
