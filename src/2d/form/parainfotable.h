#pragma once

#include "2d/data/parainfo.h"

#include <QTableWidget>

/// The table beside the charts: the figures of one frequency a row.
class ParaInfoTable : public QTableWidget
{
    Q_OBJECT

public:
    /// Which list of headers the table shows.
    enum class Columns {
        Standard,      ///< eight columns
        WithAmplitude, ///< the same, and behind the frequency the peak's "Amplitude"
    };

    explicit ParaInfoTable(QWidget *parent = nullptr);

    /// Shows the other list of headers; the rows that are there keep their texts under their names.
    void setColumns(Columns columns);

    /// Leaves one row, which holds the column names until an update writes over it.
    void resetRows();

    /// Writes row \a count - 1 of \a count rows: \a frequency is shown as it is (MHz).
    void updateParaInfo(ParaInfo paraInfo, int count, QString frequency);

protected:
    void changeEvent(QEvent *event) override;

private:
    QStringList headerNames() const;
    void setUp();
    void nameColumns();
    void writeRow(int row, const QStringList &texts);

    Columns m_columns = Columns::Standard;
    bool m_isReset = false; ///< row 0 holds the column names
};
