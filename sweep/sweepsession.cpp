#include "sweep/sweepsession.h"

#include "2d/data/curvetext.h"

#include <QDateTime>
#include <QLocale>
#include <QTimeZone>

#include <algorithm>
#include <cmath>
#include <memory>

namespace {

constexpr int tickTime = 20;    // ms
constexpr int stopLimit = 2000; // ms
constexpr double meanPlaces = 1e4;

/// ISO 8601 with milliseconds and the zone's offset, also where that is 0.
QString isoTime(const QDateTime &time)
{
    const int minutes = time.offsetFromUtc() / 60;
    return QLocale::c().toString(time, QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzz")) +
           QStringLiteral("%1%2:%3")
               .arg(minutes < 0 ? QLatin1Char('-') : QLatin1Char('+'))
               .arg(std::abs(minutes) / 60, 2, 10, QLatin1Char('0'))
               .arg(std::abs(minutes) % 60, 2, 10, QLatin1Char('0'));
}

} // namespace

SweepSession::SweepSession(const SweepJob &job, QObject *parent)
    : QObject(parent)
    , m_job(job)
{
    m_tick.setInterval(tickTime);
    m_tick.setTimerType(Qt::PreciseTimer);
    m_stopLimit.setSingleShot(true);
    m_stopLimit.setInterval(stopLimit);
    connect(&m_tick, &QTimer::timeout, this, &SweepSession::look);
    connect(&m_stopLimit, &QTimer::timeout, this, &SweepSession::finish);
}

SweepSession::~SweepSession()
{
    if (!isRunning())
        return;
    blockSignals(true);
    m_run->stop(m_clock.elapsed(), false);
    m_store.writeCurve();
}

SweepSession::Refusal SweepSession::prepare()
{
    m_layout = layOut(m_job.header.plan, std::nullopt);
    if (m_layout.problem != PlanLayout::Problem::None)
        return Refusal::Plan;
    m_problem = m_store.open(m_job.curve, m_job.header, m_job.mode);
    if (m_problem != RunStore::Problem::None)
        return Refusal::Files;
    return layOutFor(m_store.run().header.limits);
}

SweepSession::Refusal SweepSession::layOutFor(const std::optional<TableLimits> &limits)
{
    m_layout = layOut(m_store.run().header.plan, limits);
    return m_layout.problem == PlanLayout::Problem::None ? Refusal::None : Refusal::Plan;
}

bool SweepSession::isNotWritable() const
{
    return m_problem == RunStore::Problem::NotWritten || m_problem == RunStore::Problem::InUse;
}

bool SweepSession::isComplete() const
{
    return m_store.isResumed() && m_store.run().isComplete(m_layout.points);
}

RunHeader SweepSession::filledHeader() const
{
    const SweepFindings &found = m_devices->findings();
    const QDateTime now = QDateTime::currentDateTime();
    RunHeader header = m_store.run().header;
    header.version = QStringLiteral(MZ_VERSION);
    header.identity = found.meter.identity;
    header.frequency = found.meter.settings.frequencyHz();
    header.offset = found.meter.settings.offset;
    header.averaging = found.meter.settings.averaging;
    header.rotator = m_devices->addresses().rotator();
    if (!found.table.model.isEmpty())
        header.rotator += QStringLiteral(" (%1)").arg(found.table.model);
    header.limits = found.table.limits;
    header.zone = QString::fromUtf8(QTimeZone::systemTimeZoneId());
    header.started = isoTime(now);
    return header;
}

bool SweepSession::isOtherSettings(const MeterSettings &settings) const
{
    const RunHeader &header = m_store.run().header;
    const auto differs = [](const std::optional<double> &a, const std::optional<double> &b) {
        return a && b && std::abs(*a - *b) > 1e-9 * std::abs(*a);
    };
    return settings.isRelative.value_or(false) ||
           differs(settings.frequencyHz(), header.frequency) ||
           differs(settings.offset, header.offset) || differs(settings.averaging, header.averaging);
}

SweepSession::Refusal SweepSession::start(SweepDevices &devices)
{
    m_devices = &devices;
    const SweepFindings &found = devices.findings();
    m_limits = found.table.limits;
    if (found.meter.settings.isRelative.value_or(false))
        return Refusal::Relative;
    if (m_store.isResumed()) {
        if (isOtherSettings(found.meter.settings))
            return Refusal::OtherSettings;
        // The angles of the rows hold; a table that reaches them no longer refuses the run.
        const auto [low, high] =
            std::minmax(m_layout.points.first().wanted, m_layout.points.last().wanted);
        if (m_limits && (low < m_limits->min - 1e-6 || high > m_limits->max + 1e-6)) {
            m_layout.problem = PlanLayout::Problem::OutOfLimits;
            return Refusal::Plan;
        }
    } else {
        if (layOutFor(m_limits) != Refusal::None)
            return Refusal::Plan;
        m_store.setHeader(filledHeader());
    }
    SweepOrders &orders = *this;
    m_run = std::make_unique<SweepRun>(orders, m_store.run().header, m_layout.points);
    connectDevices();
    m_clock.start();
    m_tick.start();
    // The table may have been turned since it was checked.
    m_locating = true;
    devices.rotator().readPosition();
    return Refusal::None;
}

void SweepSession::connectDevices()
{
    RotatorClient &rotator = m_devices->rotator();
    connect(&rotator, &RotatorClient::moved, this,
            [this](int code) { m_run->moveAnswered(m_clock.elapsed(), code); });
    connect(&rotator, &RotatorClient::position, this, &SweepSession::takePosition);
    connect(&rotator, &RotatorClient::stopped, this, [this] {
        if (m_ending && m_run->state() == SweepRun::State::Finished)
            finish();
    });
    connect(&m_devices->meter(), &Meter::reading, this, &SweepSession::takeReadingOf);
    connect(&m_devices->meter(), &Meter::described, this, &SweepSession::takeSettings);
    connect(m_devices, &SweepDevices::linksChanged, this, [this] {
        m_run->setLinks(m_clock.elapsed(), m_devices->isMeterUp(), m_devices->isRotatorUp());
        if (m_locating && m_devices->isRotatorUp())
            m_devices->rotator().readPosition();
        emit progressed();
    });
}

void SweepSession::takePosition(int code, double azimuth)
{
    if (m_locating) {
        // An error now is one of the first move's as well, which counts its tries.
        if (code != RotatorText::done)
            azimuth = m_devices->findings().azimuth;
        m_locating = false;
        m_pointBegan = m_clock.elapsed();
        m_run->setLinks(m_clock.elapsed(), m_devices->isMeterUp(), m_devices->isRotatorUp());
        m_run->start(m_clock.elapsed(), m_store.run().left(m_layout.points), azimuth,
                     m_job.returns);
    } else {
        m_run->tableRead(m_clock.elapsed(), code, azimuth);
    }
    emit progressed();
}

void SweepSession::takeReadingOf(const MeterReading &reading)
{
    // Readings come in the order in which they were asked for; only the last one is awaited.
    if (--m_askedReadings > 0)
        return;
    m_askedReadings = 0;
    if (reading.outcome == Outcome::Link)
        return; // the link's state tells
    if (reading.isRelative) {
        // Somebody turned that on at the instrument: no level in dBm any more.
        m_run->pause(SweepRun::Cause::OtherSettings);
        return;
    }
    m_level = reading.reading.isValid() ? std::optional(reading.reading.level) : std::nullopt;
    m_run->readingCame(m_clock.elapsed(), m_level);
    emit progressed();
}

void SweepSession::takeSettings(const MeterDescription &description)
{
    if (isOtherSettings(description.settings))
        m_run->pause(SweepRun::Cause::OtherSettings);
}

void SweepSession::move(double azimuth)
{
    m_devices->rotator().move(azimuth);
}

void SweepSession::readTable()
{
    m_devices->rotator().readPosition();
}

void SweepSession::stopTable()
{
    m_devices->rotator().stop();
}

void SweepSession::takeReading()
{
    ++m_askedReadings;
    m_devices->meter().read();
}

bool SweepSession::keep(const RunRow &row)
{
    RunRow kept = row;
    kept.time = isoTime(QDateTime::currentDateTime());
    // The curve of a run that is resumed is the same as that of one that is not.
    if (kept.mean)
        kept.mean = std::round(*kept.mean * meanPlaces) / meanPlaces;
    if (!m_store.append(kept))
        return false;
    m_sigma = kept.sigma;
    m_pointsTime += m_clock.elapsed() - m_pointBegan;
    m_pointBegan = m_clock.elapsed();
    ++m_pointsCount;
    emit measured(kept);
    return true;
}

void SweepSession::look()
{
    m_run->tick(m_clock.elapsed());
    const SweepRun::State state = m_run->state();
    if (state == m_shownState)
        return;
    if (m_shownState == SweepRun::State::Paused || m_shownState == SweepRun::State::Waiting)
        m_pointBegan = m_clock.elapsed();
    m_shownState = state;
    emit progressed();
    if (state == SweepRun::State::Finished)
        end();
}

void SweepSession::pause()
{
    if (m_run)
        m_run->pause(SweepRun::Cause::User);
}

void SweepSession::resume()
{
    if (!m_run)
        return;
    m_run->resume(m_clock.elapsed());
    m_devices->meter().describe();
}

void SweepSession::stop()
{
    if (!m_run)
        return;
    m_locating = false;
    m_run->stop(m_clock.elapsed(), m_job.returns);
    m_store.writeCurve(); // not only when the table is back
    look();
}

void SweepSession::giveUp()
{
    m_job.returns = false;
    stop();
}

/// Waits for the table's answer to a stop, so that nobody closes the link before it is out.
void SweepSession::end()
{
    m_ending = true;
    m_tick.stop();
    m_stopLimit.setInterval(m_run->isComplete() || !m_devices->isRotatorUp() ? 0 : stopLimit);
    m_stopLimit.start();
}

void SweepSession::finish()
{
    if (m_hasEnded)
        return;
    m_hasEnded = true;
    m_stopLimit.stop();
    m_isWritten = m_store.writeCurve();
    m_store.close();
    emit ended();
}

SweepProgress SweepSession::progress() const
{
    SweepProgress progress;
    const int all = m_layout.points.size();
    progress.all = all;
    if (!m_run) {
        progress.done = all - m_store.run().left(m_layout.points).size();
        return progress;
    }
    progress.state = m_run->state();
    progress.azimuth = m_run->azimuth();
    progress.theta = m_layout.points.at(m_run->index()).theta;
    progress.level = m_level;
    progress.sigma = m_sigma;
    const int left = m_run->pointsLeft();
    progress.done = all - left;
    if (m_pointsCount > 0 && m_run->isActive())
        progress.remaining = m_pointsTime / m_pointsCount * (left + 1);
    return progress;
}

SweepRun::Cause SweepSession::cause() const
{
    return m_run ? m_run->cause() : SweepRun::Cause::None;
}
