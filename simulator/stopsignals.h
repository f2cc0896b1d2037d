#pragma once

namespace sim {

/// Lets the signals that ask a program to end (SIGINT, SIGTERM, SIGHUP) quit the application's
/// event loop, so that everything is put away. Does nothing where there are no such signals.
void quitOnStopSignals();

} // namespace sim
