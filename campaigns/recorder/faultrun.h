#pragma once

#include "judge.h"

/// The real recorder for some seconds at a real simulator with the fault that \a fault names.
Verdict runWithFault(const QString &fault);

/// The faults to try.
QStringList faults();
