#pragma once

#include <QRandomGenerator>

namespace sim {

/// The signal at the sensor: a level that wanders slowly about its nominal value and carries noise.
/// The same seed gives the same readings, since time is counted in readings and not in seconds.
class PowerSource
{
public:
    /// \a noise is the standard deviation of a single reading in dB. The drift is in proportion to
    /// it, so that a source without noise stands perfectly still.
    PowerSource(double noise, quint32 seed);

    /// The next reading in dBm of a nominal \a level, the mean of \a averageCount (1 or more)
    /// single ones: its noise shrinks with the square root of the count, the drift does not.
    double read(double level, int averageCount);

private:
    double drift() const;
    /// A normally distributed number with mean 0 and deviation 1. The standard library's
    /// distribution would differ from one compiler to the next.
    double gauss();

    double m_noise;
    QRandomGenerator m_random;
    double m_phase; ///< of the drift, in turns
    int m_readings = 0;
};

} // namespace sim
