#pragma once

#include <QVector>

#include <array>
#include <optional>

/// Between which levels a power is to stay.
struct Limits
{
    std::optional<double> high; ///< dBm
    std::optional<double> low;  ///< dBm, under `high`
    double hysteresis = 0.2;    ///< dB by which a level must be back before an alarm ends
    int inARow = 1;             ///< so many levels beyond a limit, one after the other, raise it
    bool latched = false;       ///< an alarm stays until it is acknowledged

    bool areGiven() const { return high || low; }
    /// Whether a level can be inside both limits and the other figures have a meaning.
    bool areUsable() const;
};

/// Watches levels against limits.
///
/// A level equal to a limit is inside, to a ten-thousandth of a decibel: means are taken in
/// milliwatts and do not come back to the last bit. A missing level is neither inside nor outside:
/// it raises nothing, ends nothing and does not break a row.
class LimitAlarm
{
public:
    enum Limit { High, Low };
    enum class State { Missing, Inside, Above, Below };
    struct Change
    {
        Limit limit;
        bool isOn;
    };

    explicit LimitAlarm(const Limits &limits = {});

    /// Takes the next level in dBm, or nothing where one is missing, and tells which alarms begin
    /// and end by it; one that ends comes before one that begins.
    QVector<Change> add(std::optional<double> level);

    /// Ends the latched alarms whose level is back inside, or would be without the latch, and tells
    /// which; the others end as soon as the level is back.
    QVector<Change> acknowledge();

    /// Latches the alarms or no more, without beginning anew; tells which end by it.
    QVector<Change> setLatched(bool isLatched);

    /// Whether a latched alarm stands that has not been acknowledged.
    bool awaitsAcknowledgement() const;

    /// Where the last level was, whatever the row and the hysteresis make of it.
    State state() const { return m_state; }
    bool isOn(Limit limit) const { return m_watches[limit].isOn; }
    const Limits &limits() const { return m_limits; }

private:
    struct Watch
    {
        bool isOn = false;
        bool isAcknowledged = false;
        bool isBack = false; // by the hysteresis
        int row = 0;
    };

    QVector<Change> endWhatMay();
    void end(Limit limit, QVector<Change> &changes);
    bool endsByItself(const Watch &watch) const;

    Limits m_limits;
    std::array<Watch, 2> m_watches;
    State m_state = State::Missing;
};
