#pragma once

#include <QAbstractTableModel>

class CurveSet;

/// The list of the curves of a form: name with check mark (shown or hidden) and colour, frequency
/// and material to edit, number of points, correction.
class CurveTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Name, Frequency, Material, Points, Correction, ColumnCount };

    /// \a curves must outlive the model.
    explicit CurveTableModel(CurveSet &curves, QObject *parent = nullptr);

    /// The number of the curve in \a row.
    int curveAt(int row) const;
    /// The row of curve \a id, -1 without such a curve.
    int rowOf(int id) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

signals:
    /// An edit was refused; \a reason is a sentence for the user.
    void refused(const QString &reason);

private:
    void refresh();
    QString text(int id, int column) const;
    QString toolTip(int id, int column) const;
    bool edit(int id, int column, const QString &text);

    CurveSet &m_curves;
    QList<int> m_ids;
};
