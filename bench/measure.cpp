#include "measure.h"

#include <algorithm>
#include <cmath>
#include <ctime>
#include <vector>

namespace {

constexpr double batchMs = 5.0;     // of which the clock's grain is a fraction of a percent
constexpr double enoughMs = 1500.0; // for one figure
constexpr double slowMs = 1000.0;   // beyond it three steps have to do
constexpr std::size_t fewestBatches = 5;
constexpr std::size_t mostBatches = 201;

double median(std::vector<double> times)
{
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

} // namespace

namespace Measure {

double cpuMs()
{
    return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

double medianMs(const Step &step, const Step &preparation)
{
    const auto timed = [&step, &preparation](int repetitions) {
        if (preparation)
            preparation();
        const double start = cpuMs();
        for (int i = 0; i < repetitions; ++i)
            step();
        return (cpuMs() - start) / repetitions;
    };

    const double cold = timed(1); // fills the caches, and builds what is built on first use
    if (cold > slowMs)
        return median({cold, timed(1), timed(1)});
    const double first = std::max(timed(1), 1e-3);
    const int repetitions = preparation ? 1 : static_cast<int>(std::ceil(batchMs / first));

    std::vector<double> times;
    double total = 0.0;
    while (times.size() < fewestBatches || (total < enoughMs && times.size() < mostBatches)) {
        times.push_back(timed(repetitions));
        total += times.back() * repetitions;
    }
    return median(times);
}

} // namespace Measure
