#pragma once

#include <QFont>
#include <QGraphicsItem>
#include <QStringList>
#include <QVector>

QT_BEGIN_NAMESPACE
namespace QtCharts {
class QChart;
class QLegendMarker;
} // namespace QtCharts
QT_END_NAMESPACE

/// The names of a chart's curves below it, in as many rows and columns as they need: the chart's
/// own legend has but one row, and shortens all names until nobody can tell them.
///
/// Shows the entries of the chart's own legend, which stays hidden, and tells it of presses.
class ChartLegend : public QGraphicsItem
{
public:
    /// \a chart becomes the parent.
    ChartLegend(QtCharts::QChart &chart, const QFont &font);

    /// Takes the entries over and finds their places below a chart of \a size. Returns the height
    /// that they take, 0 without entries.
    double arrange(const QSizeF &size);

    /// What is written, in its order: names, shortened where they must be, and perhaps the number
    /// of those that have no place, as "+3".
    QStringList texts() const;

    QRectF boundingRect() const override { return m_area; }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void hoverMoveEvent(QGraphicsSceneHoverEvent *event) override;

private:
    struct Cell
    {
        QtCharts::QLegendMarker *entry = nullptr; ///< null: how many more there are
        QString text;
        QRectF place;
    };

    void arrangeRow(const QStringList &names, const QSizeF &size);
    void arrangeGrid(const QStringList &names, const QSizeF &size);
    QStringList shortened(const QStringList &names, double width) const;
    double widthOf(const QString &name) const;
    const Cell *cellAt(const QPointF &position) const;

    QtCharts::QChart &m_chart;
    QFont m_font;
    QVector<Cell> m_cells;
    QRectF m_area;
};
