#include "weekrun.h"

#include "Logic/seriallogic.h"
#include "campaigns/memory.h"
#include "virtualclock.h"

#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QSpinBox>

#include <algorithm>

namespace {

constexpr qint64 pointsOfAnHour = 3601; // both ends count
constexpr qint64 shownPoints = 600;     // beside the latest, in the ten minutes that are shown
constexpr int readingOfBox = 3000;      // ms that the user needs

} // namespace

WeekRun::WeekRun(const WeekPlan &plan, quint32 seed)
    : m_plan(plan)
    , m_seed(seed)
{
    startInstrument(m_plan.links.constFirst());
    m_console.trigger("actionCommunication_by_LAN");
    // Behind the console's own slots, so that what they did can be seen.
    connect(m_console.window().findChild<SerialLogic *>(), &SerialLogic::updatePower, this,
            &WeekRun::countReading);
    connect(m_console.find<QTimer>("clockTimer"), &QTimer::timeout, this, &WeekRun::watchChart);
    qApp->installEventFilter(this);

    m_stepTimer.setSingleShot(true);
    m_stepTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_stepTimer, &QTimer::timeout, this, &WeekRun::takeStep);
    planSteps();
    awaitNextStep();
}

// --- The steps of the plan

void WeekRun::planSteps()
{
    for (int i = 0; i < m_plan.links.size(); ++i)
        planLink(i);
    planShowing();
    planMemory();
    std::stable_sort(m_steps.begin(), m_steps.end(),
                     [](const Step &a, const Step &b) { return a.at > b.at; });
}

void WeekRun::planLink(int number)
{
    const WeekPlan::Link link = m_plan.links.at(number);
    if (link.isSecondTry)
        m_steps.append(
            {link.openedAt - 15 * second, [this, link] { connectAsUser(false, link.interval); }});
    if (number > 0)
        m_steps.append({link.openedAt - 5 * second, [this, link] { startInstrument(link); }});
    m_steps.append({link.openedAt, [this, link] { connectAsUser(true, link.interval); }});
    // The console may notice the loss with its next poll only.
    m_steps.append({link.endsAt + second, [this, link] { endLink(link); }});
    if (number < m_plan.links.size() - 1) {
        m_steps.append({link.endsAt, [this] { stopInstrument(); }});
    } else {
        m_steps.append({link.endsAt, [this] { m_console.trigger("actionDisconnect"); }});
        m_steps.append({link.endsAt + 3 * second, [this] { finish(); }});
    }
}

void WeekRun::planShowing()
{
    // Painting what nobody looks at would be half of the work of a long run.
    for (qint64 at = 10 * minute; at < m_plan.end(); at += hour)
        m_steps.append({at, [this] { m_console.window().hide(); }});
    for (qint64 at = hour; at < m_plan.end(); at += hour)
        m_steps.append({at, [this] { m_console.window().show(); }});
}

void WeekRun::planMemory()
{
    m_steps.append({std::min(hour, m_plan.end() / 2), [this] { noteMemory(); }});
    for (qint64 at = day; at <= m_plan.end() - hour; at += day)
        m_steps.append({at, [this] { noteMemory(); }});
}

void WeekRun::awaitNextStep()
{
    if (!m_steps.isEmpty())
        m_stepTimer.start(
            int(std::max<qint64>(0, m_steps.constLast().at - VirtualClock::elapsed())));
}

void WeekRun::takeStep()
{
    const Step step = m_steps.takeLast();
    // Before the step, which may stay inside a message box for a while.
    awaitNextStep();
    step.act();
}

// --- Instrument and user

void WeekRun::startInstrument(const WeekPlan::Link &link)
{
    const VirtualClock::RealWaits real;
    const QStringList options{QStringLiteral("--level"), QString::number(link.level),
                              QStringLiteral("--seed"), QString::number(m_seed)};
    const bool started =
        m_address.isEmpty()
            ? m_instrument.startOnInstrumentPort(options)
            : m_instrument.start(QStringList{QStringLiteral("--listen"), m_address,
                                             QStringLiteral("--port"), QStringLiteral("5001")} +
                                 options);
    if (started)
        m_address = m_instrument.address();
    else
        addFault(QStringLiteral("the simulator did not start: ") + m_instrument.errorText());
}

void WeekRun::stopInstrument()
{
    const VirtualClock::RealWaits real;
    if (m_instrument.stop() != 0)
        addFault(QStringLiteral("the simulator had not run as it should"));
}

void WeekRun::connectAsUser(bool wanted, int interval)
{
    m_linkTicks = 0;
    m_console.find<QSpinBox>("spinBoxInterval")->setValue(interval);
    m_console.trigger("actionConnect");
    m_console.find<QLineEdit>("lineEdit")->setText(m_address);
    m_console.click("accept");
    if (m_console.isRunning("saveTimer") != wanted)
        addFault(wanted ? QStringLiteral("the instrument was there and the link did not open")
                        : QStringLiteral("the link opened to an instrument that was not there"));
}

void WeekRun::endLink(const WeekPlan::Link &link)
{
    const QStringList untrue = m_console.faultsOfState(false);
    if (!untrue.isEmpty())
        addFault(QStringLiteral("after the end of a link: ") + untrue.join(QStringLiteral(", ")));
    const qint64 seconds = (link.endsAt - link.openedAt) / second;
    if (std::abs(m_linkTicks - seconds) > 2)
        addFault(
            QStringLiteral("a link of %1 s brought %2 chart points").arg(seconds).arg(m_linkTicks));
}

void WeekRun::finish()
{
    noteMemory();
    stopInstrument();
    m_console.end();
    emit finished();
}

bool WeekRun::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show && qobject_cast<QMessageBox *>(watched) != nullptr) {
        ++m_found.boxes;
        QTimer::singleShot(readingOfBox, static_cast<QMessageBox *>(watched), &QWidget::close);
    }
    return false;
}

// --- What is watched

void WeekRun::countReading(double power)
{
    constexpr double noReading = 100.0;
    if (power >= noReading)
        addFault(QStringLiteral("a poll brought no reading"));
    ++m_found.readings;
}

void WeekRun::watchChart()
{
    if (!m_console.isRunning("saveTimer"))
        return;
    const qint64 tick = m_linkTicks++ % pointsOfAnHour;
    const QVector<QPointF> points = m_console.chartPoints();
    if (points.size() == 1 && m_linkTicks > 2)
        ++m_found.chartRestarts;
    ++m_found.chartPoints;
    m_found.mostChartPoints = std::max(m_found.mostChartPoints, points.size());
    const double minutes = double(tick) / 60.0;
    // The first second of a link may pass without a reading.
    const qint64 expected = std::min(tick, shownPoints) + 1;
    const bool isComplete =
        points.size() == expected || (points.size() == expected - 1 && tick <= shownPoints);
    const bool isOnTime =
        points.isEmpty() ? tick == 0 : std::abs(points.constLast().x() - minutes) < 1e-6;
    if (!isComplete || !isOnTime)
        addFault(QStringLiteral("%1 points in the chart up to minute %2, at minute %3")
                     .arg(points.size())
                     .arg(points.isEmpty() ? 0.0 : points.constLast().x())
                     .arg(minutes));
}

void WeekRun::noteMemory()
{
    m_found.memory.insert(VirtualClock::elapsed(), residentMemory());
}

void WeekRun::addFault(const QString &text)
{
    // A fault that comes with every second must not fill the memory that is measured.
    constexpr int enough = 100;
    if (m_found.faults.size() < enough)
        m_found.faults.append(m_plan.dateOf(VirtualClock::elapsed())
                                  .toString(QStringLiteral("yyyy-MM-dd hh:mm:ss ")) +
                              text);
}
