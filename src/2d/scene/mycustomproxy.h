#pragma once

#include "2d/data/parainfo.h"

#include <QGraphicsProxyWidget>

class MyParaInfoTable;

/// The panel on the chart's scene that hosts a MyParaInfoTable; it lies above the curves and is
/// moved with the mouse. It owns the table and is visible while the table is.
class MyCustomProxy : public QGraphicsProxyWidget
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

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;

private:
    MyParaInfoTable *m_table = nullptr;
};
