#include "2d/scene/marktable.h"

#include "2d/data/paratabletext.h"
#include "2d/scene/mymarkitem.h"
#include "2d/scene/tablepanel.h"

#include <QEvent>
#include <QHeaderView>

namespace {

constexpr int headerHeight = 24;
constexpr int markTableWidth = 210;

enum MarkColumn { NumberColumn, XColumn, YColumn, ColumnCount };

QTableWidgetItem *cell(const QString &text, Qt::Alignment alignment)
{
    auto *item = new QTableWidgetItem(text);
    item->setTextAlignment(static_cast<int>(alignment));
    return item;
}

QTableWidgetItem *numberCell(double value)
{
    constexpr int decimals = 2;
    return cell(fixedNumber(value, decimals), Qt::AlignRight | Qt::AlignVCenter);
}

} // namespace

MarkTable::MarkTable(QWidget *parent)
    : QTableWidget(0, ColumnCount, parent)
{
    constexpr int textSize = 8;
    QFont textFont = font();
    textFont.setPointSize(textSize);
    setFont(textFont);
    horizontalHeader()->setFont(textFont);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(NoSelection);
    setFocusPolicy(Qt::NoFocus);
    setFrameShape(StyledPanel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalHeader()->setVisible(false);
    verticalHeader()->setMinimumSectionSize(floatingRowHeight);
    verticalHeader()->setDefaultSectionSize(floatingRowHeight);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setTextElideMode(Qt::ElideRight);
    horizontalHeader()->setFixedHeight(headerHeight);
    setMinimumSize(1, 1); // else a table of one row would be as tall as its hint
    writeHeaders();
}

void MarkTable::writeHeaders()
{
    setAccessibleName(tr("Markers"));
    setHorizontalHeaderLabels({m_curveName.isEmpty() ? tr("Marker") : m_curveName,
                               m_isPattern ? tr("Angle") : tr("X"),
                               m_isPattern ? tr("Level") : tr("Y")});
    horizontalHeaderItem(NumberColumn)->setToolTip(m_curveName);
}

void MarkTable::setPattern(bool isPattern)
{
    m_isPattern = isPattern;
    writeHeaders();
}

void MarkTable::setCurveName(const QString &name)
{
    m_curveName = name;
    writeHeaders();
}

void MarkTable::setMarks(const QList<int> &numbers, const QMap<int, MyMarkItem *> &marks)
{
    setRowCount(0);
    const MyMarkItem *reference = nullptr;
    for (const int number : numbers) {
        const MyMarkItem *mark = marks.value(number);
        if (!mark)
            continue;
        const int row = rowCount();
        insertRow(row);
        QString name = QStringLiteral("M%1").arg(number);
        QPointF value = mark->valuePoint();
        if (m_deltas && reference) {
            name += QStringLiteral(" - M%1").arg(reference->markId());
            value -= reference->valuePoint();
        } else {
            reference = mark;
        }
        setItem(row, NumberColumn, cell(name, Qt::AlignCenter));
        setItem(row, XColumn, numberCell(value.x()));
        setItem(row, YColumn, numberCell(value.y()));
    }
}

QSize MarkTable::fittingSize() const
{
    return {markTableWidth, headerHeight + rowCount() * floatingRowHeight + 2 * frameWidth()};
}

void MarkTable::changeEvent(QEvent *event)
{
    QTableWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        writeHeaders();
}

MarkTablePanel::MarkTablePanel(QGraphicsItem *parent)
    : TablePanel(parent)
    , m_table(new MarkTable)
{
    m_table->setVisible(false);
    setWidget(m_table);
}
