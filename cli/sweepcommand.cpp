#include "cli/sweepcommand.h"

#include "2d/data/curvetext.h"
#include "cli/optionvalues.h"
#include "cli/values.h"
#include "sweep/sweepsession.h"

#include <QFile>
#include <QFileInfo>

#include <limits>
#include <memory>
#include <utility>

namespace {

/// One run: tells its progress on standard error.
class SweepCommand : public Command
{
public:
    SweepCommand(const SweepJob &job, const SweepAddresses &addresses)
        : m_devices(addresses)
        , m_session(job)
    {
        connect(&m_devices, &SweepDevices::checked, this, &SweepCommand::begin);
        connect(&m_devices, &SweepDevices::absent, this,
                [this](SweepDevices::Device device, const QString &reason) {
                    const bool isMeter = device == SweepDevices::Device::Meter;
                    fail(ExitStatus::link,
                         (isMeter ? QStringLiteral("meter: %1") : QStringLiteral("rotator: %1"))
                             .arg(reason));
                });
        connect(&m_session, &SweepSession::measured, this, &SweepCommand::tellPoint);
        connect(&m_session, &SweepSession::progressed, this, &SweepCommand::tellState);
        connect(&m_session, &SweepSession::ended, this, &SweepCommand::end);
    }

    void start() override;
    void stop() override;

private:
    void begin();
    void tellPoint(const RunRow &row) const;
    void tellState();
    void end();

    SweepDevices m_devices;
    SweepSession m_session; // goes before its devices
    bool m_isStopping = false;
    QString m_told;
    bool m_isTold = false; ///< why the run cannot go on
};

void SweepCommand::start()
{
    const SweepSession::Refusal refusal = m_session.prepare();
    if (refusal != SweepSession::Refusal::None) {
        fail(m_session.isNotWritable() ? ExitStatus::unwritten : ExitStatus::usage,
             m_session.refusalText(refusal));
    } else if (!m_session.isComplete()) {
        m_devices.check();
    } else if (m_session.writeCurve()) {
        printMessage(QStringLiteral("the run is complete; its curve is written again"));
        finish(ExitStatus::done);
    } else {
        fail(ExitStatus::unwritten, m_session.store().reason());
    }
}

void SweepCommand::begin()
{
    const SweepFindings &found = m_devices.findings();
    const QString table =
        found.table.model.isEmpty() ? m_devices.addresses().rotator() : found.table.model;
    printMessage(QStringLiteral("meter: %1").arg(found.meter.identity));
    printMessage(
        QStringLiteral("rotator: %1, at %2 degrees").arg(table, CurveText::number(found.azimuth)));
    const SweepSession::Refusal refusal = m_session.start(m_devices);
    if (refusal != SweepSession::Refusal::None)
        fail(ExitStatus::usage, m_session.refusalText(refusal));
}

void SweepCommand::tellPoint(const RunRow &row) const
{
    const SweepProgress progress = m_session.progress();
    const QString level = row.mean ? QStringLiteral("%1 dBm").arg(*row.mean, 9, 'f', 4)
                                   : QStringLiteral("no reading");
    QString line = QStringLiteral("%1/%2  %3 deg  %4")
                       .arg(progress.done)
                       .arg(progress.all)
                       .arg(row.theta, 7, 'f', 2)
                       .arg(level);
    if (row.sigma)
        line += QStringLiteral("  sigma %1 dB").arg(*row.sigma, 0, 'f', 4);
    const QByteArray flags = RunText::flags(row.flags);
    if (!flags.isEmpty())
        line += QStringLiteral("  ") + QString::fromLatin1(flags);
    if (progress.remaining >= 0 && !row.flags.testFlag(RunFlag::Drift))
        line += QStringLiteral("  %1 s left").arg((progress.remaining + 999) / 1000);
    printMessage(line);
}

void SweepCommand::tellState()
{
    const bool isPaused = m_session.progress().state == SweepRun::State::Paused;
    const QString told = isPaused ? m_session.causeText() : m_session.waitText();
    if (!told.isEmpty() && told != m_told)
        printMessage(told);
    m_told = told;
    if (isPaused && !std::exchange(m_isTold, true))
        m_session.giveUp(); // nobody is here to put it right
}

void SweepCommand::stop()
{
    if (!m_session.isRunning()) {
        finish(ExitStatus::interrupted);
        return;
    }
    // The second time not even the way back is waited for.
    if (std::exchange(m_isStopping, true))
        m_session.giveUp();
    else
        m_session.stop();
}

void SweepCommand::end()
{
    const SweepRun::Cause cause = m_session.cause();
    const RunFile &run = m_session.store().run();
    if (run.isMarked())
        printMessage(
            QStringLiteral("marked: the level drifted by %1 dB while the pattern was measured")
                .arg(*run.drift(), 0, 'f', 2));
    if (!m_session.isWritten() || cause == SweepRun::Cause::NotWritten) {
        fail(ExitStatus::unwritten, m_session.store().reason());
    } else if (cause == SweepRun::Cause::None) {
        finish(ExitStatus::done);
    } else if (cause == SweepRun::Cause::User) {
        finish(ExitStatus::interrupted);
    } else {
        if (!m_isTold)
            printMessage(m_session.causeText());
        const bool isRefused = cause == SweepRun::Cause::OutOfLimits && !m_session.hasMoved();
        finish(isRefused ? ExitStatus::usage : ExitStatus::failed);
    }
}

/// The options as they were given; what was not is taken from the run that is resumed, else it has
/// its usual value.
struct SweepTexts
{
    std::string rotator;
    std::string out;
    std::string from;
    std::string to;
    std::string step;
    std::string settle;
    std::string readings;
    std::string tolerance;
    std::string zero;
    std::string sense;
    std::string floor;
    std::string title;
    std::string curve;
    bool resumes = false;
    bool overwrites = false;
    bool returns = false;
};

/// The header of the run that is to be resumed; the usual one where there is none.
RunHeader startingHeader(const QString &curve, bool resumes)
{
    QFile file(RunText::pathBeside(curve));
    if (!resumes || !file.open(QIODevice::ReadOnly))
        return {};
    const std::optional<RunFile> run = RunText::read(file.readAll());
    return run ? run->header : RunHeader();
}

void takeNumber(const char *option, const std::string &text, double &value)
{
    if (!text.empty())
        value = OptionValues::number(option, text);
}

void takePlan(const SweepTexts &texts, bool isNew, SweepPlan &plan)
{
    const auto required = [isNew](const char *option, const std::string &text, double &value) {
        if (text.empty() && isNew)
            throw CLI::RequiredError(option);
        takeNumber(option, text, value);
    };
    required("--from", texts.from, plan.from);
    required("--to", texts.to, plan.to);
    required("--step", texts.step, plan.step);
    takeNumber("--zero-at", texts.zero, plan.zero);
    if (texts.sense == "1" || texts.sense == "+1")
        plan.sense = 1;
    else if (texts.sense == "-1")
        plan.sense = -1;
    else if (!texts.sense.empty())
        throw CLI::ValidationError("--sense", "takes 1 or -1");
}

SweepJob jobOf(const SweepTexts &texts)
{
    SweepJob job;
    job.curve = QString::fromStdString(texts.out);
    if (job.curve.isEmpty())
        throw CLI::ValidationError("--out", "names no file");
    RunHeader &header = job.header;
    header = startingHeader(job.curve, texts.resumes);
    takePlan(texts, header.version.isEmpty(), header.plan);
    if (!texts.settle.empty()) {
        const qint64 settle = OptionValues::duration("--settle", texts.settle) / millisecond;
        if (settle > std::numeric_limits<int>::max())
            throw CLI::ValidationError("--settle", "is too long");
        header.settle = int(settle);
    }
    if (!texts.readings.empty())
        header.readings = OptionValues::count("--readings", texts.readings);
    takeNumber("--tolerance", texts.tolerance, header.tolerance);
    if (header.tolerance <= 0.0)
        throw CLI::ValidationError("--tolerance", "takes more than nothing");
    if (!texts.floor.empty())
        header.floor = OptionValues::number("--floor", texts.floor);
    const QString name = QFileInfo(job.curve).completeBaseName();
    header.title = texts.title.empty() ? name : QString::fromStdString(texts.title);
    header.curve = texts.curve.empty() ? name : QString::fromStdString(texts.curve);
    if (texts.resumes)
        job.mode = RunStore::Mode::Resume;
    else if (texts.overwrites)
        job.mode = RunStore::Mode::Overwrite;
    job.returns = texts.returns;
    return job;
}

SweepAddresses addressesOf(const CommonOptions &common, const SweepTexts &texts)
{
    SweepAddresses addresses;
    addresses.meter = common.address;
    if (!addresses.setRotator(QString::fromStdString(texts.rotator)))
        throw CLI::ValidationError("--rotator", "cannot be \"" + texts.rotator + '"');
    return addresses;
}

} // namespace

SubCommand sweepSubCommand(CLI::App &app)
{
    CLI::App *const parser =
        app.add_subcommand("sweep", "Measure a radiation pattern with a turntable");
    auto texts = std::make_shared<SweepTexts>();
    const auto option = [parser](const char *name, std::string &text, const char *type,
                                 const char *description) {
        return parser->add_option(name, text, description)->type_name(type);
    };
    option("--rotator", texts->rotator, "HOST[:PORT]", "Server of the rotator, rotctld (port 4533)")
        ->required();
    option("--from", texts->from, "DEG", "First angle of the curve");
    option("--to", texts->to, "DEG", "Last angle, measured also where the step does not divide");
    option("--step", texts->step, "DEG", "From point to point, more than 0");
    option("--out", texts->out, "NAME.csv",
           "Curve file; every point is kept at once in NAME.run.csv beside it")
        ->required();
    option("--settle", texts->settle, "T",
           "From the table's arrival to the first reading, as 500ms (500ms)");
    option("--readings", texts->readings, "N", "Readings in the mean of a point (3)");
    option("--tolerance", texts->tolerance, "DEG", "Between the angle wanted and read (0.5)");
    option("--zero-at", texts->zero, "DEG", "The table's angle where the curve's is 0 (0)");
    option("--sense", texts->sense, "1|-1", "-1 where the table turns the other way (1)");
    option("--floor", texts->floor, "DBM", "Level with the source off: marks points near it");
    option("--title", texts->title, "TEXT", "Title of the curve file (the file's name)");
    option("--curve-name", texts->curve, "TEXT", "Name of the curve (the file's name)");
    CLI::Option *resume =
        parser->add_flag("--resume", texts->resumes, "Go on with the run file that is there");
    parser->add_flag("--overwrite", texts->overwrites, "Begin anew where a run file is there")
        ->excludes(resume);
    parser->add_flag("--return", texts->returns, "Turn the table back at the end");
    return {parser, [texts](const CommonOptions &common) {
                return std::make_unique<SweepCommand>(jobOf(*texts), addressesOf(common, *texts));
            }};
}
