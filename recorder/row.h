#pragma once

#include <QString>

#include <optional>

/// What is recorded of one interval.
struct Row
{
    qint64 time = 0;  ///< the interval's end, ms since 1970 in UTC
    qint64 start = 0; ///< the same of its start
    int valid = 0;    ///< readings that came
    int invalid = 0;  ///< readings that were asked for and did not come
    // The levels are dBm, or dB with `isRelative`; all are empty without a valid reading.
    std::optional<double> mean;
    std::optional<double> minimum;
    std::optional<double> maximum;
    std::optional<double> sigma; ///< dB; empty also for a single reading
    std::optional<double> last;
    std::optional<double> frequencyHz;
    std::optional<double> offset; ///< dB
    std::optional<bool> isRelative;
    std::optional<int> averaging;
    QString reason; ///< "ok", or what spoiled the interval
};

enum class RowFormat { Csv, JsonLines, Influx };

/// How rows are written: a line each, ended by "\n".
namespace RowText {

/// The ending of the names of files, with its point.
QString fileEnding(RowFormat format);
/// The first line of a file; empty where the format has none.
QByteArray header(RowFormat format);
/// Whether \a name can be a tag of the line protocol. That has no sign for a backslash before the
/// end of a tag, nor before what needs one itself.
bool isTag(const QString &name);
/// \a meter is the tag of the line protocol; the others do not name the meter.
QByteArray line(RowFormat format, const Row &row, const QString &meter);

} // namespace RowText
