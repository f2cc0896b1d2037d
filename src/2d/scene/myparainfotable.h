#pragma once

#include "2d/data/parainfo.h"

#include <QTableWidget>

/// The small table of one pattern's figures that floats on the chart. Hidden while it holds no
/// data.
class MyParaInfoTable : public QTableWidget
{
    Q_OBJECT

public:
    explicit MyParaInfoTable(QWidget *parent = nullptr);

    /// Whether the table shows the figures of a curve.
    bool getParaTableDataStatus() const;

public slots:
    /// Writes all rows and shows the table.
    void updateParaInfo(ParaInfo paraInfo);

    /// Hides the table; its texts stay.
    void clearParaInfo();

protected:
    void changeEvent(QEvent *event) override;

private:
    void setUpHeaders();
    void writeNames();
    void writeCell(int row, int column, const QString &text);

    bool m_hasData = false;
};
