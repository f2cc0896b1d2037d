#include "meter/meteraddress.h"

#include <QRegularExpression>

namespace {

/// The digits behind the last colon of \a text, and what stands before it; the whole and nothing
/// where there are none.
struct Parts
{
    QString place;
    QString number;
};

Parts parts(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^(.*):([0-9]+)$"));
    const QRegularExpressionMatch match = form.match(text);
    return match.hasMatch() ? Parts{match.captured(1), match.captured(2)} : Parts{text, {}};
}

} // namespace

std::optional<MeterAddress> MeterAddress::lan(const QString &text)
{
    static const QRegularExpression bracketed(QStringLiteral("^\\[([^\\]]+)\\](?::([^:]*))?$"));
    MeterAddress address;
    address.place = text;
    QString port;
    if (const auto match = bracketed.match(text); match.hasMatch()) {
        address.place = match.captured(1);
        port = match.captured(2);
        if (port.isEmpty() && text.endsWith(QLatin1Char(':')))
            return std::nullopt;
    } else if (text.count(QLatin1Char(':')) == 1) {
        address.place = text.section(QLatin1Char(':'), 0, 0);
        port = text.section(QLatin1Char(':'), 1);
        if (port.isEmpty())
            return std::nullopt;
    }
    if (!port.isEmpty()) {
        static const QRegularExpression digits(QStringLiteral("^[0-9]{1,5}$"));
        address.value = digits.match(port).hasMatch() ? port.toInt() : 0;
    }
    const bool isUsable =
        !address.place.trimmed().isEmpty() && address.value >= 1 && address.value <= 65535;
    return isUsable ? std::optional(address) : std::nullopt;
}

std::optional<MeterAddress> MeterAddress::serial(const QString &text)
{
    const Parts found = parts(text);
    MeterAddress address{serialLink, found.place, usualBaudRate};
    if (!found.number.isEmpty())
        address.value = found.number.toInt(); // 0 where it is too great
    const bool isUsable = !address.place.isEmpty() && address.value > 0;
    return isUsable ? std::optional(address) : std::nullopt;
}

QString MeterAddress::name() const
{
    if (mode == serialLink || value == instrumentTcpPort)
        return place;
    return place + QLatin1Char(':') + QString::number(value);
}
