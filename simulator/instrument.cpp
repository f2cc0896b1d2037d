#include "instrument.h"

#include "powertext.h"

#include <cmath>
#include <utility>

namespace sim {

namespace {

struct UnitInfo
{
    double factor; // kHz
    int decimals;  // down to 1 kHz
    const char *text;
};

UnitInfo info(FrequencyUnit unit)
{
    switch (unit) {
    case FrequencyUnit::KHz:
        return {1.0, 0, "KHz"};
    case FrequencyUnit::MHz:
        return {1e3, 3, "MHz"};
    case FrequencyUnit::GHz:
        break;
    }
    return {1e6, 6, "GHz"};
}

} // namespace

Instrument::Instrument(Sensor sensor, const PowerSource &source, quint32 serialNumber,
                       bool microSign)
    : m_sensor(std::move(sensor))
    , m_source(source)
    , m_serialNumber(serialNumber)
    , m_microSign(microSign)
{}

QByteArray Instrument::identity() const
{
    return "MZ6218,SIM" + QByteArray::number(m_serialNumber).rightJustified(6, '0') +
           "," MZ_VERSION;
}

bool Instrument::setFrequency(double value, FrequencyUnit unit)
{
    // The margin is for the last binary digit of a number at the very end of the range.
    constexpr double minimum = 1.0 - 1e-6;
    constexpr double maximum = 40e6 + 1e-6;
    const double kHz = value * info(unit).factor;
    if (!(kHz > minimum && kHz < maximum))
        return false;
    m_frequency = std::llround(kHz);
    m_frequencyUnit = unit;
    return true;
}

QByteArray Instrument::frequencyText() const
{
    const UnitInfo unit = info(m_frequencyUnit);
    QByteArray text = QByteArray::number(double(m_frequency) / unit.factor, 'f', unit.decimals);
    if (text.contains('.')) {
        while (text.endsWith('0'))
            text.chop(1);
        if (text.endsWith('.'))
            text.chop(1);
    }
    return text + unit.text;
}

bool Instrument::setOffset(double dB)
{
    if (!(std::abs(dB) <= 100.0))
        return false;
    m_offset = dB;
    return true;
}

bool Instrument::setAverageCount(int count)
{
    if (count < 1 || count > 1024)
        return false;
    m_averageCount = count;
    return true;
}

void Instrument::setRelative(bool on)
{
    m_relative = on;
    if (on)
        m_reference = absolutePower(m_sensor().level);
}

QByteArray Instrument::measure()
{
    const Input input = m_sensor();
    const double power = absolutePower(input.level);
    if (input.overload)
        return "OVERLOAD,OVERLOAD";
    const QByteArray dBm = twoDecimals(power) + "dBm";
    if (m_relative)
        return dBm + ',' + twoDecimals(power - m_reference) + "dB";
    return dBm + ',' + (m_powerUnit == PowerUnit::DBm ? dBm : wattText(power, m_microSign));
}

double Instrument::absolutePower(double level)
{
    return m_source.read(level, m_averageCount) + m_offset;
}

} // namespace sim
