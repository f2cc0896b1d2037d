#pragma once

#include "2d/data/parainfo.h"
#include "2d/view/markset.h"

#include <QMap>
#include <QObject>
#include <QSizeF>
#include <QVector>

class ChartStage;
class MyPathItem;
class PathInfo;
struct AxisRanges;

/// The curves of a chart view by their path ids, with the markers on them, and the walk over all of
/// them that follows every change of ranges, size or data.
class CurveList : public QObject
{
    Q_OBJECT

public:
    /// Which panels a refresh() puts back to their places.
    enum class Panels { MarkTables, AllTables };

    /// All three must outlive the list, which deletes its curves and markers.
    CurveList(ChartStage &stage, QGraphicsScene &scene, const AxisRanges &ranges);
    ~CurveList() override;

    const QMap<int, PathInfo *> &paths() const { return m_paths; }
    MarkSet &marks() { return m_marks; }
    const MarkSet &marks() const { return m_marks; }
    /// The selected curve, null when there is none.
    PathInfo *selected() const;
    bool hasName(const QString &name) const;
    /// The curves that a press at the scene position \a place selects, in the order of their ids.
    QVector<MyPathItem *> pressedAt(const QPointF &place) const;
    /// Whether a marker or a table of a curve is seen there.
    bool areCovered(const QPointF &place) const;

    /// Makes an empty curve under the smallest free path id, without a signal.
    PathInfo *add(const QString &name);
    /// Removes a curve and its markers, without a signal.
    void remove(int pathId);
    void clear();

    /// Brings everything to its place after a change of ranges, size or data: markers, then each
    /// curve, its pattern's figures once the curves are complete, and its panels.
    void refresh(Panels panels);
    /// Asks for a redrawing of what the chart has moved by itself, as soon as control is back.
    void catchUpLater();
    /// The figures of the pattern of \a path; all zero for an empty or hidden curve.
    ParaInfo figures(const PathInfo &path) const;
    /// Places the lines of the pattern of \a path, and refills its table if that is shown.
    void placeLines(PathInfo &path);

    /// Whether the data of all curves are complete, so that their patterns can be analysed.
    bool areComplete() const { return m_complete; }
    void setComplete(bool complete) { m_complete = complete; }
    bool parameterLinesVisible() const { return m_parameterLinesVisible; }
    void setParameterLinesVisible(bool visible);
    /// Shows the edges of the main lobe of \a pathId at so many dB below its peak.
    void setBeamLevels(int pathId, const QVector<double> &drops);
    /// Shows markers in the tables as what they differ from the first of their curve.
    void setMarkDeltas(bool on);
    bool markTablesShown() const { return m_markTablesShown; }
    void setMarkTablesShown(bool shown);
    /// Removes the markers on \a path.
    void removeMarks(PathInfo &path);
    /// The curve \a step (1 or -1) places after the selected one, among those that are shown; null
    /// when none is.
    PathInfo *neighbourOfSelected(int step) const;
    /// Refills the marker table of \a path.
    void updateMarkTable(PathInfo &path);

public slots:
    /// Tells all curves, also those to come, the size from PathInfo::updataSize().
    void updataSize(QSizeF size);

signals:
    /// A press selects this curve, or (0) a selected one was hidden.
    void selectionAsked(int pathId);
    /// A curve is dragged out of the chart (false), or no longer.
    void acceptDropsAsked(bool accept);
    /// A curve looks, is shown or is called otherwise.
    void lookChanged(int pathId);

private:
    bool hasFigures(const PathInfo &path) const;
    void followLook(PathInfo &path);
    void catchUp();

    ChartStage &m_stage;
    QGraphicsScene &m_scene;
    const AxisRanges &m_ranges;
    QMap<int, PathInfo *> m_paths;
    MarkSet m_marks;
    QSizeF m_size;
    bool m_complete = false;
    bool m_parameterLinesVisible = false;
    bool m_markTablesShown = true;
    bool m_markDeltas = false;
    bool m_catchUpPending = false;
};

/// While one lives, curves and markers look as if none were selected: for pictures that are kept.
class PlainLook
{
public:
    explicit PlainLook(CurveList &curves);
    ~PlainLook();
    PlainLook(const PlainLook &) = delete;
    PlainLook &operator=(const PlainLook &) = delete;

private:
    CurveList &m_curves;
    PathInfo *m_path;
    const MyMarkItem *m_mark;
};
