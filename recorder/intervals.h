#pragma once

#include "meter/steadyclock.h"

/// The intervals of equal length that follow one another from a start.
///
/// They run by the steady clock alone, so that none is lost or doubled whatever becomes of the wall
/// clock, which only gives them their names.
class Intervals
{
public:
    struct Interval
    {
        qint64 start = 0; ///< by the wall clock
        qint64 end = 0;
    };

    /// A difference between the clocks that changes by more than this from one look at them to the
    /// next is a step, in ms.
    static constexpr qint64 step = 1000;

    /// \a length in ns.
    Intervals(const Moment &start, qint64 length);

    /// Looks at the clocks, and returns by how many ms the wall clock stepped since the last look,
    /// 0 when it did not.
    qint64 look(const Moment &now);

    /// The end of the interval under way, by the steady clock.
    qint64 end() const { return m_start + m_length; }
    /// Ends the interval under way at its end, or at \a steady where that is given and comes
    /// before, and begins the next.
    Interval close(qint64 steady);
    Interval close() { return close(end()); }

private:
    qint64 wallAt(qint64 steady) const;

    const qint64 m_length;
    qint64 m_start;     // of the interval under way, by the steady clock
    qint64 m_startWall; // the same as it was told
    Moment m_reference; // by which one clock's time is told from the other's
};
