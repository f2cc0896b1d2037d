#pragma once

#include <QByteArray>
#include <QVector>

/// The kinds of system calls on files, as far as they fail for different reasons.
enum class Call {
    Open,        ///< for reading
    OpenToWrite, ///< also creates
    Read,
    Write,
    Size,   ///< of an open file
    Status, ///< of a name
    Access,
    Sync,
    Close,
    Rename,
    Link,
    Unlink,
    Truncate,
    MakeFolder,
    Mode,
};

/// One way in which a system call goes wrong.
struct Failure
{
    enum class Way {
        None,
        Refused,       ///< nothing is done, an error is returned
        Short,         ///< half of the bytes are written; what the next writing meets is the error
        KilledBefore,  ///< the process ends without any further instruction
        KilledHalfway, ///< with half of the bytes written
        KilledAfter,
    };

    QByteArray name;
    Way way = Way::None;
    int error = 0;        ///< of errno
    unsigned calls = 0;   ///< the set of calls that it can happen to
    bool lasting = false; ///< all later calls of the set fail as well

    bool concerns(Call call) const { return ((calls >> unsigned(call)) & 1U) != 0; }
    bool kills() const { return way >= Way::KilledBefore; }
    /// Whether everything can be written all the same.
    bool isHarmless() const;
};

/// Everything that is tried.
QVector<Failure> allFailures();
