#include "options.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cmath>
#include <limits>

namespace sim {

namespace {

/// The command line's options and the reading of their values; the first mistake is kept.
class Reader
{
    Q_DECLARE_TR_FUNCTIONS(sim::Options)

public:
    Reader()
    {
        m_parser.setApplicationDescription(tr("A simulated MZ6218 power meter."));
        m_parser.addOptions({m_help, m_version, m_listen, m_port, m_serial, m_level, m_script,
                             m_pattern, m_rotator, m_rotatorSpeed, m_noise, m_seed, m_micro,
                             m_calibrationTime, m_replay, m_replayTiming, m_trace, m_fault,
                             m_rotatorFault});
    }

    CommandLine read(const QStringList &arguments)
    {
        if (!m_parser.parse(arguments))
            return failure(m_parser.errorText());
        if (m_parser.isSet(m_help))
            return {CommandLine::Action::PrintAndSucceed,
                    {},
                    m_parser.helpText() + QLatin1Char('\n') + faultHelp()};
        if (m_parser.isSet(m_version))
            return {CommandLine::Action::PrintAndSucceed,
                    {},
                    QStringLiteral("mz6218-sim %1\n").arg(QLatin1String(MZ_VERSION))};
        if (const QStringList rest = m_parser.positionalArguments(); !rest.isEmpty())
            return failure(tr("Unexpected argument: %1").arg(rest.first()));
        readValues();
        if (!m_error.isEmpty())
            return failure(m_error);
        return {CommandLine::Action::Run, m_options, {}};
    }

private:
    void readValues()
    {
        const QString address = m_parser.value(m_listen);
        m_options.address = address == QLatin1String("localhost")
                                ? QHostAddress(QHostAddress::LocalHost)
                                : QHostAddress(address);
        if (m_options.address.isNull())
            fail(tr("Not an address: %1").arg(address));
        m_options.port = static_cast<quint16>(wholeNumber(m_port, 0, 65535));
        m_options.serial = m_parser.isSet(m_serial);
        m_options.level = number(m_level, -200, 200);
        m_options.script = m_parser.value(m_script);
        m_options.pattern = m_parser.value(m_pattern);
        if (m_parser.isSet(m_rotator))
            m_options.rotatorPort = static_cast<quint16>(wholeNumber(m_rotator, 0, 65535));
        m_options.rotatorSpeed = number(m_rotatorSpeed, 0.01, 3600);
        m_options.replay = m_parser.value(m_replay);
        m_options.replayTiming = m_parser.isSet(m_replayTiming);
        m_options.noise = number(m_noise, 0, 100);
        m_options.seed =
            static_cast<quint32>(wholeNumber(m_seed, 0, std::numeric_limits<quint32>::max()));
        m_options.microSign = m_parser.isSet(m_micro);
        m_options.operationTime = static_cast<int>(1000 * number(m_calibrationTime, 0, 3600));
        m_options.trace = m_parser.isSet(m_trace);
        readFaults(m_fault, parseFault, m_options.faults);
        readFaults(m_rotatorFault, parseRotatorFault, m_options.rotatorFaults);
    }

    template<typename Parse>
    void readFaults(const QCommandLineOption &option, Parse parse, QList<Fault> &faults)
    {
        for (const QString &text : m_parser.values(option)) {
            QString error;
            if (const auto fault = parse(text, &error))
                faults.append(*fault);
            else
                fail(error);
        }
    }

    double number(const QCommandLineOption &option, double minimum, double maximum)
    {
        const QString text = m_parser.value(option);
        // No number here has groups of digits, so that a comma can only be a decimal one.
        bool isNumber = false;
        const double value =
            QString(text).replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&isNumber);
        if (isNumber && value >= minimum && value <= maximum)
            return value;
        fail(tr("--%1 takes a number from %2 to %3, not \"%4\"")
                 .arg(option.names().first())
                 .arg(minimum)
                 .arg(maximum)
                 .arg(text));
        return minimum;
    }

    double wholeNumber(const QCommandLineOption &option, double minimum, double maximum)
    {
        const double value = number(option, minimum, maximum);
        if (value != std::floor(value))
            fail(tr("--%1 takes a whole number").arg(option.names().first()));
        return value;
    }

    void fail(const QString &error)
    {
        if (m_error.isEmpty())
            m_error = error;
    }

    CommandLine failure(const QString &message)
    {
        return {CommandLine::Action::PrintAndFail,
                {},
                message + QStringLiteral("\n\n") + m_parser.helpText() + QLatin1Char('\n') +
                    faultHelp()};
    }

    QCommandLineParser m_parser;
    Options m_options;
    QString m_error;

    const QCommandLineOption m_help{{QStringLiteral("help"), QStringLiteral("h")},
                                    tr("Show this text.")};
    const QCommandLineOption m_version{QStringLiteral("version"), tr("Show the version.")};
    const QCommandLineOption m_listen{QStringLiteral("listen"),
                                      tr("Address to listen on (127.0.0.1)."),
                                      QStringLiteral("ADDRESS"), QStringLiteral("127.0.0.1")};
    const QCommandLineOption m_port{QStringLiteral("port"),
                                    tr("TCP port to listen on (5001); 0 takes a free one."),
                                    QStringLiteral("PORT"), QStringLiteral("5001")};
    const QCommandLineOption m_serial{
        QStringLiteral("serial"),
        tr("Offer a serial port too, and print its path (not on Windows).")};
    const QCommandLineOption m_level{QStringLiteral("level"), tr("Level of the source (-20)."),
                                     QStringLiteral("DBM"), QStringLiteral("-20")};
    const QCommandLineOption m_script{
        QStringLiteral("script"),
        tr("Change the level by the clock: lines \"SECONDS level DBM\", \"SECONDS ramp FROM TO "
           "OVER\", \"SECONDS overload\", \"SECONDS off\"."),
        QStringLiteral("FILE")};
    const QCommandLineOption m_pattern{
        QStringLiteral("pattern"),
        tr("Take the level from a curve file, at the turntable's angle; --level does not count."),
        QStringLiteral("FILE")};
    const QCommandLineOption m_rotator{
        QStringLiteral("rotator"),
        tr("Offer a turntable that speaks rotctld's protocol; 0 takes a free port."),
        QStringLiteral("PORT")};
    const QCommandLineOption m_rotatorSpeed{QStringLiteral("rotator-speed"),
                                            tr("Speed of the turntable, in degrees a second (6)."),
                                            QStringLiteral("DEGREES"), QStringLiteral("6")};
    const QCommandLineOption m_noise{
        QStringLiteral("noise"),
        tr("Deviation of a single reading (0.05); the drift goes with it, and 0 ends both."),
        QStringLiteral("DB"), QStringLiteral("0.05")};
    const QCommandLineOption m_seed{QStringLiteral("seed"),
                                    tr("The same seed gives the same readings and faults (1)."),
                                    QStringLiteral("NUMBER"), QStringLiteral("1")};
    const QCommandLineOption m_micro{QStringLiteral("micro-sign"),
                                     tr("Write microwatts with a micro sign, in two bytes.")};
    const QCommandLineOption m_calibrationTime{QStringLiteral("calibration-time"),
                                               tr("Time that zeroing and calibration take (3)."),
                                               QStringLiteral("SECONDS"), QStringLiteral("3")};
    const QCommandLineOption m_replay{
        QStringLiteral("replay"),
        tr("Answer with the replies in a console's log, the file of an hour or the folder of a "
           "day."),
        QStringLiteral("LOG")};
    const QCommandLineOption m_replayTiming{
        QStringLiteral("replay-timing"),
        tr("Let the replies of the log take the time that they took.")};
    const QCommandLineOption m_trace{QStringLiteral("trace"),
                                     tr("Print every line in both directions, with the time.")};
    const QCommandLineOption m_fault{QStringLiteral("fault"),
                                     tr("Add a fault, see below; may be repeated."),
                                     QStringLiteral("KIND[:PARAM][,QUALIFIER...]")};
    const QCommandLineOption m_rotatorFault{
        QStringLiteral("rotator-fault"),
        tr("Add a fault of the turntable, see below; may be repeated."),
        QStringLiteral("KIND[:PARAM][,QUALIFIER...]")};
};

} // namespace

CommandLine parseCommandLine(const QStringList &arguments)
{
    return Reader().read(arguments);
}

} // namespace sim
