#include "sweep/sweeprun.h"

#include "sweep/rotatortext.h"

#include <cmath>

namespace {

constexpr qint64 pollTime = 200;
constexpr qint64 tryAgainTime = 1000;
constexpr int tries = 3;
constexpr int blankLimit = 3;
constexpr int repeatLimit = 3;
constexpr double firstSpeed = 1.0; // degrees a second
constexpr double shortMove = 0.5;  // degrees; shorter ones tell nothing about the speed
constexpr double unstableDb = 0.5;
constexpr double floorDistance = 10.0; // dB
constexpr double angleRounding = 1e-6;

} // namespace

SweepRun::SweepRun(SweepOrders &orders, const RunHeader &header, const QVector<PlanPoint> &points)
    : m_orders(orders)
    , m_header(header)
    , m_points(points)
{}

void SweepRun::start(qint64 now, const QVector<int> &left, double azimuth, bool returns)
{
    m_left = left;
    m_azimuth = m_startAzimuth = azimuth;
    m_returns = returns;
    beginPoint(now);
}

bool SweepRun::isMeasuring() const
{
    return isActive() && m_state != State::Returning;
}

bool SweepRun::isActive() const
{
    return m_state != State::Idle && m_state != State::Paused && m_state != State::Finished;
}

int SweepRun::index() const
{
    return m_at < m_left.size() ? m_left.at(m_at) : 0;
}

double SweepRun::wanted() const
{
    return m_goal == Goal::Start ? m_startAzimuth : m_points.at(index()).wanted;
}

void SweepRun::beginPoint(qint64 now)
{
    m_repeats = 0;
    m_blank = 0;
    m_missing = false;
    m_errors = 0;
    send(now);
}

void SweepRun::send(qint64 now)
{
    m_statistics = {};
    m_thrownAway = false;
    m_due = -1;
    if (m_goal == Goal::Start)
        m_state = State::Returning;
    else
        m_state = m_meterUp && m_rotatorUp ? State::Sending : State::Waiting;
    if (m_state == State::Waiting)
        return;
    m_watch.start(now, m_azimuth, wanted(), m_header.tolerance,
                  m_turnedSeconds > 0.0 ? m_turnedDegrees / m_turnedSeconds : firstSpeed);
    m_sent = true;
    m_orders.move(wanted());
}

void SweepRun::setLinks(qint64 now, bool meterUp, bool rotatorUp)
{
    m_meterUp = meterUp;
    m_rotatorUp = rotatorUp;
    if (m_owesStop && rotatorUp) {
        m_owesStop = false;
        m_orders.stopTable();
    }
    if (!rotatorUp && m_state == State::Returning)
        finish();
    if (!isMeasuring())
        return;
    // A table that turns may arrive without the meter.
    const bool meterMissed = !meterUp && m_state == State::Reading;
    if (!rotatorUp || meterMissed) {
        m_state = State::Waiting;
        m_due = -1;
    } else if (m_state == State::Waiting && meterUp) {
        send(now);
    }
}

void SweepRun::moveAnswered(qint64 now, int code)
{
    if (m_due >= 0 || (m_state != State::Sending && m_state != State::Returning))
        return;
    if (code != RotatorText::done) {
        failed(now, code, State::Sending);
        return;
    }
    m_errors = 0;
    m_moved = true;
    if (m_state == State::Sending)
        m_state = State::Turning;
    m_due = now + pollTime;
}

void SweepRun::tableRead(qint64 now, int code, double azimuth)
{
    const bool asked =
        m_state == State::Turning || m_state == State::Checking || m_state == State::Returning;
    if (!asked || m_due >= 0)
        return;
    if (code != RotatorText::done) {
        failed(now, code, m_state);
        return;
    }
    m_errors = 0;
    m_azimuth = azimuth;
    if (m_state == State::Checking)
        checked(now);
    else
        turned(now);
}

void SweepRun::turned(qint64 now)
{
    switch (m_watch.look(now, m_azimuth)) {
    case TableWatch::Verdict::Wait:
        m_due = now + pollTime;
        break;
    case TableWatch::Verdict::SendAgain:
        if (m_state == State::Turning)
            m_state = State::Sending;
        m_orders.move(wanted());
        break;
    case TableWatch::Verdict::Stalled:
        pause(Cause::Stalled);
        break;
    case TableWatch::Verdict::Arrived:
        if (m_watch.distance() >= shortMove) {
            m_turnedDegrees += m_watch.distance();
            m_turnedSeconds += double(m_watch.elapsed(now)) / 1000.0;
        }
        if (m_state == State::Returning) {
            finish();
            break;
        }
        m_state = State::Settling;
        m_due = now + m_header.settle;
        break;
    }
}

void SweepRun::settled()
{
    m_state = m_meterUp ? State::Reading : State::Waiting;
    if (m_state == State::Reading)
        m_orders.takeReading();
}

void SweepRun::readingCame(qint64 now, const std::optional<double> &level)
{
    Q_UNUSED(now)
    if (m_state != State::Reading)
        return;
    if (!level || !std::isfinite(*level)) {
        m_missing = ++m_blank >= blankLimit;
    } else {
        m_blank = 0;
        if (m_thrownAway)
            m_statistics.add(*level);
        m_thrownAway = true;
    }
    if (!m_missing && m_statistics.count() < m_header.readings) {
        m_orders.takeReading();
        return;
    }
    m_state = State::Checking;
    m_orders.readTable();
}

void SweepRun::checked(qint64 now)
{
    const bool stays = angleBetween(m_azimuth, wanted()) <= m_header.tolerance + angleRounding;
    if (stays || m_repeats == repeatLimit) {
        finishPoint(now);
        return;
    }
    ++m_repeats;
    m_blank = 0;
    m_missing = false;
    send(now);
}

RunRow SweepRun::measured() const
{
    RunRow row;
    row.wanted = wanted();
    row.read = m_azimuth;
    row.theta = m_points.at(index()).theta;
    if (m_at == m_left.size())
        row.flags |= RunFlag::Drift;
    if (angleBetween(m_azimuth, wanted()) > m_header.tolerance + angleRounding) {
        row.flags |= RunFlag::Angle;
        row.theta = thetaAt(m_header.plan, m_azimuth);
    }
    if (m_missing) {
        row.flags |= RunFlag::Missing;
        return row;
    }
    row.mean = m_statistics.mean();
    row.sigma = m_statistics.sigma();
    row.count = int(m_statistics.count());
    if (row.sigma.value_or(0.0) > unstableDb)
        row.flags |= RunFlag::Unstable;
    if (m_header.floor && *row.mean <= *m_header.floor + floorDistance)
        row.flags |= RunFlag::Floor;
    return row;
}

void SweepRun::finishPoint(qint64 now)
{
    const RunRow row = measured();
    const bool isDrift = m_at == m_left.size();
    if (!isDrift)
        ++m_at;
    if (!m_orders.keep(row)) {
        pause(Cause::NotWritten);
        return;
    }
    if (!isDrift) {
        beginPoint(now);
        return;
    }
    m_complete = true;
    if (!m_returns) {
        finish();
        return;
    }
    m_goal = Goal::Start;
    send(now);
}

void SweepRun::failed(qint64 now, int code, State again)
{
    m_code = code;
    if (!RotatorText::isPassing(code)) {
        m_cause = code == RotatorText::outOfLimits ? Cause::OutOfLimits : Cause::RotatorRefused;
        stopTable();
        finish();
        return;
    }
    if (++m_errors >= tries) {
        pause(Cause::RotatorFailed);
        return;
    }
    m_again = again;
    m_state = State::TryingAgain;
    m_due = now + tryAgainTime;
}

void SweepRun::tick(qint64 now)
{
    if (m_due < 0 || now < m_due)
        return;
    m_due = -1;
    switch (m_state) {
    case State::Settling:
        settled();
        break;
    case State::TryingAgain:
        m_state = m_goal == Goal::Start ? State::Returning : m_again;
        if (m_again == State::Sending)
            m_orders.move(wanted());
        else
            m_orders.readTable();
        break;
    case State::Turning:
    case State::Returning:
        m_orders.readTable();
        break;
    default:
        break;
    }
}

void SweepRun::stopTable()
{
    if (!m_sent)
        return;
    if (m_rotatorUp)
        m_orders.stopTable();
    else
        m_owesStop = true;
}

void SweepRun::pause(Cause cause)
{
    if (!isActive())
        return;
    stopTable();
    m_due = -1;
    // Nobody waits for a table that was only to go back.
    if (m_goal == Goal::Start) {
        m_cause = cause;
        finish();
        return;
    }
    m_cause = cause;
    m_state = State::Paused;
}

void SweepRun::resume(qint64 now)
{
    if (m_state != State::Paused)
        return;
    m_cause = Cause::None;
    m_code = 0;
    if (m_at > 0)
        --m_at;
    beginPoint(now);
}

void SweepRun::stop(qint64 now, bool returns)
{
    if (m_state == State::Finished)
        return;
    stopTable();
    const bool wasReturning = m_goal == Goal::Start;
    if (!m_complete && m_cause == Cause::None)
        m_cause = Cause::User;
    if (!returns || wasReturning || !m_moved || !m_rotatorUp) {
        finish();
        return;
    }
    m_goal = Goal::Start;
    send(now);
}

void SweepRun::finish()
{
    m_state = State::Finished;
    m_due = -1;
}
