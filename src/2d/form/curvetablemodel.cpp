#include "2d/form/curvetablemodel.h"

#include "2d/data/curvefrequency.h"
#include "2d/form/curveset.h"
#include "2d/scene/generatecolors.h"

#include <QFont>
#include <QIcon>

CurveTableModel::CurveTableModel(CurveSet &curves, QObject *parent)
    : QAbstractTableModel(parent)
    , m_curves(curves)
    , m_ids(curves.ids())
{
    connect(&m_curves, &CurveSet::changed, this, &CurveTableModel::refresh);
}

int CurveTableModel::curveAt(int row) const
{
    return m_ids.value(row);
}

int CurveTableModel::rowOf(int id) const
{
    return m_ids.indexOf(id);
}

/// Keeps the rows, and with them selection and open editors, unless curves came or went.
void CurveTableModel::refresh()
{
    const QList<int> ids = m_curves.ids();
    if (ids != m_ids) {
        beginResetModel();
        m_ids = ids;
        endResetModel();
    } else if (!m_ids.isEmpty()) {
        emit dataChanged(index(0, 0), index(m_ids.size() - 1, ColumnCount - 1));
    }
}

int CurveTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_ids.size();
}

int CurveTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QString CurveTableModel::text(int id, int column) const
{
    switch (column) {
    case Name:
        return m_curves.name(id);
    case Frequency:
        return m_curves.record(id).frequency;
    case Material:
        return m_curves.record(id).material;
    case Points:
        return QString::number(m_curves.points(id).size());
    case Correction:
        return m_curves.record(id).correction;
    default:
        return {};
    }
}

QString CurveTableModel::toolTip(int id, int column) const
{
    const CurveRecord record = m_curves.record(id);
    if (column == Name) {
        const QString origin = record.notes.isEmpty() ? tr("Pasted or dropped") : QString();
        // The column shortens long names.
        QStringList lines{text(id, Name), record.file.isEmpty() ? origin : record.file};
        lines += record.notes;
        lines.removeAll(QString());
        return lines.join(QLatin1Char('\n'));
    }
    if (column == Correction && record.extrapolated)
        return tr("The frequency lies outside the loss table: the correction is extrapolated.");
    return text(id, column);
}

QVariant CurveTableModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_ids.size())
        return {};
    const int id = m_ids.at(index.row());
    const int column = index.column();
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return text(id, column);
    case Qt::ToolTipRole:
        return plainToolTip(toolTip(id, column));
    case Qt::DecorationRole:
        return column == Name ? QVariant(curveSwatch(m_curves.color(id))) : QVariant();
    case Qt::CheckStateRole:
        if (column == Name)
            return int(m_curves.isHidden(id) ? Qt::Unchecked : Qt::Checked);
        return {};
    case Qt::FontRole:
        if (column == Correction && m_curves.record(id).extrapolated) {
            QFont font;
            font.setItalic(true);
            return font;
        }
        return {};
    default:
        return {};
    }
}

QVariant CurveTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Name:
        return tr("Curve");
    case Frequency:
        return tr("Frequency\n(MHz)");
    case Material:
        return tr("Material");
    case Points:
        return tr("Points");
    case Correction:
        return tr("Loss\ncorrection");
    default:
        return {};
    }
}

Qt::ItemFlags CurveTableModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (!index.isValid())
        return flags;
    if (index.column() <= Material)
        flags |= Qt::ItemIsEditable;
    if (index.column() == Name)
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

bool CurveTableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || index.row() >= m_ids.size())
        return false;
    const int id = m_ids.at(index.row());
    if (role == Qt::CheckStateRole && index.column() == Name) {
        m_curves.setHidden(id, value.toInt() == Qt::Unchecked);
        return true;
    }
    return role == Qt::EditRole && edit(id, index.column(), value.toString());
}

bool CurveTableModel::edit(int id, int column, const QString &text)
{
    CurveRecord record = m_curves.record(id);
    if (column == Name) {
        if (text.trimmed().isEmpty()) {
            emit refused(tr("A curve needs a name."));
            return false;
        }
        if (!m_curves.rename(id, text)) {
            emit refused(tr("There is another curve called \"%1\".").arg(text));
            return false;
        }
        return true;
    }
    if (column == Frequency) {
        const std::optional<QString> frequency = readFrequency(text);
        if (!frequency) {
            emit refused(
                tr("\"%1\" is no frequency: write 2450 for 2450 MHz, or 2.45 GHz.").arg(text));
            return false;
        }
        record.frequency = *frequency;
    } else if (column == Material) {
        record.material = text.trimmed();
    } else {
        return false;
    }
    m_curves.setRecord(id, record);
    return true;
}
