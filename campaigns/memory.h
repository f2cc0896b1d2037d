#pragma once

#include "testfiles.h"

#ifdef __SANITIZE_ADDRESS__
constexpr bool isMemoryTelling = false; // the sanitizer keeps what was freed
#else
constexpr bool isMemoryTelling = true;
#endif

/// The memory of this process that is really in use, in KiB.
inline qint64 residentMemory()
{
    const QByteArray status = contentOf(QStringLiteral("/proc/self/status"));
    return status.mid(status.indexOf("VmRSS:")).simplified().split(' ').value(1).toLongLong();
}
