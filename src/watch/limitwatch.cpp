#include "watch/limitwatch.h"

#include <QDebug>

namespace {

QString levelText(double level)
{
    return QStringLiteral("%1 dBm").arg(level, 0, 'f', 2);
}

/// Whether \a a and \a b raise the same alarms, latched or not.
bool watchesTheSame(const Limits &a, const Limits &b)
{
    return a.high == b.high && a.low == b.low && a.hysteresis == b.hysteresis &&
           a.inARow == b.inARow;
}

} // namespace

LimitWatch::~LimitWatch()
{
    startAnew(QStringLiteral("the watch is over"));
}

void LimitWatch::setLimits(const Limits &limits)
{
    const QString why = QStringLiteral("the limits were changed");
    if (watchesTheSame(limits, m_limits)) {
        m_limits = limits;
        tell(m_alarm.setLatched(limits.latched), why);
    } else {
        startAnew(why);
        m_limits = limits;
        m_alarm = LimitAlarm(limits);
    }
    emit changed();
}

void LimitWatch::setRelative(bool isRelative)
{
    if (isRelative == m_isRelative)
        return;
    m_isRelative = isRelative;
    startAnew(QStringLiteral("the relative measurement was switched"));
    emit changed();
}

/// Ends what stands and forgets the readings so far.
void LimitWatch::startAnew(const QString &why)
{
    for (const LimitAlarm::Limit limit : {LimitAlarm::High, LimitAlarm::Low}) {
        if (isAlarm(limit))
            tell({{limit, false}}, why);
    }
    m_alarm = LimitAlarm(m_limits);
}

void LimitWatch::take(const Reading &reading)
{
    if (!m_limits.areGiven() || m_isRelative)
        return;
    std::optional<double> level;
    if (reading.isValid())
        level = reading.level;
    tell(m_alarm.add(level), level ? levelText(*level) : QString());
    emit changed();
}

void LimitWatch::acknowledge()
{
    tell(m_alarm.acknowledge(), QStringLiteral("acknowledged"));
    emit changed();
}

void LimitWatch::tell(const QVector<LimitAlarm::Change> &changes, const QString &why)
{
    for (const LimitAlarm::Change &change : changes) {
        const bool isHigh = change.limit == LimitAlarm::High;
        // The log speaks English whatever the window does.
        qWarning().noquote()
            << QStringLiteral("Alarm %1: %2 limit %3, %4")
                   .arg(change.isOn ? QStringLiteral("begins") : QStringLiteral("ends"),
                        isHigh ? QStringLiteral("upper") : QStringLiteral("lower"),
                        levelText((isHigh ? m_limits.high : m_limits.low).value_or(0.0)), why);
        if (change.isOn)
            emit alarmBegan(alarmText());
    }
}

LimitWatch::State LimitWatch::state() const
{
    if (!m_limits.areGiven())
        return State::Off;
    if (m_isRelative)
        return State::Resting;
    switch (m_alarm.state()) {
    case LimitAlarm::State::Missing:
        return State::Missing;
    case LimitAlarm::State::Above:
        return State::Above;
    case LimitAlarm::State::Below:
        return State::Below;
    case LimitAlarm::State::Inside:
        break;
    }
    return State::Inside;
}

QString LimitWatch::alarmText() const
{
    QStringList texts;
    if (isAlarm(LimitAlarm::High))
        texts.append(tr("above %1").arg(levelText(m_limits.high.value_or(0.0))));
    if (isAlarm(LimitAlarm::Low))
        texts.append(tr("below %1").arg(levelText(m_limits.low.value_or(0.0))));
    return texts.join(QStringLiteral(", "));
}
