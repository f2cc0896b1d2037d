#pragma once

#include "2d/data/parainfo.h"
#include "2d/data/viewrange.h"
#include "2d/view/chartstage.h"
#include "2d/view/markset.h"

#include <QMap>
#include <QPointF>
#include <QString>

class GraphicsBase;
class MyCustomProxy;
class PathInfo;

/// What a GraphicsBase keeps, with the walks over curves and markers that several of its slots
/// share.
class ChartViewState
{
public:
    /// Which panels a refresh() puts back to their places.
    enum class Panels { MarkTables, AllTables };

    ChartViewState(int kind, GraphicsBase &view, QGraphicsScene &scene);
    ~ChartViewState();

    /// The range shown; that of the angular axis never changes.
    ViewRange shownRange() const;
    PathInfo *selectedPath() const;

    /// Makes a curve in its series, its items and its place in the map, without a word to anyone.
    PathInfo *newPath(const QString &name);
    /// Removes a curve and its markers.
    void removePath(int pathId);

    /// Applies the range shown to the axes, Y first, and leaves the drawing as it is.
    void applyAxes();
    /// Brings everything to its place after a change of ranges, size or data: markers, then each
    /// curve, its pattern's figures once the curves are complete, and its panels.
    void refresh(Panels panels);
    /// Analyses the pattern of \a path and places its lines.
    ParaInfo recompute(PathInfo &path);
    /// Asks for a redrawing of what the chart has moved by itself, as soon as control is back.
    void catchUpLater();

    /// The legend shows hidden curves too, dimmed, so that a click can bring them back.
    void updateLegend();
    void updateMarks(PathInfo &path);

    GraphicsBase &view;
    ChartStage stage;
    QMap<int, PathInfo *> paths;
    ViewRange shown;
    ViewRange home; ///< what "reset" returns to
    MarkSet marks;
    MyCustomProxy *tableProxy = nullptr;

    QMap<int, QList<double>> lastX; ///< by path id: the x of the point fed last
    QMap<int, QList<double>> lastY;
    double xOffset = 0.0;
    double yOffset = 0.0;
    int divisionCount = 0;
    double scalePerDivision = 0.0;
    double referenceLevel = 0.0;
    int period = 10; ///< minutes

    bool updateFinished = false;
    bool zoomMode = false;
    bool panMode = false;
    bool symmetryApplied = false;
    bool markTablesShown = true;
    bool parameterLinesVisible = false;
    bool nudging = false; ///< inside the smaller of the two sizes of a nudge
    bool resized = false; ///< a resize event has brought everything to its place
    bool catchUpPending = false;

    QPointF zoomCentre;
    double zoomFactor = 1.0;
    QPointF menuPosition;
    QPointF panAnchor;
    QString defaultDirectory = QStringLiteral("./");
    QString seriesName;

private:
    void connectPath(PathInfo &path);
    void addToChart(PathInfo &path, const QString &name);
    void catchUp();
};
