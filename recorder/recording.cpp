#include "recorder/recording.h"

#include "recorder/numbertext.h"
#include "recorder/settingsline.h"

#include <utility>

namespace {

/// \a before with everything that \a news tells.
MeterSettings merged(MeterSettings before, const MeterSettings &news)
{
    if (news.frequency) {
        before.frequency = news.frequency;
        before.frequencyUnit = news.frequencyUnit;
    }
    if (news.offset)
        before.offset = news.offset;
    if (news.averaging)
        before.averaging = news.averaging;
    if (!news.unit.isEmpty())
        before.unit = news.unit;
    if (news.isRelative)
        before.isRelative = news.isRelative;
    return before;
}

/// Adds \a text, or null where it is empty.
JsonLine &addText(JsonLine &line, const char *key, const QString &text)
{
    return text.isEmpty() ? line.addNull(key) : line.add(key, text);
}

} // namespace

Recording::Recording(const RecordingPlan &plan, const Moment &start, TakeRow takeRow,
                     TakeEvent takeEvent)
    : m_takeRow(std::move(takeRow))
    , m_takeEvent(std::move(takeEvent))
    , m_intervals(start, plan.every)
    , m_alarm(plan.limits)
{}

void Recording::take(const MeterReading &reading)
{
    advance(reading.at, reading.at.steady);
    m_tally.add(reading);
}

void Recording::take(const MeterDescription &description, const Moment &now)
{
    const MeterSettings settings = merged(m_settings, description.settings);
    const QString identity = description.identity.isEmpty() ? m_identity : description.identity;
    const MeterSettings oldSettings = std::exchange(m_settings, settings);
    const QString oldIdentity = std::exchange(m_identity, identity);
    if (!m_isStartTold) {
        tellStart(now.wall);
        return;
    }
    if (identity != oldIdentity) {
        JsonLine details = JsonLine().add("identity", identity);
        m_takeEvent("identity-changed", now.wall, addText(details, "before", oldIdentity));
    }
    if (settings != oldSettings) {
        m_takeEvent("settings-changed", now.wall,
                    settingsLine(settings).add("before", settingsLine(oldSettings)));
    }
}

void Recording::takeLink(MeterState state, const QString &reason, const Moment &now)
{
    m_link = state;
    if (state == MeterState::Lost && !m_isLossTold) {
        m_isLossTold = true;
        if (!m_isStartTold)
            tellStart(now.wall);
        m_takeEvent("link-lost", now.wall, JsonLine().add("reason", reason));
    } else if (state == MeterState::Open && m_isLossTold) {
        m_isLossTold = false;
        m_takeEvent("link-up", now.wall, {});
    }
}

void Recording::advance(const Moment &now, qint64 until)
{
    if (const qint64 step = m_intervals.look(now)) {
        m_tally.noteStep();
        m_takeEvent("clock-step", now.wall,
                    JsonLine().addNumber("seconds", shortNumber(double(step) / 1000)));
    }
    while (m_intervals.end() <= until)
        close(m_intervals.close());
}

void Recording::finish(const Moment &now, qint64 until, const QString &reason, bool withRest)
{
    advance(now, until);
    if (withRest && !m_tally.isEmpty())
        close(m_intervals.close(until));
    if (!m_isStartTold)
        tellStart(now.wall);
    m_takeEvent("stop", now.wall, JsonLine().add("reason", reason));
}

void Recording::close(const Intervals::Interval &interval)
{
    const char *const idle = m_awaitsReply                ? "timeout"
                             : m_link == MeterState::Open ? "none"
                                                          : "link";
    Row row;
    row.time = interval.end;
    row.start = interval.start;
    row.frequencyHz = m_settings.frequencyHz();
    row.offset = m_settings.offset;
    row.isRelative = m_settings.isRelative;
    row.averaging = m_settings.averaging;
    std::exchange(m_tally, {}).fill(row, QLatin1String(idle));
    m_takeRow(row);
    watch(row);
}

void Recording::watch(const Row &row)
{
    // The limits are dBm, and say nothing of levels relative to a reference.
    if (!row.mean || row.isRelative.value_or(false))
        return;
    for (const LimitAlarm::Change &change : m_alarm.add(row.mean)) {
        const bool isHigh = change.limit == LimitAlarm::High;
        const std::optional<double> &limit = isHigh ? m_alarm.limits().high : m_alarm.limits().low;
        m_takeEvent(change.isOn ? "alarm-on" : "alarm-off", row.time,
                    JsonLine()
                        .add("limit", QLatin1String(isHigh ? "high" : "low"))
                        .addNumber("limit_dbm", shortNumber(limit.value_or(0)))
                        .addNumber("mean_dbm", fourDecimals(*row.mean)));
    }
}

void Recording::tellStart(qint64 wall)
{
    m_isStartTold = true;
    JsonLine details;
    details.add("version", QStringLiteral(MZ_VERSION));
    addText(details, "identity", m_identity).add("settings", settingsLine(m_settings));
    m_takeEvent("start", wall, details);
}
