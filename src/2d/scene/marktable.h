#pragma once

#include "2d/scene/tablepanel.h"

#include <QMap>
#include <QTableWidget>

class MyMarkItem;

/// The small table of one curve's markers: number, x, y. It has rows while the curve has markers.
class MarkTable : public QTableWidget
{
    Q_OBJECT

public:
    explicit MarkTable(QWidget *parent = nullptr);

    /// Shows the markers of \a numbers that are in \a marks.
    void setMarks(const QList<int> &numbers, const QMap<int, MyMarkItem *> &marks);
    void setCurveName(const QString &name);
    /// Shows the markers behind the first as what they differ from it, from the next setMarks() on.
    void setDeltas(bool on) { m_deltas = on; }
    /// Calls the coordinates angle and level.
    void setPattern(bool isPattern);
    bool hasData() const { return rowCount() > 0; }
    /// The size that shows all rows, as long as they are not too many.
    QSize fittingSize() const;

protected:
    void changeEvent(QEvent *event) override;

private:
    void writeHeaders();

    QString m_curveName;
    bool m_isPattern = false;
    bool m_deltas = false;
};

/// The panel on the scene that hosts a MarkTable.
class MarkTablePanel : public TablePanel
{
    Q_OBJECT

public:
    explicit MarkTablePanel(QGraphicsItem *parent = nullptr);

    MarkTable *table() const { return m_table; }

private:
    MarkTable *m_table = nullptr;
};
