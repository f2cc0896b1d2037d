#pragma once

#include "measure/limits.h"
#include "measure/reading.h"

#include <QObject>
#include <QString>

/// Watches the readings against the limits that the user gave and keeps the log of it: a line at
/// the begin and at the end of every alarm. During a relative measurement the limits rest.
class LimitWatch : public QObject
{
    Q_OBJECT

public:
    enum class State {
        Off,     ///< no limits are given
        Resting, ///< the measurement is relative
        Missing, ///< the latest reading did not come, or there is none yet
        Inside,
        Above,
        Below
    };
    Q_ENUM(State)

    using QObject::QObject;
    /// Alarms that stand end with it.
    ~LimitWatch() override;

    const Limits &limits() const { return m_limits; }
    /// Watches \a limits from the next reading on; an alarm of the former ones ends. When they
    /// differ in the latch alone, the watch goes on.
    void setLimits(const Limits &limits);
    void setRelative(bool isRelative);
    void take(const Reading &reading);
    /// Ends the latched alarms whose level is back.
    void acknowledge();

    State state() const;
    bool isAlarm(LimitAlarm::Limit limit) const { return m_alarm.isOn(limit); }
    bool isAlarm() const { return isAlarm(LimitAlarm::High) || isAlarm(LimitAlarm::Low); }
    bool awaitsAcknowledgement() const { return m_alarm.awaitsAcknowledgement(); }
    /// The alarms that stand, in words; empty for none.
    QString alarmText() const;

signals:
    void changed();
    /// An alarm has begun; \a text tells which.
    void alarmBegan(const QString &text);

private:
    void tell(const QVector<LimitAlarm::Change> &changes, const QString &why);
    void startAnew(const QString &why);

    Limits m_limits;
    LimitAlarm m_alarm;
    bool m_isRelative = false;
};
