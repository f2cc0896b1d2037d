#pragma once

#include "meter/meter.h"
#include "recorder/dayfiles.h"
#include "recorder/metrics.h"
#include "recorder/outbox.h"
#include "recorder/recording.h"
#include "recorder/standardoutput.h"

#include <QObject>
#include <QTimer>

/// What is to be recorded, and where to.
struct RecordOptions
{
    QString name;   ///< of the meter
    QString folder; ///< "-" is standard output
    RowFormat format = RowFormat::Csv;
    RecordingPlan plan;
    int poll = 500;                 ///< ms between two readings
    QString metricsFile;            ///< empty: none
    std::optional<qint64> duration; ///< ns
    std::optional<qint64> count;    ///< rows
    bool waits = true;              ///< for an instrument that does not answer at the start
};

/// Records an instrument unattended: one row an interval into the files of a day, events beside
/// them, and figures for Prometheus.
class Recorder : public QObject
{
    Q_OBJECT

public:
    enum class End {
        Done,     ///< after its duration or its rows, or since nobody reads the output any more
        Stopped,  ///< from outside
        NoAnswer, ///< nobody answered at the start, and it was not to wait
    };

    Recorder(const MeterAddress &address, const RecordOptions &options, QObject *parent = nullptr);
    ~Recorder() override;

    /// Begins; why it cannot, for lack of a place to write to, or nothing.
    std::optional<QString> start();
    /// Ends it as `Stopped`, unless it has ended already.
    void stop();

    /// Whether rows could not be written, and are lost when the program ends.
    bool hasUnwrittenRows() const
    {
        return m_hasLostRows || (m_rows.waiting() > 0 && !m_output.isClosed());
    }

signals:
    void ended(Recorder::End end);

private:
    std::optional<QString> append(const Outbox::Line &lines);
    void connectMeter();
    void takeReading(const MeterReading &reading);
    void takeLink(MeterState state, const QString &reason);
    void takeRow(const Row &row);
    void takeEvent(const char *name, qint64 wall, const JsonLine &details);
    void look();
    void flush();
    void tellRows(const Outbox::Change &change);
    void writeMetrics();
    void planNextLook();
    qint64 endOfDuration() const;
    void end(End how, const QString &reason);

    bool isFull() const { return m_options.count && m_rowCount >= *m_options.count; }
    bool printsRows() const { return m_options.folder == QLatin1String("-"); }

    const RecordOptions m_options;
    Meter m_meter;
    const Moment m_start;
    Recording m_recording;
    DayFiles m_files;
    StandardOutput m_output;
    Outbox m_rows;
    Outbox m_events;
    Metrics m_metrics;
    QTimer m_timer;
    qint64 m_rowCount = 0;
    qint64 m_metricsWritten = 0; // by the steady clock
    bool m_areMetricsDue = false;
    bool m_areMetricsFailing = false;
    bool m_hasLostRows = false;
    bool m_hasAnswered = false;
    std::optional<bool> m_showsRelative; // the instrument, by its last reading
    bool m_isOver = false;
};
