#pragma once

#include <QtGlobal>

/// Stops a turning table when the program crashes: the last thing that it does is to send "S" on
/// the connection that is known here.
namespace CrashStop {

/// From now on a crash stops the table on \a socket, the system's number of a connection.
void remember(qintptr socket);
void forget();

} // namespace CrashStop
