#pragma once

#include "2d/data/parainfo.h"
#include "2d/scene/tablepanel.h"

class MyParaInfoTable;

/// The panel on the chart's scene that hosts a MyParaInfoTable. It owns the table
/// and is visible while the table is.
class MyCustomProxy : public TablePanel
{
    Q_OBJECT

public:
    explicit MyCustomProxy(QGraphicsItem *parent = nullptr);

    MyParaInfoTable *table() const;

    /// Whether the table shows the figures of a curve.
    bool getParaTableDataStatus() const;

public slots:
    void updateParaInfo(ParaInfo paraInfo);
    void clearParaInfo();

private:
    MyParaInfoTable *m_table = nullptr;
};
