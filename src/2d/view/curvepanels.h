#pragma once

#include <QList>
#include <QMap>
#include <QSizeF>
#include <QString>

class MarkTablePanel;
class MyCustomProxy;
class MyMarkItem;
struct ParaInfo;

QT_BEGIN_NAMESPACE
class QGraphicsItem;
class QGraphicsScene;
class QPointF;
class QRectF;
QT_END_NAMESPACE

/// The two tables of a curve that float on the chart: its markers and the figures of its pattern.
///
/// Each is made when it is needed first, since most curves never show one and a table takes longer
/// to make than all the rest of a curve. They belong to whoever deletes items().
class CurvePanels
{
public:
    explicit CurvePanels(int pathId);

    /// The scene that they are put on.
    void setScene(QGraphicsScene &scene) { m_scene = &scene; }
    MarkTablePanel *marks();
    MyCustomProxy *parameters();
    /// Those that have been made.
    QList<QGraphicsItem *> items() const;

    /// Whether one of them is seen at the scene position \a place.
    bool cover(const QPointF &place) const;

    bool hasMarks() const;
    bool hasParameters() const;
    /// Fills the table of markers with those of \a numbers.
    void showMarks(const QList<int> &numbers, const QMap<int, MyMarkItem *> &all);
    void showParameters(const ParaInfo &figures);
    void clearParameters();
    void setCurveName(const QString &name);
    /// Calls the coordinates of markers angle and level.
    void setPattern(bool isPattern);
    /// Shows markers as what they differ from the first, from the next showMarks() on.
    void setDeltas(bool on);

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
    QGraphicsScene *m_scene = nullptr;
    MarkTablePanel *m_marks = nullptr;
    MyCustomProxy *m_parameters = nullptr;
    QString m_curveName;
    bool m_isPattern = false;
    bool m_deltas = false;
    bool m_marksShown = true;
    QSizeF m_viewSize;
};
