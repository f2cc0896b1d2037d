#include "patterns/chartpicture.h"

#include "2d/form/listchart.h"
#include "2d/view/graphicsbase.h"
#include "patterns/svgdevice.h"

#include <QBuffer>
#include <QFileInfo>
#include <QFontInfo>
#include <QImageWriter>
#include <QPainter>

namespace {

constexpr int swatchSize = 12; // pixels, as all below
constexpr int swatchGap = 6;
constexpr int entryGap = 24;
constexpr int lineHeight = 22;
constexpr int margin = 12;

/// One curve under the picture.
struct LegendEntry
{
    QString name;
    QColor color;
    int width = 0;
};

using LegendLine = QVector<LegendEntry>;

int widthOf(const LegendLine &line)
{
    int width = 0;
    for (const LegendEntry &entry : line)
        width += entry.width;
    return width + entryGap * (line.size() - 1);
}

/// The shown curves in as many lines as \a width takes; the charts' own legends have but one line
/// and cut the names off.
QVector<LegendLine> legendLines(const CurveSet &curves, const QFontMetrics &metrics, int width)
{
    QVector<LegendLine> lines{LegendLine()};
    const QList<int> ids = curves.ids();
    for (const int id : ids) {
        if (curves.isHidden(id))
            continue;
        LegendEntry entry{curves.name(id), curves.color(id), 0};
        entry.name =
            metrics.elidedText(entry.name, Qt::ElideMiddle, width - 2 * margin - swatchSize);
        entry.width = swatchSize + swatchGap + metrics.horizontalAdvance(entry.name);
        if (!lines.last().isEmpty() &&
            widthOf(lines.last() + LegendLine{entry}) > width - 2 * margin)
            lines.append(LegendLine());
        lines.last().append(entry);
    }
    return lines;
}

void paintLegend(QPainter &painter, const QVector<LegendLine> &lines, const QRect &area)
{
    int top = area.top();
    for (const LegendLine &line : lines) {
        int left = area.left() + (area.width() - widthOf(line)) / 2;
        for (const LegendEntry &entry : line) {
            painter.fillRect(left, top + (lineHeight - swatchSize) / 2, swatchSize, swatchSize,
                             entry.color);
            painter.drawText(QRect(left + swatchSize + swatchGap, top, entry.width, lineHeight),
                             Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, entry.name);
            left += entry.width + entryGap;
        }
        top += lineHeight;
    }
}

/// Where the parts of the picture stand.
struct Layout
{
    explicit Layout(const ListChart &form)
        : left(form.polarChart().areaAboveLegend())
        , right(form.cartesianChart().areaAboveLegend())
    {
        const int width = left.width() + right.width();
        legend = legendLines(form.curves(), QFontMetrics(form.font()), width);
        size = {width, qMax(left.height(), right.height()) + legend.size() * lineHeight + margin};
    }

    QRect left;  ///< of the polar view
    QRect right; ///< of the cartesian view
    QVector<LegendLine> legend;
    QSize size;
};

} // namespace

namespace ChartPicture {

QImage paint(const ListChart &form, qreal scale)
{
    QImage image((QSizeF(size(form)) * scale).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(scale, scale);
    paintOn(painter, form);
    return image;
}

QSize size(const ListChart &form)
{
    const Layout layout(form);
    return layout.size;
}

void paintOn(QPainter &painter, const ListChart &form)
{
    const Layout layout(form);
    form.polarChart().paintPicture(painter, QRectF(layout.left), layout.left);
    form.cartesianChart().paintPicture(
        painter, QRectF(layout.right.translated(layout.left.width(), 0)), layout.right);
    QFont font = form.font();
    font.setPixelSize(QFontInfo(font).pixelSize()); // paper has points of its own
    painter.setFont(font);
    painter.setPen(Qt::black);
    const int top = qMax(layout.left.height(), layout.right.height());
    paintLegend(painter, layout.legend,
                QRect(0, top, layout.size.width(), layout.size.height() - top));
}

QByteArray svg(const ListChart &form)
{
    SvgDevice device(size(form), form.title());
    QPainter painter(&device);
    painter.fillRect(QRect(QPoint(), size(form)), Qt::white);
    paintOn(painter, form);
    painter.end();
    return device.document();
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
