#pragma once

#include <QWidget>

class QTableWidget;
class RecordReader;

/// What the cursors of a record tell, in two tables: the rows that A and B stand on, and what lies
/// between them.
class RecordTables : public QWidget
{
    Q_OBJECT

public:
    explicit RecordTables(QWidget *parent = nullptr);

    /// Shows the points \a a and \a b of \a reader; -1 for a cursor that stands nowhere.
    void show(const RecordReader &reader, int a, int b);
    void clear();
    void retranslate();

    /// Both tables as text, a row a line, cells apart by tabs.
    QString text() const;

private:
    void showRows(const RecordReader &reader, int a, int b);
    void showSpan(const RecordReader &reader, int a, int b);

    QTableWidget *m_rows;
    QTableWidget *m_span;
};
