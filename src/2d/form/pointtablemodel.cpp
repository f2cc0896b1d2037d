#include "2d/form/pointtablemodel.h"

#include "2d/data/curvetext.h"
#include "2d/scene/generatecolors.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QIcon>

namespace {

// Beside the name: the swatch, and the room around both.
constexpr int nameWidth = PointTableModel::columnWidth - 36;

QString shortened(const QString &name)
{
    return QFontMetrics(QGuiApplication::font()).elidedText(name, Qt::ElideMiddle, nameWidth);
}

} // namespace

PointTableModel::PointTableModel(QObject *parent)
    : QAbstractTableModel(parent)
{}

void PointTableModel::setCurves(const QVector<Curve> &curves)
{
    beginResetModel();
    m_curves = curves;
    m_rows = 0;
    for (const Curve &curve : curves)
        m_rows = qMax(m_rows, curve.points.size());
    endResetModel();
}

int PointTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int PointTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : 2 * m_curves.size();
}

QVariant PointTableModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    const QVector<QPointF> &points = m_curves.at(index.column() / 2).points;
    if (role != Qt::DisplayRole || index.row() >= points.size())
        return {};
    const QPointF &point = points.at(index.row());
    return CurveText::number(index.column() % 2 == 0 ? point.x() : point.y());
}

QVariant PointTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical)
        return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
    if (section < 0 || section >= columnCount())
        return {};
    const Curve &curve = m_curves.at(section / 2);
    const bool isAngle = section % 2 == 0;
    if (role == Qt::DisplayRole)
        return isAngle ? shortened(curve.name) + QLatin1Char('\n') + tr("Angle [°]")
                       : tr("Level [dB]");
    if (role == Qt::DecorationRole && isAngle)
        return curveSwatch(curve.color);
    if (role == Qt::ToolTipRole)
        return plainToolTip(curve.name);
    return {};
}
