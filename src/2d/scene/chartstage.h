#pragma once

#include "2d/data/chartmapping.h"

#include <QMap>
#include <QPointF>
#include <QVector>

#include <optional>

class ChartGrid;
class ChartLegend;
class CurveSeries;
class DirectionLabels;

QT_BEGIN_NAMESPACE
class QColor;
class QFont;
class QGraphicsScene;
namespace QtCharts {
class QChart;

class QValueAxis;
} // namespace QtCharts
QT_END_NAMESPACE

/// The chart of a view with its two axes: how it is built and changed, and the way from values to
/// positions.
///
/// Every change that makes the chart lay itself out is made here, under a LayoutGuard. Whoever
/// makes several in a row holds one around them: then the chart lays itself out once.
class ChartStage
{
public:
    /// While one lives, the series on the stage are empty; its end lets the chart lay itself out
    /// and fills them again. Of guards within each other the outermost alone has an effect.
    class LayoutGuard
    {
    public:
        explicit LayoutGuard(ChartStage &stage);
        ~LayoutGuard();
        LayoutGuard(const LayoutGuard &) = delete;
        LayoutGuard &operator=(const LayoutGuard &) = delete;

    private:
        ChartStage &m_stage;
    };

    /// Builds the chart of \a kind (0 cartesian, 1 polar, else none) and adds it to \a scene.
    ChartStage(int kind, QGraphicsScene &scene);

    int kind() const { return m_kind; }
    bool isPolar() const;
    /// Whether an operation can act on the X range: an angular axis keeps its range.
    bool hasXRange() const { return m_chart && !isPolar(); }
    /// Null for an unknown kind.
    QtCharts::QChart *chart() const { return m_chart; }

    /// Binds the series to the axes. It must be taken off again before it or the stage goes.
    void add(CurveSeries &series);
    void remove(CurveSeries &series);

    void setTitle(const QString &title);
    void setTitle(const QString &title, const QFont &font);
    QString title() const;
    /// The titles of the axis along the bottom or round the circle, and of the other one.
    void setXTitle(const QString &title);
    void setYTitle(const QString &title);
    /// One less than the number of ticks; along the bottom fewer where they find no room.
    void setXDivisions(int divisions);
    void setYDivisions(int divisions);
    /// A printf format of a double for the numbers along both axes. Where it would show different
    /// numbers alike, as after zooming, they get the digits that they need.
    void setLabelFormat(const QString &format);
    /// Turns a polar chart, which from then on takes angles modulo 360 degrees. Others stay.
    void setPolarView(const PolarView &view);
    /// Limits in the order given; a polar chart keeps its X range.
    void setXRange(double min, double max);
    void setYRange(double min, double max);
    void resize(const QSizeF &size);
    /// Shows the names of the curves below the chart.
    void showLegend(const QFont &font);
    /// The height that they take, pixels.
    double legendHeight() const { return m_legendHeight; }
    /// Shows the entry of \a series in \a color, or greyed.
    void setLegendEntry(const CurveSeries &series, const QString &name, const QColor &color,
                        bool greyed);
    /// Whether the legend has an entry for \a series under \a name.
    bool hasLegendEntry(const CurveSeries &series, const QString &name) const;

    /// The ranges that the axes have now.
    ViewRange axisRange() const;
    QRectF plotArea() const;

    ChartMapping mapping() const;
    QPointF toScene(const QPointF &value) const;
    QVector<QPointF> toScene(const QVector<QPointF> &values) const;
    /// Whether mapping() leads to the very positions that the chart computes.
    bool mapsInClosedForm(const QVector<QPointF> &values) const;
    QPointF toValue(const QPointF &position) const;

private:
    void placeGrid();
    void placeDirections();

    void fitLabels();
    void fitDivisions();
    void placeLegend();

    int m_kind;
    QtCharts::QChart *m_chart = nullptr;
    QtCharts::QValueAxis *m_xAxis = nullptr; ///< along the bottom, or the angular one
    QtCharts::QValueAxis *m_yAxis = nullptr; ///< on the left, or the radial one
    QVector<CurveSeries *> m_series;
    QString m_title;
    QString m_labelFormat = QStringLiteral("%.1f");
    int m_xDivisions = 0;            ///< wanted; 0: as the chart was built
    ChartLegend *m_legend = nullptr; ///< the chart's
    double m_legendHeight = 0.0;
    int m_guards = 0;
    std::optional<PolarView> m_polarView;
    ChartGrid *m_grid = nullptr; ///< the chart's, as these
    DirectionLabels *m_directions = nullptr;
};
