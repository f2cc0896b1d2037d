#include "scenarios.h"
#include "testmain.h"
#include "trial.h"

/// Tries the console against a simulated instrument with every kind of fault everywhere; to be run
/// by scripts/campaign.sh.
///   mz_faultcampaign list slice        the names of a few scenarios with every kind of fault among
///   them mz_faultcampaign list N SEED       those of all, with N random combinations
///   mz_faultcampaign run NAME [verbose]   carries out one; with what the console logs

namespace {

void forget(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtFatalMsg)
        QTextStream(stderr) << message << '\n';
}

int list(const QStringList &words)
{
    const bool isSlice = words.first() == QLatin1String("slice");
    const QVector<Scenario> scenarios =
        isSlice ? Scenarios::slice()
                : Scenarios::systematic() +
                      Scenarios::random(words.first().toInt(), words.value(1).toUInt());
    QTextStream out(stdout);
    for (const Scenario &scenario : scenarios)
        out << scenario.name << '\n';
    return EXIT_SUCCESS;
}

int run(const QStringList &words)
{
    if (words.value(1) != QLatin1String("verbose"))
        qInstallMessageHandler(forget);
    const Scenario scenario = Scenarios::named(words.first());
    if (scenario.deeds.isEmpty())
        return 2;
    ConsoleTester::cleanFolder();
    const Result result = Trial(scenario).run();
    result.print(scenario.group);
    return result.wrong.isEmpty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argc, char **argv)
{
    TestMain::pinEnvironment();
    const QApplication app(argc, argv);
    const QStringList words = QCoreApplication::arguments().mid(1);
    if (words.size() < 2)
        return 2;
    return words.first() == QLatin1String("list") ? list(words.mid(1)) : run(words.mid(1));
}
