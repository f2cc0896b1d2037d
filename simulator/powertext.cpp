#include "powertext.h"

#include <array>
#include <cmath>

namespace sim {

QByteArray twoDecimals(double value)
{
    QByteArray text = QByteArray::number(value, 'f', 2);
    if (text == "-0.00")
        text.remove(0, 1);
    return text;
}

QByteArray wattText(double dBm, bool microSign)
{
    struct Prefix
    {
        double unit; // watts
        const char *text;
    };
    static constexpr std::array<Prefix, 5> prefixes{
        {{1e-12, "p"}, {1e-9, "n"}, {1e-6, "u"}, {1e-3, "m"}, {1.0, ""}}};

    const double watts = std::pow(10.0, dBm / 10.0) / 1000.0;
    // What would be shown as 1000.00 of one unit is 1.00 of the next.
    constexpr double limit = 999.995;
    std::size_t i = 0;
    while (i + 1 < prefixes.size() && watts / prefixes[i].unit >= limit)
        ++i;
    const Prefix &prefix = prefixes[i];
    const bool micro = *prefix.text == 'u' && microSign;
    return twoDecimals(watts / prefix.unit) + (micro ? "\xc2\xb5" : prefix.text) + 'W';
}

} // namespace sim
