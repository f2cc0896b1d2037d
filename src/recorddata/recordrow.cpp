#include "recorddata/recordrow.h"

#include <charconv>
#include <cmath>
#include <cstring>

namespace {

constexpr double noReading = 100.0; // the console's row of a reading that did not come
constexpr double secondsPerMinute = 60.0;
constexpr double secondsPerHour = 3600.0;
constexpr double secondsPerDay = 86400.0;

bool startsWith(std::string_view text, std::string_view begin)
{
    return text.substr(0, begin.size()) == begin;
}

/// The number of \a count digits at \a text, -1 when there is anything else.
int digits(const char *text, int count)
{
    int value = 0;
    for (int i = 0; i < count; ++i) {
        const int digit = text[i] - '0';
        if (digit < 0 || digit > 9)
            return -1;
        value = value * 10 + digit;
    }
    return value;
}

/// Days from 1970-01-01 in the Gregorian calendar, counted in years that begin in March, so that
/// the leap day is their last.
int daysSinceEpoch(int year, int month, int day)
{
    constexpr int daysPerEra = 146097; // 400 years
    constexpr int epoch = 719468;      // 1970-01-01 from 0000-03-01
    year -= month <= 2 ? 1 : 0;
    const int era = year / 400;
    const int yearOfEra = year - era * 400;
    const int dayOfYear = (153 * (month > 2 ? month - 3 : month + 9) + 2) / 5 + day - 1;
    return era * daysPerEra + yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear - epoch;
}

/// Seconds east of Greenwich in "Z", "+01:00" or "-0330".
std::optional<double> zoneOffset(std::string_view text)
{
    if (text == "Z")
        return 0.0;
    constexpr std::size_t shortest = 5;
    if (text.size() < shortest || (text[0] != '+' && text[0] != '-'))
        return {};
    const int hours = digits(text.data() + 1, 2);
    const int minutes = digits(text.data() + text.size() - 2, 2);
    if (hours < 0 || minutes < 0)
        return {};
    const double offset = hours * secondsPerHour + minutes * secondsPerMinute;
    return text[0] == '-' ? -offset : offset;
}

/// Cuts the text up to the next comma off \a rest.
std::string_view takeField(std::string_view &rest)
{
    const std::size_t comma = rest.find(',');
    const std::string_view field = rest.substr(0, comma);
    rest.remove_prefix(comma == std::string_view::npos ? rest.size() : comma + 1);
    return field;
}

/// The same from the end.
std::string_view takeLastField(std::string_view &rest)
{
    const std::size_t comma = rest.rfind(',');
    const std::string_view field = comma == std::string_view::npos ? rest : rest.substr(comma + 1);
    rest = rest.substr(0, comma == std::string_view::npos ? 0 : comma);
    return field;
}

} // namespace

std::optional<double> numberIn(std::string_view text)
{
    double value = 0.0;
    const char *end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc() || stop != end || !std::isfinite(value))
        return {};
    return value;
}

std::string_view jsonValue(std::string_view line, std::string_view key)
{
    for (std::size_t at = line.find(key); at != std::string_view::npos;
         at = line.find(key, at + key.size())) {
        std::size_t from = at + key.size();
        if (at == 0 || line[at - 1] != '"' || from + 1 >= line.size() || line[from] != '"')
            continue;
        from = line.find_first_not_of(' ', from + 1);
        if (from == std::string_view::npos || line[from] != ':')
            continue;
        from = line.find_first_not_of(' ', from + 1);
        if (from == std::string_view::npos)
            return {};
        if (line[from] == '"')
            return line.substr(from + 1, line.find('"', from + 1) - from - 1);
        return line.substr(from, line.find_first_of(",} ", from) - from);
    }
    return {};
}

RecordKind RowParser::kindOf(std::string_view line)
{
    if (startsWith(line, "\xef\xbb\xbf"))
        line.remove_prefix(3);
    if (startsWith(line, "Time,Frequency(GHz),Offset(dB),Power(dBm)"))
        return RecordKind::Console;
    if (startsWith(line, "time,start,n_valid,n_invalid,mean_dbm,"))
        return RecordKind::Csv;
    if (startsWith(line, "{") && !jsonValue(line, "time").empty() &&
        !jsonValue(line, "mean_dbm").empty())
        return RecordKind::JsonLines;
    return RecordKind::Unknown;
}

std::optional<double> RowParser::time(std::string_view text)
{
    constexpr std::size_t toMinutes = 16;
    constexpr std::size_t toSeconds = 19;
    constexpr std::size_t dayLength = sizeof(m_day);
    if (text.size() < toMinutes)
        return {};
    const char *at = text.data();
    if (std::memcmp(at, m_day, dayLength) != 0) {
        const int year = digits(at, 4);
        const int month = digits(at + 5, 2);
        const int day = digits(at + 8, 2);
        if (year < 0 || month < 1 || month > 12 || day < 1 || day > 31)
            return {};
        m_dayBegin = daysSinceEpoch(year, month, day) * secondsPerDay;
        std::memcpy(m_day, at, dayLength);
    }
    const int hour = digits(at + 11, 2);
    const int minute = digits(at + 14, 2);
    if (hour < 0 || minute < 0 || at[13] != ':')
        return {};
    double seconds = m_dayBegin + hour * secondsPerHour + minute * secondsPerMinute;
    if (text.size() < toSeconds || at[toMinutes] != ':')
        return seconds;
    const int whole = digits(at + toMinutes + 1, 2);
    if (whole < 0)
        return {};
    seconds += whole;
    std::size_t i = toSeconds;
    if (i < text.size() && at[i] == '.') {
        double part = 0.1;
        for (++i; i < text.size() && at[i] >= '0' && at[i] <= '9'; ++i, part *= 0.1)
            seconds += (at[i] - '0') * part;
    }
    if (const std::optional<double> offset = zoneOffset(text.substr(i))) {
        if (!m_zone)
            m_zone = offset;
        seconds += *m_zone - *offset;
    }
    return seconds;
}

std::optional<RecordRow> RowParser::parse(std::string_view line)
{
    if (!line.empty() && line.back() == '\r')
        line.remove_suffix(1);
    switch (m_kind) {
    case RecordKind::Console:
        return consoleRow(line);
    case RecordKind::Csv:
        return csvRow(line);
    case RecordKind::JsonLines:
        return jsonRow(line);
    case RecordKind::Unknown:
        break;
    }
    return {};
}

std::optional<RecordRow> RowParser::consoleRow(std::string_view line)
{
    const std::optional<double> when = time(takeField(line));
    takeField(line); // frequency
    takeField(line); // offset
    std::string_view power = takeField(line);
    constexpr std::string_view unit = "dBm";
    if (!when || power.size() < unit.size() || power.substr(power.size() - unit.size()) != unit)
        return {};
    power.remove_suffix(unit.size());
    RecordRow row;
    row.time = *when;
    const std::optional<double> level = numberIn(power);
    if (level && *level < noReading)
        row.level = *level;
    return row;
}

std::optional<RecordRow> RowParser::csvRow(std::string_view line)
{
    const std::optional<double> when = time(takeField(line));
    if (!when)
        return {};
    RecordRow row;
    row.time = *when;
    row.start = takeField(line);
    takeField(line); // n_valid
    takeField(line); // n_invalid
    const std::string_view mean = takeField(line);
    takeLastField(line); // reason
    const std::string_view valid = takeLastField(line);
    takeLastField(line); // averaging
    row.isRelative = takeLastField(line) == "1";
    if (valid != "0" && valid != "1")
        return {};
    if (const std::optional<double> level = numberIn(mean); level && valid == "1")
        row.level = *level;
    return row;
}

std::optional<RecordRow> RowParser::jsonRow(std::string_view line)
{
    const std::optional<double> when = time(jsonValue(line, "time"));
    if (!when)
        return {};
    RecordRow row;
    row.time = *when;
    row.start = jsonValue(line, "start");
    const auto isSet = [line](std::string_view key) {
        const std::string_view value = jsonValue(line, key);
        return value == "1" || value == "true";
    };
    row.isRelative = isSet("relative");
    if (const std::optional<double> level = numberIn(jsonValue(line, "mean_dbm"));
        level && isSet("valid"))
        row.level = *level;
    return row;
}
