#pragma once

#include "commandinterpreter.h"
#include "faultinjector.h"
#include "linesplitter.h"

#include <QObject>

class QTimer;

namespace sim {

class Link;
class Replay;
class Trace;

/// What all links of one instrument share.
struct Bench
{
    CommandInterpreter &interpreter;
    FaultInjector &faults;
    Trace &trace;
    int operationTime; ///< ms that zeroing and calibration take
    Replay *replay;    ///< what to answer with first; null: nothing
    bool replayTiming; ///< whether those replies take the time that they took
};

/// The talk with one client: takes its commands in and sends the replies out in their order, each
/// by the way that the faults prescribe.
class Session : public QObject
{
    Q_OBJECT

public:
    /// Takes \a link over, and forgets everything under way when it closes.
    Session(Link *link, const Bench &bench, QObject *parent = nullptr);

signals:
    void ended();

private:
    void takeBytes(const QByteArray &bytes);
    void takeCommand(const QByteArray &line);
    bool replay(const QByteArray &line, const QList<Fault> &faults);
    void start(Operation operation, const QList<Fault> &faults);
    void finishOperation();
    void deliver(const QList<Step> &steps);
    void advance();
    void take(const Step &step);
    void reset();
    void end();

    Link *m_link;
    Bench m_bench;
    LineSplitter m_splitter;
    QList<Step> m_steps;
    QTimer *m_stepTimer;
    QTimer *m_operationTimer;
    Operation m_operation = Operation::None;
    QList<Fault> m_operationFaults;
    bool m_dropped = false;
};

} // namespace sim
