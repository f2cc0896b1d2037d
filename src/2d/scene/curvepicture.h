#pragma once

#include <QColor>
#include <QImage>
#include <QLineF>
#include <QRect>
#include <QVector>

#include <functional>

QT_BEGIN_NAMESPACE
class QPainter;
class QTransform;
QT_END_NAMESPACE

/// The strokes of a curve's segments, or another drawing, as a picture in the pixels of one device.
///
/// Painting strokes by QPainter takes a hundred times as long in one path, and leaves seams in
/// pieces.
class CurvePicture
{
public:
    /// How the stroke looks, and where it ends; scene coordinates.
    struct Style
    {
        QColor color;
        double width = 1.0;
        QRectF area;        ///< all that can be covered
        bool round = false; ///< whether only the circle in the area can be
    };

    /// Whether \a painter paints pixels, and its transformation leaves squares upright.
    static bool isPossible(const QPainter &painter);

    /// \a toDevice leads from the scene to the pixels.
    CurvePicture(const QVector<QLineF> &segments, const Style &style, const QTransform &toDevice);
    /// What \a draw draws in \a areas (scene coordinates).
    CurvePicture(const QVector<QRectF> &areas, const QTransform &toDevice,
                 const std::function<void(QPainter &)> &draw);

    /// Whether the picture fits, moved by whole pixels, where \a toDevice leads.
    bool fits(const QTransform &toDevice) const;
    void paint(QPainter &painter) const;

private:
    QImage m_image;
    QVector<QRect> m_parts; ///< of the image that hold anything
    QPoint m_corner;        ///< of the image, from where the scene's origin is drawn
    double m_scale = 1.0;
    QPointF m_fraction; ///< of a pixel, where the scene's origin is drawn
};
