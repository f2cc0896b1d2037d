#pragma once

#include <QtGlobal>

/// Nanoseconds since some moment of the past, by a clock that nobody sets. It goes on while the
/// machine sleeps, where the system has such a clock.
qint64 steadyNow();
