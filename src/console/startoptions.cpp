#include "console/startoptions.h"

#include "Logic/serialaddress.h"

#include <QCommandLineParser>
#include <QFileInfo>

#include <optional>

// The texts stay English: the command line is read before there is a language to show them in.

namespace {

// Not QCommandLineParser's own help, which needs an application object and so a display.
const QString usage = QStringLiteral(
    "Usage: mz6218 [options]\n"
    "Console of the MZ6218 RF power meter\n"
    "\n"
    "Options:\n"
    "  -h, --help            Show this text.\n"
    "  -v, --version         Show the version.\n"
    "  --lan HOST            Connect to the instrument at HOST.\n"
    "  --serial PORT[:BAUD]  Open the serial port PORT, at 115200 baud when no BAUD is given.\n"
    "  --language en|cn      Start in this language.\n"
    "  --keep-logs DAYS      Remove the logs of all but the last DAYS days, now and at midnight.\n"
    "  --doctor [HOST|PORT]  Examine what the console needs and, with an address or a serial port\n"
    "                        (PORT[:BAUD]), whether an instrument answers there; change "
    "nothing.\n");

/// The options that the console knows.
struct Known
{
    QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")}};
    QCommandLineOption version{{QStringLiteral("v"), QStringLiteral("version")}};
    QCommandLineOption lan{QStringLiteral("lan"), {}, QStringLiteral("HOST")};
    QCommandLineOption serial{QStringLiteral("serial"), {}, QStringLiteral("PORT[:BAUD]")};
    QCommandLineOption keepLogs{QStringLiteral("keep-logs"), {}, QStringLiteral("DAYS")};
    QCommandLineOption doctor{QStringLiteral("doctor")};
    QCommandLineOption language{QStringLiteral("language"), {}, QStringLiteral("en|cn")};
};

/// What is wrong with the baud rate of \a address, or nothing.
std::optional<QString> faultOfRate(const SerialAddress &address)
{
    // Paths that tell ports apart by where they are plugged in hold colons of their own.
    const int colon = address.port.lastIndexOf(QLatin1Char(':'));
    if (colon >= 0 && !address.port.contains(QLatin1String("/by-")) &&
        !QFileInfo::exists(address.port))
        return QStringLiteral("'%1' is no baud rate.").arg(address.port.mid(colon + 1));
    return std::nullopt;
}

/// What is wrong with \a value, or nothing.
std::optional<QString> readSerial(const QString &value, StartOptions &options)
{
    const SerialAddress address = SerialAddress::read(value);
    if (const auto wrong = faultOfRate(address))
        return wrong;
    if (address.baudRate <= 0)
        return QStringLiteral("%1 is no baud rate.").arg(address.baudRate);
    if (address.port.isEmpty())
        return QStringLiteral("--serial needs the name of a port.");
    options.serialPort = address.port;
    options.baudRate = address.baudRate;
    return std::nullopt;
}

/// The same for the examination, which takes its address without an option's name.
std::optional<QString> readExamination(const QCommandLineParser &parser, const Known &known,
                                       StartOptions &options)
{
    if (parser.isSet(known.lan) || parser.isSet(known.serial) || parser.isSet(known.language) ||
        parser.isSet(known.keepLogs))
        return QStringLiteral("--doctor takes no other option, only an address or a port.");
    if (parser.positionalArguments().size() > 1)
        return QStringLiteral("--doctor takes one address or port.");
    options.wish = StartOptions::Wish::Examine;
    options.examined = parser.positionalArguments().value(0);
    const SerialAddress name =
        SerialAddress::read(options.examined.section(QLatin1Char(':'), 0, -2));
    return name.isPort({}) ? faultOfRate(SerialAddress::read(options.examined)) : std::nullopt;
}

/// What is wrong with what was asked for, or nothing.
std::optional<QString> readValues(const QCommandLineParser &parser, const Known &known,
                                  StartOptions &options)
{
    if (parser.isSet(known.doctor))
        return readExamination(parser, known, options);
    if (!parser.positionalArguments().isEmpty())
        return QStringLiteral("Unexpected argument '%1'.")
            .arg(parser.positionalArguments().constFirst());
    if (parser.isSet(known.lan) && parser.isSet(known.serial))
        return QStringLiteral("--lan and --serial exclude each other.");
    if (parser.isSet(known.lan)) {
        options.lanHost = parser.value(known.lan);
        if (options.lanHost.isEmpty())
            return QStringLiteral("--lan needs the address of the instrument.");
    }
    if (parser.isSet(known.serial)) {
        if (const auto wrong = readSerial(parser.value(known.serial), options))
            return wrong;
    }
    if (parser.isSet(known.language)) {
        options.language = parser.value(known.language);
        if (options.language != QStringLiteral("en") && options.language != QStringLiteral("cn"))
            return QStringLiteral("Unknown language '%1': en and cn are known.")
                .arg(options.language);
    }
    if (parser.isSet(known.keepLogs)) {
        const QString days = parser.value(known.keepLogs);
        options.logDays = days.toInt();
        if (options.logDays < 1)
            return QStringLiteral("--keep-logs needs a number of days, not '%1'.").arg(days);
    }
    return std::nullopt;
}

} // namespace

StartOptions StartOptions::read(const QStringList &arguments)
{
    const Known known;
    QCommandLineParser parser;
    parser.addOptions({known.help, known.version, known.lan, known.serial, known.language,
                       known.keepLogs, known.doctor});

    StartOptions options;
    std::optional<QString> wrong;
    if (!parser.parse(arguments)) {
        wrong = parser.errorText();
    } else if (parser.isSet(known.help)) {
        options.wish = Wish::Print;
        options.text = usage;
    } else if (parser.isSet(known.version)) {
        options.wish = Wish::Print;
        options.text = QStringLiteral("mz6218 " MZ_VERSION "\n");
    } else {
        wrong = readValues(parser, known, options);
    }
    if (wrong) {
        options.wish = Wish::Refuse;
        options.text = *wrong + QStringLiteral("\n\n") + usage;
    }
    return options;
}
