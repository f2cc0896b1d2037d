#include "patterns/chartpicture.h"

#include "2d/form/listchart.h"
#include "2d/view/graphicsbase.h"

#include <QBuffer>
#include <QChart>
#include <QFileInfo>
#include <QImageWriter>
#include <QLegend>
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
            metrics.elidedText(entry.name, Qt::ElideRight, width - 2 * margin - swatchSize);
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

/// What a view shows above its legend.
QRect chartArea(const GraphicsBase &view)
{
    const QtCharts::QLegend *legend = view.chart()->legend();
    const int bottom = legend->isVisible() ? qRound(legend->geometry().top()) : view.height();
    return {0, 0, view.width(), qMin(bottom, view.height())};
}

} // namespace

namespace ChartPicture {

QImage paint(const ListChart &form, qreal scale)
{
    GraphicsBase &left = form.polarChart();
    GraphicsBase &right = form.cartesianChart();
    const QRect leftArea = chartArea(left);
    const QRect rightArea = chartArea(right);
    const int width = leftArea.width() + rightArea.width();
    const int height = qMax(leftArea.height(), rightArea.height());
    const auto legend = legendLines(form.curves(), QFontMetrics(form.font()), width);
    const QSize size(width, height + legend.size() * lineHeight + margin);

    QImage image((QSizeF(size) * scale).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(scale, scale);
    left.paintPicture(painter, QRectF(leftArea), leftArea);
    right.paintPicture(painter, QRectF(rightArea.translated(leftArea.width(), 0)), rightArea);
    painter.setFont(form.font());
    paintLegend(painter, legend, QRect(0, height, width, size.height() - height));
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
