#include "2d/form/supplementarytable.h"

#include "2d/data/curvefigures.h"
#include "2d/data/curvetext.h"
#include "2d/scene/generatecolors.h"

#include <QEvent>
#include <QHeaderView>

#include <algorithm>

namespace {

constexpr int nameColumnWidth = 104; // pixels
constexpr int leastWidth = 78;

} // namespace

SupplementaryTable::SupplementaryTable(QWidget *parent)
    : QTableWidget(parent)
{
    setColumnCount(1 + m_columns.count());
    verticalHeader()->hide();
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    horizontalHeader()->setMinimumSectionSize(leastWidth);
    horizontalHeader()->setSectionResizeMode(0, QHeaderView::Interactive);
    horizontalHeader()->resizeSection(0, nameColumnWidth);
    horizontalHeader()->setHighlightSections(false);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTextElideMode(Qt::ElideMiddle);
    setWordWrap(false);
    setSelectionMode(QAbstractItemView::ContiguousSelection);
    retranslate();
}

void SupplementaryTable::setColumns(const SupplementColumns &columns)
{
    if (columns.drops == m_columns.drops && columns.differences == m_columns.differences)
        return;
    m_columns = columns;
    setColumnCount(1 + m_columns.count());
    retranslate();
}

void SupplementaryTable::updateFigures(const CurveFigures &figures, int count, const QString &name,
                                       const QColor &color)
{
    setRowCount(count);
    const QStringList cells = QStringList(name) + supplementCells(figures, m_columns);
    for (int column = 0; column < cells.size(); ++column) {
        auto *item = new QTableWidgetItem(cells.at(column));
        item->setToolTip(plainToolTip(cells.at(column)));
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
    QStringList names{tr("Curve"),    tr("HPBW [°]"), tr("FNBW [°]"),  tr("SLL [dB]"),
                      tr("F/B [dB]"), tr("Peak [°]"), tr("Squint [°]")};
    QStringList meanings{
        tr("The curve"),
        tr("Half-power beam width, also across the ±180° seam"),
        tr("First-null beam width"),
        tr("Highest side lobe relative to the peak"),
        tr("Front-to-back ratio: peak level minus the level in the opposite direction"),
        tr("Direction of the peak"),
        tr("Direction of the middle between the half-power points")};
    for (const double drop : qAsConst(m_columns.drops)) {
        const QString level = CurveText::number(-drop);
        names.append(tr("BW %1 dB [°]").arg(level));
        meanings.append(tr("Beam width at %1 dB from the peak, also across a seam").arg(level));
    }
    if (m_columns.differences) {
        names += {tr("Mean [dB]"), tr("Greatest [dB]"), tr("RMS [dB]")};
        const QString region = tr("of a difference, within 20 dB below the first curve's peak");
        meanings += {tr("Mean %1").arg(region), tr("Greatest magnitude %1").arg(region),
                     tr("Root mean square %1").arg(region)};
    }
    setHorizontalHeaderLabels(names);
    for (int column = 0; column < columnCount(); ++column)
        horizontalHeaderItem(column)->setToolTip(meanings.at(column));
    int widest = leastWidth;
    for (int column = 1; column < columnCount(); ++column)
        widest = std::max(widest, horizontalHeader()->sectionSizeHint(column));
    horizontalHeader()->setMinimumSectionSize(widest);
}
