#include "patterns/measure/measureinputs.h"

std::optional<SweepAddresses> MeasureInputs::addresses() const
{
    SweepAddresses addresses;
    const std::optional<MeterAddress> address =
        isSerial ? MeterAddress::serial(meter) : MeterAddress::lan(meter);
    if (!address || !addresses.setRotator(rotator))
        return std::nullopt;
    addresses.meter = *address;
    return addresses;
}

QJsonObject MeasureInputs::toJson() const
{
    const SweepPlan &plan = header.plan;
    return {{QStringLiteral("serial"), isSerial},
            {QStringLiteral("meter"), meter},
            {QStringLiteral("rotator"), rotator},
            {QStringLiteral("from"), plan.from},
            {QStringLiteral("to"), plan.to},
            {QStringLiteral("step"), plan.step},
            {QStringLiteral("zero"), plan.zero},
            {QStringLiteral("sense"), plan.sense},
            {QStringLiteral("settle"), header.settle},
            {QStringLiteral("readings"), header.readings},
            {QStringLiteral("tolerance"), header.tolerance},
            {QStringLiteral("returns"), returns},
            {QStringLiteral("diameter"), diameter}};
}

MeasureInputs MeasureInputs::fromJson(const QJsonObject &json)
{
    MeasureInputs inputs;
    SweepPlan &plan = inputs.header.plan;
    const auto number = [&json](const char *key, double usual) {
        return json.value(QLatin1String(key)).toDouble(usual);
    };
    inputs.isSerial = json.value(QLatin1String("serial")).toBool();
    inputs.meter = json.value(QLatin1String("meter")).toString(inputs.meter);
    inputs.rotator = json.value(QLatin1String("rotator")).toString(inputs.rotator);
    plan.from = number("from", plan.from);
    plan.to = number("to", plan.to);
    plan.step = number("step", plan.step);
    plan.zero = number("zero", plan.zero);
    plan.sense = number("sense", 1.0) < 0.0 ? -1 : 1;
    inputs.header.settle = int(number("settle", inputs.header.settle));
    inputs.header.readings = int(number("readings", inputs.header.readings));
    inputs.header.tolerance = number("tolerance", inputs.header.tolerance);
    inputs.returns = json.value(QLatin1String("returns")).toBool(inputs.returns);
    inputs.diameter = number("diameter", 0.0);
    return inputs;
}
