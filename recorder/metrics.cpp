#include "recorder/metrics.h"

#include "recorder/numbertext.h"

#include <cmath>

namespace {

QByteArray escapedLabel(const QString &value)
{
    QString escaped = value;
    escaped.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    escaped.replace(QLatin1Char('"'), QLatin1String("\\\""));
    escaped.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    return escaped.toUtf8();
}

/// Writes metrics one after the other.
class Exposition
{
public:
    explicit Exposition(const QString &meter)
        : m_meter("meter=\"" + escapedLabel(meter) + '"')
    {}

    /// Begins the metric \a name.
    Exposition &metric(const char *name, const char *type, const char *help)
    {
        m_name = QByteArray("mz6218_") + name;
        m_text += "# HELP " + m_name + ' ' + help + '\n';
        m_text += "# TYPE " + m_name + ' ' + type + '\n';
        return *this;
    }
    /// A value of the metric that was begun; \a label is a further one, as name="value".
    Exposition &value(const QString &value, const QByteArray &label = {})
    {
        const QByteArray labels = label.isEmpty() ? m_meter : m_meter + ',' + label;
        m_text += m_name + '{' + labels + "} " + value.toLatin1() + '\n';
        return *this;
    }
    /// A gauge that is left out where it has no value.
    void gauge(const char *name, const char *help, const std::optional<double> &number)
    {
        if (number)
            metric(name, "gauge", help).value(shortNumber(*number));
    }

    const QByteArray &text() const { return m_text; }

private:
    const QByteArray m_meter;
    QByteArray m_name;
    QByteArray m_text;
};

} // namespace

QByteArray Metrics::text() const
{
    Exposition out(meter);
    const bool isUp = row && row->valid > 0;
    out.gauge("up", "Whether a valid reading came in the last interval.", isUp ? 1 : 0);
    if (isUp && !row->isRelative.value_or(false)) {
        out.gauge("power_dbm", "Last reading in dBm.", row->last);
        out.gauge("power_watts", "Last reading in watts.",
                  std::pow(10.0, row->last.value_or(0) / 10) / 1000);
        out.gauge("interval_mean_dbm", "Mean power of the last interval in dBm.", row->mean);
        out.gauge("interval_min_dbm", "Lowest reading of the last interval in dBm.", row->minimum);
        out.gauge("interval_max_dbm", "Highest reading of the last interval in dBm.", row->maximum);
    }
    out.gauge("frequency_hertz", "Frequency that the instrument corrects for.",
              row ? row->frequencyHz : std::nullopt);
    out.gauge("last_reading_timestamp_seconds", "When the last valid reading came.",
              lastValid ? std::optional(double(*lastValid) / 1000) : std::nullopt);
    out.metric("readings_total", "counter", "Readings by their result.")
        .value(QString::number(valid), "result=\"valid\"")
        .value(QString::number(invalid), "result=\"invalid\"");
    out.metric("reconnects_total", "counter", "How often the link was opened again.")
        .value(QString::number(reconnects));
    const Limits &limits = alarm.limits();
    if (limits.areGiven())
        out.metric("limit_exceeded", "gauge", "Whether the mean is beyond the limit.");
    if (limits.high)
        out.value(QString::number(alarm.isOn(LimitAlarm::High)), "limit=\"high\"");
    if (limits.low)
        out.value(QString::number(alarm.isOn(LimitAlarm::Low)), "limit=\"low\"");
    out.metric("build_info", "gauge", "The version of the recorder.")
        .value(QStringLiteral("1"), "version=\"" MZ_VERSION "\"");
    return out.text();
}
