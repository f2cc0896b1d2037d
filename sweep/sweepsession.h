#pragma once

#include "sweep/runstore.h"
#include "sweep/sweepdevices.h"
#include "sweep/sweeprun.h"

#include <QElapsedTimer>
#include <QTimer>

/// What is asked of a run beside the devices' addresses. Of the header plan, settling, readings,
/// tolerance, floor, title and curve count; the rest is filled in.
struct SweepJob
{
    RunHeader header;
    QString curve; ///< the curve file
    RunStore::Mode mode = RunStore::Mode::New;
    bool returns = false; ///< the table goes back to where it started
};

/// Where a run stands.
struct SweepProgress
{
    SweepRun::State state = SweepRun::State::Idle;
    double azimuth = 0.0;        ///< as last read
    double theta = 0.0;          ///< of the point under way
    std::optional<double> level; ///< dBm, of the last reading
    std::optional<double> sigma; ///< dB, of the last point
    int done = 0;                ///< points
    int all = 0;
    qint64 remaining = -1; ///< ms; -1: not known yet
};

/// One run from its files to its end: has meter and rotator do what the run orders, keeps the
/// points, and writes the curve. Whatever ends it stops the table first.
class SweepSession : public QObject, private SweepOrders
{
    Q_OBJECT

public:
    /// Why a run is not begun.
    enum class Refusal { None, Plan, Files, Relative, OtherSettings };

    explicit SweepSession(const SweepJob &job, QObject *parent = nullptr);
    /// Stops the table and writes what there is.
    ~SweepSession() override;

    /// Looks at the plan and opens the files, before any device is asked. `refusalText` tells more.
    Refusal prepare();
    /// Whether it is the disk, or another program, that refused.
    bool isNotWritable() const;
    /// Whether nothing is left to measure: `writeCurve` is all that is to be done.
    bool isComplete() const;
    bool writeCurve() { return m_store.writeCurve(); }

    /// Begins to measure with \a devices, which were checked and must outlive the session.
    Refusal start(SweepDevices &devices);

    void pause();
    void resume();
    /// Stops the table, ends the run and writes the curve; `ended` tells when the table has heard
    /// of it. Called again while the table returns, it stops it there.
    void stop();
    /// The same, but the table stays where it is.
    void giveUp();

    const RunStore &store() const { return m_store; }
    SweepProgress progress() const;
    SweepRun::Cause cause() const;
    /// Whether the table was told to move and did not refuse.
    bool hasMoved() const { return m_run && m_run->hasMoved(); }
    bool isRunning() const { return m_run && m_run->state() != SweepRun::State::Finished; }
    /// Whether the curve could be written at the end.
    bool isWritten() const { return m_isWritten; }

    /// What is told of a refusal, of a pause or an early end, and of what is waited for; one
    /// sentence in the user's language.
    QString refusalText(Refusal refusal) const;
    QString causeText() const;
    QString waitText() const;

signals:
    /// State, angle, level or what is waited for has changed.
    void progressed();
    void measured(const RunRow &row);
    /// The table stands or was told to, and the files are written.
    void ended();

private:
    void move(double azimuth) override;
    void readTable() override;
    void stopTable() override;
    void takeReading() override;
    bool keep(const RunRow &row) override;

    RunHeader filledHeader() const;
    Refusal layOutFor(const std::optional<TableLimits> &limits);
    bool isOtherSettings(const MeterSettings &settings) const;
    void connectDevices();
    void takePosition(int code, double azimuth);
    void takeReadingOf(const MeterReading &reading);
    void takeSettings(const MeterDescription &description);
    void look();
    void end();
    void finish();

    SweepJob m_job;
    RunStore m_store;
    RunStore::Problem m_problem = RunStore::Problem::None;
    PlanLayout m_layout;
    std::optional<TableLimits> m_limits; ///< of the table that is there
    SweepDevices *m_devices = nullptr;
    std::unique_ptr<SweepRun> m_run;
    QElapsedTimer m_clock;
    QTimer m_tick;
    QTimer m_stopLimit; ///< for the table's answer to the last stop
    bool m_locating = false;
    bool m_ending = false;
    bool m_isWritten = true;
    bool m_hasEnded = false;
    int m_askedReadings = 0;
    std::optional<double> m_level;
    std::optional<double> m_sigma;
    SweepRun::State m_shownState = SweepRun::State::Idle;
    qint64 m_pointsTime = 0; ///< ms for the points of m_pointsCount, without pauses
    qint64 m_pointBegan = 0;
    int m_pointsCount = 0;
};
