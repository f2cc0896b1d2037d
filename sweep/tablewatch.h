#pragma once

#include <QtGlobal>

/// Tells from the angles that a turning table reports whether it has arrived, has to be sent again,
/// or stalls. Times are milliseconds of any steady clock, angles degrees.
class TableWatch
{
public:
    enum class Verdict {
        Wait,
        Arrived,   ///< read within the tolerance twice running
        SendAgain, ///< it rests elsewhere or moves away: somebody else has moved it
        Stalled,   ///< no change for 10 s, or three times the expected time and 10 s more are over
    };

    /// Watches the way from \a from to \a wanted, at \a speed degrees a second for what is known.
    void start(qint64 now, double from, double wanted, double tolerance, double speed);

    /// Takes in what the table reads now.
    Verdict look(qint64 now, double read);

    /// How far it was to turn at least, degrees.
    double distance() const { return m_distance; }
    /// How long it turns by now.
    qint64 elapsed(qint64 now) const { return now - m_started; }

private:
    qint64 limitFrom(qint64 now, double distance) const;
    bool movedAway(qint64 now, double off);

    double m_wanted = 0.0;
    double m_tolerance = 0.0;
    double m_speed = 1.0;
    double m_distance = 0.0;
    qint64 m_started = 0;
    qint64 m_sent = 0;
    qint64 m_limit = 0;
    qint64 m_changed = 0;
    double m_last = 0.0;
    double m_closest = 0.0;
    int m_hits = 0;
    int m_sentAgain = 0;
    bool m_sentAtRest = false;
};
