#include "cli/values.h"

#include <QRegularExpression>

#include <cmath>

namespace Values {

std::optional<qint64> duration(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^([0-9]+(?:\\.[0-9]+)?)(ms|s|min|h)$"));
    if (text == QLatin1String("0"))
        return 0;
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const QString unit = match.captured(2);
    double nanoseconds = match.captured(1).toDouble();
    if (unit == QLatin1String("ms"))
        nanoseconds *= 1e6;
    else if (unit == QLatin1String("s"))
        nanoseconds *= 1e9;
    else if (unit == QLatin1String("min"))
        nanoseconds *= 60e9;
    else
        nanoseconds *= 3600e9;
    // Some ninety years, which is what 64 bits of nanoseconds hold.
    return nanoseconds < 3e18 ? std::optional(qint64(std::llround(nanoseconds))) : std::nullopt;
}

std::optional<double> number(const QString &text)
{
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    return isNumber && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::optional<int> count(const QString &text)
{
    bool isNumber = false;
    const int value = text.toInt(&isNumber);
    return isNumber && value >= 1 ? std::optional(value) : std::nullopt;
}

} // namespace Values
