#pragma once

#include <QAbstractTableModel>
#include <QDateTime>
#include <QElapsedTimer>

#include <deque>

/// The lines to and from the instrument, the latest 10,000 of them.
class TrafficModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Time, Direction, Wait, Line, ColumnCount };
    static constexpr int capacity = 10000;

    using QAbstractTableModel::QAbstractTableModel;

    /// A line on its way to the instrument; without a line end it is what the link does itself.
    void addSent(const QString &line);
    /// What came of it: the reply, or \a remark where none came.
    void addReceived(const QString &line, const QString &remark);
    /// While paused, lines are held back; they come all at once afterwards.
    void setPaused(bool paused);
    bool isPaused() const { return m_isPaused; }
    void clear();
    void retranslate();

    /// A row as text: time, direction, wait in ms and line, apart by tabs.
    QString text(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    enum class Way { To, From, None };
    struct Entry
    {
        QDateTime time;
        Way way;
        qint64 wait; ///< ms since the line before was sent, -1 for none
        QString text;
    };

    void add(const Entry &entry);
    void append(const Entry &entry);
    QString cell(const Entry &entry, int column) const;

    std::deque<Entry> m_entries;
    std::deque<Entry> m_heldBack;
    QElapsedTimer m_sinceSent;
    bool m_isPaused = false;
};
