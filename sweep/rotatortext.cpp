#include "sweep/rotatortext.h"

#include <cmath>

namespace {

constexpr int bareLines = 7;
constexpr int firstLimit = 2; // behind the protocol's version and the model

/// The finite number of a field in the C locale, nothing for anything else.
std::optional<double> finite(const QByteArray &text)
{
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    return ok && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::optional<double> keyed(const QByteArrayList &lines, const QByteArray &key)
{
    for (const QByteArray &line : lines) {
        if (line.startsWith(key + '='))
            return finite(line.mid(key.size() + 1));
    }
    return std::nullopt;
}

bool isBare(const QByteArrayList &lines)
{
    for (const QByteArray &line : lines) {
        if (!finite(line))
            return false;
    }
    return !lines.isEmpty() && lines.first().trimmed() == "0";
}

} // namespace

namespace RotatorText {

bool isPassing(int code)
{
    return code == -5 || code == -6 || code == -8 || code == -9;
}

QByteArray move(double azimuth, double elevation)
{
    if (!std::isfinite(azimuth) || !std::isfinite(elevation))
        return {};
    constexpr int places = 4;
    return "P " + QByteArray::number(azimuth, 'f', places) + ' ' +
           QByteArray::number(elevation, 'f', places) + '\n';
}

std::optional<int> report(const QByteArray &line)
{
    if (!line.startsWith("RPRT "))
        return std::nullopt;
    bool ok = false;
    const int code = line.mid(5).trimmed().toInt(&ok);
    return ok ? std::optional(code) : std::nullopt;
}

std::optional<Position> position(const QByteArray &azimuth, const QByteArray &elevation)
{
    const std::optional<double> az = finite(azimuth);
    const std::optional<double> el = finite(elevation);
    return az && el ? std::optional(Position{*az, *el}) : std::nullopt;
}

bool isWholeState(const QByteArrayList &lines)
{
    if (lines.isEmpty())
        return false;
    return lines.last().trimmed() == "done" || report(lines.last()).has_value() ||
           (lines.size() == bareLines && isBare(lines));
}

std::optional<TableLimits> limits(const QByteArrayList &lines)
{
    std::optional<double> min = keyed(lines, "min_az");
    std::optional<double> max = keyed(lines, "max_az");
    if (isBare(lines) && lines.size() > firstLimit + 1) {
        min = finite(lines.at(firstLimit));
        max = finite(lines.at(firstLimit + 1));
    }
    return min && max && *min < *max ? std::optional(TableLimits{*min, *max}) : std::nullopt;
}

} // namespace RotatorText
