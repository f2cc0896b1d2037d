#include "cli/commandline.h"

#include "cli/configfile.h"
#include "cli/identifycommand.h"
#include "cli/optionvalues.h"
#include "cli/readcommand.h"
#include "cli/recordcommand.h"
#include "cli/setcommand.h"
#include "cli/sweepcommand.h"
#include "cli/taskcommand.h"

#include <algorithm>
#include <vector>

namespace {

/// The options before the sub-command.
struct CommonTexts
{
    std::string lan;
    std::string serial;
    std::string name;
    bool isJson = false;
};

/// Whether \a option stands on the command line itself.
bool isGiven(const QStringList &arguments, const char *option)
{
    const QString name = QString::fromLatin1(option);
    return std::any_of(arguments.begin(), arguments.end(), [&name](const QString &argument) {
        return argument == name || argument.startsWith(name + QLatin1Char('='));
    });
}

CommonOptions commonOptions(CommonTexts texts, const QStringList &arguments)
{
    // An address of the command line takes the place of one in the file, of whichever kind.
    if (isGiven(arguments, "--lan") != isGiven(arguments, "--serial"))
        (isGiven(arguments, "--lan") ? texts.serial : texts.lan).clear();
    if (texts.lan.empty() == texts.serial.empty())
        throw CLI::ValidationError("--lan, --serial", "one of them is needed");
    CommonOptions options;
    options.isJson = texts.isJson;
    if (texts.serial.empty())
        options.address = OptionValues::required(
            "--lan", texts.lan, MeterAddress::lan(QString::fromStdString(texts.lan)));
    else
        options.address = OptionValues::required(
            "--serial", texts.serial, MeterAddress::serial(QString::fromStdString(texts.serial)));
    options.name = texts.name.empty() ? options.address.name() : QString::fromStdString(texts.name);
    const bool isOneLine =
        std::all_of(options.name.begin(), options.name.end(), [](QChar c) { return c.isPrint(); });
    if (!isOneLine)
        throw CLI::ValidationError("--name", "holds what cannot be printed");
    return options;
}

} // namespace

namespace CommandLine {

Result read(const QStringList &arguments)
{
    CLI::App app("Reads, sets and records an MZ6218 power meter without a window.", "mz6218-cli");
    CommonTexts texts;
    app.add_option("--lan", texts.lan, "Instrument in the network (port 5001)")
        ->type_name("HOST[:PORT]");
    app.add_option("--serial", texts.serial, "Instrument at a serial port (115200 baud)")
        ->type_name("PORT[:BAUD]");
    app.add_option("--name", texts.name, "Name of the meter in files and metrics (its address)")
        ->type_name("NAME");
    app.add_flag("--json", texts.isJson, "Print results as JSON, an object a line");
    app.set_version_flag("--version", "mz6218-cli " MZ_VERSION, "Print the version");
    app.set_config("--config", "", "Read options from a TOML file; [record] holds those of record")
        ->type_name("FILE");
    app.config_formatter(std::make_shared<ConfigFile>());
    app.allow_config_extras(CLI::config_extras_mode::error);
    app.require_subcommand(1);
    app.fallthrough();
    const std::vector<SubCommand> commands{
        identifySubCommand(app),  readSubCommand(app),   setSubCommand(app),   zeroSubCommand(app),
        calibrateSubCommand(app), recordSubCommand(app), sweepSubCommand(app),
    };

    std::vector<std::string> words; // the last one first
    for (const QString &argument : arguments.mid(1))
        words.insert(words.begin(), argument.toStdString());
    try {
        app.parse(words);
        const CommonOptions options = commonOptions(texts, arguments);
        for (const SubCommand &command : commands) {
            if (command.parser->parsed())
                return {command.make(options), 0};
        }
    } catch (const CLI::ParseError &error) {
        return {nullptr, app.exit(error) == 0 ? ExitStatus::done : ExitStatus::usage};
    }
    return {nullptr, ExitStatus::usage};
}

} // namespace CommandLine
