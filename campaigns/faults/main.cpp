#include "campaign.h"
#include "report.h"
#include "scenarios.h"
#include "testmain.h"
#include "trial.h"

#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QThread>

#include <algorithm>

namespace {

class Options
{
public:
    Options()
    {
        m_parser.setApplicationDescription(
            QStringLiteral("Tries the console against a simulated instrument with every kind of "
                           "fault everywhere."));
        m_parser.addHelpOption();
        m_parser.addOptions(
            {m_random, m_seed, m_only, m_jobs, m_slice, m_list, m_scenario, m_verbose});
    }

    void read(const QCoreApplication &app) { m_parser.process(app); }
    bool slice() const { return m_parser.isSet(m_slice); }
    bool list() const { return m_parser.isSet(m_list); }
    bool verbose() const { return m_parser.isSet(m_verbose); }
    QString scenario() const { return m_parser.value(m_scenario); }
    int jobs() const { return std::max(1, m_parser.value(m_jobs).toInt()); }

    QVector<Scenario> scenarios() const
    {
        if (slice())
            return Scenarios::slice();
        const QString only = m_parser.value(m_only);
        const Scenario one = Scenarios::named(only);
        if (!one.deeds.isEmpty())
            return {one};
        QVector<Scenario> chosen =
            Scenarios::systematic() +
            Scenarios::random(m_parser.value(m_random).toInt(), m_parser.value(m_seed).toUInt());
        const auto isOther = [&only](const Scenario &scenario) {
            return !scenario.name.contains(only);
        };
        chosen.erase(std::remove_if(chosen.begin(), chosen.end(), isOther), chosen.end());
        return chosen;
    }

private:
    static QCommandLineOption option(const char *name, const char *text, const char *value = "",
                                     const QString &fallback = QString())
    {
        return {QString::fromLatin1(name), QString::fromLatin1(text), QString::fromLatin1(value),
                fallback};
    }

    QCommandLineParser m_parser;
    QCommandLineOption m_random =
        option("scenarios", "Random combinations beside the systematic ones (200).", "N",
               QStringLiteral("200"));
    QCommandLineOption m_seed =
        option("seed", "The same seed gives the same combinations (1).", "S", QStringLiteral("1"));
    QCommandLineOption m_only =
        option("only", "Only the scenarios whose name holds this text.", "TEXT");
    QCommandLineOption m_jobs = option("jobs", "How many at a time (two a core).", "N",
                                       QString::number(2 * QThread::idealThreadCount()));
    QCommandLineOption m_slice = option("slice", "A few, with every kind of fault among them.");
    QCommandLineOption m_list = option("list", "Only lists the names.");
    QCommandLineOption m_scenario = option(
        "scenario", "Carries out this one in this process and prints the result as JSON.", "NAME");
    QCommandLineOption m_verbose =
        option("verbose", "With --scenario: shows what the console logs.");
};

void print(const QString &text)
{
    QTextStream(stdout) << text;
}

void forget(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtFatalMsg)
        QTextStream(stderr) << message << '\n';
}

int runScenario(const Options &options)
{
    if (!options.verbose())
        qInstallMessageHandler(forget);
    const Scenario scenario = Scenarios::named(options.scenario());
    if (scenario.deeds.isEmpty())
        return 2;
    ConsoleTester::cleanFolder();
    Trial trial(scenario);
    const Result result = trial.run();
    print(QString::fromUtf8(result.toLine()));
    return 0;
}

int runCampaign(const Options &options)
{
    const QVector<Scenario> scenarios = options.scenarios();
    if (options.list()) {
        for (const Scenario &scenario : scenarios)
            print(scenario.name + QLatin1Char('\n'));
        return 0;
    }
    const auto tell = [](const Result &result) {
        for (const Result::Failure &failure : result.failures)
            print(
                QStringLiteral("FAIL %1: %2: %3\n").arg(result.name, failure.check, failure.text));
    };
    QElapsedTimer time;
    time.start();
    const QVector<Result> results = Campaign(scenarios, options.jobs(), tell).run();
    print(
        reportOf(scenarios, results) +
        QStringLiteral("\n%1 scenarios in %2 s\n").arg(results.size()).arg(time.elapsed() / 1000));
    const bool failed = std::any_of(results.begin(), results.end(), [](const Result &result) {
        return !result.failures.isEmpty();
    });
    return failed || results.isEmpty() ? 1 : 0;
}

} // namespace

int main(int argc, char **argv)
{
    TestMain::pinEnvironment();
    const QApplication app(argc, argv);
    Options options;
    options.read(app);
    return options.scenario().isEmpty() ? runCampaign(options) : runScenario(options);
}
