#pragma once

#include "fault.h"

#include <QList>
#include <QRandomGenerator>

namespace sim {

/// One step on the way of a reply to the client: a wait, then bytes, or the end of the connection.
struct Step
{
    int delay = 0; ///< ms before this step
    QByteArray bytes;
    bool drop = false;
};

/// Chooses which faults befall which command and what becomes of the reply. The same faults, seed
/// and commands give the same mishaps.
class FaultInjector
{
public:
    FaultInjector(const QList<Fault> &faults, quint32 seed);

    /// The faults that befall the command in \a line; to be asked once a command, in order.
    QList<Fault> befalling(const QByteArray &line);

    /// How \a reply, a line without its newline, gets to the client under \a faults.
    QList<Step> delivery(const QByteArray &reply, const QList<Fault> &faults);

private:
    struct Counted
    {
        Fault fault;
        int seen = 0;
        int used = 0;
    };

    bool isDue(Counted &counted);
    void strew(QByteArray &bytes, int count);
    QList<QByteArray> cut(const QByteArray &bytes);

    QList<Counted> m_faults;
    QRandomGenerator m_random;
};

/// Whether one of \a faults is of \a kind.
bool contains(const QList<Fault> &faults, FaultKind kind);

} // namespace sim
