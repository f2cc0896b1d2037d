#include "2d/scene/chartlegend.h"

#include "2d/scene/generatecolors.h"

#include <QChart>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QGraphicsSceneHoverEvent>
#include <QGraphicsSceneMouseEvent>
#include <QHash>
#include <QLegend>
#include <QLegendMarker>
#include <QPainter>

#include <algorithm>

using namespace QtCharts;

namespace {

// Pixels.
constexpr double rowHeight = 19.0;
constexpr double swatch = 9.0;
constexpr double swatchGap = 5.0;
constexpr double columnGap = 12.0;
constexpr double sideMargin = 6.0;
constexpr double narrowestColumn = 64.0;
constexpr double widestColumn = 220.0; // one long name is no reason for a single column
/// The rows take no more of the chart's height.
constexpr double greatestShare = 0.3;

/// The number of characters that all \a names begin with.
int commonStart(const QStringList &names)
{
    int length = names.first().size();
    for (const QString &name : names) {
        const auto end = std::mismatch(name.begin(), name.begin() + std::min(length, name.size()),
                                       names.first().begin());
        length = static_cast<int>(end.first - name.begin());
    }
    return length;
}

} // namespace

ChartLegend::ChartLegend(QChart &chart, const QFont &font)
    : QGraphicsItem(&chart)
    , m_chart(chart)
    , m_font(font)
{
    // On paper points would be taken for those of the page.
    m_font.setPixelSize(QFontInfo(font).pixelSize());
    setAcceptHoverEvents(true);
    setAcceptedMouseButtons(Qt::LeftButton);
}

double ChartLegend::widthOf(const QString &name) const
{
    return swatch + swatchGap + QFontMetricsF(m_font).horizontalAdvance(name) + columnGap;
}

double ChartLegend::arrange(const QSizeF &size)
{
    prepareGeometryChange();
    m_cells.clear();
    m_area = {};
    QStringList names;
    double width = 0.0;
    const QList<QLegendMarker *> entries = m_chart.legend()->markers();
    for (QLegendMarker *entry : entries) {
        m_cells.append({entry, {}, {}});
        names.append(entry->series()->name());
        width += widthOf(names.last());
    }
    if (m_cells.isEmpty() || size.isEmpty())
        return 0.0;
    if (width <= size.width() - 2.0 * sideMargin)
        arrangeRow(names, size);
    else
        arrangeGrid(names, size);
    m_area = QRectF(QPointF(), size);
    m_area.setTop(m_cells.first().place.top());
    return m_area.height();
}

QStringList ChartLegend::texts() const
{
    QStringList texts;
    for (const Cell &cell : m_cells)
        texts.append(cell.text);
    return texts;
}

/// One row, as wide as the names are.
void ChartLegend::arrangeRow(const QStringList &names, const QSizeF &size)
{
    double width = 0.0;
    for (const QString &name : names)
        width += widthOf(name);
    double left = (size.width() - width + columnGap) / 2.0;
    for (int i = 0; i < m_cells.size(); ++i) {
        const double own = widthOf(names.at(i));
        m_cells[i].text = names.at(i);
        m_cells[i].place = {left, size.height() - rowHeight, own, rowHeight};
        left += own;
    }
}

/// Columns of one width: that of the longest name, or less where the rows would become too many.
void ChartLegend::arrangeGrid(const QStringList &names, const QSizeF &size)
{
    const int count = m_cells.size();
    const double width = size.width() - 2.0 * sideMargin;
    const int mostRows = std::max(1, static_cast<int>(size.height() * greatestShare / rowHeight));
    const int mostColumns = std::max(1, static_cast<int>(width / narrowestColumn));
    double longest = narrowestColumn;
    for (const QString &name : names)
        longest = qBound(longest, widthOf(name), widestColumn);
    int across = qBound(1, static_cast<int>(width / longest), count);
    if (across * mostRows < count)
        across = std::min(mostColumns, (count + mostRows - 1) / mostRows);
    const int down = std::min(mostRows, (count + across - 1) / across);
    const double column = std::min(longest, width / across);
    const QStringList texts = shortened(names, column - swatch - swatchGap - columnGap);
    const double left = (size.width() - across * column + columnGap) / 2.0;
    const double top = size.height() - down * rowHeight;
    for (int i = 0; i < count; ++i) {
        m_cells[i].text = texts.at(i);
        const int row = i / across;
        m_cells[i].place = {left + (i % across) * column, top + row * rowHeight, column, rowHeight};
    }
    const int room = down * across;
    if (count <= room)
        return;
    m_cells.resize(room);
    m_cells.last().entry = nullptr;
    m_cells.last().text = QStringLiteral("+%1").arg(count - room + 1);
}

/// Without their middles; those that this makes alike, without the start that they share instead.
QStringList ChartLegend::shortened(const QStringList &names, double width) const
{
    const QFontMetricsF metrics(m_font);
    QStringList elided;
    QHash<QString, QStringList> twins;
    for (const QString &name : names) {
        elided.append(metrics.elidedText(name, Qt::ElideMiddle, width));
        twins[elided.last()].append(name);
    }
    QStringList texts;
    for (int i = 0; i < names.size(); ++i) {
        const QStringList alike = twins.value(elided.at(i));
        const int start = alike.size() > 1 ? commonStart(alike) : 0;
        // One name may be all that another begins with.
        const bool leavesRest = start > 0 && start < names.at(i).size();
        texts.append(leavesRest ? metrics.elidedText(names.at(i).mid(start), Qt::ElideRight, width)
                                : elided.at(i));
    }
    return texts;
}

void ChartLegend::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    painter->setFont(m_font);
    for (const Cell &cell : qAsConst(m_cells)) {
        QRectF text = cell.place.adjusted(0.0, 0.0, -columnGap, 0.0);
        painter->setPen(Qt::black);
        if (cell.entry) {
            const QRectF colour(cell.place.left(), cell.place.center().y() - swatch / 2.0, swatch,
                                swatch);
            painter->fillRect(colour, cell.entry->brush());
            text.setLeft(colour.right() + swatchGap);
            painter->setPen(cell.entry->labelBrush().color());
        }
        painter->drawText(text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, cell.text);
    }
}

const ChartLegend::Cell *ChartLegend::cellAt(const QPointF &position) const
{
    const auto cell = std::find_if(m_cells.cbegin(), m_cells.cend(),
                                   [&](const Cell &each) { return each.place.contains(position); });
    return cell == m_cells.cend() || !cell->entry ? nullptr : cell;
}

void ChartLegend::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    const Cell *cell = cellAt(event->pos());
    if (!cell) {
        event->ignore();
        return;
    }
    emit cell->entry->clicked();
}

void ChartLegend::hoverMoveEvent(QGraphicsSceneHoverEvent *event)
{
    const Cell *cell = cellAt(event->pos());
    setToolTip(cell ? plainToolTip(cell->entry->series()->name()) : QString());
}
