#pragma once

#include "judge.h"

/// Virtual days of a recording from \a firstDay on ("2026-10-10", by the clock of Berlin), with a
/// row every ten seconds: links lost, replies late and garbled, a process that is stopped, a disk
/// that is full, a wall clock that is set. What is random follows \a seed.
Verdict runMonth(const QString &firstDay, int days, quint32 seed);
