#include "judgement.h"
#include "testmain.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <cerrno>
#include <cstdio>

/// Lets each system call fail with which our programs write their files, one after another; to be
/// run by scripts/campaign.sh.
///   mz_filecampaign list                  the writers
///   mz_filecampaign run NAME              all failures of one
///   mz_filecampaign run "NAME in short"   a full disk, and where no window makes it slow all that
///   happens once

namespace {

constexpr qint64 someDate = 1772600766; // 2026-03-04 05:06:06 UTC

struct Figures
{
    int calls = 0;
    int runs = 0;
    int wrong = 0;
};

void print(const QByteArray &what, const QStringList &faults)
{
    QTextStream out(stdout);
    for (const QString &fault : faults)
        out << "WRONG: " << what << ": " << fault << '\n';
}

/// What is tried with \a writer; in short only a full disk lasts, and all that have a window meet a
/// full disk alone, since a process with a window takes twenty times as long as one without.
QVector<Failure> failuresFor(const Writer &writer, bool isShort)
{
    QVector<Failure> failures = allFailures();
    if (isShort && writer.isSlow)
        failures.resize(1);
    else if (isShort)
        failures.erase(std::remove_if(failures.begin(), failures.end(),
                                      [](const Failure &failure) {
                                          return failure.lasting && failure.error != ENOSPC;
                                      }),
                       failures.end());
    return failures;
}

/// The performance that follows on \a files; the same files are followed by the same.
Performance following(const Stage &stage, const Writer &writer, const Files &files,
                      QVector<QPair<Files, Performance>> *known)
{
    for (const auto &[before, performance] : qAsConst(*known)) {
        if (before == files)
            return performance;
    }
    known->append({files, stage.perform(writer, 2, files)});
    return known->last().second;
}

Figures tryEverything(const Stage &stage, const Writer &writer, const QVector<Failure> &failures)
{
    const Judgement judgement(stage, writer);
    print("undisturbed", judgement.faults());
    Figures figures{judgement.calls().size(), 0, judgement.faults().isEmpty() ? 0 : 1};
    QVector<QPair<Files, Performance>> known;
    for (int number = 0; number < judgement.calls().size(); ++number) {
        for (const Failure &failure : failures) {
            if (!failure.concerns(judgement.calls().at(number)))
                continue;
            const Performance performance =
                stage.perform(writer, 1, judgement.before(), {number, failure});
            const Performance next = following(stage, writer, performance.files, &known);
            const QStringList faults = judgement.faultsOf(performance, failure) +
                                       judgement.faultsOfNext(next, performance);
            print("call " + QByteArray::number(number) + ' ' + failure.name, faults);
            ++figures.runs;
            figures.wrong += faults.isEmpty() ? 0 : 1;
        }
    }
    return figures;
}

int list()
{
    QTextStream out(stdout);
    for (const Writer &writer : allWriters())
        out << writer.name << '\n';
    return EXIT_SUCCESS;
}

int run(const Stage &stage, QByteArray job)
{
    const bool isShort = job.endsWith(" in short");
    if (isShort)
        job.chop(int(qstrlen(" in short")));
    const QVector<Writer> writers = allWriters();
    const auto writer = std::find_if(writers.begin(), writers.end(),
                                     [&job](const Writer &one) { return one.name == job; });
    if (writer == writers.end())
        return 2;
    const Figures figures = tryEverything(stage, *writer, failuresFor(*writer, isShort));
    QTextStream(stdout) << "figure\t" << job << "\tsystem calls\t" << figures.calls << '\n'
                        << "figure\t" << job << "\tfailures tried\t" << figures.runs << '\n'
                        << "figure\t" << job << "\twrong outcomes\t" << figures.wrong << '\n';
    return figures.wrong == 0 && figures.runs > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argc, char **argv)
{
    TestMain::pinEnvironment();
    // In memory where there is such a folder: each file is synchronised with the disk.
    const QString memory = QStringLiteral("/dev/shm");
    const QTemporaryDir folder((QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) +
                               QStringLiteral("/mz_filecampaign-XXXXXX"));
    // Neither the settings of whoever runs this nor the session's services are part of the play.
    qputenv("HOME", QFile::encodeName(folder.path()));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder.path()));
    qputenv("TMPDIR", QFile::encodeName(folder.path()));
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    const QString scene = folder.filePath(QStringLiteral("scene"));
    SystemCalls::setStage(scene, someDate);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QApplication app(argc, argv);
    const QStringList words = QCoreApplication::arguments().mid(1);

    return words.value(0) == QLatin1String("run") ? run(Stage(scene), words.value(1).toUtf8())
                                                  : list();
}
