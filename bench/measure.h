#pragma once

#include <functional>

/// How the benchmarks take their times.
namespace Measure {

using Step = std::function<void()>;

/// The processor time that this process has used so far, in ms.
double cpuMs();

/// The median processor time of one \a step in ms. Short steps are timed in batches. A step that
/// needs a \a preparation is timed one by one, and the preparation is not counted.
double medianMs(const Step &step, const Step &preparation = {});

} // namespace Measure
