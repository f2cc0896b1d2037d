#pragma once

#include <QtGlobal>

#include <optional>

/// Mean and spread of levels, taken in milliwatts by Welford's method, which stays exact over any
/// number of readings. A level in dB relative to a reference is taken likewise.
class PowerStatistics
{
public:
    /// Takes \a level in dBm, which must be finite.
    void add(double level);
    /// Takes everything that \a other has taken, as if it had been added here.
    void merge(const PowerStatistics &other);

    qint64 count() const { return m_count; }

    /// The level of the mean power in dBm; nothing without a reading. The same for the extremes.
    std::optional<double> mean() const;
    std::optional<double> minimum() const;
    std::optional<double> maximum() const;

    /// The spread in dB: 4.343 (10 / ln 10, rounded) times the sample deviation (n - 1) of the
    /// milliwatts over their mean, which is the deviation in dB of a spread that is small. Nothing
    /// for fewer than two readings.
    std::optional<double> sigma() const;

private:
    qint64 m_count = 0;
    double m_mean = 0.0;    // mW
    double m_squares = 0.0; // sum of the squared differences from the mean, mW²
    double m_minimum = 0.0; // dBm
    double m_maximum = 0.0; // dBm
};
