#pragma once

#include "watch/readingstatistics.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QPushButton;
class QTableWidget;

/// Shows the statistics of the readings as a table, and lets the user choose over what, begin anew
/// and copy.
class StatisticsPanel : public QWidget
{
    Q_OBJECT

public:
    enum Over { SinceReset, ShownRange };

    explicit StatisticsPanel(QWidget *parent = nullptr);

    Over over() const;
    void setOver(Over over);
    /// Shows \a figures, whose unit and latest reading are those of \a statistics.
    void show(const ReadingStatistics &statistics, const ReadingStatistics::Figures &figures);
    void retranslate();
    /// The table as text, a row a line, name and value apart by a tab.
    QString text() const;

    /// High enough for all rows.
    QSize sizeHint() const override { return {260, 320}; }

signals:
    void overChanged();
    void resetWanted();

private:
    QLabel *m_overLabel;
    QComboBox *m_over;
    QTableWidget *m_table;
    QPushButton *m_reset;
    QPushButton *m_copy;
};
