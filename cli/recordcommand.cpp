#include "cli/recordcommand.h"

#include "cli/optionvalues.h"
#include "cli/values.h"
#include "recorder/recorder.h"

#include <limits>
#include <memory>

namespace {

constexpr qint64 shortestInterval = 10 * millisecond;

class RecordCommand : public Command
{
public:
    RecordCommand(const CommonOptions &common, const RecordOptions &options)
        : m_recorder(common.address, options)
        , m_hasEnd(options.duration || options.count)
    {
        connect(&m_recorder, &Recorder::ended, this, &RecordCommand::end);
    }

    void start() override
    {
        if (const std::optional<QString> obstacle = m_recorder.start())
            fail(ExitStatus::unwritten, *obstacle);
    }

    void stop() override { m_recorder.stop(); }

private:
    void end(Recorder::End how)
    {
        if (m_recorder.hasUnwrittenRows())
            fail(ExitStatus::unwritten, QStringLiteral("rows were lost"));
        else if (how == Recorder::End::NoAnswer)
            finish(ExitStatus::link);
        else
            finish(how == Recorder::End::Stopped && m_hasEnd ? ExitStatus::interrupted
                                                             : ExitStatus::done);
    }

    Recorder m_recorder;
    const bool m_hasEnd;
};

struct RecordTexts
{
    std::string every{"1min"};
    std::string out{"."};
    std::string format{"csv"};
    std::string poll{"500ms"};
    std::string high;
    std::string low;
    std::string hysteresis{"0.2"};
    std::string prometheus;
    std::string duration;
    std::string count;
    bool noWait = false;
};

RowFormat rowFormat(const std::string &name)
{
    if (name == "csv")
        return RowFormat::Csv;
    if (name == "jsonl")
        return RowFormat::JsonLines;
    if (name == "influx")
        return RowFormat::Influx;
    throw CLI::ValidationError("--format", "takes csv, jsonl or influx");
}

Limits limits(const RecordTexts &texts)
{
    Limits limits;
    if (!texts.high.empty())
        limits.high = OptionValues::number("--high", texts.high);
    if (!texts.low.empty())
        limits.low = OptionValues::number("--low", texts.low);
    limits.hysteresis = OptionValues::number("--hysteresis", texts.hysteresis);
    if (limits.hysteresis < 0)
        throw CLI::ValidationError("--hysteresis", "cannot be negative");
    if (!limits.areUsable())
        throw CLI::ValidationError("--low", "must be under --high");
    return limits;
}

RecordOptions recordOptions(const CommonOptions &common, const RecordTexts &texts)
{
    RecordOptions options;
    options.name = common.name;
    options.folder = QString::fromStdString(texts.out);
    if (options.folder.isEmpty())
        throw CLI::ValidationError("--out", "names no folder");
    options.format = rowFormat(texts.format);
    if (options.format == RowFormat::Influx && !RowText::isTag(options.name))
        throw CLI::ValidationError("--name", "takes no backslash at its end or before a comma, '=' "
                                             "or blank with --format influx");
    options.plan.every = OptionValues::duration("--every", texts.every);
    if (options.plan.every < shortestInterval)
        throw CLI::ValidationError("--every", "takes 10ms at least");
    options.plan.limits = limits(texts);
    const qint64 poll = OptionValues::duration("--poll", texts.poll) / millisecond;
    if (poll > std::numeric_limits<int>::max())
        throw CLI::ValidationError("--poll", "is too long");
    options.poll = int(poll);
    options.metricsFile = QString::fromStdString(texts.prometheus);
    if (!texts.duration.empty()) {
        options.duration = OptionValues::duration("--duration", texts.duration);
        if (*options.duration == 0)
            throw CLI::ValidationError("--duration", "takes more than nothing");
    }
    if (!texts.count.empty())
        options.count = OptionValues::count("--count", texts.count);
    options.waits = !texts.noWait;
    return options;
}

} // namespace

SubCommand recordSubCommand(CLI::App &app)
{
    CLI::App *const parser =
        app.add_subcommand("record", "Measure unattended: a row for every interval");
    auto texts = std::make_shared<RecordTexts>();
    const auto option = [parser](const char *name, std::string &text, const char *type,
                                 const char *description) {
        parser->add_option(name, text, description)->type_name(type);
    };
    option("--every", texts->every, "T",
           "Length of an interval, as 500ms, 10s, 5min, 1h (1min); one row an interval");
    option("--out", texts->out, "DIR", "Folder of the files (.); - is standard output");
    option("--format", texts->format, "csv|jsonl|influx", "Format of the rows (csv)");
    option("--poll", texts->poll, "T",
           "Pause between two readings (500ms); 0 reads as fast as the instrument answers");
    option("--high", texts->high, "DBM", "Alarm while the mean of an interval is above");
    option("--low", texts->low, "DBM", "Alarm while the mean of an interval is below");
    option("--hysteresis", texts->hysteresis, "DB",
           "How far the mean must be back before an alarm ends (0.2)");
    option("--prometheus", texts->prometheus, "FILE",
           "Keep FILE up to date for node_exporter's textfile collector");
    option("--duration", texts->duration, "T", "End after so long");
    option("--count", texts->count, "ROWS", "End after so many rows");
    parser->add_flag("--no-wait", texts->noWait,
                     "End when the address does not answer at the start");
    return {parser, [texts](const CommonOptions &common) {
                return std::make_unique<RecordCommand>(common, recordOptions(common, *texts));
            }};
}
