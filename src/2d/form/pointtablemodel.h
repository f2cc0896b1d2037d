#pragma once

#include <QAbstractTableModel>
#include <QColor>
#include <QPointF>
#include <QVector>

/// The points of the curves side by side: two columns a curve, angle and level, as many rows as the
/// longest curve has. Holds millions of points without copying them.
class PointTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// What a column is wide, in pixels; a longer name is shortened in the heading.
    static constexpr int columnWidth = 104;

    /// One curve; the points are shared with their owner.
    struct Curve
    {
        QString name;
        QColor color;
        QVector<QPointF> points;
    };

    explicit PointTableModel(QObject *parent = nullptr);

    void setCurves(const QVector<Curve> &curves);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    QVector<Curve> m_curves;
    int m_rows = 0;
};
