#include "watch/trafficmodel.h"

#include <QLocale>

#include <utility>

void TrafficModel::addSent(const QString &line)
{
    const bool isCommand = line.endsWith(QLatin1Char('\n'));
    if (isCommand)
        m_sinceSent.start();
    add({QDateTime::currentDateTime(), isCommand ? Way::To : Way::None, -1, line.trimmed()});
}

void TrafficModel::addReceived(const QString &line, const QString &remark)
{
    const qint64 wait = m_sinceSent.isValid() ? m_sinceSent.elapsed() : -1;
    const QString text = line.trimmed();
    add({QDateTime::currentDateTime(), Way::From, wait,
         text.isEmpty() || remark.isEmpty() ? text + remark
                                            : QStringLiteral("%1 (%2)").arg(text, remark)});
}

void TrafficModel::setPaused(bool paused)
{
    m_isPaused = paused;
    if (paused)
        return;
    for (const Entry &entry : std::exchange(m_heldBack, {}))
        append(entry);
}

void TrafficModel::add(const Entry &entry)
{
    if (!m_isPaused) {
        append(entry);
        return;
    }
    m_heldBack.push_back(entry);
    if (int(m_heldBack.size()) > capacity)
        m_heldBack.pop_front();
}

void TrafficModel::append(const Entry &entry)
{
    if (int(m_entries.size()) == capacity) {
        beginRemoveRows({}, 0, 0);
        m_entries.pop_front();
        endRemoveRows();
    }
    const int row = int(m_entries.size());
    beginInsertRows({}, row, row);
    m_entries.push_back(entry);
    endInsertRows();
}

void TrafficModel::clear()
{
    beginResetModel();
    m_entries.clear();
    m_heldBack.clear();
    endResetModel();
}

void TrafficModel::retranslate()
{
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!m_entries.empty())
        emit dataChanged(index(0, Direction), index(rowCount() - 1, Direction));
}

QString TrafficModel::cell(const Entry &entry, int column) const
{
    switch (column) {
    case Time:
        return QLocale::c().toString(entry.time, QStringLiteral("hh:mm:ss.zzz"));
    case Direction:
        if (entry.way == Way::None)
            return {};
        return entry.way == Way::To ? tr("to") : tr("from");
    case Wait:
        return entry.wait < 0 ? QString() : QString::number(entry.wait);
    default:
        return entry.text;
    }
}

QString TrafficModel::text(int row) const
{
    const Entry &entry = m_entries[std::size_t(row)];
    QStringList cells;
    for (int column = 0; column < ColumnCount; ++column)
        cells.append(cell(entry, column));
    return cells.join(QLatin1Char('\t'));
}

int TrafficModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_entries.size());
}

int TrafficModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant TrafficModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    if (role == Qt::DisplayRole)
        return cell(m_entries[std::size_t(index.row())], index.column());
    if (role == Qt::TextAlignmentRole && index.column() == Wait)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

QVariant TrafficModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Time:
        return tr("Time");
    case Direction:
        return tr("Direction");
    case Wait:
        return tr("Wait [ms]");
    default:
        return tr("Line");
    }
}
