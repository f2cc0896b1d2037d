#include "failure.h"

#include <cerrno>
#include <initializer_list>

namespace {

constexpr unsigned setOf(std::initializer_list<Call> calls)
{
    unsigned set = 0;
    for (const Call call : calls)
        set |= 1U << unsigned(call);
    return set;
}

constexpr unsigned every = ~0U;
constexpr unsigned writing = setOf({Call::Write});
// Some file systems find room only when they must, so that the disk is full at last in a sync, or
// in the close of a file on another machine.
constexpr unsigned needsSpace = setOf({Call::OpenToWrite, Call::Write, Call::Sync, Call::Close,
                                       Call::Rename, Call::Link, Call::MakeFolder});
constexpr unsigned changesFolder = setOf(
    {Call::OpenToWrite, Call::Rename, Call::Link, Call::Unlink, Call::MakeFolder, Call::Mode});
constexpr unsigned needsRight =
    changesFolder | setOf({Call::Open, Call::Access, Call::Truncate, Call::Status});
constexpr unsigned needsWritableDisk = changesFolder | setOf({Call::Access, Call::Truncate});
constexpr unsigned opens = setOf({Call::Open, Call::OpenToWrite});
constexpr unsigned canBeInterrupted = opens | setOf({Call::Read, Call::Write, Call::Sync});

} // namespace

bool Failure::isHarmless() const
{
    return (way == Way::Short && error == 0) || error == EINTR || error == EINVAL;
}

QVector<Failure> allFailures()
{
    using Way = Failure::Way;
    QVector<Failure> failures;
    const auto addOnceAndForGood = [&failures](const Failure &failure) {
        failures.append(failure);
        failures.append(failure);
        failures.last().name += " from then on";
        failures.last().lasting = true;
    };
    addOnceAndForGood({"no space", Way::Refused, ENOSPC, needsSpace});
    addOnceAndForGood({"no permission", Way::Refused, EACCES, needsRight});
    addOnceAndForGood({"not permitted", Way::Refused, EPERM, changesFolder});
    addOnceAndForGood({"read-only", Way::Refused, EROFS, needsWritableDisk});
    addOnceAndForGood({"I/O error", Way::Refused, EIO, every});
    addOnceAndForGood({"short, then no space", Way::Short, ENOSPC, writing});
    addOnceAndForGood({"short, then I/O error", Way::Short, EIO, writing});
    failures.append({"short", Way::Short, 0, writing});
    failures.append({"interrupted", Way::Refused, EINTR, canBeInterrupted});
    failures.append({"too many files", Way::Refused, EMFILE, opens});
    failures.append({"not supported", Way::Refused, EINVAL, setOf({Call::Sync})});
    failures.append({"killed before", Way::KilledBefore, 0, every});
    failures.append({"killed halfway", Way::KilledHalfway, 0, writing});
    failures.append({"killed after", Way::KilledAfter, 0, every});
    return failures;
}
