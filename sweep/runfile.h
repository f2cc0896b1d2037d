#pragma once

#include "sweep/sweepplan.h"

#include <QByteArray>
#include <QFlags>
#include <QPointF>
#include <QString>
#include <QVector>

#include <optional>

/// What is remarkable about a measured point.
enum class RunFlag {
    Unstable = 1, ///< the readings' deviation is over 0.5 dB
    Angle = 2,    ///< the table stood elsewhere after three tries; not on the curve
    Missing = 4,  ///< three readings in a row without a value: no level
    Floor = 8,    ///< within 10 dB of the level with the source off
    Drift = 16,   ///< the first point, measured again at the end; not on the curve
};
Q_DECLARE_FLAGS(RunFlags, RunFlag)
Q_DECLARE_OPERATORS_FOR_FLAGS(RunFlags)

/// One measured point.
struct RunRow
{
    QString time;                ///< ISO 8601 with milliseconds and the zone's offset
    double wanted = 0.0;         ///< the table's angle, degrees
    double read = 0.0;           ///< what the table told, degrees
    double theta = 0.0;          ///< on the curve, degrees
    std::optional<double> mean;  ///< dBm; nothing for a missing point
    std::optional<double> sigma; ///< dB; nothing for less than two readings
    int count = 0;               ///< readings in the mean
    RunFlags flags;

    bool isOnCurve() const;
};

/// Everything that is needed to understand a run in ten years.
struct RunHeader
{
    QString version;                 ///< of the program
    QString identity;                ///< of the meter
    std::optional<double> frequency; ///< Hz
    std::optional<double> offset;    ///< dB
    std::optional<int> averaging;
    QString rotator; ///< address and model
    std::optional<TableLimits> limits;
    SweepPlan plan;
    int settle = 500;            ///< milliseconds between arrival and the first reading
    int readings = 3;            ///< in the mean of a point
    double tolerance = 0.5;      ///< degrees
    std::optional<double> floor; ///< dBm with the source off
    QString title;
    QString curve;   ///< the curve's name
    QString zone;    ///< time zone
    QString started; ///< as RunRow::time
};

/// A run as its file tells it.
struct RunFile
{
    RunHeader header;
    QVector<RunRow> rows; ///< whole ones, in the order of the file
    bool isTorn = false;  ///< the last line has no end

    /// The row that counts for the point at \a wanted: the last one; nullptr without one.
    const RunRow *row(double wanted) const;
    const RunRow *driftRow() const;
    /// How far the first point has moved while the run went on, dB; nothing before it is known.
    std::optional<double> drift() const;
    bool isMarked() const; ///< the drift is over 0.3 dB

    /// Indexes of \a points that are left to measure, ascending. While the run is not complete, the
    /// last whole row's point is among them: a power cut may have spoilt what was measured last.
    QVector<int> left(const QVector<PlanPoint> &points) const;
    /// Whether nothing is left of \a points, and the first was measured again.
    bool isComplete(const QVector<PlanPoint> &points) const;

    /// The points of the curve (θ, dBm), sorted; of a repeated θ the first counts.
    QVector<QPointF> curve() const;
};

/// The text of run files: lines "# key: value", a header, a line a row.
namespace RunText {

QByteArray header(const RunHeader &header);
QByteArray row(const RunRow &row);
/// The names of \a flags, joined by semicolons.
QByteArray flags(RunFlags flags);
/// The line that tells the drift behind the last row.
QByteArray drift(const std::optional<double> &drift);

/// Reads a run file. Rows that are torn or garbled are left out. Nothing when \a bytes are no run
/// file or its plan cannot be read.
std::optional<RunFile> read(const QByteArray &bytes);
bool isRunFile(const QByteArray &bytes);
/// Whether the file at \a path is one, as far as its beginning tells.
bool isRunFileAt(const QString &path);

/// The run file beside the curve file \a curve: NAME.run.csv beside NAME.csv.
QString pathBeside(const QString &curve);
/// The curve file beside the run file \a run.
QString curveBeside(const QString &run);

} // namespace RunText
