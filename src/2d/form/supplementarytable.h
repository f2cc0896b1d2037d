#pragma once

#include "2d/data/supplementtext.h"

#include <QTableWidget>

/// The textbook figures of the curves, one row a curve: a table apart from the ParaInfoTable, since
/// both know a "width" and mean different things by it.
class SupplementaryTable : public QTableWidget
{
    Q_OBJECT

public:
    explicit SupplementaryTable(QWidget *parent = nullptr);

    /// Writes row \a count - 1 of \a count, with \a name and its colour in front of the figures.
    void updateFigures(const CurveFigures &figures, int count, const QString &name,
                       const QColor &color);

    /// Shows the usual columns and \a columns.
    void setColumns(const SupplementColumns &columns);

    /// The headings, the one above the names excepted.
    QStringList figureHeadings() const;

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();

    SupplementColumns m_columns;
};
