#include "2d/scene/curvepicture.h"

#include "2d/data/strokemask.h"

#include <QPaintEngine>
#include <QPainter>
#include <QRegion>
#include <QTransform>

#include <array>
#include <cmath>

namespace {

constexpr double nearlySame = 1e-3;

QPoint wholePixels(const QTransform &toDevice)
{
    return {static_cast<int>(std::floor(toDevice.dx() + nearlySame)),
            static_cast<int>(std::floor(toDevice.dy() + nearlySame))};
}

QVector<QLineF> mapped(const QVector<QLineF> &segments, double scale, const QPointF &offset)
{
    QVector<QLineF> pixels = segments;
    for (QLineF &segment : pixels)
        segment.setPoints(segment.p1() * scale + offset, segment.p2() * scale + offset);
    return pixels;
}

/// The colour for every cover.
std::array<QRgb, 256> shades(const QColor &color)
{
    std::array<QRgb, 256> shades{};
    for (std::size_t cover = 0; cover < shades.size(); ++cover) {
        const int alpha = color.alpha() * static_cast<int>(cover) / 255;
        shades[cover] = qPremultiply(qRgba(color.red(), color.green(), color.blue(), alpha));
    }
    return shades;
}

} // namespace

bool CurvePicture::isPossible(const QPainter &painter)
{
    const QTransform &transform = painter.deviceTransform();
    return painter.paintEngine()->type() == QPaintEngine::Raster &&
           transform.type() <= QTransform::TxScale && transform.m11() > 0.0 &&
           qFuzzyCompare(transform.m11(), transform.m22());
}

CurvePicture::CurvePicture(const QVector<QLineF> &segments, const Style &style,
                           const QTransform &toDevice)
    : m_scale(toDevice.m11())
    , m_fraction(QPointF(toDevice.dx(), toDevice.dy()) - wholePixels(toDevice))
{
    const QRectF area(style.area.topLeft() * m_scale + m_fraction, style.area.size() * m_scale);
    const QRect pixels = area.toRect();
    m_corner = pixels.topLeft();
    StrokeMask mask(pixels.width(), pixels.height(), style.width * m_scale);
    mask.add(mapped(segments, m_scale, m_fraction - m_corner));
    if (style.round)
        mask.cutToCircle(area.center() - m_corner, 0.5 * area.width());

    m_parts = mask.coveredParts();
    m_image = QImage(pixels.size(), QImage::Format_ARGB32_Premultiplied);
    const std::array<QRgb, 256> shade = shades(style.color);
    for (const QRect &part : qAsConst(m_parts)) {
        for (int y = part.top(); y <= part.bottom(); ++y) {
            const unsigned char *cover = mask.row(y);
            auto *line = reinterpret_cast<QRgb *>(m_image.scanLine(y));
            for (int x = part.left(); x <= part.right(); ++x)
                line[x] = shade[cover[x]];
        }
    }
}

CurvePicture::CurvePicture(const QVector<QRectF> &areas, const QTransform &toDevice,
                           const std::function<void(QPainter &)> &draw)
    : m_scale(toDevice.m11())
    , m_fraction(QPointF(toDevice.dx(), toDevice.dy()) - wholePixels(toDevice))
{
    QTransform toPixels(m_scale, 0.0, 0.0, m_scale, m_fraction.x(), m_fraction.y());
    QRegion pixels; // its rectangles do not overlap, so that nothing is blended twice
    for (const QRectF &area : areas)
        pixels += toPixels.mapRect(area).toAlignedRect();
    m_corner = pixels.boundingRect().topLeft();
    pixels.translate(-m_corner);
    m_parts = QVector<QRect>(pixels.begin(), pixels.end());
    m_image = QImage(pixels.boundingRect().size(), QImage::Format_ARGB32_Premultiplied);
    m_image.fill(Qt::transparent);
    QPainter painter(&m_image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setWorldTransform(toPixels * QTransform::fromTranslate(-m_corner.x(), -m_corner.y()));
    draw(painter);
}

bool CurvePicture::fits(const QTransform &toDevice) const
{
    const QPointF fraction = QPointF(toDevice.dx(), toDevice.dy()) - wholePixels(toDevice);
    return qFuzzyCompare(toDevice.m11(), m_scale) &&
           (fraction - m_fraction).manhattanLength() < nearlySame;
}

void CurvePicture::paint(QPainter &painter) const
{
    const QPoint corner = wholePixels(painter.deviceTransform()) + m_corner;
    const QTransform world = painter.worldTransform();
    painter.setWorldTransform(QTransform());
    // What is left leads to the pixels of a dense screen, or into a part of a window.
    const QTransform rest = painter.deviceTransform();
    const QTransform toPainter = rest.inverted();
    for (const QRect &part : m_parts)
        painter.drawImage(toPainter.mapRect(QRectF(part.translated(corner))), m_image, part);
    painter.setWorldTransform(world);
}
