#include "campaigns/memory.h"
#include "watch/limitwatch.h"
#include "watch/readingstatistics.h"
#include "watch/trafficmodel.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>

namespace {

constexpr qint64 readingsPerHour = 10 * 3600;
constexpr qint64 memoryBound = 2048; // KiB above what it is once the chart's hour is full
constexpr double high = -17.5;       // dBm

int begun = 0;
int ended = 0;

void countAlarms(QtMsgType, const QMessageLogContext &, const QString &text)
{
    begun += text.startsWith(QLatin1String("Alarm begins")) ? 1 : 0;
    ended += text.startsWith(QLatin1String("Alarm ends")) ? 1 : 0;
}

/// The same figures by other means: plain sums in more digits, an alarm by its definition.
class Independent
{
public:
    void add(double level)
    {
        const long double power = std::pow(10.0L, level / 10.0L);
        ++m_count;
        m_sum += power;
        m_squares += power * power;
        m_lowest = std::min(m_lowest, level);
        m_highest = std::max(m_highest, level);
        // Levels are whole hundredths, so that nothing lies on the edge of a comparison.
        if (!m_isAlarm && level > high + 0.001) {
            m_isAlarm = true;
            ++alarms;
        } else if (m_isAlarm && level < high - 0.2 + 0.001) {
            m_isAlarm = false;
            ++ends;
        }
    }

    double mean() const { return double(10.0L * std::log10(m_sum / m_count)); }
    double sigma() const
    {
        const long double mean = m_sum / m_count;
        const long double variance = (m_squares - m_count * mean * mean) / (m_count - 1);
        return double(4.343L * std::sqrt(variance) / mean);
    }
    double lowest() const { return m_lowest; }
    double highest() const { return m_highest; }
    qint64 count() const { return qint64(m_count); }

    int alarms = 0;
    int ends = 0;

private:
    long double m_count = 0.0L;
    long double m_sum = 0.0L;
    long double m_squares = 0.0L;
    double m_lowest = std::numeric_limits<double>::infinity();
    double m_highest = -std::numeric_limits<double>::infinity();
    bool m_isAlarm = false;
};

int failures = 0;

void compare(const char *what, double expected, double found, double tolerance)
{
    const bool isEqual = std::abs(expected - found) <= tolerance;
    std::printf("figure\t%s\tfound\t%.6f\n", what, found);
    if (!isEqual)
        std::printf("WRONG: %s: expected %.9f\n", what, expected);
    failures += isEqual ? 0 : 1;
}

} // namespace

/// Watches for so many hours of readings; to be run by scripts/campaign.sh.
///   mz_watchrun HOURS SEED
int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    const qint64 readings = readingsPerHour * words.value(1).toInt();
    std::mt19937 random(words.value(2).toUInt());
    std::normal_distribution<double> noise(0.0, 0.05);

    ReadingStatistics statistics;
    LimitWatch watch;
    TrafficModel traffic;
    Limits limits;
    limits.high = high;
    watch.setLimits(limits);
    qInstallMessageHandler(countAlarms);

    Independent expected;
    qint64 missing = 0;
    qint64 firstMemory = 0;
    const QDateTime start(QDate(2026, 11, 16), QTime(0, 0), Qt::UTC);
    for (qint64 i = 0; i < readings; ++i) {
        const double drift = 2.5 * std::sin(double(i) / 20000.0);
        const double level = std::round((-20.0 + drift + noise(random)) * 100.0) / 100.0;
        const bool isMissing = i % 9973 == 0;
        const Reading reading = isMissing ? Reading::missing() : Reading::of(level, {});
        const double position = double(i % 36000) / 600.0; // minutes; the chart runs for an hour
        traffic.addSent(QStringLiteral("GET?\n"));
        traffic.addReceived(reading.text, {});
        statistics.add(reading, false, start.addMSecs(100 * i), position);
        watch.take(reading);
        if (isMissing)
            ++missing;
        else
            expected.add(level);
        if (i == 72000)
            firstMemory = residentMemory();
    }
    const qint64 growth = residentMemory() - firstMemory;
    qInstallMessageHandler(nullptr);

    const ReadingStatistics::Figures &found = statistics.sinceRestart();
    compare("readings", double(expected.count()), double(found.power.count()), 0.0);
    compare("missed", double(missing), double(found.missed), 0.0);
    compare("mean, dBm", expected.mean(), *found.power.mean(), 1e-9);
    compare("minimum, dBm", expected.lowest(), *found.power.minimum(), 0.0);
    compare("maximum, dBm", expected.highest(), *found.power.maximum(), 0.0);
    compare("sigma, dB", expected.sigma(), *found.power.sigma(), 1e-7);
    compare("alarms begun", expected.alarms, begun, 0.0);
    compare("alarms ended", expected.ends, ended, 0.0);
    std::printf("figure\tmemory, KiB more than after two hours\tfound\t%lld\n",
                static_cast<long long>(growth));
    if (isMemoryTelling && growth > memoryBound) {
        std::printf("WRONG: memory: more than %lld KiB\n", static_cast<long long>(memoryBound));
        ++failures;
    }
    return failures == 0 && begun > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
