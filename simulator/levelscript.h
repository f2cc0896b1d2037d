#pragma once

#include <QCoreApplication>
#include <QString>
#include <QVector>

#include <optional>

namespace sim {

/// What reaches the sensor at a moment.
struct Input
{
    double level = 0.0; ///< dBm
    bool overload = false;
};

/// What the sensor reads when the source is off, in dBm: its own noise.
constexpr double noiseFloor = -70.0;

/// A level that changes by the clock.
class LevelScript
{
    Q_DECLARE_TR_FUNCTIONS(sim::LevelScript)

public:
    /// Reads a script, a step a line: "SECONDS level DBM", "SECONDS ramp FROM TO OVER" (dBm and
    /// seconds), "SECONDS overload" or "SECONDS off". Blank lines and those that begin with "#" do
    /// not count; the seconds never go back. Returns nothing, and an explanation in \a error, for
    /// anything else.
    static std::optional<LevelScript> fromFile(const QString &path, QString *error);
    /// The same from \a text; \a error begins with the number of the line.
    static std::optional<LevelScript> fromText(const QString &text, QString *error);

    /// What is there \a ms after the start: what the last step says whose time has come, and \a
    /// before as long as there is none.
    Input at(qint64 ms, const Input &before) const;

private:
    struct Step
    {
        double second = 0.0;
        double from = 0.0; ///< dBm
        double to = 0.0;
        double over = 0.0; ///< seconds
        bool overload = false;
    };

    static std::optional<Step> readStep(const QString &line);

    QVector<Step> m_steps;
};

} // namespace sim
