#pragma once

#include <QByteArray>
#include <QImage>

class ListChart;

/// The charts of a form as one picture.
namespace ChartPicture {

/// Both charts side by side as they are shown, above one legend of all shown curves; \a scale times
/// as many pixels as on the screen.
QImage paint(const ListChart &form, qreal scale);

/// \a image in the format that the suffix of \a fileName names; empty when no such format is known.
QByteArray encode(const QImage &image, const QString &fileName);

} // namespace ChartPicture
