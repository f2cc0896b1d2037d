#pragma once

#include <QtGlobal>

/// Stops turning tables when the program crashes: the last thing that it does is to send "S" on
/// the connections that are known here.
namespace CrashStop {

/// From now on a crash stops the table on \a socket, the system's number of a connection.
void remember(qintptr socket);
void forget(qintptr socket);

} // namespace CrashStop
