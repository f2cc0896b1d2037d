#pragma once

#include "measure/powerstatistics.h"
#include "sweep/runfile.h"
#include "sweep/tablewatch.h"

/// What a run has the devices do. Each order is answered by one call of the run, but for a stop.
class SweepOrders
{
public:
    SweepOrders() = default;
    virtual ~SweepOrders() = default;
    Q_DISABLE_COPY_MOVE(SweepOrders)

    virtual void move(double azimuth) = 0; ///< answered by SweepRun::moveAnswered
    virtual void readTable() = 0;          ///< answered by SweepRun::tableRead
    virtual void stopTable() = 0;          ///< at once, before everything that waits
    virtual void takeReading() = 0;        ///< answered by SweepRun::readingCame
    /// Keeps a measured point, whose time is left to fill in. False when it cannot be written.
    virtual bool keep(const RunRow &row) = 0;
};

/// A run point by point, as a state machine that is told the time (milliseconds of any steady
/// clock), the links' states, positions and readings. Only what the present state waits for counts;
/// answers that come too late are ignored.
class SweepRun
{
public:
    enum class State {
        Idle,
        Waiting,     ///< for the meter's or the rotator's link
        Sending,     ///< the table is told where to go
        TryingAgain, ///< a second after a rotator's error
        Turning,
        Settling,
        Reading,
        Checking, ///< whether the table still stands where it should
        Paused,
        Returning, ///< the table goes back to where it started
        Finished,
    };
    /// Why a run is paused, or ended early.
    enum class Cause {
        None,
        User,
        Stalled,
        RotatorFailed,  ///< three errors in a row
        OutOfLimits,    ///< the rotator refused the angle
        RotatorRefused, ///< another error of the rotator
        NotWritten,     ///< a point could not be written
        OtherSettings,  ///< the meter is set otherwise than at the start
    };

    /// \a orders must outlive the run; \a header holds plan, settling, readings and tolerance.
    SweepRun(SweepOrders &orders, const RunHeader &header, const QVector<PlanPoint> &points);

    /// Measures the points of the indexes \a left and the first one again. The table stands at
    /// \a azimuth, where it \a returns to at the end.
    void start(qint64 now, const QVector<int> &left, double azimuth, bool returns);

    /// Tells whether the links are up.
    void setLinks(qint64 now, bool meterUp, bool rotatorUp);
    void moveAnswered(qint64 now, int code);
    /// \a code is 0 with an angle, else the rotator's error.
    void tableRead(qint64 now, int code, double azimuth);
    /// A reading in dBm; nothing when it has no value.
    void readingCame(qint64 now, const std::optional<double> &level);
    /// Lets time pass; to be called every few hundredths of a second.
    void tick(qint64 now);

    /// Stops the table where it is.
    void pause(Cause cause);
    /// Goes on, with the last point once more.
    void resume(qint64 now);
    /// Stops the table and ends the run; then the table \a returns, which another stop ends.
    void stop(qint64 now, bool returns);

    State state() const { return m_state; }
    bool isActive() const;
    /// Of a pause or an end that came early.
    Cause cause() const { return m_cause; }
    /// The rotator's error of the cause.
    int code() const { return m_code; }
    /// Whether every point was measured, and the first again.
    bool isComplete() const { return m_complete; }
    /// Whether the table was told to move and did not refuse.
    bool hasMoved() const { return m_moved; }
    /// The index of the point under way; that of the first while it is measured again.
    int index() const;
    /// Points to measure after the one under way, the drift's among them.
    int pointsLeft() const { return m_left.size() - m_at; }
    double azimuth() const { return m_azimuth; } ///< as last read

private:
    enum class Goal { Point, Start };

    bool isMeasuring() const;
    double wanted() const;
    void send(qint64 now);
    void beginPoint(qint64 now);
    void turned(qint64 now);
    void settled();
    void checked(qint64 now);
    void finishPoint(qint64 now);
    RunRow measured() const;
    void failed(qint64 now, int code, State again);
    void stopTable();
    void finish();

    SweepOrders &m_orders;
    RunHeader m_header;
    QVector<PlanPoint> m_points;
    QVector<int> m_left;
    State m_state = State::Idle;
    Cause m_cause = Cause::None;
    Goal m_goal = Goal::Point;
    int m_code = 0;
    int m_at = 0; ///< in m_left; its size is the drift's point
    bool m_meterUp = true;
    bool m_rotatorUp = true;
    bool m_owesStop = false; ///< no link was there to stop the table on
    bool m_sent = false;     ///< the table was told to move
    bool m_moved = false;    ///< and did not refuse
    bool m_complete = false;
    bool m_returns = false;
    double m_startAzimuth = 0.0;
    double m_azimuth = 0.0;

    TableWatch m_watch;
    double m_turnedDegrees = 0.0;
    double m_turnedSeconds = 0.0;
    qint64 m_due = -1; ///< when the state's next step is due; -1: it waits for an answer
    State m_again = State::Idle;
    int m_errors = 0;

    PowerStatistics m_statistics;
    bool m_thrownAway = false; ///< the reading after the settling
    int m_blank = 0;           ///< readings without a value in a row
    bool m_missing = false;
    int m_repeats = 0; ///< how often the point was measured again
};
