#pragma once

#include "2d/data/chartmapping.h"
#include "2d/data/parainfo.h"
#include "2d/data/patternsupplement.h"
#include "2d/scene/curveseries.h"
#include "2d/scene/patternlines.h"
#include "2d/view/curvelook.h"
#include "2d/view/curvepanels.h"

#include <QColor>
#include <QList>
#include <QMap>
#include <QObject>
#include <QSizeF>
#include <QVector>

#include <memory>

class Callout;
class ChartStage;
class MarkTablePanel;
class MyCustomProxy;
class MyMarkItem;
class MyPathItem;
struct PatternAnalysis;

QT_BEGIN_NAMESPACE
class QGraphicsItem;
class QGraphicsScene;
namespace QtCharts {
class QLineSeries;
}
QT_END_NAMESPACE

/// One curve of a chart view: its series, its outline and the other items that belong to it.
///
/// It deletes all of them. Whoever deletes a curve first takes its series off the stage.
class PathInfo : public QObject
{
    Q_OBJECT

public:
    explicit PathInfo(int pathId, QObject *parent = nullptr);
    ~PathInfo() override;

    int pathId() const { return m_pathId; }
    QColor color() const { return m_color; }
    void setColor(const QColor &color);
    QString name() const { return m_name; }
    void setName(const QString &name);
    /// Pixels.
    int lineWidth() const { return m_lineWidth; }
    void setLineWidth(int width);
    /// A hidden curve and all its items are invisible, and it takes no part in clicks.
    bool isHidden() const { return m_hidden; }
    void setHidden(bool hidden);
    CurveLook look() const { return {m_name, m_color, m_lineWidth, m_hidden}; }
    void setLook(const CurveLook &look);
    bool isSelected() const;
    void setSelected(bool selected);
    QList<int> markIds() const { return m_markIds; }

    QtCharts::QLineSeries *series() const { return m_curve.line(); }
    CurveSeries &curve() { return m_curve; }
    const CurveSeries &curve() const { return m_curve; }
    MyPathItem *pathItem() const { return m_pathItem; }
    /// The name that a selected curve carries on the chart.
    Callout *displayItem() const { return m_displayItem; }
    /// The panels, made when they are needed first.
    MarkTablePanel *markTablePanel() const;
    MyCustomProxy *paraTablePanel() const { return m_panels.parameters(); }
    CurvePanels &panels() { return m_panels; }
    /// The pattern's marker lines and the panels that have been made.
    QList<QGraphicsItem *> furtherItems() const;
    /// Puts all items on \a scene, those that are made later too.
    void addTo(QGraphicsScene &scene);

    /// The points in chart values, shared with the series.
    QVector<QPointF> points() const { return m_curve.points(); }
    /// Replaces the points; those that are not finite are left out.
    void setPoints(const QVector<QPointF> &points) { m_curve.setPoints(points); }

    /// Draws the curve anew from its series. Nothing is computed while neither data, plot area nor
    /// ranges have changed since. Without points the former outline stays, unseen.
    void rebuild(const ChartStage &stage);
    /// Draws the curve mirrored across y = -x until the next rebuild.
    void drawMirrored(const ChartStage &stage);
    /// Brings the drawing up to date with the axes, mirrored or not.
    void catchUp(const ChartStage &stage);
    /// Builds the outline again from the positions it has.
    void redrawOutline();

    /// The figures of the pattern, computed once for the same data. Nothing for an empty curve.
    const PatternAnalysis *analysis() const;
    /// Places the marker lines of the pattern, and shows them if \a shown.
    void updateLines(const ChartStage &stage, bool shown);
    /// Shows the edges of the main lobe at so many dB below the peak at the next updateLines().
    void setBeamLevels(const QVector<double> &drops);
    const QVector<double> &beamLevels() const { return m_beamDrops; }

    void setMarkTableShown(bool shown);
    /// Put the tables to their places, as CurvePanels says.
    void placeMarkTable() const;
    void placeParaTable();
    void stackParaTable(const QRectF &sceneRect);

signals:
    /// As MyPathItem's, of this curve's outline.
    void selectPathId(int pathId);
    void setAcceptDropsStatus(bool status);
    /// Name, colour, width or visibility has changed.
    void lookChanged();

public slots:
    /// Fills the table of markers with those of \a map that are this curve's.
    void updateMarkInfo(QMap<int, MyMarkItem *> map);
    /// Shows the figures of the pattern in their table, or takes them away.
    void updateParaInfo(ParaInfo paraInfo);
    void clearParaInfo();
    void clearSelection();
    /// The numbers of the markers that are this curve's.
    void addMarkId(int id);
    void delMarkId(int id);
    bool containsMarkid(int id);
    /// Whether the tables hold anything.
    bool getMarkTableDataStatus();
    bool getParaTableDataStatus();
    /// Whether the pattern's marker lines may be seen.
    void setLineItemVisible(bool b);
    /// Keeps the tables in a chart whose size CurveView::updataSize() tells so.
    void updataSize(QSizeF size);

private:
    void drawValues(const QVector<QPointF> &values, const ChartStage &stage);
    void placeDisplayItem();
    void applyVisibility();

    int m_pathId;
    QColor m_color;
    QString m_name;
    int m_lineWidth = 2;
    bool m_hidden = false;
    bool m_linesVisible = true;
    QList<int> m_markIds;

    CurveSeries m_curve;
    MyPathItem *m_pathItem;
    Callout *m_displayItem;
    mutable CurvePanels m_panels;
    PatternLines m_lines;

    QVector<QPointF> m_mirrored;    ///< the images drawn instead of the points, if any
    QVector<QPointF> m_drawnValues; ///< what the outline shows, shared with the series
    ChartMapping m_drawnMapping;    ///< and how it was mapped
    QVector<double> m_beamDrops;
    mutable QVector<QPointF> m_analysedValues;
    mutable std::unique_ptr<PatternAnalysis> m_analysis; ///< of those values, as the beams
    mutable QVector<BeamWidth> m_beams;
};
