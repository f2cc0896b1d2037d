#pragma once

#include "2d/data/markjump.h"
#include "2d/data/parainfo.h"
#include "2d/view/axisranges.h"
#include "2d/view/chartcanvas.h"
#include "2d/view/chartsteering.h"
#include "2d/view/curveexchange.h"

#include <QMap>

#include <memory>

class ChartStage;
class CurveList;
class MarkEditing;
class MyCustomProxy;
class MyMarkItem;
class PathInfo;
struct PolarView;
struct ChartSituation;

QT_BEGIN_NAMESPACE
namespace QtCharts {
class QChart;
}
QT_END_NAMESPACE

/// The chart widget: a cartesian chart (kind 0) or a polar one (kind 1) with curves and markers.
///
/// Ownership: the view deletes its scene, its curves and its markers. While it lives, the scene
/// owns the chart and all items, the chart owns its axes and the series that are added to it; a
/// series that is removed from the chart comes back to its PathInfo, which deletes it.
///
/// Public functions take chart values unless they say "scene"; the scene's coordinates are the
/// pixels of the view. Curves are known by their path id, markers by their number, both from 1.
class GraphicsBase : public ChartCanvas, private ExchangeTarget
{
    Q_OBJECT

public:
    /// \a kind: 0 cartesian, 1 polar; anything else builds a view without a chart.
    explicit GraphicsBase(int kind, QWidget *parent = nullptr);
    ~GraphicsBase() override;

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

    /// Connects every marker of the legend to handleMarkerClicked(), once.
    void reconnectLegendMarkers();

    /// Where the file dialogs start; "./" at first, ends with a slash.
    QString defaultDirectory() const;
    void setDefaultDirectory(const QString &directory);
    /// What setSeriesName() was given last, or the name in the file that was imported last.
    QString seriesName() const;

    /// Stretches the range shown about \a centre; the caller applies it to the axes.
    void setLimitXY(const QPointF &centre, const double &factor);
    /// Sends the selected marker of the selected curve along it, or puts one there. False without a
    /// curve or such a place.
    bool jumpMark(MarkJump jump);
    /// Shows markers in the tables as what they differ from the first of their curve.
    void setMarkDeltas(bool on);
    /// Puts a marker at the scene position \a position under the smallest free number.
    MyMarkItem *addMark(const QPointF &position, const QColor &color);
    /// Paints the part \a source of the view (pixels) into \a target, without what shows a
    /// selection: for pictures that are kept.
    void paintPicture(QPainter &painter, const QRectF &target, const QRect &source);
    /// Gives the axes the titles and the scale of the time chart, in the current language.
    void retitle();
    /// A printf format of a double for the numbers along both axes.
    void setLabelFormat(const QString &format);
    /// Shows the names of the curves below the chart.
    void showLegend(const QFont &font);
    /// The part of the view above them, pixels.
    QRect areaAboveLegend() const;

signals:
    void doubleClick(const GraphicsBase *view);
    void updateParaInfoToTable(ParaInfo paraInfo);
    void clearParaInfoToTable();
    /// The chart's size less 60 in width, plus 10 in height.
    void updataSize(QSizeF size);
    /// A curve came or went: for forms that show the same curves elsewhere too.
    void curvesChanged();
    /// A curve looks, is shown or is called otherwise.
    void lookChanged(int pathId);
    /// Another curve, or none, is selected now.
    void selectionChanged();
    /// The user has written the curve \a pathId to \a fileName.
    void curveExported(int pathId, const QString &fileName);
    /// The user shows another range.
    void rangeChanged();

public slots:
    void tooltip(QPointF point, bool state);
    void setChartTitle(QString title);
    void setChartTitle(QString title, QFont font);
    /// Keeps the name for seriesName(): exports carry the names of their curves.
    void setSeriesName(QString name) override;
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
    void panResetSlot();
    void handleMarkerClicked();
    void setColorList(QList<QColor> colorList);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private slots:
    void copySlot();
    void pasteSlot();
    void addMarkSlot();
    void deleteMarkSlot();
    void showOrHideMarkTableSlot();
    void showOrHideParameterTableSlot();
    void importGraphicsDataSlot();
    void exportGraphicsDataSlot();
    void exportGraphicsImageSlot();
    void managerGraphicsSlot();
    void clearSelectionSlot();
    void zoomSlot();
    void resetSlot();
    void panSlot();
    void setAcceptDropsStatus(bool status);
    void updataResize();

private:
    QWidget *dialogParent() override { return window(); }
    QString chartTitle() const override;
    QPixmap picture() override;
    void noteExport(int pathId, const QString &fileName) override;

    void connectParts();
    void showFigures(PathInfo &path);
    bool needsXRange(const char *operation) const;
    PathInfo &existingPath(int index, const char *operation) const;
    void deselect();
    bool pressControlKey(int key);
    bool pressKey(int key);
    MyCustomProxy &figuresPanel();
    bool areFiguresShown() const;
    void placeFigures();
    void pressCurves(const QPoint &position);
    void handDragOver(const QPoint &position);
    void zoomAbout(const QPointF &centre, double factor);
    void showRange(const ViewRange &range);
    ChartSituation situation() const;
    void showMenu(const QPoint &position);

    std::unique_ptr<ChartStage> m_stage;
    AxisRanges m_ranges;
    std::unique_ptr<CurveList> m_curves;
    std::unique_ptr<MarkEditing> m_markEditing;
    ChartSteering m_steering;
    CurveExchange m_exchange;
    MyCustomProxy *m_figuresPanel = nullptr; ///< of the selected curve
    QPointF m_offset;                        ///< added to every point of the time chart
    QString m_seriesName;
    QPointF m_menuPosition; ///< where the context menu was opened, on the scene
    bool m_nudging = false; ///< inside the smaller of the two sizes of a nudge
    bool m_resized = false; ///< a resize event has brought everything to its place
};
