#pragma once

#include "scenario.h"

/// One to three faults, and a dozen deeds between which the link may come and go, all drawn from
/// \a seed.
Scenario randomScenario(LinkMode mode, quint32 seed);
