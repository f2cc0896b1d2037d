#pragma once

#include <QMetaType>
#include <QString>

#include <cmath>

/// One answer of the instrument to the question for the power.
struct Reading
{
    enum class State {
        None,    ///< nothing has been read on this link yet
        Missing, ///< asked for, but no number came: no reply, or one without a number
        Valid,   ///< `level` holds what the instrument measured
    };

    /// The level that stands for "no reading" where only a number can be handed on.
    static constexpr double noLevel = 100.0;

    double level = noLevel; ///< dBm, or dB while the relative measurement is on
    QString text;           ///< the instrument's own text, kept also where it is no number
    State state = State::None;

    bool isValid() const { return state == State::Valid; }

    /// A valid reading, unless \a level is no number that a power can have.
    static Reading of(double level, const QString &text)
    {
        // Milliwatts of levels beyond this leave the range of a double.
        const bool isPower = std::abs(level) < 1000.0;
        return isPower ? Reading{level, text, State::Valid} : missing(text);
    }

    static Reading missing(const QString &text = {}) { return {noLevel, text, State::Missing}; }
};

inline bool operator==(const Reading &a, const Reading &b)
{
    return a.state == b.state && a.text == b.text && a.level == b.level;
}
inline bool operator!=(const Reading &a, const Reading &b)
{
    return !(a == b);
}

Q_DECLARE_METATYPE(Reading)
