#pragma once

#include <limits>
#include <optional>
#include <string_view>

/// The tables that hold records.
enum class RecordKind {
    Unknown,
    Console,   ///< the console's day files: minutes, a level with two decimals
    Csv,       ///< intervals, as comma-separated values
    JsonLines, ///< the same, an object a line
};

/// What is read of every row.
struct RecordRow
{
    double time = 0.0; ///< seconds since 1970 by the clock that RowParser::time() tells of
    double level = std::numeric_limits<double>::quiet_NaN(); ///< dBm or dB, no number when invalid
    bool isRelative = false;                                 ///< the level is in dB
    std::string_view start;                                  ///< text of an interval's begin

    bool isValid() const { return level == level; }
};

/// Reads rows; one parser a file, since it remembers the day of the last row.
class RowParser
{
public:
    /// \a zone: of the clock that times are given by, in seconds east of Greenwich; the zone of the
    /// first time read unless given.
    explicit RowParser(RecordKind kind, std::optional<double> zone = {})
        : m_kind(kind)
        , m_zone(zone)
    {}

    /// The kind of a file whose first line is \a line, an end of line not included.
    static RecordKind kindOf(std::string_view line);

    RecordKind kind() const { return m_kind; }
    /// Nothing while no time with a zone was read: the console writes none.
    std::optional<double> zone() const { return m_zone; }

    /// The row \a line; nothing for a header and for what is no row of this kind.
    std::optional<RecordRow> parse(std::string_view line);

    /// The time "yyyy-MM-ddThh:mm:ss.zzz+hh:mm" or "yyyy/MM/dd hh:mm" in seconds since 1970 by a
    /// clock that stands in zone() all the time, or as it is written where there is no zone. So an
    /// hour that comes twice in autumn comes one after the other.
    std::optional<double> time(std::string_view text);

private:
    std::optional<RecordRow> consoleRow(std::string_view line);
    std::optional<RecordRow> csvRow(std::string_view line);
    std::optional<RecordRow> jsonRow(std::string_view line);

    RecordKind m_kind;
    std::optional<double> m_zone;
    char m_day[10] = {};     ///< the date that was converted last, as it is written
    double m_dayBegin = 0.0; ///< and its first second
};

/// The levels that text holds, "-20.04" or "1e-3"; nothing for an empty text, for one that goes on
/// behind the number, and for what is not finite.
std::optional<double> numberIn(std::string_view text);

/// The value of \a key in the flat JSON object \a line as it stands there, quotes of a text taken
/// off; empty when it is not there.
std::string_view jsonValue(std::string_view line, std::string_view key);
