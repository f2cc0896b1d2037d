#include "campaign.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QTimer>

#include <unistd.h>

namespace {

constexpr int longestScenario = 180000; // ms

Result resultOf(QProcess &process, const QString &name, bool late)
{
    Result result = Result::fromLine(process.readAllStandardOutput());
    const bool isWhole = result.name == name;
    result.name = name;
    const bool hasEnded = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    if (late)
        result.add("hang", {QStringLiteral("not done after %1 s").arg(longestScenario / 1000)});
    else if (!isWhole || !hasEnded)
        result.add("crash", {QString::fromLocal8Bit(process.readAllStandardError()).right(3000)});
    return result;
}

} // namespace

Campaign::Campaign(const QVector<Scenario> &scenarios, int jobs,
                   std::function<void(const Result &)> told)
    : m_scenarios(scenarios)
    , m_results(scenarios.size())
    , m_told(std::move(told))
    // On the file system of the program, for links to it.
    , m_folder(QCoreApplication::applicationDirPath() + QStringLiteral("/jobs-XXXXXX"))
    , m_jobs(jobs)
{}

QVector<Result> Campaign::run()
{
    for (int job = 0; job < m_jobs; ++job)
        startNext(job);
    while (m_running > 0)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return m_results;
}

QString Campaign::programOf(int job)
{
    const QString folder = m_folder.filePath(QString::number(job));
    const QString program = folder + QStringLiteral("/console");
    if (!QFile::exists(program)) {
        QDir().mkpath(folder);
        // A symbolic link would lead back to the program's own folder.
        if (::link(QFile::encodeName(QCoreApplication::applicationFilePath()).constData(),
                   QFile::encodeName(program).constData()) != 0)
            qFatal("cannot link to the program in %s", qPrintable(folder));
    }
    return program;
}

void Campaign::startNext(int job)
{
    if (m_next == m_scenarios.size())
        return;
    const int scenario = m_next++;
    ++m_running;
    auto *process = new QProcess(this);
    auto *limit = new QTimer(process);
    limit->setSingleShot(true);
    connect(limit, &QTimer::timeout, process, &QProcess::kill);
    const auto ended = [this, process, limit, scenario, job] {
        const bool late = !limit->isActive();
        process->deleteLater();
        finish(scenario, resultOf(*process, m_scenarios.at(scenario).name, late), job);
    };
    connect(process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this, ended);
    limit->start(longestScenario);
    process->start(programOf(job), {QStringLiteral("--scenario"), m_scenarios.at(scenario).name});
}

void Campaign::finish(int scenario, const Result &result, int job)
{
    --m_running;
    m_results[scenario] = result;
    m_told(result);
    startNext(job);
}
