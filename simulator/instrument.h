#pragma once

#include "levelscript.h"
#include "powersource.h"

#include <QByteArray>

#include <functional>

namespace sim {

/// The units in which the instrument takes and shows a frequency.
enum class FrequencyUnit { KHz, MHz, GHz };

/// The units of the displayed power.
enum class PowerUnit { DBm, Watt };

/// What the instrument behind the wire holds and measures. Every setter returns false, and changes
/// nothing, when the value is out of range.
class Instrument
{
public:
    /// Tells what reaches the sensor now.
    using Sensor = std::function<Input()>;

    /// \a serialNumber appears in the identity; \a microSign: watts with "µ" in place of "u".
    Instrument(Sensor sensor, const PowerSource &source, quint32 serialNumber, bool microSign);

    QByteArray identity() const;

    /// \a value in \a unit, 1 kHz to 40 GHz, kept to the kHz.
    bool setFrequency(double value, FrequencyUnit unit);
    /// The frequency in the unit it was set in, without needless zeros: "2.45GHz".
    QByteArray frequencyText() const;

    /// -100 to 100 dB, added to every reading.
    bool setOffset(double dB);
    double offset() const { return m_offset; }

    /// 1 to 1024 readings.
    bool setAverageCount(int count);
    int averageCount() const { return m_averageCount; }

    void setPowerUnit(PowerUnit unit) { m_powerUnit = unit; }
    PowerUnit powerUnit() const { return m_powerUnit; }

    /// Switching on takes the present power as the reference, also when it was on before.
    void setRelative(bool on);
    bool isRelative() const { return m_relative; }

    /// One reading, "-20.00dBm,10.00uW": the power in dBm, then as displayed. In the relative state
    /// the displayed one is in dB over the reference. More than the sensor bears is
    /// "OVERLOAD,OVERLOAD".
    QByteArray measure();

private:
    double absolutePower(double level);

    Sensor m_sensor;
    PowerSource m_source;
    quint32 m_serialNumber;
    bool m_microSign;
    qint64 m_frequency = 50000; // kHz
    FrequencyUnit m_frequencyUnit = FrequencyUnit::MHz;
    double m_offset = 0.0; // dB
    int m_averageCount = 1;
    PowerUnit m_powerUnit = PowerUnit::DBm;
    bool m_relative = false;
    double m_reference = 0.0; // dBm
};

} // namespace sim
