#pragma once

#include "measure/powerstatistics.h"
#include "measure/reading.h"

#include <QDateTime>

#include <deque>

/// What the readings of a watch come to, since it was begun anew or in a part of the time chart.
/// Levels in dBm and in dB relative to a reference never meet: a change of the unit begins anew.
class ReadingStatistics
{
public:
    struct Figures
    {
        PowerStatistics power;
        qint64 missed = 0; ///< asked for, without an answer that was a level
        QDateTime since;   ///< of the first reading asked for; invalid before it
    };

    /// Takes a reading that was asked for at \a now; \a position is where the time chart stands, in
    /// minutes.
    void add(const Reading &reading, bool isRelative, const QDateTime &now, double position);
    /// Begins anew: what was measured so far was something else.
    void restart();
    /// The time chart begins again at 0; what it showed is no part of it any more.
    void forgetChart() { m_recent.clear(); }

    /// There is no reading of now any more; the figures stay.
    void forgetLatest() { m_latest = {}; }

    const Reading &latest() const { return m_latest; }
    bool isRelative() const { return m_isRelative; }
    const Figures &sinceRestart() const { return m_all; }
    /// Of the readings at chart positions from \a from to \a to in minutes, both inclusive.
    Figures between(double from, double to) const;

private:
    struct Taken
    {
        double position;
        Reading reading;
        QDateTime time;
    };

    static void take(Figures &figures, const Reading &reading, const QDateTime &time);

    Reading m_latest;
    bool m_isRelative = false;
    Figures m_all;
    std::deque<Taken> m_recent; ///< those that the chart can show
};
