#include "2d/scene/myparainfotable.h"

#include "2d/data/paratabletext.h"
#include "2d/scene/tablepanel.h"

#include <QEvent>
#include <QHeaderView>

namespace {

constexpr int figuresTableWidth = 300;
constexpr int columns = 3;

enum Column { NameColumn, AngleColumn, LevelColumn };

} // namespace

MyParaInfoTable::MyParaInfoTable(QWidget *parent)
    : QTableWidget(floatingTableRows, columns, parent)
{
    qRegisterMetaType<ParaInfo>("ParaInfo"); // by name, for connections across threads
    setUpHeaders();
    setEditTriggers(NoEditTriggers);
    setSelectionMode(NoSelection);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setStyleSheet(QStringLiteral("QTableView::item {height: 20px;}"));
    setFixedSize(figuresTableWidth, floatingTableRows * floatingRowHeight);
    setFrameShape(NoFrame);
    QFont small = font();
    small.setPixelSize(10); // the longest name just fits its third of the width
    setFont(small);
    setAccessibleName(tr("Pattern parameters"));
    setVisible(false);
}

bool MyParaInfoTable::getParaTableDataStatus() const
{
    return m_hasData;
}

void MyParaInfoTable::setUpHeaders()
{
    for (QHeaderView *header : {horizontalHeader(), verticalHeader()}) {
        header->setVisible(false);
        header->setTextElideMode(Qt::ElideRight);
        header->setHighlightSections(false);
    }
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    verticalHeader()->setMinimumSectionSize(floatingRowHeight);
    for (int row = 0; row < floatingTableRows; ++row)
        setRowHeight(row, floatingRowHeight);
}

void MyParaInfoTable::updateParaInfo(ParaInfo paraInfo)
{
    m_hasData = true;
    setVisible(true);
    writeNames();
    const std::array<FloatingTableRow, floatingTableRows> cells = floatingTableCells(paraInfo);
    for (int row = 0; row < floatingTableRows; ++row) {
        const FloatingTableRow &figures = cells[static_cast<std::size_t>(row)];
        writeCell(row, AngleColumn, figures.angle);
        writeCell(row, LevelColumn, figures.level);
        if (figures.angle.isEmpty() && columnSpan(row, NameColumn) == 1)
            setSpan(row, NameColumn, 1, 2); // the long names of the ratios need the room
    }
}

void MyParaInfoTable::clearParaInfo()
{
    m_hasData = false;
    setVisible(false);
}

void MyParaInfoTable::writeNames()
{
    const std::array<QString, floatingTableRows> names{
        tr("Gain"),
        tr("3dB (L)"),
        tr("3dB (R)"),
        tr("3dB Width"),
        tr("First Null(L)"),
        tr("First Null(R)"),
        tr("First Side Lobe(L)"),
        tr("First Side Lobe(R)"),
        tr("Before After Ratio(R)"),
        tr("Axial Ratio"),
        tr("CrossPolarRatio"),
    };
    for (int row = 0; row < floatingTableRows; ++row)
        writeCell(row, NameColumn, names[static_cast<std::size_t>(row)]);
}

void MyParaInfoTable::writeCell(int row, int column, const QString &text)
{
    QTableWidgetItem *cell = item(row, column);
    if (!cell) {
        cell = new QTableWidgetItem;
        const Qt::Alignment side = column == NameColumn ? Qt::AlignLeft : Qt::AlignRight;
        cell->setTextAlignment(static_cast<int>(side | Qt::AlignVCenter));
        setItem(row, column, cell);
    }
    cell->setText(text);
    cell->setToolTip(text);
}

void MyParaInfoTable::changeEvent(QEvent *event)
{
    QTableWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    setAccessibleName(tr("Pattern parameters"));
    if (m_hasData)
        writeNames();
}
