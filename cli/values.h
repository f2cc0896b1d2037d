#pragma once

#include <QString>

#include <optional>

constexpr qint64 millisecond = 1000000; ///< ns

/// Values as they stand on a command line. What is none gives nothing.
namespace Values {

/// A time in ns: "500ms", "10s", "5min", "1h", decimals allowed; "0" needs no unit.
std::optional<qint64> duration(const QString &text);
/// A finite number with a point, if any.
std::optional<double> number(const QString &text);
/// A whole number from 1 to what an int holds.
std::optional<int> count(const QString &text);

} // namespace Values
