#include "faultinjector.h"

#include <algorithm>

namespace sim {

namespace {

/// What the faults of one kind ask for together; -1: there is none.
int total(const QList<Fault> &faults, FaultKind kind)
{
    int sum = -1;
    for (const Fault &fault : faults) {
        if (fault.kind == kind)
            sum = std::max(sum, 0) + fault.amount;
    }
    return sum;
}

} // namespace

bool contains(const QList<Fault> &faults, FaultKind kind)
{
    return total(faults, kind) >= 0;
}

FaultInjector::FaultInjector(const QList<Fault> &faults, quint32 seed)
    : m_random(seed)
{
    for (const Fault &fault : faults)
        m_faults.append({fault});
}

QList<Fault> FaultInjector::befalling(const QByteArray &line)
{
    QList<Fault> list;
    for (Counted &counted : m_faults) {
        if (counted.fault.concerns(line) && isDue(counted))
            list.append(counted.fault);
    }
    return list;
}

bool FaultInjector::isDue(Counted &counted)
{
    const Fault &fault = counted.fault;
    const int beyond = ++counted.seen - fault.after;
    if (beyond <= 0 || beyond % fault.every != 0)
        return false;
    if (fault.times > 0 && counted.used >= fault.times)
        return false;
    if (fault.probability < 1.0 && m_random.generateDouble() >= fault.probability)
        return false;
    ++counted.used;
    return true;
}

QList<Step> FaultInjector::delivery(const QByteArray &reply, const QList<Fault> &faults)
{
    QByteArray bytes = reply;
    if (const int count = total(faults, FaultKind::Garbage); count > 0)
        strew(bytes, count);
    if (contains(faults, FaultKind::TwoLines))
        bytes += '\n' + bytes;
    if (!contains(faults, FaultKind::NoNewline))
        bytes += '\n';

    const bool inside = contains(faults, FaultKind::DropInside);
    if (inside)
        bytes.truncate(bytes.size() / 2);
    if (contains(faults, FaultKind::NoReply) || contains(faults, FaultKind::DropBefore))
        bytes.clear();

    const int pause = total(faults, FaultKind::Pieces);
    QList<Step> steps;
    for (const QByteArray &piece : pause < 0 ? QList<QByteArray>{bytes} : cut(bytes)) {
        if (!piece.isEmpty())
            steps.append({steps.isEmpty() ? 0 : pause, piece});
    }
    if (inside || contains(faults, FaultKind::DropBefore) || contains(faults, FaultKind::DropAfter))
        steps.append({0, {}, true});
    if (!steps.isEmpty())
        steps.first().delay = std::max(0, total(faults, FaultKind::Late));
    return steps;
}

void FaultInjector::strew(QByteArray &bytes, int count)
{
    for (int i = 0; i < count; ++i) {
        char stray = i == 0 ? '\0' : static_cast<char>(m_random.bounded(256));
        // A stray newline would be a fault of another kind.
        if (stray == '\n')
            stray = '\0';
        bytes.insert(m_random.bounded(bytes.size() + 1), stray);
    }
}

QList<QByteArray> FaultInjector::cut(const QByteArray &bytes)
{
    constexpr int mostOrdinaryCuts = 3;
    QList<int> places;
    for (int i = 1; i < bytes.size(); ++i) {
        const bool insideCharacter = (static_cast<unsigned char>(bytes.at(i)) & 0xC0U) == 0x80U;
        if (insideCharacter)
            places.append(i);
    }
    if (bytes.size() > 1) {
        const int cuts = 1 + m_random.bounded(mostOrdinaryCuts);
        for (int i = 0; i < cuts; ++i)
            places.append(1 + m_random.bounded(bytes.size() - 1));
    }
    std::sort(places.begin(), places.end());
    places.append(bytes.size());

    QList<QByteArray> pieces;
    int start = 0;
    for (const int place : qAsConst(places)) {
        if (place > start)
            pieces.append(bytes.mid(start, place - start));
        start = place;
    }
    return pieces;
}

} // namespace sim
