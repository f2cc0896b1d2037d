#include "session.h"

#include "link.h"
#include "replay.h"
#include "trace.h"

#include <QTimer>

#include <utility>

namespace sim {

Session::Session(Link *link, const Bench &bench, QObject *parent)
    : QObject(parent)
    , m_link(link)
    , m_bench(bench)
    , m_stepTimer(new QTimer(this))
    , m_operationTimer(new QTimer(this))
{
    link->setParent(this);
    m_stepTimer->setSingleShot(true);
    m_stepTimer->setTimerType(Qt::PreciseTimer);
    m_operationTimer->setSingleShot(true);
    connect(link, &Link::received, this, &Session::takeBytes);
    // Queued, since a link may close while a command that it brought is still being worked on.
    connect(link, &Link::closed, this, &Session::end, Qt::QueuedConnection);
    connect(m_stepTimer, &QTimer::timeout, this, &Session::advance);
    connect(m_operationTimer, &QTimer::timeout, this, &Session::finishOperation);
}

void Session::takeBytes(const QByteArray &bytes)
{
    for (const QByteArray &line : m_splitter.feed(bytes)) {
        if (!m_dropped)
            takeCommand(line);
    }
}

void Session::takeCommand(const QByteArray &line)
{
    m_bench.trace.received(line);
    const QList<Fault> faults = m_bench.faults.befalling(line);
    for (const Fault &fault : faults)
        m_bench.trace.note("fault " + faultName(fault.kind) + " befalls " + line);
    if (m_bench.replay && replay(line, faults))
        return;
    Quirks quirks;
    quirks.refuseSettings = contains(faults, FaultKind::Refuse);
    quirks.numericFrequencyOnly = contains(faults, FaultKind::NumericFrequency);

    const Answer answer = m_bench.interpreter.execute(line, quirks);
    if (answer.operation != Operation::None)
        start(answer.operation, faults);
    else if (!answer.line.isEmpty())
        deliver(m_bench.faults.delivery(answer.line, faults));
}

bool Session::replay(const QByteArray &line, const QList<Fault> &faults)
{
    if (line.trimmed().isEmpty())
        return true;
    const auto reply = m_bench.replay->next(line);
    if (!reply) {
        m_bench.trace.note("not in the log: " + line);
        return false;
    }
    // What the log does not have is answered by an instrument with the same settings.
    if (CommandInterpreter::isSetting(line) && reply->bytes.contains("OK"))
        m_bench.interpreter.execute(line);
    if (reply->bytes.isEmpty())
        return true;
    QList<Fault> all = faults;
    const bool hasEnd = reply->bytes.endsWith('\n');
    if (!hasEnd) {
        Fault torn;
        torn.kind = FaultKind::NoNewline;
        all.append(torn);
    }
    QList<Step> steps = m_bench.faults.delivery(reply->bytes.chopped(hasEnd ? 1 : 0), all);
    if (m_bench.replayTiming && !steps.isEmpty())
        steps.first().delay += reply->delay;
    deliver(steps);
    return true;
}

void Session::start(Operation operation, const QList<Fault> &faults)
{
    // A new zeroing or calibration takes the place of one that still runs.
    m_operation = operation;
    m_operationFaults = faults;
    m_operationTimer->start(m_bench.operationTime);
}

void Session::finishOperation()
{
    const bool success = !contains(m_operationFaults, FaultKind::CalFail);
    if (!contains(m_operationFaults, FaultKind::CalSilent))
        deliver(m_bench.faults.delivery(CommandInterpreter::result(m_operation, success),
                                        m_operationFaults));
}

void Session::deliver(const QList<Step> &steps)
{
    m_steps.append(steps);
    if (!m_stepTimer->isActive())
        advance();
}

void Session::advance()
{
    while (!m_steps.isEmpty()) {
        if (const int delay = std::exchange(m_steps.first().delay, 0); delay > 0) {
            m_stepTimer->start(delay);
            return;
        }
        take(m_steps.takeFirst());
    }
}

void Session::take(const Step &step)
{
    if (step.drop) {
        m_bench.trace.note("dropping " + m_link->name());
        reset();
        m_dropped = true;
        m_link->drop();
    } else {
        m_bench.trace.sent(step.bytes);
        m_link->send(step.bytes);
    }
}

void Session::reset()
{
    m_splitter.clear();
    m_steps.clear();
    m_stepTimer->stop();
    m_operationTimer->stop();
}

void Session::end()
{
    m_bench.trace.note(m_link->name() + " closed");
    reset();
    m_dropped = false;
    emit ended();
}

} // namespace sim
