#pragma once

#include "meter/metervalues.h"

#include <QStringList>
#include <QVector>

#include <optional>

/// A setting as it is asked for on the command line.
struct WantedSetting
{
    enum class Kind { Frequency, Offset, Averaging, Unit, Relative };

    Kind kind = Kind::Frequency;
    QString text;         ///< as it was written
    MeterSettings values; ///< with the one field of the kind
    QString digits;       ///< of a frequency, as they go out

    /// Reads "frequency 2.45GHz offset -3.5 …"; nothing, and why in \a error, where a word is
    /// wrong.
    static std::optional<QVector<WantedSetting>> read(const QStringList &words, QString *error);

    QString name() const;
    /// Whether \a told by the instrument is what was asked for.
    bool isMet(const MeterSettings &told) const;
};

/// The settings of an instrument as the program tells them.
namespace SettingText {

/// The value of \a kind as in "frequency: 2.45 GHz", or "-" where it is missing.
QString value(WantedSetting::Kind kind, const MeterSettings &settings);
/// The whole line.
QString line(WantedSetting::Kind kind, const MeterSettings &settings);

} // namespace SettingText
