#pragma once

#include "consoletester.h"
#include "simulatorprocess.h"
#include "weekplan.h"

#include <QMap>
#include <QObject>
#include <QStringList>
#include <QTimer>
#include <QVector>

#include <functional>

/// The user, the instrument and the clock of a long run: does what a plan says at the planned
/// times to a real console and a real simulator, and watches what they make of it. The console's
/// window is shown for the first ten minutes of each hour.
class WeekRun : public QObject
{
    Q_OBJECT

public:
    struct Findings
    {
        qint64 readings = 0;
        qint64 chartPoints = 0;
        int chartRestarts = 0; ///< how often the chart began anew within a link
        int mostChartPoints = 0;
        int boxes = 0;
        /// In KiB by ms since the start: after an hour (half the time of a short run), after each
        /// day, and at the end.
        QMap<qint64, qint64> memory;
        QStringList faults; ///< what went otherwise than planned, one line each
    };

    /// Makes the console, starts the instrument and lets the virtual time begin.
    WeekRun(const WeekPlan &plan, quint32 seed);

    bool eventFilter(QObject *watched, QEvent *event) override;

    const Findings &findings() const { return m_found; }

signals:
    void finished();

private:
    struct Step
    {
        qint64 at; ///< ms since the start
        std::function<void()> act;
    };

    void planSteps();
    void planLink(int number);
    void planShowing();
    void planMemory();
    void awaitNextStep();
    void takeStep();

    void startInstrument(const WeekPlan::Link &link);
    void stopInstrument();
    void connectAsUser(bool wanted, int interval);
    void endLink(const WeekPlan::Link &link);
    void finish();

    void countReading(double power);
    void watchChart();
    void noteMemory();
    void addFault(const QString &text);

    WeekPlan m_plan;
    quint32 m_seed;
    SimulatorProcess m_instrument;
    QString m_address;
    ConsoleTester m_console;
    QVector<Step> m_steps; ///< the next one last
    QTimer m_stepTimer;
    qint64 m_linkTicks = 0; ///< of the console's clock, since the link was opened
    Findings m_found;
};
