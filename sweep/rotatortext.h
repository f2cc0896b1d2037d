#pragma once

#include "sweep/sweepplan.h"

#include <QByteArray>
#include <QByteArrayList>

#include <optional>

/// The text protocol of a rotator's server: a command a line, replies in lines, "RPRT n" for the
/// outcome, where n is 0 or a negative error.
namespace RotatorText {

/// Where a table stands, degrees.
struct Position
{
    double azimuth = 0.0;
    double elevation = 0.0;
};

constexpr int done = 0;
constexpr int outOfLimits = -1;
/// A reply that is none of the protocol's; the number that the servers use for it.
constexpr int garbled = -8;

/// Whether trying again may help: the time-outs, input and output, protocol and rejection errors.
bool isPassing(int code);

/// "P AZ EL" with its newline, decimals with a point. Empty for what is not finite, since servers
/// take "nan" and the table runs away.
QByteArray move(double azimuth, double elevation);

/// The number behind "RPRT"; nothing when \a line is no such line.
std::optional<int> report(const QByteArray &line);

/// The two lines that tell a position; nothing when one is no finite number.
std::optional<Position> position(const QByteArray &azimuth, const QByteArray &elevation);

/// Whether \a lines of a state are all that come: "done" ends the present form, the former one has
/// seven bare lines.
bool isWholeState(const QByteArrayList &lines);

/// The azimuth's limits that a state tells, complete or not; nothing when it tells none.
std::optional<TableLimits> limits(const QByteArrayList &lines);

} // namespace RotatorText
