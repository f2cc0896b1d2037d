#pragma once

#include "Logic/outcome.h"
#include "measure/reading.h"
#include "meter/steadyclock.h"

#include <QMetaType>
#include <QString>

#include <optional>

/// What the instrument holds; a field is empty as long as the instrument has not told it.
struct MeterSettings
{
    std::optional<double> frequency; ///< in `frequencyUnit`
    QString frequencyUnit;           ///< "GHz", "MHz", "KHz", or empty: in GHz
    std::optional<double> offset;    ///< dB
    std::optional<int> averaging;
    QString unit; ///< of the displayed power: "dBm" or "W"
    std::optional<bool> isRelative;

    /// The frequency in Hz, a whole number.
    std::optional<double> frequencyHz() const;
};

bool operator==(const MeterSettings &a, const MeterSettings &b);
inline bool operator!=(const MeterSettings &a, const MeterSettings &b)
{
    return !(a == b);
}

/// The answers to one round of questions.
struct MeterDescription
{
    QString identity; ///< empty: not told
    MeterSettings settings;
    Outcome outcome = Outcome::Ok; ///< the first that was not `Ok`
};

/// One reading, and when its reply came or was given up.
struct MeterReading
{
    Reading reading; ///< valid exactly where `outcome` is `Ok`
    Outcome outcome = Outcome::Ok;
    Moment at;
    /// Whether the instrument showed a level in dB relative to its reference, which is then the
    /// level of the reading.
    bool isRelative = false;
};

/// How a setting, zeroing or calibration ended.
struct MeterAnswer
{
    Outcome outcome = Outcome::Ok;
    QString line;           ///< the instrument's last reply, empty when none came
    MeterSettings settings; ///< what was read back; other fields are empty
};

enum class MeterTask { Zeroing, Calibration };

enum class MeterState {
    Closed,  ///< before the start, and after the end
    Opening, ///< a try is under way, or the link is open and nothing was heard yet
    Open,
    Lost, ///< until the next try, if there is one
};

Q_DECLARE_METATYPE(MeterSettings)
Q_DECLARE_METATYPE(MeterDescription)
Q_DECLARE_METATYPE(MeterReading)
Q_DECLARE_METATYPE(MeterAnswer)
Q_DECLARE_METATYPE(MeterTask)
Q_DECLARE_METATYPE(MeterState)
