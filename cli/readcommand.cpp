#include "cli/readcommand.h"

#include "cli/optionvalues.h"
#include "measure/powerstatistics.h"
#include "meter/steadyclock.h"
#include "recorder/isotime.h"
#include "recorder/jsonline.h"
#include "recorder/numbertext.h"

#include <QTimer>

#include <algorithm>
#include <limits>
#include <memory>

namespace {

struct ReadOptions
{
    int count = 1;
    qint64 every = 0; // ns from start to start
    int mean = 0;     // readings for each line; 0: one, as it came
};

class ReadCommand : public MeterCommand
{
public:
    ReadCommand(const CommonOptions &common, const ReadOptions &options)
        : MeterCommand(common)
        , m_options(options)
    {
        m_timer.setSingleShot(true);
        m_timer.setTimerType(Qt::PreciseTimer);
        connect(&m_timer, &QTimer::timeout, this, &ReadCommand::begin);
        connect(&meter(), &Meter::answered, this, &ReadCommand::takeRelative);
        connect(&meter(), &Meter::reading, this, &ReadCommand::take);
    }

    void start() override
    {
        meter().open(Meter::Keeping::Once);
        meter().askRelative();
    }

private:
    void takeRelative(const MeterAnswer &answer)
    {
        if (answer.outcome == Outcome::Link) {
            finish(tell(answer.outcome, {}));
            return;
        }
        m_isRelative = answer.settings.isRelative.value_or(false);
        m_begun = steadyNow();
        begin();
    }

    void begin()
    {
        m_statistics = {};
        m_taken = 0;
        meter().read();
    }

    void take(const MeterReading &reading)
    {
        if (reading.reading.isValid()) {
            m_statistics.add(reading.reading.level);
            m_hasRead = true;
        }
        if (reading.outcome != Outcome::Ok)
            m_worst = reading;
        if (++m_taken < m_options.mean && reading.outcome != Outcome::Link) {
            meter().read();
            return;
        }
        if (!print(isJson() ? json(reading) : text(reading)))
            return;
        if (reading.outcome == Outcome::Link || ++m_lines == m_options.count)
            end(reading);
        else
            planNext();
    }

    void planNext()
    {
        // Counted from the start before, so that the delays of timers do not add up.
        const qint64 now = steadyNow();
        m_begun = std::max(m_begun + m_options.every, now);
        m_timer.start(int((m_begun - now + 999999) / 1000000));
    }

    void end(const MeterReading &last)
    {
        if (last.outcome != Outcome::Link && m_hasRead)
            finish(ExitStatus::done);
        else
            finish(tell(m_worst.outcome, QStringLiteral("read"), m_worst.reading.text));
    }

    /// The level of a line, with its decimals.
    std::optional<QString> level(const MeterReading &reading) const
    {
        if (m_options.mean > 0) {
            const std::optional<double> mean = m_statistics.mean();
            return mean ? std::optional(fourDecimals(*mean)) : std::nullopt;
        }
        return reading.reading.isValid() ? std::optional(levelText(reading.reading.level))
                                         : std::nullopt;
    }

    QByteArray text(const MeterReading &reading) const
    {
        const std::optional<QString> value = level(reading);
        QString line =
            isoTime(reading.at.wall) + QLatin1Char(' ') + value.value_or(QStringLiteral("-"));
        if (value)
            line += QLatin1String(m_isRelative || reading.isRelative ? " dB" : " dBm");
        if (value && m_options.mean == 0)
            line += QLatin1Char(' ') + reading.reading.text;
        return line.toUtf8();
    }

    QByteArray json(const MeterReading &reading) const
    {
        JsonLine line;
        line.add("time", isoTime(reading.at.wall)).addNumber("power_dbm", level(reading));
        if (m_options.mean > 0 || reading.reading.text.isEmpty())
            line.addNull("text");
        else
            line.add("text", reading.reading.text);
        return line.line();
    }

    const ReadOptions m_options;
    QTimer m_timer;
    qint64 m_begun = 0; // when the line under way is due, by the steady clock
    PowerStatistics m_statistics;
    int m_taken = 0; // readings of the line under way
    int m_lines = 0;
    bool m_isRelative = false;
    bool m_hasRead = false;
    MeterReading m_worst; // the last one that did not come
};

} // namespace

SubCommand readSubCommand(CLI::App &app)
{
    CLI::App *const parser = app.add_subcommand("read", "Read the power");
    struct Texts
    {
        std::string count{"1"};
        std::string every{"0"};
        std::string mean;
    };
    auto texts = std::make_shared<Texts>();
    parser->add_option("--count", texts->count, "Number of lines (1)")->type_name("N");
    parser
        ->add_option("--every", texts->every,
                     "Time from start to start, as 500ms, 10s, 5min, 1h (0: as fast as it goes)")
        ->type_name("T");
    parser->add_option("--mean", texts->mean, "Let each line be the mean of so many readings")
        ->type_name("N");
    return {parser, [texts](const CommonOptions &common) {
                ReadOptions options;
                options.count = OptionValues::count("--count", texts->count);
                options.every = OptionValues::duration("--every", texts->every);
                if (options.every / 1000000 >= std::numeric_limits<int>::max())
                    throw CLI::ValidationError("--every", "is too long");
                if (!texts->mean.empty())
                    options.mean = OptionValues::count("--mean", texts->mean);
                return std::make_unique<ReadCommand>(common, options);
            }};
}
