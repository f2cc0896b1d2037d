#include "measure/powerstatistics.h"

#include <algorithm>
#include <cmath>

namespace {

std::optional<double> ifAny(qint64 count, double value)
{
    return count > 0 ? std::optional<double>(value) : std::nullopt;
}

} // namespace

void PowerStatistics::add(double level)
{
    m_minimum = m_count > 0 ? std::min(m_minimum, level) : level;
    m_maximum = m_count > 0 ? std::max(m_maximum, level) : level;
    ++m_count;
    const double milliwatts = std::pow(10.0, level / 10.0);
    const double difference = milliwatts - m_mean;
    m_mean += difference / double(m_count);
    m_squares += difference * (milliwatts - m_mean);
}

void PowerStatistics::merge(const PowerStatistics &other)
{
    if (other.m_count == 0)
        return;
    if (m_count == 0) {
        *this = other;
        return;
    }
    m_minimum = std::min(m_minimum, other.m_minimum);
    m_maximum = std::max(m_maximum, other.m_maximum);
    const double difference = other.m_mean - m_mean;
    const double total = double(m_count + other.m_count);
    m_squares +=
        other.m_squares + difference * difference * double(m_count) * double(other.m_count) / total;
    m_mean += difference * double(other.m_count) / total;
    m_count += other.m_count;
}

std::optional<double> PowerStatistics::mean() const
{
    return ifAny(m_count, 10.0 * std::log10(m_mean));
}

std::optional<double> PowerStatistics::minimum() const
{
    return ifAny(m_count, m_minimum);
}

std::optional<double> PowerStatistics::maximum() const
{
    return ifAny(m_count, m_maximum);
}

std::optional<double> PowerStatistics::sigma() const
{
    if (m_count < 2)
        return std::nullopt;
    const double deviation = std::sqrt(m_squares / double(m_count - 1));
    return 4.343 * deviation / m_mean;
}
