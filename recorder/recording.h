#pragma once

#include "measure/limits.h"
#include "meter/metervalues.h"
#include "recorder/intervals.h"
#include "recorder/jsonline.h"
#include "recorder/row.h"
#include "recorder/tally.h"

#include <functional>

/// What a recording is to do.
struct RecordingPlan
{
    qint64 every = 60000000000; ///< length of an interval in ns
    Limits limits;              ///< for the mean of an interval
};

/// Makes rows and events of what an instrument tells, without a clock, a link or a disk of its own.
///
/// All moments are handed in, in the order in which they come. Each interval gets one row,
/// whatever becomes of the link, and a reading counts for the interval in which its reply came.
class Recording
{
public:
    using TakeRow = std::function<void(const Row &)>;
    /// \a wall is the time of the event, ms since 1970 in UTC.
    using TakeEvent = std::function<void(const char *name, qint64 wall, const JsonLine &details)>;

    Recording(const RecordingPlan &plan, const Moment &start, TakeRow takeRow, TakeEvent takeEvent);

    void take(const MeterReading &reading);
    void take(const MeterDescription &description, const Moment &now);
    void takeLink(MeterState state, const QString &reason, const Moment &now);
    /// Whether a reply is awaited just now.
    void setAwaitsReply(bool awaits) { m_awaitsReply = awaits; }

    /// Looks at the clocks and ends every interval that is over at \a until by the steady clock,
    /// which is not after \a now.
    void advance(const Moment &now, qint64 until);
    /// Ends at \a until, which is not after \a now. The interval under way has a row of its own
    /// when it holds a reading and \a withRest is true.
    void finish(const Moment &now, qint64 until, const QString &reason, bool withRest);

    /// When the interval under way ends, by the steady clock.
    qint64 intervalEnd() const { return m_intervals.end(); }
    const MeterSettings &settings() const { return m_settings; }
    const LimitAlarm &alarm() const { return m_alarm; }

private:
    void close(const Intervals::Interval &interval);
    void watch(const Row &row);
    void tellStart(qint64 wall);

    const TakeRow m_takeRow;
    const TakeEvent m_takeEvent;
    Intervals m_intervals;
    Tally m_tally;
    LimitAlarm m_alarm;
    MeterState m_link = MeterState::Closed;
    bool m_awaitsReply = false;
    bool m_isLossTold = false;
    bool m_isStartTold = false;
    QString m_identity;
    MeterSettings m_settings;
};
