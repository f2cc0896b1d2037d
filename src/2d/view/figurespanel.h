#pragma once

#include "2d/data/parainfo.h"

class ChartStage;
class MyCustomProxy;

QT_BEGIN_NAMESPACE
class QGraphicsScene;
class QPointF;
QT_END_NAMESPACE

/// The panel with the figures of the selected curve, at the right of the plot area or where the
/// user has moved it.
///
/// Made when it is needed first: the table in it takes longer to make than all the rest of a view.
class FiguresPanel
{
public:
    /// Both must outlive this object; the panel itself is the scene's.
    FiguresPanel(const ChartStage &stage, QGraphicsScene &scene);

    bool isShown() const;
    /// Whether it is seen at the scene position \a place.
    bool covers(const QPointF &place) const;
    void show(const ParaInfo &figures);
    void clear();
    /// Brings it back to its place after a change of size.
    void place();

private:
    const ChartStage &m_stage;
    QGraphicsScene &m_scene;
    MyCustomProxy *m_panel = nullptr;
};
