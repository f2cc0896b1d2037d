#include "cli/identifycommand.h"

#include "cli/settingwords.h"
#include "recorder/settingsline.h"

#include <CLI/CLI.hpp>

#include <memory>

namespace {

class IdentifyCommand : public MeterCommand
{
public:
    explicit IdentifyCommand(const CommonOptions &options)
        : MeterCommand(options)
    {
        connect(&meter(), &Meter::described, this, &IdentifyCommand::show);
    }

    void start() override
    {
        meter().open(Meter::Keeping::Once);
        meter().describe();
    }

private:
    void show(const MeterDescription &description)
    {
        const bool isHeard =
            !description.identity.isEmpty() || description.settings != MeterSettings();
        // Nothing is told of an instrument that could not be reached at all.
        if (isHeard || description.outcome != Outcome::Link) {
            if (!print(isJson() ? json(description) : text(description)))
                return;
        }
        finish(tell(description.outcome, QStringLiteral("identify"),
                    QStringLiteral("not every question was answered")));
    }

    static QByteArray text(const MeterDescription &description)
    {
        const QString &identity = description.identity;
        QStringList lines{QStringLiteral("identity: ") +
                          (identity.isEmpty() ? QStringLiteral("-") : identity)};
        using Kind = WantedSetting::Kind;
        for (const Kind kind :
             {Kind::Frequency, Kind::Offset, Kind::Averaging, Kind::Unit, Kind::Relative})
            lines << SettingText::line(kind, description.settings);
        return lines.join(QLatin1Char('\n')).toUtf8();
    }

    static QByteArray json(const MeterDescription &description)
    {
        JsonLine line;
        if (description.identity.isEmpty())
            line.addNull("identity");
        else
            line.add("identity", description.identity);
        return line.append(settingsLine(description.settings)).line();
    }
};

} // namespace

SubCommand identifySubCommand(CLI::App &app)
{
    CLI::App *const parser =
        app.add_subcommand("identify", "Tell what the instrument is and how it is set");
    return {parser, [](const CommonOptions &options) {
                return std::make_unique<IdentifyCommand>(options);
            }};
}
