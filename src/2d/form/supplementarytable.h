#pragma once

#include <QTableWidget>

struct PatternSupplement;

/// The textbook figures of the curves, one row a curve: a table apart from the ParaInfoTable, since
/// both know a "width" and mean different things by it.
class SupplementaryTable : public QTableWidget
{
    Q_OBJECT

public:
    explicit SupplementaryTable(QWidget *parent = nullptr);

    /// Writes row \a count - 1 of \a count, with \a name and its colour in front of the figures.
    void updateFigures(const PatternSupplement &figures, int count, const QString &name,
                       const QColor &color);

    /// The headings, the one above the names excepted.
    QStringList figureHeadings() const;

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
};
