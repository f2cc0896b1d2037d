#pragma once

#include <QByteArray>
#include <QImage>

class ListChart;
class QPainter;

/// The charts of a form as one picture.
namespace ChartPicture {

/// Pixels of a saved picture for each one on the screen, a measure for prints.
constexpr qreal savedScale = 2.0;

/// Both charts side by side as they are shown, above one legend of all shown curves; \a scale times
/// as many pixels as on the screen.
QImage paint(const ListChart &form, qreal scale);

/// The size of that picture on the screen, pixels.
QSize size(const ListChart &form);
/// Paints that picture with its upper left corner at the origin: as lines where the device of
/// \a painter has lines.
void paintOn(QPainter &painter, const ListChart &form);
/// The same as an SVG document.
QByteArray svg(const ListChart &form);

/// \a image in the format that the suffix of \a fileName names; empty when no such format is known.
QByteArray encode(const QImage &image, const QString &fileName);

} // namespace ChartPicture
