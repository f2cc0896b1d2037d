#pragma once

#include "2d/data/parainfo.h"
#include "2d/view/axisranges.h"
#include "2d/view/chartcanvas.h"
#include "2d/view/curveexchange.h"

#include <QMap>

#include <memory>

class ChartStage;
class CurveList;
class MyMarkItem;
class PathInfo;
struct PolarView;

QT_BEGIN_NAMESPACE
namespace QtCharts {
class QChart;
}
QT_END_NAMESPACE

/// A chart with its axes, curves and markers as programs feed and ask it: cartesian (kind 0) or
/// polar (kind 1).
///
/// Ownership: the view deletes its scene, its curves and its markers. While it lives, the scene
/// owns the chart and all items, the chart owns its axes and the series that are added to it; a
/// series that is removed from the chart comes back to its PathInfo, which deletes it.
///
/// Public functions take chart values unless they say "scene"; the scene's coordinates are the
/// pixels of the view. Curves are known by their path id, markers by their number, both from 1.
class CurveView : public ChartCanvas, protected ExchangeTarget
{
    Q_OBJECT

public:
    ~CurveView() override;

    /// The chart shown, null for an unknown kind.
    QtCharts::QChart *chart() const;
    int kind() const;
    const QMap<int, PathInfo *> &paths() const;
    const QMap<int, MyMarkItem *> &marks() const;
    /// The selected curve, null when there is none.
    PathInfo *selectedPath() const override;
    MyMarkItem *selectedMark() const;

    /// The range shown. In a polar view x is the range of the angular axis, which never changes.
    ViewRange shownRange() const;
    /// The scene position of a chart value, as QChart::mapToPosition().
    QPointF toScene(const QPointF &value) const;
    QPointF toValue(const QPointF &scenePosition) const;

    /// Makes an empty curve under the smallest free path id.
    PathInfo *createPath(const QString &name);
    /// Makes a curve of \a points (those that are not finite are left out) and shows it.
    PathInfo *addCurve(const QString &name, const QVector<QPointF> &points) override;
    bool hasCurve(const QString &name) const override;
    /// Draws the curve \a pathId anew from its series.
    void rebuildPath(int pathId);
    /// The figures of the curve's pattern; all zero when it is empty or hidden.
    ParaInfo figures(int pathId) const;
    /// Whether the marker lines of the patterns may be shown.
    bool parameterLinesVisible() const;
    void setParameterLinesVisible(bool visible);
    /// Shows the edges of the main lobe of a curve at so many dB below its peak; none: nothing.
    void setBeamLevels(int pathId, const QVector<double> &drops);
    /// Puts a marker at the scene position \a position under the smallest free number.
    MyMarkItem *addMark(const QPointF &position, const QColor &color);
    /// Shows markers in the tables as what they differ from the first of their curve.
    void setMarkDeltas(bool on);

    /// A printf format of a double for the numbers along both axes.
    void setLabelFormat(const QString &format);
    /// Shows the names of the curves below the chart.
    void showLegend(const QFont &font);
    /// The part of the view above them, pixels.
    QRect areaAboveLegend() const;
    /// Connects every marker of the legend to handleMarkerClicked(), once.
    void reconnectLegendMarkers();
    /// Paints the part \a source of the view (pixels) into \a target, without what shows a
    /// selection: for pictures that are kept.
    void paintPicture(QPainter &painter, const QRectF &target, const QRect &source);

signals:
    /// The chart's size less 60 in width, plus 10 in height: a margin for forms that put something
    /// beside it, which the curves take off again for their tables.
    void updataSize(QSizeF size);
    /// A curve came or went: for forms that show the same curves elsewhere too.
    void curvesChanged();
    /// A curve looks, is shown or is called otherwise.
    void lookChanged(int pathId);
    /// Another curve, or none, is selected now.
    void selectionChanged();

public slots:
    /// Does nothing: names and values stand in the tables.
    void tooltip(QPointF point, bool state);
    void setChartTitle(QString title);
    void setChartTitle(QString title, QFont font);
    void setAxisXTitle(QString str);
    void setAxisYTitle(QString str);
    /// Y axis of \a div divisions, \a scaleDiv units each, \a reference at the centre.
    void setScaleLevel(int div, double scaleDiv, double reference);
    /// The window of the time chart in minutes.
    void setXPeriod(int period);
    void setXRange(double min, double max);
    void setYRange(double min, double max, int div);
    /// The number of fields between the first and the last tick of the X or angular axis.
    void setXDivisions(int div);
    /// Turns a polar chart, whose angles count modulo 360 degrees from then on.
    void setPolarView(const PolarView &view);
    /// Added to every point that updateChart() is given from now on.
    void setOffset(double xOffset, double yOffset);
    /// Replaces all curves by empty ones of these names, with the path ids 1, 2, ...
    void resetChart(QStringList list);
    /// Appends one point to the time chart's curve \a index, which must exist.
    void updateChart(int index, QPointF point);
    /// Shows the curve \a index and hides all others.
    void setPathInfoHide(int index);
    /// Tells that the curves are complete.
    void finishUpdateChart();
    /// Removes all markers and curves.
    void clearChart();
    /// Empties the time chart's curve \a index, which must exist, and takes its markers away.
    void clearChartData(int index);
    /// Removes the curve \a index.
    void clearChart(int index);
    /// Selects the curve \a pathId and deselects the others.
    void updatePathSelection(int pathId);
    /// Draws every curve mirrored across the line y = -x; values stay.
    void SymmetrySlot();
    void SymmetryResetSlot();
    /// Shows or hides the curve whose entry of the legend sends this.
    void handleMarkerClicked();
    /// Does nothing: the curves have colours of their own.
    void setColorList(QList<QColor> colorList);

protected:
    /// \a kind: 0 cartesian, 1 polar; anything else builds a view without a chart.
    CurveView(int kind, QWidget *parent);

    ChartStage &stage() const { return *m_stage; }
    AxisRanges &ranges() { return m_ranges; }
    CurveList &curves() const { return *m_curves; }
    /// Takes the selection from curve and marker.
    void deselect();

    void resizeEvent(QResizeEvent *event) override;

protected slots:
    /// Makes the view a pixel smaller and as large as before: the chart lays itself out and
    /// repaints.
    void updataResize();

private:
    QString chartTitle() const override;
    QPixmap picture() override;

    bool needsXRange(const char *operation) const;
    PathInfo &existingPath(int index, const char *operation) const;

    std::unique_ptr<ChartStage> m_stage;
    AxisRanges m_ranges;
    std::unique_ptr<CurveList> m_curves;
    QPointF m_offset;       ///< added to every point of the time chart
    bool m_nudging = false; ///< inside the smaller of the two sizes of a nudge
    bool m_resized = false; ///< a resize event has brought everything to its place
};
