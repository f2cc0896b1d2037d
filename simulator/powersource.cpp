#include "powersource.h"

#include <cmath>

namespace sim {

namespace {

// The drift returns to nothing within some 200 readings (100 s at the console's pace) and has about
// four times the deviation of a single reading.
constexpr double driftReturn = 1.0 / 200.0;
constexpr double driftStep = 0.4;

} // namespace

PowerSource::PowerSource(double level, double noise, quint32 seed)
    : m_level(level)
    , m_noise(noise)
    , m_random(seed)
{}

double PowerSource::read(int averageCount)
{
    m_drift += m_noise * driftStep * gauss() - m_drift * driftReturn;
    return m_level + m_drift + m_noise / std::sqrt(averageCount) * gauss();
}

double PowerSource::gauss()
{
    // Box and Muller; the radius must not be 0.
    constexpr double twoPi = 6.283185307179586;
    const double radius = 1.0 - m_random.generateDouble();
    const double angle = m_random.generateDouble();
    return std::sqrt(-2.0 * std::log(radius)) * std::cos(twoPi * angle);
}

} // namespace sim
