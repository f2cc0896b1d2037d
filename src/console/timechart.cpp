#include "console/timechart.h"

#include "2d/view/graphicsbase.h"

#include <QBoxLayout>

namespace {

constexpr int powerPath = 1;
constexpr double longestRun = 3600.0; // seconds
constexpr double secondsPerMinute = 60.0;

} // namespace

TimeChart::TimeChart(QWidget *parent, QBoxLayout *layout)
    : m_view(new GraphicsBase(0, parent))
{
    layout->insertWidget(0, m_view);
    m_view->resetChart({QStringLiteral("Power Meter")});
}

void TimeChart::feed(const QString &shownPower)
{
    if (m_elapsedSeconds > longestRun)
        clear();
    m_view->updateChart(powerPath,
                        QPointF(m_elapsedSeconds / secondsPerMinute, shownPower.toDouble()));
    m_elapsedSeconds += 1.0;
}

void TimeChart::clear()
{
    m_view->clearChartData(powerPath);
    restartTime();
}

void TimeChart::setPeriod(int minutes, const QString &title)
{
    m_view->setXPeriod(minutes);
    m_view->setXRange(0.0, minutes);
    m_view->setAxisXTitle(title);
}

void TimeChart::retranslate()
{
    m_view->retitle();
}
