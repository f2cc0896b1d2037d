#include "judgement.h"
#include "testmain.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextStream>

#include <cstdio>

namespace {

constexpr qint64 someDate = 1772600766; // 2026-03-04 05:06:06 UTC

struct Wishes
{
    QRegularExpression only;
    bool isSlice = false;
};

struct Figures
{
    int calls = 0;
    int runs = 0;
    int wrong = 0;
};

Wishes readOptions(const QCoreApplication &app)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Lets each system call fail with which our programs write their files, one "
                       "after another."));
    parser.addHelpOption();
    const QCommandLineOption only(QStringLiteral("only"),
                                  QStringLiteral("Only the writers whose names match."),
                                  QStringLiteral("PATTERN"));
    const QCommandLineOption slice(QStringLiteral("slice"),
                                   QStringLiteral("With a window, try a full disk alone."));
    parser.addOptions({only, slice});
    parser.process(app);
    return {QRegularExpression(parser.value(only)), parser.isSet(slice)};
}

void print(const Writer &writer, const QByteArray &what, const QStringList &faults)
{
    QTextStream out(stdout);
    for (const QString &fault : faults)
        out << "WRONG: " << writer.name << ": " << what << ": " << fault << '\n';
}

/// What is tried with \a writer; in a slice all that have a window meet a full disk alone, since a
/// process with a window takes twenty times as long as one without.
QVector<Failure> failuresFor(const Writer &writer, bool isSlice)
{
    QVector<Failure> failures = allFailures();
    if (isSlice && writer.isSlow)
        failures.resize(1);
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
    print(writer, "undisturbed", judgement.faults());
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
            print(writer, "call " + QByteArray::number(number) + ' ' + failure.name, faults);
            ++figures.runs;
            figures.wrong += faults.isEmpty() ? 0 : 1;
        }
    }
    return figures;
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
    const Wishes wishes = readOptions(app);

    const Stage stage(scene);
    QTextStream out(stdout);
    QString table = QStringLiteral("| Written | System calls | Failures tried | Wrong outcomes |\n"
                                   "|---|---:|---:|---:|\n");
    Figures sum;
    const QVector<Writer> writers = allWriters();
    for (const Writer &writer : writers) {
        if (!wishes.only.match(QString::fromLatin1(writer.name)).hasMatch())
            continue;
        const Figures figures = tryEverything(stage, writer, failuresFor(writer, wishes.isSlice));
        sum = {sum.calls + figures.calls, sum.runs + figures.runs, sum.wrong + figures.wrong};
        table += QStringLiteral("| %1 | %2 | %3 | %4 |\n")
                     .arg(QString::fromLatin1(writer.name))
                     .arg(figures.calls)
                     .arg(figures.runs)
                     .arg(figures.wrong);
    }
    out << table
        << QStringLiteral("| all | %1 | %2 | %3 |\n").arg(sum.calls).arg(sum.runs).arg(sum.wrong);
    return sum.runs > 0 && sum.wrong == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
