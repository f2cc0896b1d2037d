#pragma once

#include "Logic/outcome.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// Reads values out of the instrument's reply lines.
///
/// The values are never refused: a reply without its prefix is converted as it stands, and what
/// cannot be converted gives 0 or an empty text, as does an empty line, which stands for a reply
/// that never came. What such a value is worth tells `outcome`.
namespace ReplyParser {

struct Frequency
{
    double value = 0.0; ///< in `unit`
    QString unit;       ///< "GHz", "MHz", "KHz", or empty when the reply carried none
};

struct Power
{
    double dbm = 100.0; ///< 100 dBm is what the gauge takes for "no reading"
    QString
        text; ///< as the instrument displays it, in its current unit, also where it is no number
};

/// The results of the tasks that take the instrument longer than a read waits.
enum class TaskResult {
    None,
    CalibrationSucceeded,
    CalibrationFailed,
    ZeroSucceeded,
    ZeroFailed,
};

/// Whether the instrument confirmed a setting: "OK" anywhere in \a line.
bool isConfirmed(const QString &line);

/// What the instrument calls itself.
QString identity(const QString &line);

/// The unit is the last three characters of a value that contains "Hz"; a value in plain "Hz" thus
/// loses the digit before it. It is looked for behind the prefix only.
Frequency frequency(const QString &line);

/// The offset in dB.
double offset(const QString &line);

/// "dBm" or "W" in the instrument's own letters.
QString powerUnit(const QString &line);

/// "ON" or "OFF" of the relative measurement.
QString measureState(const QString &line);

int averageCount(const QString &line);

/// A reply that lacks its prefix, or has another behind it, or is not made of exactly two fields,
/// is no reading and leaves no text. One whose first field is no finite number ("OVERLOAD", "nan",
/// nothing) is no reading either, but its text stays.
Power power(const QString &line);

/// The level of a display text in "dB", which the instrument shows while the relative measurement
/// is on; nothing for any other text.
std::optional<double> relativeLevel(const QString &text);

/// Which task \a line reports on; the text that tells may stand anywhere in it.
TaskResult taskResult(const QString &line);

/// What \a line, without its newline, is worth as the reply to \a command: `Ok`, `Garbled` or
/// `Refused`. A setting is answered by "OK", zeroing and calibration by their reports, a query by
/// its prefix and a value.
Outcome outcome(const QByteArray &command, const QString &line);

} // namespace ReplyParser
