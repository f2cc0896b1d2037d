/// The loss table: any file is read without harm, and every frequency gives the value that a walk
/// down the table defines.

#include "module/formulacalc.h"

#include <QTemporaryFile>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <functional>

namespace {

/// The loss at \a value by that walk; 0 stands for a key that is missing.
double walked(double value, const QMap<double, double> &map)
{
    if (map.isEmpty() || map.contains(value))
        return map.value(value);
    const QList<double> keys = map.keys();
    double upper = 0.0;
    double lower = 0.0;
    int at = keys.size() - 1;
    for (; at >= 0 && keys[at] > value; --at)
        upper = keys[at];
    if (at >= 0)
        lower = keys[at];
    if (lower == upper || lower == 0.0 || upper == 0.0) {
        if (keys.size() < 2)
            return 0.0;
        const int pair = upper == 0.0 ? keys.size() - 2 : 0;
        lower = keys[pair];
        upper = keys[pair + 1];
    }
    const double slope = (map[upper] - map[lower]) / (upper - lower);
    return value * slope + (map[upper] - upper * slope);
}

void check(double frequency, const FormulaCalc &table)
{
    const double found = table.queryLossCompensation(QStringLiteral("TRP"), frequency);
    const double wanted = walked(frequency, table.upsideMap());
    const bool areNumbers = !std::isnan(found) || !std::isnan(wanted);
    if (areNumbers && std::not_equal_to<double>()(found, wanted))
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static QTemporaryFile file;
    if (!file.isOpen() && !file.open())
        return 0;
    file.resize(0);
    file.seek(0);
    file.write(reinterpret_cast<const char *>(data), static_cast<qint64>(size));
    file.flush();

    FormulaCalc *table = FormulaCalc::Instance();
    table->queryLossCompensationFromFile(file.fileName());
    const QList<double> keys = table->upsideMap().keys();
    for (const double key : keys) {
        for (const double off : {0.0, -0.5, 0.5})
            check(key + off, *table);
    }
    return 0;
}
