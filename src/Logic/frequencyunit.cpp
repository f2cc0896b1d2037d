#include "Logic/frequencyunit.h"

#include <algorithm>
#include <array>

namespace {

const std::array<FrequencyUnit, 3> &allUnits()
{
    static const std::array<FrequencyUnit, 3> units{{
        {QStringLiteral("KHz"), 1, 1.0, 40000000.0, 0},
        {QStringLiteral("MHz"), 1000, 0.001, 40000.0, 3},
        {QStringLiteral("GHz"), 1000000, 0.000001, 40.0, 6},
    }};
    return units;
}

int decimalsOf(int factor)
{
    const auto &units = allUnits();
    const auto *unit =
        std::find_if(units.begin(), units.end(),
                     [factor](const FrequencyUnit &each) { return each.factor == factor; });
    return unit != units.end() ? unit->decimals : 0;
}

} // namespace

std::optional<FrequencyUnit> FrequencyUnit::find(const QString &name)
{
    for (const FrequencyUnit &unit : allUnits()) {
        if (unit.name == name)
            return unit;
    }
    return std::nullopt;
}

QStringList FrequencyUnit::names()
{
    QStringList names;
    for (const FrequencyUnit &unit : allUnits())
        names.append(unit.name);
    return names;
}

QString frequencyText(double value, int factor)
{
    QString text = QString::number(value, 'f', decimalsOf(factor));
    while (text.contains(QLatin1Char('.')) && text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    return text;
}
