#include "2d/data/curvefrequency.h"

#include <QRegularExpression>

namespace {

/// \a number (C locale) in \a unit, in MHz; empty when it is not above zero.
QString megahertz(const QString &number, const QString &unit)
{
    const QString lower = unit.toLower();
    double factor = 1.0;
    if (lower == QStringLiteral("ghz"))
        factor = 1e3;
    else if (lower == QStringLiteral("khz"))
        factor = 1e-3;
    else if (lower == QStringLiteral("hz"))
        factor = 1e-6;
    const double value = number.toDouble() * factor;
    return value > 0.0 ? QString::number(value, 'g', 12) : QString();
}

} // namespace

QString frequencyInName(const QString &name)
{
    static const QRegularExpression withUnit(
        QStringLiteral("(?<![\\w.,])(\\d+(?:\\.\\d+)?)\\s*([gmk]?hz)\\b"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = withUnit.match(name);
    if (match.hasMatch())
        return megahertz(match.captured(1), match.captured(2));
    return readFrequency(name).value_or(QString());
}

std::optional<QString> readFrequency(const QString &text)
{
    static const QRegularExpression pattern(
        QStringLiteral("^\\s*(\\d+(?:\\.\\d+)?)\\s*([gmk]?hz)?\\s*$"),
        QRegularExpression::CaseInsensitiveOption);
    if (text.trimmed().isEmpty())
        return QString();
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const QString value = megahertz(match.captured(1), match.captured(2));
    return value.isEmpty() ? std::nullopt : std::optional(value);
}
