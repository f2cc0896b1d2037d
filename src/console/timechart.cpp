#include "console/timechart.h"

#include "2d/view/graphicsbase.h"
#include "2d/view/pathinfo.h"
#include "measure/reading.h"

#include <QBoxLayout>

#include <algorithm>

namespace {

constexpr int powerPath = 1;
constexpr double longestRun = 3600.0; // seconds
constexpr double secondsPerMinute = 60.0;
constexpr int minuteDivisions = 10;
constexpr qint64 tickLength = 1000; // ms

} // namespace

TimeChart::TimeChart(QWidget *parent, QBoxLayout *layout)
    : m_view(new GraphicsBase(0, layout->parentWidget() ? layout->parentWidget() : parent))
{
    layout->insertWidget(0, m_view);
    m_view->resetChart({QStringLiteral("Power Meter")});
    m_view->setXDivisions(minuteDivisions); // as built, but fewer beside wide panels
    m_clock.start();
}

void TimeChart::feed(const Reading &reading, qint64 now)
{
    // What is left of a second counts at the next tick; a tick that came early borrows nothing.
    const qint64 seconds =
        m_lastTick == noTick ? 0 : std::max<qint64>(1, (now - m_lastTick) / tickLength);
    m_lastTick = m_lastTick == noTick ? now : std::min(now, m_lastTick + seconds * tickLength);
    m_elapsedSeconds += double(seconds);
    if (m_elapsedSeconds > longestRun) {
        removeFurtherLines();
        m_view->clearChartData(powerPath);
        m_elapsedSeconds = 0.0;
    }
    if (reading.state != Reading::State::None)
        m_view->updateChart(m_path, QPointF(m_elapsedSeconds / secondsPerMinute, reading.level));
}

void TimeChart::clear()
{
    removeFurtherLines();
    m_view->clearChartData(powerPath);
    restartTime();
}

void TimeChart::removeFurtherLines()
{
    const QList<int> lines = m_view->paths().keys();
    for (const int line : lines) {
        if (m_furtherLines.contains(line))
            m_view->clearChart(line);
    }
    m_furtherLines.clear();
    m_path = powerPath;
}

void TimeChart::restartTime()
{
    if (m_lastTick != noTick) {
        m_interrupted = m_elapsedSeconds;
        m_interruptedTick = m_lastTick;
    }
    m_elapsedSeconds = 0.0;
    m_lastTick = noTick;
}

void TimeChart::resume()
{
    m_elapsedSeconds = m_interrupted;
    m_lastTick = m_interruptedTick;
    const PathInfo *before = m_view->paths().value(m_path);
    if (!before || before->points().isEmpty())
        return; // no line to be apart from
    PathInfo *path = m_view->createPath(before->name());
    path->setColor(before->color());
    path->setLineWidth(before->lineWidth());
    m_path = path->pathId();
    m_furtherLines.append(m_path);
}

double TimeChart::position() const
{
    return m_elapsedSeconds / secondsPerMinute;
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
