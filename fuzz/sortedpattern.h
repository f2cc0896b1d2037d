#pragma once

#include "2d/data/parainfo.h"

#include <QPointF>
#include <QVector>

/// The pattern figures computed the plain way: every figure for itself, from copies of the curve
/// sorted by level or by angle. Slow, and written independently of the analysis that it bears
/// witness to.
///
/// Where sorting leaves the order of equal keys open, equal angles keep the curve's order and of
/// equal greatest levels the one of the lowest angle comes last. \a points must not be empty.
ParaInfo figuresFromSortedCopies(const QVector<QPointF> &points);
