#include "cli/settingwords.h"

#include "cli/values.h"
#include "recorder/numbertext.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace {

using Kind = WantedSetting::Kind;

constexpr double lowestFrequency = 1e3; // Hz
constexpr double highestFrequency = 40e9;
constexpr double largestOffset = 100; // dB

const std::array<std::pair<Kind, const char *>, 5> &kinds()
{
    static const std::array<std::pair<Kind, const char *>, 5> all{{
        {Kind::Frequency, "frequency"},
        {Kind::Offset, "offset"},
        {Kind::Averaging, "averaging"},
        {Kind::Unit, "unit"},
        {Kind::Relative, "relative"},
    }};
    return all;
}

bool readFrequency(WantedSetting &setting)
{
    static const QRegularExpression form(QStringLiteral("^([0-9]+(?:\\.[0-9]+)?)([GMK])Hz$"),
                                         QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(setting.text);
    if (!match.hasMatch())
        return false;
    setting.digits = match.captured(1);
    setting.values.frequency = setting.digits.toDouble();
    // As on the wire, where also the kilo is a capital letter.
    setting.values.frequencyUnit = match.captured(2).toUpper() + QLatin1String("Hz");
    const double hertz = setting.values.frequencyHz().value_or(0);
    return hertz >= lowestFrequency && hertz <= highestFrequency;
}

/// Whether \a text is one of two words, in whatever letters; 0 or 1.
std::optional<int> oneOf(const QString &text, const char *first, const char *second)
{
    for (const auto &[word, index] : {std::pair(first, 0), std::pair(second, 1)}) {
        if (text.compare(QLatin1String(word), Qt::CaseInsensitive) == 0)
            return index;
    }
    return std::nullopt;
}

bool readValue(WantedSetting &setting)
{
    switch (setting.kind) {
    case Kind::Frequency:
        return readFrequency(setting);
    case Kind::Offset:
        setting.values.offset = Values::number(setting.text);
        return setting.values.offset && std::abs(*setting.values.offset) <= largestOffset;
    case Kind::Averaging:
        setting.values.averaging = Values::count(setting.text);
        return setting.values.averaging.has_value();
    case Kind::Unit:
        if (const auto unit = oneOf(setting.text, "dBm", "W"))
            setting.values.unit = QLatin1String(*unit == 0 ? "dBm" : "W");
        return !setting.values.unit.isEmpty();
    case Kind::Relative:
        if (const auto state = oneOf(setting.text, "off", "on"))
            setting.values.isRelative = *state == 1;
        return setting.values.isRelative.has_value();
    }
    return false;
}

} // namespace

std::optional<QVector<WantedSetting>> WantedSetting::read(const QStringList &words, QString *error)
{
    QVector<WantedSetting> settings;
    for (int i = 0; i < words.size(); i += 2) {
        WantedSetting setting;
        const auto *const kind =
            std::find_if(kinds().begin(), kinds().end(),
                         [&](const auto &each) { return words[i] == QLatin1String(each.second); });
        if (kind == kinds().end()) {
            *error = QStringLiteral("there is no setting \"%1\"").arg(words[i]);
            return std::nullopt;
        }
        setting.kind = kind->first;
        setting.text = words.value(i + 1);
        if (!readValue(setting)) {
            *error = QStringLiteral("%1 cannot be \"%2\"").arg(words[i], setting.text);
            return std::nullopt;
        }
        settings.append(setting);
    }
    if (settings.isEmpty())
        *error = QStringLiteral("nothing to set");
    return settings.isEmpty() ? std::nullopt : std::optional(settings);
}

QString WantedSetting::name() const
{
    return QLatin1String(kinds()[std::size_t(kind)].second);
}

bool WantedSetting::isMet(const MeterSettings &told) const
{
    switch (kind) {
    case Kind::Frequency:
        return told.frequencyHz() == values.frequencyHz();
    case Kind::Offset:
        return told.offset == values.offset;
    case Kind::Averaging:
        return told.averaging == values.averaging;
    case Kind::Unit:
        return told.unit.compare(values.unit, Qt::CaseInsensitive) == 0;
    case Kind::Relative:
        return told.isRelative == values.isRelative;
    }
    return false;
}

QString SettingText::value(WantedSetting::Kind kind, const MeterSettings &settings)
{
    const QString missing = QStringLiteral("-");
    switch (kind) {
    case Kind::Frequency: {
        if (!settings.frequency)
            return missing;
        const QString unit =
            settings.frequencyUnit.isEmpty() ? QStringLiteral("GHz") : settings.frequencyUnit;
        return shortNumber(*settings.frequency) + QLatin1Char(' ') + unit;
    }
    case Kind::Offset:
        return settings.offset ? shortNumber(*settings.offset) + QLatin1String(" dB") : missing;
    case Kind::Averaging:
        return settings.averaging ? QString::number(*settings.averaging) : missing;
    case Kind::Unit:
        return settings.unit.isEmpty() ? missing : settings.unit;
    case Kind::Relative:
        return settings.isRelative ? QLatin1String(*settings.isRelative ? "on" : "off") : missing;
    }
    return missing;
}

QString SettingText::line(WantedSetting::Kind kind, const MeterSettings &settings)
{
    return QLatin1String(kinds()[std::size_t(kind)].second) + QLatin1String(": ") +
           value(kind, settings);
}
