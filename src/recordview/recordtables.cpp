#include "recordview/recordtables.h"

#include "recorddata/clockticks.h"
#include "recorddata/recordreader.h"
#include "recorddata/recordspan.h"

#include <QHeaderView>
#include <QTableWidget>
#include <QVBoxLayout>

#include <array>

namespace {

QTableWidget *createTable(QWidget *parent, const char *name, int columns)
{
    auto *table = new QTableWidget(0, columns, parent);
    table->setObjectName(QLatin1String(name));
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setTabKeyNavigation(false);
    table->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    return table;
}

void fill(QTableWidget *table, const QList<QStringList> &rows)
{
    table->setRowCount(rows.size());
    for (int row = 0; row < rows.size(); ++row) {
        table->setVerticalHeaderItem(row, new QTableWidgetItem(rows[row].constFirst()));
        for (int column = 0; column < table->columnCount(); ++column)
            table->setItem(row, column, new QTableWidgetItem(rows[row].value(column + 1)));
    }
}

QString decibels(const std::optional<double> &value, const QString &unit)
{
    return value ? QStringLiteral("%1 %2").arg(*value, 0, 'f', 4).arg(unit) : QStringLiteral("-");
}

QString textOf(const QTableWidget *table)
{
    QString text;
    for (int row = 0; row < table->rowCount(); ++row) {
        text += table->verticalHeaderItem(row)->text();
        for (int column = 0; column < table->columnCount(); ++column)
            text += QLatin1Char('\t') + table->item(row, column)->text();
        text += QLatin1Char('\n');
    }
    return text;
}

} // namespace

RecordTables::RecordTables(QWidget *parent)
    : QWidget(parent)
    , m_rows(createTable(this, "tableCursors", 2))
    , m_span(createTable(this, "tableSpan", 1))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_rows, 1);
    layout->addWidget(m_span, 1);
    retranslate();
}

void RecordTables::retranslate()
{
    m_rows->setAccessibleName(tr("Rows at the cursors"));
    m_span->setAccessibleName(tr("Between the cursors"));
    m_rows->setHorizontalHeaderLabels({QStringLiteral("A"), QStringLiteral("B")});
    m_span->setHorizontalHeaderLabels({tr("From A to B")});
}

void RecordTables::clear()
{
    m_rows->setRowCount(0);
    m_span->setRowCount(0);
}

void RecordTables::show(const RecordReader &reader, int a, int b)
{
    showRows(reader, a, b);
    showSpan(reader, a, b);
}

void RecordTables::showRows(const RecordReader &reader, int a, int b)
{
    const RecordData &record = reader.data();
    const auto level = [&record](int point) {
        const QString unit =
            record.isRelative(point) ? QStringLiteral("dB") : QStringLiteral("dBm");
        return decibels(record.level(point), unit);
    };
    QStringList times{tr("Time")};
    QStringList levels{tr("Level")};
    std::array<QStringList, 2> cells;
    for (const int point : {a, b}) {
        times.append(point < 0 ? QStringLiteral("-") : ClockTicks::text(record.time(point)));
        levels.append(point < 0 ? QStringLiteral("-") : level(point));
        if (point >= 0)
            cells[point == a ? 0 : 1] = reader.cells(reader.row(point));
    }
    if (a == b)
        cells[1] = cells[0];
    QList<QStringList> rows{times, levels};
    const QStringList names = a < 0 && b < 0 ? QStringList() : reader.columnNames();
    for (int i = 0; i < names.size(); ++i)
        rows.append(QStringList{names[i], cells[0].value(i), cells[1].value(i)});
    fill(m_rows, rows);
}

void RecordTables::showSpan(const RecordReader &reader, int a, int b)
{
    if (a < 0 || b < 0) {
        m_span->setRowCount(0);
        return;
    }
    const RecordSpan span = recordSpan(reader.data(), a, b);
    QList<QStringList> rows{
        {tr("Time"), ClockTicks::duration(span.seconds)},
        {tr("Difference"), decibels(span.difference, QStringLiteral("dB"))},
    };
    if (span.mixesUnits) {
        rows.append({tr("Mean"), tr("none: dB and dBm are mixed")});
    } else {
        const QString unit = span.isRelative ? QStringLiteral("dB") : QStringLiteral("dBm");
        const PowerStatistics &all = span.statistics;
        rows.append({tr("Mean"), decibels(all.mean(), unit)});
        rows.append({tr("Minimum"), decibels(all.minimum(), unit)});
        rows.append({tr("Maximum"), decibels(all.maximum(), unit)});
        rows.append(
            {tr("Peak to peak"), decibels(*all.maximum() - *all.minimum(), QStringLiteral("dB"))});
        rows.append({tr("Sigma"), decibels(all.sigma(), QStringLiteral("dB"))});
        rows.append({tr("Rows"), QString::number(all.count())});
    }
    rows.append({tr("Gaps"), QString::number(span.gaps)});
    fill(m_span, rows);
}

QString RecordTables::text() const
{
    return textOf(m_rows) + textOf(m_span);
}
