#include "stage.h"

#include "testfiles.h"

#include <QDirIterator>
#include <QTemporaryFile>

#include <cstdlib>

#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr unsigned longestTime = 60; // s, of which an honest writer needs less than one

[[noreturn]] void act(const Writer &writer, int round, const QString &folder,
                      const SystemCalls::Plan &plan, int report)
{
    ::alarm(longestTime);
    ::dup2(report, STDERR_FILENO);
    if (!QDir::setCurrent(folder))
        ::_exit(EXIT_FAILURE);
    bool hasBegun = false;
    writer.act(round, [&] {
        hasBegun = true;
        SystemCalls::watch({plan.number, plan.failure, writer.isOnShare}, report);
    });
    // No destructor of the parent's objects may run here, too.
    ::_exit(hasBegun ? EXIT_SUCCESS : EXIT_FAILURE);
}

/// Takes the lines of SystemCalls out of \a report.
void readReport(const QByteArray &report, Performance *performance)
{
    const QList<QByteArray> lines = report.split('\n');
    for (const QByteArray &line : lines) {
        const QList<QByteArray> words = line.split(' ');
        const bool isCall = words.size() == 4 && words.at(0) == "call";
        if (isCall)
            performance->calls.append(Call(words.at(3).toInt()));
        else if (words.size() == 4 && words.at(0) == "failed")
            performance->failed.append(Call(words.at(3).toInt()));
        else
            performance->said += line + '\n';
    }
}

} // namespace

Stage::Stage(QString folder)
    : m_folder(std::move(folder))
{}

Performance Stage::perform(const Writer &writer, int round, const Files &before,
                           const SystemCalls::Plan &plan) const
{
    clear(before);
    QTemporaryFile report;
    if (!report.open())
        qFatal("no report: %s", qPrintable(report.errorString()));
    const pid_t child = ::fork();
    if (child == 0)
        act(writer, round, m_folder, plan, report.handle());

    Performance performance;
    if (child < 0 || ::waitpid(child, &performance.status, 0) != child)
        qFatal("no process for %s", writer.name.constData());
    report.seek(0);
    readReport(report.readAll(), &performance);
    performance.files = content();
    return performance;
}

void Stage::clear(const Files &before) const
{
    QDir(m_folder).removeRecursively();
    QDir().mkpath(m_folder);
    for (auto file = before.begin(); file != before.end(); ++file)
        write(QDir(m_folder).filePath(file.key()), *file);
}

Files Stage::content() const
{
    Files files;
    QDirIterator found(m_folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (found.hasNext()) {
        const QString path = found.next();
        files.insert(QDir(m_folder).relativeFilePath(path), contentOf(path));
    }
    return files;
}
