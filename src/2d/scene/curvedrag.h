#pragma once

#include <QPixmap>
#include <QVector>

class QColor;
class QMimeData;
class QPointF;
class QString;

/// The data of a curve that is dragged out of a chart: its clipboard text. The caller owns them.
QMimeData *curveDragData(const QString &name, const QVector<QPointF> &points);

/// A small chart of the curve, to hang on the pointer while it is dragged. \a kind is that of the
/// chart view: 0 cartesian, 1 polar.
QPixmap curveDragPixmap(int kind, const QColor &color, const QVector<QPointF> &points);
