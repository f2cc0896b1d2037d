#include "2d/scene/chartstage.h"

#include "2d/data/chartmapping.h"
#include "2d/scene/chartgrid.h"
#include "2d/scene/chartlegend.h"
#include "2d/scene/curveseries.h"
#include "2d/scene/directionlabels.h"
#include "2d/scene/ticklabels.h"

#include <QChart>
#include <QGraphicsLayout>
#include <QGraphicsScene>
#include <QLegend>
#include <QLegendMarker>
#include <QLineSeries>
#include <QPolarChart>
#include <QValueAxis>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

using namespace QtCharts;

namespace {

constexpr int cartesianXTicks = 11;
constexpr int cartesianYTicks = 6;
constexpr int angularTicks = 21;

QFont titleFont()
{
    QFont font(QStringLiteral("Microsoft YaHei"), 9);
    font.setWeight(QFont::Bold);
    return font;
}

QValueAxis *styledAxis(const QString &title)
{
    auto *axis = new QValueAxis;
    axis->setLabelsColor(Qt::black);
    axis->setLinePen(QPen(QBrush(Qt::black), 1.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    axis->setTitleText(title);
    axis->setTitleFont(titleFont());
    axis->setGridLinePen(QPen(QColor(150, 150, 150, 255), 0.0));
    axis->setLabelFormat(QStringLiteral("%.1f"));
    return axis;
}

QValueAxis *polarAxis(const QString &title)
{
    constexpr int labelSize = 9;
    QValueAxis *axis = styledAxis(title);
    QFont labelFont = axis->labelsFont();
    labelFont.setPointSize(labelSize);
    axis->setLabelsFont(labelFont);
    axis->setRange(-180.0, 180.0);
    return axis;
}

void setAxisRange(QValueAxis &axis, double min, double max)
{
    if (min <= max) {
        axis.setRange(TickLabels::settledMin(min, max, axis.tickCount() - 1), max);
        return;
    }
    // An axis cannot hold a range that is upside down; what it makes of it depends on this order.
    axis.setMin(min);
    axis.setMax(max);
}

/// The chart takes its texts for rich ones.
QString shownAsText(const QString &text)
{
    const bool special = text.contains(QLatin1Char('<')) || text.contains(QLatin1Char('&'));
    return special ? text.toHtmlEscaped() : text;
}

/// By way of the empty title, which makes the chart lay itself out again.
void setAxisTitle(QValueAxis &axis, const QString &title)
{
    axis.setTitleText(QString());
    axis.setTitleText(shownAsText(title));
}

void styleChart(QChart &chart)
{
    chart.setContentsMargins(0, 0, 0, 0);
    chart.setMargins(QMargins(0, 0, 0, 0));
    // The view paints the ground.
    chart.setBackgroundVisible(false);
    chart.setTitleFont(titleFont());
    chart.setAcceptHoverEvents(true);
    QLegend *legend = chart.legend();
    legend->setVisible(false);
    legend->setFont(titleFont());
    legend->setBackgroundVisible(true);
    legend->setBrush(Qt::white);
    legend->setPen(Qt::NoPen);
    legend->setLabelColor(Qt::black);
    legend->setAlignment(Qt::AlignLeft);
}

} // namespace

ChartStage::ChartStage(int kind, QGraphicsScene &scene)
    : m_kind(kind)
{
    if (kind != cartesianKind && kind != polarKind)
        return;
    if (kind == polarKind) {
        auto *chart = new QPolarChart;
        m_xAxis = polarAxis(QStringLiteral("X"));
        m_xAxis->setTickCount(angularTicks);
        m_yAxis = polarAxis(QStringLiteral("Y"));
        chart->addAxis(m_xAxis, QPolarChart::PolarOrientationAngular);
        chart->addAxis(m_yAxis, QPolarChart::PolarOrientationRadial);
        m_chart = chart;
    } else {
        m_chart = new QChart;
        m_xAxis = styledAxis(QStringLiteral("X"));
        m_xAxis->setTickCount(cartesianXTicks);
        m_xAxis->setRange(0.0, 10.0);
        m_yAxis = styledAxis(QStringLiteral("Y"));
        m_yAxis->setTickCount(cartesianYTicks);
        m_yAxis->setRange(-10.0, 10.0);
        m_chart->addAxis(m_xAxis, Qt::AlignBottom);
        m_chart->addAxis(m_yAxis, Qt::AlignLeft);
    }
    styleChart(*m_chart);
    m_grid = new ChartGrid(m_chart);
    for (QValueAxis *axis : {m_xAxis, m_yAxis}) {
        axis->setGridLineVisible(false);
        axis->setLineVisible(false);
        QObject::connect(axis, &QValueAxis::tickCountChanged, m_chart, [this] { placeGrid(); });
    }
    QObject::connect(m_chart, &QChart::plotAreaChanged, m_chart, [this] { placeGrid(); });
    scene.addItem(m_chart);
}

bool ChartStage::isPolar() const
{
    return m_kind == polarKind;
}

void ChartStage::add(CurveSeries &series)
{
    if (!m_chart)
        return;
    const LayoutGuard guard(*this);
    m_chart->addSeries(series.line());
    series.line()->attachAxis(m_xAxis);
    series.line()->attachAxis(m_yAxis);
    series.takeOut();
    m_series.append(&series);
    placeLegend();
}

void ChartStage::remove(CurveSeries &series)
{
    if (!m_chart)
        return;
    const LayoutGuard guard(*this);
    series.putBack();
    m_series.removeOne(&series);
    m_chart->removeSeries(series.line());
    placeLegend();
}

void ChartStage::setTitle(const QString &title)
{
    if (!m_chart || m_chart->title() == shownAsText(title))
        return;
    const LayoutGuard guard(*this);
    m_title = title;
    m_chart->setTitle(shownAsText(title));
}

QString ChartStage::title() const
{
    const QString shown = m_chart ? m_chart->title() : QString();
    return shown == shownAsText(m_title) ? m_title : shown;
}

void ChartStage::setTitle(const QString &title, const QFont &font)
{
    if (!m_chart)
        return;
    const LayoutGuard guard(*this);
    m_chart->setTitleFont(font);
    setTitle(title);
}

void ChartStage::setXTitle(const QString &title)
{
    if (!m_chart)
        return;
    const LayoutGuard guard(*this);
    setAxisTitle(*m_xAxis, title);
}

void ChartStage::setYTitle(const QString &title)
{
    if (!m_chart)
        return;
    const LayoutGuard guard(*this);
    setAxisTitle(*m_yAxis, title);
}

void ChartStage::setXDivisions(int divisions)
{
    if (!m_chart)
        return;
    const LayoutGuard guard(*this);
    m_xDivisions = divisions;
    m_xAxis->setTickCount(divisions + 1);
    fitLabels();
}

/// Numbers along the bottom that would not find room are left out, rather than shortened.
void ChartStage::fitDivisions()
{
    if (!hasXRange() || m_xDivisions == 0 || plotArea().isEmpty())
        return;
    const int divisions =
        TickLabels::fittingDivisions(*m_xAxis, m_xDivisions, m_labelFormat, plotArea().width());
    if (divisions + 1 == m_xAxis->tickCount())
        return;
    const LayoutGuard guard(*this);
    m_xAxis->setTickCount(divisions + 1);
    fitLabels();
}

void ChartStage::setYDivisions(int divisions)
{
    if (!m_chart)
        return;
    const LayoutGuard guard(*this);
    m_yAxis->setTickCount(divisions + 1);
}

void ChartStage::setLabelFormat(const QString &format)
{
    if (!m_chart)
        return;
    const LayoutGuard guard(*this);
    m_labelFormat = format;
    fitLabels();
}

void ChartStage::fitLabels()
{
    fitDivisions();
    for (QValueAxis *axis : {m_xAxis, m_yAxis}) {
        TickLabels::settleZero(*axis);
        const QString format = TickLabels::fittingFormat(*axis, m_labelFormat);
        if (format != axis->labelFormat())
            axis->setLabelFormat(format);
    }
}

void ChartStage::setXRange(double min, double max)
{
    if (!hasXRange())
        return;
    const LayoutGuard guard(*this);
    setAxisRange(*m_xAxis, min, max);
    fitLabels();
}

void ChartStage::setYRange(double min, double max)
{
    if (!m_chart)
        return;
    const LayoutGuard guard(*this);
    setAxisRange(*m_yAxis, min, max);
    fitLabels();
}

void ChartStage::resize(const QSizeF &size)
{
    if (!m_chart)
        return;
    const LayoutGuard guard(*this);
    m_chart->resize(size);
    placeLegend();
}

void ChartStage::showLegend(const QFont &font)
{
    if (!m_chart)
        return;
    const LayoutGuard guard(*this);
    m_legend = new ChartLegend(*m_chart, font);
    placeLegend();
}

void ChartStage::setLegendEntry(const CurveSeries &series, const QString &name, const QColor &color,
                                bool greyed)
{
    if (!m_chart)
        return;
    constexpr double dimmed = 0.3;
    QColor shade = color;
    shade.setAlphaF(greyed ? dimmed : 1.0);
    const LayoutGuard guard(*this);
    const QList<QLegendMarker *> entries = m_chart->legend()->markers(series.line());
    for (QLegendMarker *entry : entries) {
        entry->setVisible(true);
        entry->setLabel(shownAsText(name));
        entry->setBrush(shade);
        entry->setPen(QPen(shade));
        entry->setLabelBrush(greyed ? QColor(Qt::gray) : QColor(Qt::black));
    }
    placeLegend();
}

bool ChartStage::hasLegendEntry(const CurveSeries &series, const QString &name) const
{
    if (!m_chart)
        return false;
    const QList<QLegendMarker *> entries = m_chart->legend()->markers(series.line());
    return !entries.isEmpty() &&
           (entries.first()->label() == name || entries.first()->label() == shownAsText(name));
}

void ChartStage::placeLegend()
{
    if (!m_legend)
        return;
    m_legendHeight = m_legend->arrange(m_chart->size());
    const QMargins margins(0, 0, 0, qCeil(m_legendHeight));
    if (m_chart->margins() != margins)
        m_chart->setMargins(margins);
    m_legend->update();
}

ViewRange ChartStage::axisRange() const
{
    if (!m_chart)
        return {};
    return {m_xAxis->min(), m_xAxis->max(), m_yAxis->min(), m_yAxis->max(),
            m_polarView.has_value()};
}

QRectF ChartStage::plotArea() const
{
    return m_chart ? m_chart->plotArea() : QRectF();
}

ChartMapping ChartStage::mapping() const
{
    return {isPolar() ? ChartMapping::Kind::Polar : ChartMapping::Kind::Cartesian, plotArea(),
            axisRange(), m_polarView ? m_polarView->orientation : PolarOrientation::DownClockwise};
}

void ChartStage::setPolarView(const PolarView &view)
{
    if (!isPolar() || m_polarView == view)
        return;
    m_polarView = view;
    if (!m_directions) {
        m_directions = new DirectionLabels(m_chart);
        // The chart keeps the room for labels of its own, which nobody sees.
        m_xAxis->setLabelsColor(Qt::transparent);
        QObject::connect(m_chart, &QChart::plotAreaChanged, m_chart, [this] { placeDirections(); });
    }
    placeDirections();
}

void ChartStage::placeGrid()
{
    m_grid->show({plotArea(), m_xAxis->tickCount(), m_yAxis->tickCount(), isPolar(),
                  m_yAxis->gridLinePen(), m_yAxis->linePen()});
}

void ChartStage::placeDirections()
{
    m_directions->show(*m_polarView, plotArea(), m_xAxis->labelsFont());
}

QPointF ChartStage::toScene(const QPointF &value) const
{
    if (m_polarView)
        return mapping().toScene(value);
    return m_chart ? m_chart->mapToPosition(value) : QPointF();
}

QVector<QPointF> ChartStage::toScene(const QVector<QPointF> &values) const
{
    QVector<QPointF> positions;
    positions.reserve(values.size());
    for (const QPointF &value : values)
        positions.append(toScene(value));
    return positions;
}

bool ChartStage::mapsInClosedForm(const QVector<QPointF> &values) const
{
    const ChartMapping closedForm = mapping();
    if (!m_chart || values.isEmpty() || !closedForm.isUsable())
        return false;
    const auto same = [](const QPointF &a, const QPointF &b) {
        return std::equal_to<double>()(a.x(), b.x()) && std::equal_to<double>()(a.y(), b.y());
    };
    // One point tells whether the chart computes as the closed form does.
    const QPointF probe = values[values.size() / 2];
    return same(closedForm.toScene(probe), toScene(probe));
}

QPointF ChartStage::toValue(const QPointF &position) const
{
    if (m_polarView)
        return mapping().polarValue(position);
    return m_chart ? m_chart->mapToValue(position) : QPointF();
}

ChartStage::LayoutGuard::LayoutGuard(ChartStage &stage)
    : m_stage(stage)
{
    if (m_stage.m_guards++ > 0)
        return;
    for (CurveSeries *series : qAsConst(m_stage.m_series))
        series->takeOut();
}

ChartStage::LayoutGuard::~LayoutGuard()
{
    if (m_stage.m_guards > 1) {
        --m_stage.m_guards;
        return;
    }
    // The layout that a change asks for would otherwise come with the next event, past this guard.
    QChart *chart = m_stage.m_chart;
    if (chart && !chart->size().isEmpty()) {
        chart->layout()->activate();
        m_stage.fitDivisions(); // the width for the numbers is known only now
        chart->layout()->activate();
    }
    --m_stage.m_guards;
    for (CurveSeries *series : qAsConst(m_stage.m_series))
        series->putBack();
}
