#include "powersource.h"

#include <cmath>

namespace sim {

namespace {

constexpr double twoPi = 6.283185307179586;

} // namespace

PowerSource::PowerSource(double noise, quint32 seed)
    : m_noise(noise)
    , m_random(seed)
    , m_phase(m_random.generateDouble())
{}

double PowerSource::read(double level, int averageCount)
{
    ++m_readings;
    return level + m_noise * drift() + m_noise / std::sqrt(averageCount) * gauss();
}

double PowerSource::drift() const
{
    // Five minutes and one and a half at the console's pace, each slow enough to leave the noise of
    // a well averaged reading visible.
    const double slow = m_readings / 600.0 + m_phase;
    const double quicker = m_readings / 170.0 + 3.0 * m_phase;
    return 3.0 * std::sin(twoPi * slow) + std::sin(twoPi * quicker);
}

double PowerSource::gauss()
{
    // Box and Muller; the radius must not be 0.
    const double radius = 1.0 - m_random.generateDouble();
    const double angle = m_random.generateDouble();
    return std::sqrt(-2.0 * std::log(radius)) * std::cos(twoPi * angle);
}

} // namespace sim
