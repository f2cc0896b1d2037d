#pragma once

#include "scenario.h"
#include "simulatorprocess.h"

#include <QMap>
#include <QtTest>

#include <memory>

QT_BEGIN_NAMESPACE
class QTcpSocket;
QT_END_NAMESPACE

/// Processes events until \a condition holds, \a timeout ms at most. Whoever does not look at the
/// answer checks afterwards what the condition was for.
template<typename Condition>
bool waitFor(Condition condition, int timeout)
{
    return QTest::qWaitFor(condition, timeout);
}

/// The instrument of a scenario, and what its trace says of it.
class Instrument
{
public:
    Instrument(LinkMode mode, const QStringList &faults);
    ~Instrument();
    Q_DISABLE_COPY(Instrument)

    /// Starts it, with its faults or, as another one without any, in their place. False: it cannot.
    bool start(bool faulty);
    void stop() { m_process.stop(); }
    /// Takes its one connection, as another client would, and gives it back.
    void occupy();
    void leave();

    LinkMode mode() const { return m_mode; }
    /// Where a client reaches it. A serial port that was taken away is waited for.
    QString port();
    int portValue();

    /// How many polls it has heard.
    int polls() { return m_process.commands().count(QStringLiteral("GET?")); }
    /// How often each kind of fault has befallen a command so far, in all.
    QMap<QString, int> befallen();
    /// Whether it runs and all its faults are used up.
    bool isSound();

    /// Where the trace of replies stands, to be handed to readingsSince().
    int mark() { return m_process.replies().size(); }
    /// The readings that went out whole since \a mark, each as "POWER,TEXT" with two decimals.
    QStringList readingsSince(int mark);
    /// What it last replied to \a query, without the prefix.
    QString lastReply(const QString &query);

private:
    LinkMode m_mode;
    QStringList m_faults;
    QMap<QString, int> m_earlier; // of the processes before this one
    SimulatorProcess m_process;
    std::unique_ptr<QTcpSocket> m_otherClient;
};
