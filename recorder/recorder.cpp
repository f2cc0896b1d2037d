#include "recorder/recorder.h"

#include "recorder/isotime.h"
#include "storage/filewriting.h"

#include <algorithm>
#include <cstdio>
#include <limits>

namespace {

constexpr qint64 second = 1000000000;
/// A reading that came just before the end of its interval may still be on its way to this thread.
constexpr qint64 grace = 20000000;
/// The clocks are looked at, and files that could not be written tried again, at least so often.
constexpr qint64 longestWait = second;

constexpr std::size_t mostWaitingEvents = 10000;
const QString eventsEnding = QStringLiteral(".events.jsonl");

/// Why \a text did not take the place of the file \a path, or nothing.
std::optional<QString> replaceMetrics(const QString &path, const QByteArray &text)
{
    const FileOutcome outcome = replaceFile(path, text);
    if (outcome.kind == FileOutcome::Kind::Written)
        return std::nullopt;
    return outcome.reason;
}

} // namespace

Recorder::Recorder(const MeterAddress &address, const RecordOptions &options, QObject *parent)
    : QObject(parent)
    , m_options(options)
    , m_meter(address)
    , m_start(momentNow())
    , m_recording(
          options.plan, m_start, [this](const Row &row) { takeRow(row); },
          [this](const char *name, qint64 wall, const JsonLine &details) {
              takeEvent(name, wall, details);
          })
    , m_files(options.folder, options.name)
    , m_rows([this](const Outbox::Line &lines) { return append(lines); })
    , m_events([this](const Outbox::Line &lines) { return m_files.append(lines); },
               mostWaitingEvents)
{
    m_metrics.meter = options.name;
    m_metrics.alarm = LimitAlarm(options.plan.limits);
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &Recorder::look);
    connectMeter();
}

Recorder::~Recorder() = default;

void Recorder::connectMeter()
{
    connect(&m_meter, &Meter::reading, this, &Recorder::takeReading);
    connect(&m_meter, &Meter::stateChanged, this, &Recorder::takeLink);
    connect(&m_meter, &Meter::described, this, [this](const MeterDescription &description) {
        m_recording.take(description, momentNow());
        flush();
    });
    connect(&m_meter, &Meter::reopened, this, [this] { ++m_metrics.reconnects; });
}

std::optional<QString> Recorder::start()
{
    if (!printsRows()) {
        const QDate today = localDate(m_start.wall);
        if (auto obstacle =
                m_files.open({m_files.fileName(today, RowText::fileEnding(m_options.format)),
                              m_files.fileName(today, eventsEnding)}))
            return obstacle;
    }
    if (!m_options.metricsFile.isEmpty()) {
        if (const auto failure = replaceMetrics(m_options.metricsFile, m_metrics.text()))
            return QStringLiteral("%1: %2").arg(m_options.metricsFile, *failure);
    }
    m_meter.poll(m_options.poll);
    m_meter.open(Meter::Keeping::Forever);
    planNextLook();
    return std::nullopt;
}

void Recorder::stop()
{
    end(End::Stopped, QStringLiteral("signal"));
}

std::optional<QString> Recorder::append(const Outbox::Line &lines)
{
    return printsRows() ? m_output.write(lines.text) : m_files.append(lines);
}

void Recorder::takeReading(const MeterReading &reading)
{
    if (m_isOver || reading.at.steady >= endOfDuration())
        return;
    m_recording.setAwaitsReply(m_meter.awaitsReply());
    m_recording.take(reading);
    const bool isValid = reading.reading.isValid();
    ++(isValid ? m_metrics.valid : m_metrics.invalid);
    if (isValid) {
        m_metrics.lastValid = reading.at.wall;
        // Somebody may have switched it at the instrument.
        if (m_showsRelative && *m_showsRelative != reading.isRelative)
            m_meter.describe();
        m_showsRelative = reading.isRelative;
    }
    if (isFull())
        end(End::Done, QStringLiteral("count"));
}

void Recorder::takeLink(MeterState state, const QString &reason)
{
    if (m_isOver)
        return;
    m_hasAnswered = m_hasAnswered || state == MeterState::Open;
    m_recording.takeLink(state, reason, momentNow());
    if (state == MeterState::Lost && !m_hasAnswered && !m_options.waits)
        end(End::NoAnswer, reason);
    else
        flush();
}

void Recorder::takeRow(const Row &row)
{
    if (isFull())
        return;
    ++m_rowCount;
    const QString file =
        printsRows() ? QString()
                     : m_files.fileName(localDate(row.time), RowText::fileEnding(m_options.format));
    const QByteArray header = RowText::header(m_options.format);
    QByteArray text = RowText::line(m_options.format, row, m_options.name);
    if (printsRows() && m_rowCount == 1)
        text.prepend(header);
    m_rows.add({file, header, text});
    m_metrics.row = row;
    m_areMetricsDue = true;
    // So many may be owed at once that they must not all wait for the last.
    if (m_rows.waiting() >= 1000)
        flush();
}

void Recorder::takeEvent(const char *name, qint64 wall, const JsonLine &details)
{
    JsonLine line;
    line.add("time", isoTime(wall)).add("event", QLatin1String(name)).append(details);
    if (m_output.isClosed())
        return;
    if (printsRows()) {
        std::fwrite(line.line().constData(), 1, size_t(line.line().size()), stderr);
        return;
    }
    if (qstrcmp(name, "link-lost") == 0 || qstrcmp(name, "link-up") == 0)
        printMessage(QString::fromUtf8(line.line()).trimmed());
    const QString file = m_files.fileName(localDate(wall), eventsEnding);
    m_events.add({file, {}, line.line()});
}

void Recorder::look()
{
    const Moment now = momentNow();
    m_recording.setAwaitsReply(m_meter.awaitsReply());
    if (now.steady - grace >= endOfDuration()) {
        end(End::Done, QStringLiteral("duration"));
        return;
    }
    m_recording.advance(now, now.steady - grace);
    flush();
    if (isFull())
        end(End::Done, QStringLiteral("count"));
    if (!m_isOver)
        planNextLook();
}

qint64 Recorder::endOfDuration() const
{
    return m_options.duration ? m_start.steady + *m_options.duration
                              : std::numeric_limits<qint64>::max() - grace;
}

void Recorder::planNextLook()
{
    const qint64 now = steadyNow();
    const qint64 due = std::min(m_recording.intervalEnd(), endOfDuration()) + grace;
    // Rounded up, so that the timer does not ring just before its time.
    const qint64 wait = std::min(longestWait, due - now);
    m_timer.start(int(std::max<qint64>(0, (wait + 999999) / 1000000)));
}

void Recorder::flush()
{
    if (const std::optional<Outbox::Change> change = m_rows.flush())
        tellRows(*change);
    if (m_output.isClosed()) {
        end(End::Done, QStringLiteral("nobody reads"));
        return;
    }
    if (!printsRows())
        m_events.flush();
    if (m_areMetricsDue)
        writeMetrics();
}

void Recorder::tellRows(const Outbox::Change &change)
{
    if (m_output.isClosed())
        return;
    const qint64 now = momentNow().wall;
    if (change.isFailing) {
        takeEvent("write-failed", now, JsonLine().add("reason", change.reason));
        printMessage(QStringLiteral("rows cannot be written: %1").arg(change.reason));
        return;
    }
    const qint64 lost = m_rows.takeLost();
    m_hasLostRows = m_hasLostRows || lost > 0;
    takeEvent("write-resumed", now, JsonLine().addNumber("lost", QString::number(lost)));
    printMessage(QStringLiteral("rows are written again; %1 were given up").arg(lost));
}

void Recorder::writeMetrics()
{
    const qint64 now = steadyNow();
    if (m_options.metricsFile.isEmpty() || (!m_isOver && now - m_metricsWritten < second))
        return;
    m_areMetricsDue = false;
    m_metricsWritten = now;
    m_metrics.alarm = m_recording.alarm();
    if (m_isOver && m_metrics.row)
        m_metrics.row->valid = 0;
    const auto failure = replaceMetrics(m_options.metricsFile, m_metrics.text());
    if (failure && !m_areMetricsFailing)
        printMessage(QStringLiteral("%1: %2").arg(m_options.metricsFile, *failure));
    m_areMetricsFailing = failure.has_value();
}

void Recorder::end(End how, const QString &reason)
{
    if (m_isOver)
        return;
    m_isOver = true;
    m_timer.stop();
    m_meter.stop();
    const Moment now = momentNow();
    m_recording.finish(now, std::min(now.steady, endOfDuration()), reason,
                       how != End::NoAnswer && !isFull());
    m_rows.flush();
    m_hasLostRows = m_hasLostRows || m_rows.takeLost() > 0;
    if (!printsRows())
        m_events.flush();
    writeMetrics();
    emit ended(how);
}
