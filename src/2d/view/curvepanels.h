#pragma once

#include <QList>
#include <QSizeF>

class MarkTablePanel;
class MyCustomProxy;

QT_BEGIN_NAMESPACE
class QGraphicsItem;
class QRectF;
QT_END_NAMESPACE

/// The two tables of a curve that float on the chart: its markers and the figures of its pattern.
///
/// They are made without a scene and belong to whoever adds them.
class CurvePanels
{
public:
    explicit CurvePanels(int pathId);

    MarkTablePanel *marks() const { return m_marks; }
    MyCustomProxy *parameters() const { return m_parameters; }
    QList<QGraphicsItem *> items() const;

    /// Whether the table of markers may be shown; it is while it has any.
    void setMarksShown(bool shown) { m_marksShown = shown; }
    /// Shows the tables that hold data, or none of them.
    void applyVisibility(bool shown);

    /// The size of the chart, in which the panels stay.
    void setViewSize(const QSizeF &size) { m_viewSize = size; }
    /// Puts the table of markers to its place at the left of the plot area, or where the user has
    /// moved it.
    void placeMarks(const QRectF &plotArea);
    /// The same for the parameters at the right edge, 50 pixels below those of the curve before.
    void placeParameters();
    /// Puts the parameters to their place also when the user has moved them.
    void stackParameters(const QRectF &sceneRect);

private:
    int m_pathId;
    MarkTablePanel *m_marks;
    MyCustomProxy *m_parameters;
    bool m_marksShown = true;
    QSizeF m_viewSize;
};
