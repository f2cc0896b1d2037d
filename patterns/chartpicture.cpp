#include "patterns/chartpicture.h"

#include "2d/graphicsbase.h"
#include "2d/listchart.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageWriter>
#include <QPainter>

namespace ChartPicture {

QImage paint(const ListChart &form, qreal scale)
{
    GraphicsBase &left = form.polarChart();
    GraphicsBase &right = form.cartesianChart();
    const QSize size(left.width() + right.width(), qMax(left.height(), right.height()));
    QImage image((QSizeF(size) * scale).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(scale, scale);
    left.render(&painter, QRectF(QPointF(0, 0), left.size()), QRect(QPoint(0, 0), left.size()));
    right.render(&painter, QRectF(QPointF(left.width(), 0), right.size()),
                 QRect(QPoint(0, 0), right.size()));
    return image;
}

QByteArray encode(const QImage &image, const QString &fileName)
{
    const QByteArray format = QFileInfo(fileName).suffix().toLower().toLatin1();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    if (!writer.write(image))
        return {};
    return bytes;
}

} // namespace ChartPicture
