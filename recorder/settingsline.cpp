#include "recorder/settingsline.h"

#include "recorder/numbertext.h"

namespace {

JsonLine lineOf(const MeterSettings &settings, bool withNulls)
{
    JsonLine line;
    const auto add = [&line, withNulls](const char *key, bool isTold, const auto &value) {
        if (isTold)
            value(key);
        else if (withNulls)
            line.addNull(key);
    };
    const auto number = [&line](const auto &value) {
        return
            [&line, &value](const char *key) { line.addNumber(key, shortNumber(double(*value))); };
    };
    const std::optional<double> hertz = settings.frequencyHz();
    add("frequency_hz", hertz.has_value(), number(hertz));
    add("offset_db", settings.offset.has_value(), number(settings.offset));
    add("averaging", settings.averaging.has_value(), number(settings.averaging));
    add("unit", !settings.unit.isEmpty(), [&](const char *key) { line.add(key, settings.unit); });
    add("relative", settings.isRelative.has_value(),
        [&](const char *key) { line.add(key, *settings.isRelative); });
    return line;
}

} // namespace

JsonLine settingsLine(const MeterSettings &settings)
{
    return lineOf(settings, true);
}

JsonLine toldSettingsLine(const MeterSettings &settings)
{
    return lineOf(settings, false);
}
