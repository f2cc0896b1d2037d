#include "faultrun.h"

#include "simulatorprocess.h"
#include "testfiles.h"

#include <QProcess>
#include <QTemporaryDir>

QStringList faults()
{
    QStringList all;
    const char *const kinds[] = {"no-reply",          "late:300",    "late:5500",   "pieces",
                                 "two-lines",         "no-newline",  "garbage",     "refuse",
                                 "numeric-frequency", "drop-before", "drop-inside", "drop-after"};
    for (const char *kind : kinds) {
        for (const char *when : {"every=3", "p=0.2", "after=10,times=2"})
            all << QLatin1String(kind) + QLatin1Char(',') + QLatin1String(when);
    }
    return all;
}

namespace {

/// Has the recorder write \a rows rows of the instrument that \a simulator is.
bool record(SimulatorProcess &simulator, const QString &folder, int rows)
{
    QProcess recorder;
    recorder.start(
        QStringLiteral(MZ_BIN_DIR "/mz6218-cli"),
        words("record --every 200ms --poll 20ms --lan") +
            QStringList{QStringLiteral("%1:%2").arg(simulator.address()).arg(simulator.port()),
                        QStringLiteral("--out"), folder, QStringLiteral("--count"),
                        QString::number(rows)});
    return recorder.waitForFinished(60000) && recorder.exitCode() == 0;
}

} // namespace

Verdict runWithFault(const QString &fault)
{
    constexpr int rows = 40;
    Verdict verdict;
    SimulatorProcess simulator(qPrintable(QStringLiteral("--noise 0.05 --fault ") + fault));
    const QTemporaryDir folder;
    verdict.expect(record(simulator, folder.path(), rows), QStringLiteral("did not end well"));
    QStringList lines;
    const QDir files(folder.path());
    for (const QString &name :
         files.entryList({QStringLiteral("*.csv")}, QDir::Files, QDir::Name)) {
        lines += QString::fromUtf8(contentOf(files.filePath(name)))
                     .split(QLatin1Char('\n'), Qt::SkipEmptyParts)
                     .mid(1);
    }
    judgeRows(lines, verdict);
    verdict.expect(verdict.rows == rows, QStringLiteral("%1 rows").arg(verdict.rows));
    return verdict;
}
