#pragma once

#include <functional>

/// Lets \a stop, called from the event loop, answer the signals that ask a program to end (SIGINT,
/// SIGTERM, SIGHUP; on Windows Ctrl+C, Ctrl+Break and the closing of the console), so that
/// everything is put away. A signal that is ignored when the program starts stays so: nohup means
/// what it says.
///
/// To be called once, when there is an application object.
void onStopSignals(std::function<void()> stop);
