#include "cli/setcommand.h"

#include "cli/settingwords.h"
#include "recorder/jsonline.h"
#include "recorder/settingsline.h"

#include <CLI/CLI.hpp>

#include <memory>

namespace {

class SetCommand : public MeterCommand
{
public:
    SetCommand(const CommonOptions &common, const QVector<WantedSetting> &settings)
        : MeterCommand(common)
        , m_settings(settings)
    {
        connect(&meter(), &Meter::answered, this, &SetCommand::take);
    }

    void start() override
    {
        meter().open(Meter::Keeping::Once);
        sendNext();
    }

private:
    void sendNext()
    {
        const WantedSetting &next = m_settings[m_done];
        switch (next.kind) {
        case WantedSetting::Kind::Frequency:
            meter().setFrequency(next.digits, next.values.frequencyUnit);
            break;
        case WantedSetting::Kind::Offset:
            meter().setOffset(next.values.offset.value_or(0));
            break;
        case WantedSetting::Kind::Averaging:
            meter().setAveraging(next.values.averaging.value_or(1));
            break;
        case WantedSetting::Kind::Unit:
            meter().setUnit(next.values.unit);
            break;
        case WantedSetting::Kind::Relative:
            meter().setRelative(next.values.isRelative.value_or(false));
            break;
        }
    }

    void take(const MeterAnswer &answer)
    {
        const WantedSetting &asked = m_settings[m_done];
        if (answer.outcome != Outcome::Ok) {
            const int status =
                tell(answer.outcome, asked.name() + QLatin1Char(' ') + asked.text, answer.line);
            end(status);
            return;
        }
        if (!asked.isMet(answer.settings)) {
            m_status = ExitStatus::failed;
            printMessage(QStringLiteral("%1: asked for %2, the instrument holds %3")
                             .arg(asked.name(), SettingText::value(asked.kind, asked.values),
                                  SettingText::value(asked.kind, answer.settings)));
        }
        if (isJson())
            m_json.append(toldSettingsLine(answer.settings));
        else if (!print(SettingText::line(asked.kind, answer.settings).toUtf8()))
            return;
        m_isAnySet = true;
        if (++m_done < m_settings.size())
            sendNext();
        else
            end(m_status);
    }

    void end(int status)
    {
        if (isJson() && m_isAnySet && !print(m_json.line()))
            return;
        finish(status);
    }

    const QVector<WantedSetting> m_settings;
    int m_done = 0;
    int m_status = ExitStatus::done;
    bool m_isAnySet = false;
    JsonLine m_json;
};

} // namespace

SubCommand setSubCommand(CLI::App &app)
{
    CLI::App *const parser = app.add_subcommand("set", "Set the instrument and read back");
    // Values may begin with a minus, so the words are not for the parser.
    parser->prefix_command();
    parser->allow_extras();
    parser->fallthrough(false);
    parser->footer("Any of these, in one call:\n"
                   "  frequency 2.45GHz (1kHz to 40GHz)   offset -3.5 (dB, -100 to 100)\n"
                   "  averaging 16   unit dBm|W   relative on|off");
    return {parser, [parser](const CommonOptions &common) {
                QStringList words;
                for (const std::string &word : parser->remaining())
                    words << QString::fromStdString(word);
                QString error;
                const auto settings = WantedSetting::read(words, &error);
                if (!settings)
                    throw CLI::ValidationError("set", error.toStdString());
                return std::make_unique<SetCommand>(common, *settings);
            }};
}
