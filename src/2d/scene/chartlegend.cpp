#include "2d/scene/chartlegend.h"

#include "2d/scene/generatecolors.h"

#include <QChart>
#include <QFontMetricsF>
#include <QGraphicsSceneHoverEvent>
#include <QGraphicsSceneMouseEvent>
#include <QLegend>
#include <QLegendMarker>
#include <QPainter>

#include <algorithm>
#include <cmath>

using namespace QtCharts;

namespace {

// Pixels.
constexpr double rowHeight = 19.0;
constexpr double swatch = 9.0;
constexpr double swatchGap = 5.0;
constexpr double columnGap = 12.0;
constexpr double margin = 6.0;
constexpr double narrowestColumn = 64.0;
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

bool hasTwins(QStringList names)
{
    return names.removeDuplicates() > 0;
}

} // namespace

ChartLegend::ChartLegend(QChart &chart, const QFont &font)
    : QGraphicsItem(&chart)
    , m_chart(chart)
    , m_font(font)
{
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
    if (width <= size.width() - 2.0 * margin)
        arrangeRow(names, size);
    else
        arrangeGrid(names, size);
    m_area = QRectF(QPointF(), size);
    m_area.setTop(m_cells.first().place.top());
    return m_area.height();
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
    const double width = size.width() - 2.0 * margin;
    const int mostRows = std::max(1, static_cast<int>(size.height() * greatestShare / rowHeight));
    const int mostColumns = std::max(1, static_cast<int>(width / narrowestColumn));
    double longest = narrowestColumn;
    for (const QString &name : names)
        longest = std::max(longest, widthOf(name));
    int columns = qBound(1, static_cast<int>(width / longest), count);
    if (columns * mostRows < count)
        columns = std::min(mostColumns, (count + mostRows - 1) / mostRows);
    const int rows = std::min(mostRows, (count + columns - 1) / columns);
    const double column = std::min(longest, width / columns);
    const QStringList texts = shortened(names, column - swatch - swatchGap - columnGap);
    const double left = (size.width() - columns * column + columnGap) / 2.0;
    const double top = size.height() - rows * rowHeight;
    for (int i = 0; i < count; ++i) {
        m_cells[i].text = texts.at(i);
        m_cells[i].place = {left + (i % columns) * column,
                            top + std::floor(i / columns) * rowHeight, column, rowHeight};
    }
    const int room = rows * columns;
    if (count <= room)
        return;
    m_cells.resize(room);
    m_cells.last().entry = nullptr;
    m_cells.last().text = QStringLiteral("+%1").arg(count - room + 1);
}

/// Without their middles; or, where that makes some of them alike, without the start that all have.
QStringList ChartLegend::shortened(const QStringList &names, double width) const
{
    const QFontMetricsF metrics(m_font);
    QStringList texts;
    for (const QString &name : names)
        texts.append(metrics.elidedText(name, Qt::ElideMiddle, width));
    const int start = commonStart(names);
    if (!hasTwins(texts) || start == 0)
        return texts;
    for (int i = 0; i < texts.size(); ++i)
        texts[i] = metrics.elidedText(QChar(0x2026) + names.at(i).mid(start), Qt::ElideRight, width);
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
    const auto cell = std::find_if(m_cells.cbegin(), m_cells.cend(), [&](const Cell &each) {
        return each.place.contains(position);
    });
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
