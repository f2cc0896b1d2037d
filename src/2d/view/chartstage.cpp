#include "2d/view/chartstage.h"

#include "2d/view/pathinfo.h"

#include <QChart>
#include <QGraphicsLayout>
#include <QGraphicsScene>
#include <QLegend>
#include <QPolarChart>
#include <QValueAxis>

#include <functional>
#include <utility>

using namespace QtCharts;

namespace {

constexpr int cartesianKind = 0;
constexpr int polarKind = 1;

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
    scene.addItem(m_chart);
}

bool ChartStage::isPolar() const
{
    return m_kind == polarKind;
}

ViewRange ChartStage::axisRange() const
{
    if (!m_chart)
        return {};
    return {m_xAxis->min(), m_xAxis->max(), m_yAxis->min(), m_yAxis->max()};
}

QRectF ChartStage::plotArea() const
{
    return m_chart ? m_chart->plotArea() : QRectF();
}

ChartMapping ChartStage::mapping() const
{
    return {isPolar() ? ChartMapping::Kind::Polar : ChartMapping::Kind::Cartesian, plotArea(),
            axisRange()};
}

QPointF ChartStage::toScene(const QPointF &value) const
{
    return m_chart ? m_chart->mapToPosition(value) : QPointF();
}

QVector<QPointF> ChartStage::toScene(const QVector<QPointF> &values,
                                     QVector<QPointF> recycled) const
{
    if (!m_chart || values.isEmpty())
        return {};
    const ChartMapping closedForm = mapping();
    // One point tells whether the chart computes as the closed form does.
    const auto same = [](const QPointF &a, const QPointF &b) {
        return std::equal_to<double>()(a.x(), b.x()) && std::equal_to<double>()(a.y(), b.y());
    };
    const QPointF probe = values[values.size() / 2];
    if (closedForm.isUsable() && same(closedForm.toScene(probe), m_chart->mapToPosition(probe)))
        return closedForm.toScene(values, std::move(recycled));

    QVector<QPointF> positions;
    positions.reserve(values.size());
    for (const QPointF &value : values)
        positions.append(m_chart->mapToPosition(value));
    return positions;
}

QPointF ChartStage::toValue(const QPointF &position) const
{
    return m_chart ? m_chart->mapToValue(position) : QPointF();
}

void setAxisRange(QValueAxis &axis, double min, double max)
{
    if (min <= max) {
        axis.setRange(min, max);
        return;
    }
    // An axis cannot hold a range that is upside down; what it makes of it depends on this order.
    axis.setMin(min);
    axis.setMax(max);
}

void setAxisTitle(QValueAxis &axis, const QString &title)
{
    axis.setTitleText(QString());
    axis.setTitleText(title);
}

SeriesLayoutGuard::SeriesLayoutGuard(const ChartStage &stage, const QMap<int, PathInfo *> &paths)
    : m_stage(stage)
{
    m_held.reserve(paths.size());
    for (PathInfo *path : paths)
        m_held.append({path, path->takePointsForLayout()});
}

SeriesLayoutGuard::~SeriesLayoutGuard()
{
    // The layout that a change asks for would otherwise come with the next event, past this guard.
    QChart *chart = m_stage.chart();
    if (chart && !chart->size().isEmpty())
        chart->layout()->activate();
    for (const Held &held : m_held)
        held.path->putPointsBack(held.points);
}
