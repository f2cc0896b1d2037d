#pragma once

#include "sweep/rotatortext.h"
#include "sweep/sweeprun.h"

#include <cmath>
#include <functional>
#include <memory>

/// Devices for runs in a time of their own, shared by the tests and the campaign.
namespace SweepBench {

/// The level at a table's angle: tells from a level where the table truly stood.
inline double levelAt(double angle)
{
    return -20.0 + angle / 10.0;
}

/// A table and a meter in a time of their own, with what can go wrong with them.
class Bench : public SweepOrders
{
public:
    Bench()
    {
        m_header.plan = {-10.0, 10.0, 5.0, 0.0, 1};
        m_header.settle = 100;
        m_header.readings = 2;
        m_header.tolerance = 0.5;
    }

    // Scripts; a script that returns nothing has no say.
    std::function<void()> onStep;
    std::function<int()> moveCode;
    std::function<int()> readCode;
    std::function<std::optional<double>(double level)> reading;
    bool writes = true;
    double resolution = 0.01;
    double overshoot = 0.0;
    double speed = 6.0;

    qint64 now = 0;
    double angle = 3.0; ///< true
    double target = 3.0;
    bool meterUp = true;
    bool rotatorUp = true;
    int moves = 0;
    int stops = 0;
    int readings = 0;
    RunFile run;

    SweepRun &sweep() { return *m_sweep; }
    RunHeader &header() { return m_header; }

    /// Runs until the run rests, a day at most.
    void work(bool returns = false)
    {
        begin(returns);
        goOn();
    }

    /// Begins with what the run's rows leave to measure.
    void begin(bool returns = false)
    {
        m_points = layOut(m_header.plan, std::nullopt).points;
        run.header = m_header;
        m_sweep = std::make_unique<SweepRun>(*this, m_header, m_points);
        m_answer = nullptr;
        m_sweep->start(now, run.left(m_points), angle, returns);
    }

    void goOn()
    {
        constexpr qint64 day = 86400000;
        const qint64 end = now + day;
        while (m_sweep->isActive() && now < end)
            step();
    }

    bool isComplete() const { return m_sweep->isComplete() && run.isComplete(m_points); }
    const QVector<PlanPoint> &points() const { return m_points; }

    void move(double azimuth) override
    {
        ++moves;
        answer(20, [this, azimuth] {
            const int code = moveCode ? moveCode() : RotatorText::done;
            if (code == RotatorText::done) {
                target = azimuth + (azimuth < angle ? -overshoot : overshoot);
                m_final = azimuth;
            }
            m_sweep->moveAnswered(now, code);
        });
    }
    void readTable() override
    {
        answer(20, [this] {
            const double shown = std::round(angle / resolution) * resolution;
            m_sweep->tableRead(now, readCode ? readCode() : RotatorText::done, shown);
        });
    }
    void stopTable() override
    {
        ++stops;
        target = m_final = angle;
        m_answer = nullptr;
    }
    void takeReading() override
    {
        ++readings;
        m_readsMeter = true;
        answer(30, [this] {
            m_readsMeter = false;
            const double level = levelAt(angle);
            m_sweep->readingCame(now, reading ? reading(level) : level);
        });
    }
    bool keep(const RunRow &row) override
    {
        if (writes)
            run.rows.append(row);
        return writes;
    }

    void step();

    /// Somebody moves the table to \a azimuth at once, and it stays there.
    void takeTo(double azimuth) { angle = target = m_final = azimuth; }

private:
    void answer(qint64 delay, const std::function<void()> &call)
    {
        m_answer = call;
        m_answerAt = now + delay;
    }

    RunHeader m_header;
    QVector<PlanPoint> m_points;
    std::unique_ptr<SweepRun> m_sweep;
    std::function<void()> m_answer;
    qint64 m_answerAt = 0;
    bool m_readsMeter = false; ///< it is the meter's answer that is awaited
    double m_final = 3.0;
};

inline void Bench::step()
{
    constexpr qint64 length = 10;
    now += length;
    const double way = speed * double(length) / 1000.0;
    angle += qBound(-way, target - angle, way);
    if (angle == target)
        target = m_final;
    if (onStep)
        onStep();
    if (m_readsMeter ? !meterUp : !rotatorUp)
        m_answer = nullptr;
    m_readsMeter = m_readsMeter && m_answer;
    m_sweep->setLinks(now, meterUp, rotatorUp);
    m_sweep->tick(now);
    if (m_answer && now >= m_answerAt) {
        const auto call = m_answer;
        m_answer = nullptr;
        call();
    }
}

} // namespace SweepBench
