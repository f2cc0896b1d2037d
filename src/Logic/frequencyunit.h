#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// A unit in which the console shows and sends the frequency, with the range from 1 kHz to 40 GHz
/// as it reads in that unit.
struct FrequencyUnit
{
    QString name;   ///< as on the wire: "KHz", "MHz" or "GHz"
    int factor;     ///< kHz in one of this unit
    double minimum; ///< in this unit
    double maximum; ///< in this unit
    int decimals;   ///< shown behind the point; the last one is 1 kHz

    /// The unit called \a name (case-sensitive), or nothing.
    static std::optional<FrequencyUnit> find(const QString &name);

    /// The names of all units, the smallest first.
    static QStringList names();
};

/// \a value, in the unit of \a factor, as it is sent: without needless zeros and without a point
/// that nothing follows.
QString frequencyText(double value, int factor);
