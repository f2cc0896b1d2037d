#include "2d/form/parainfotable.h"

#include "2d/data/paratabletext.h"

#include <QEvent>
#include <QHeaderView>

namespace {

constexpr int amplitudeColumn = 1;
constexpr int leastColumnWidth = 66;
constexpr int headerPadding = 18;

} // namespace

ParaInfoTable::ParaInfoTable(QWidget *parent)
    : QTableWidget(parent)
{
    setUp();
}

void ParaInfoTable::setUp()
{
    verticalHeader()->setVisible(false);
    horizontalHeader()->setVisible(true);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    setShowGrid(true);
    setEditTriggers(NoEditTriggers);
    setAccessibleName(tr("Pattern parameters by frequency"));
    setColumnCount(headerNames().size());
    nameColumns();
}

QStringList ParaInfoTable::headerNames() const
{
    QStringList names{
        tr("Frequency(MHz)"),     tr("Gain"),
        tr("3dB Width"),          tr("First Side Lobe(L)"),
        tr("First Side Lobe(R)"), tr("Before After Ratio"),
        tr("Axial Ratio"),        tr("CrossPolarRatio"),
    };
    if (m_columns == Columns::WithAmplitude)
        names.insert(amplitudeColumn, tr("Amplitude"));
    return names;
}

void ParaInfoTable::nameColumns()
{
    const QStringList names = headerNames();
    setHorizontalHeaderLabels(names);
    const QFontMetrics metrics(horizontalHeader()->font());
    for (int column = 0; column < names.size(); ++column) {
        const int nameWidth = metrics.horizontalAdvance(names[column]) + headerPadding;
        setColumnWidth(column, qMax(leastColumnWidth, nameWidth));
    }
    if (m_isReset)
        writeRow(0, names);
}

void ParaInfoTable::setColumns(Columns columns)
{
    if (columns == m_columns)
        return;
    m_columns = columns;
    if (columns == Columns::WithAmplitude)
        insertColumn(amplitudeColumn);
    else
        removeColumn(amplitudeColumn);
    nameColumns();
}

void ParaInfoTable::resetRows()
{
    m_isReset = true;
    setRowCount(1);
    writeRow(0, headerNames());
}

void ParaInfoTable::updateParaInfo(ParaInfo paraInfo, int count, QString frequency)
{
    m_isReset = m_isReset && count > 1;
    setRowCount(qMax(count, 0));
    if (count < 1)
        return;
    setMaximumHeight(rowHeight(0) * (count + 1));
    QStringList texts = frequencyTableCells(paraInfo, frequency);
    if (m_columns == Columns::WithAmplitude)
        texts.insert(amplitudeColumn, amplitudeCell(paraInfo));
    writeRow(count - 1, texts);
}

void ParaInfoTable::writeRow(int row, const QStringList &texts)
{
    for (int column = 0; column < texts.size(); ++column) {
        auto *cell = new QTableWidgetItem(texts[column]);
        cell->setTextAlignment(Qt::AlignCenter);
        setItem(row, column, cell);
    }
}

void ParaInfoTable::changeEvent(QEvent *event)
{
    QTableWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    setAccessibleName(tr("Pattern parameters by frequency"));
    nameColumns();
}
