#include "2d/form/supplementarytable.h"

#include "2d/data/paratabletext.h"
#include "2d/scene/generatecolors.h"

#include <QEvent>
#include <QHeaderView>

namespace {

constexpr int nameWidth = 104; // pixels

} // namespace

SupplementaryTable::SupplementaryTable(QWidget *parent)
    : QTableWidget(parent)
{
    setColumnCount(1 + supplementColumns);
    verticalHeader()->hide();
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    horizontalHeader()->setSectionResizeMode(0, QHeaderView::Interactive);
    horizontalHeader()->resizeSection(0, nameWidth);
    horizontalHeader()->setHighlightSections(false);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::ContiguousSelection);
    retranslate();
}

void SupplementaryTable::updateFigures(const PatternSupplement &figures, int count,
                                       const QString &name, const QColor &color)
{
    setRowCount(count);
    const QStringList cells = QStringList(name) + supplementCells(figures);
    for (int column = 0; column < cells.size(); ++column) {
        auto *item = new QTableWidgetItem(cells.at(column));
        item->setToolTip(cells.at(column));
        setItem(count - 1, column, item);
    }
    item(count - 1, 0)->setIcon(curveSwatch(color));
}

QStringList SupplementaryTable::figureHeadings() const
{
    QStringList headings;
    for (int column = 1; column < columnCount(); ++column)
        headings.append(horizontalHeaderItem(column)->text());
    return headings;
}

void SupplementaryTable::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QTableWidget::changeEvent(event);
}

void SupplementaryTable::retranslate()
{
    setHorizontalHeaderLabels(
        {tr("Curve"), tr("HPBW [°]"), tr("FNBW [°]"), tr("SLL [dB]"), tr("F/B [dB]")});
    const QStringList meanings{
        tr("The curve"), tr("Half-power beam width, also across the ±180° seam"),
        tr("First-null beam width"), tr("Highest side lobe relative to the peak"),
        tr("Front-to-back ratio: peak level minus the level in the opposite direction")};
    for (int column = 0; column < columnCount(); ++column)
        horizontalHeaderItem(column)->setToolTip(meanings.at(column));
}
