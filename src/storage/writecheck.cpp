#include "storage/writecheck.h"

#include "storage/consolesettings.h"
#include "storage/recordfile.h"

#include <QCoreApplication>
#include <QDate>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

namespace {

std::optional<QString> obstacleInFile(const QFileInfo &file)
{
    if (!file.exists())
        return std::nullopt;
    if (!file.isFile())
        return QCoreApplication::translate("WriteCheck", "not an ordinary file");
    QFile existing(file.filePath());
    if (!existing.open(QIODevice::WriteOnly | QIODevice::Append))
        return existing.errorString();
    return std::nullopt;
}

/// The nearest folder above \a file that is there; what stands in its place, if something does.
QFileInfo nearestFolder(const QFileInfo &file)
{
    QFileInfo folder(file.absolutePath());
    // A link that leads nowhere is in the way of a folder, too.
    while (!folder.exists() && !folder.isSymLink() && !folder.isRoot() &&
           folder.absolutePath() != folder.absoluteFilePath())
        folder = QFileInfo(folder.absolutePath());
    return folder;
}

std::optional<QString> obstacleInFolder(const QFileInfo &folder)
{
    if (!folder.isDir())
        return QCoreApplication::translate("WriteCheck", "%1 is no folder").arg(folder.filePath());
    // Rights alone do not tell: the medium may be full or write-protected. The file vanishes by
    // itself.
    QTemporaryFile probe(folder.filePath() + QStringLiteral("/mz6218-XXXXXX"));
    if (!probe.open() || probe.write("x") != 1 || !probe.flush())
        return probe.errorString();
    return std::nullopt;
}

} // namespace

namespace WriteCheck {

std::optional<QString> obstacle(const QString &path)
{
    const QFileInfo file(path);
    // The folder also for a file that is there: the settings are replaced, and records and log go
    // on in the next file.
    if (const auto inFile = obstacleInFile(file))
        return inFile;
    return obstacleInFolder(nearestFolder(file));
}

QVector<Place> places(const QString &recordFolder, const QString &logFile)
{
    const QString settings = ConsoleSettings::ownFile();
    const QString program = QFileInfo(settings).path() + QLatin1Char('/');
    return {
        {Kept::Settings, settings, obstacle(settings)},
        {Kept::Records, recordFolder,
         obstacle(RecordFile::path(recordFolder, QDate::currentDate()))},
        {Kept::Log, program + QStringLiteral("Log"), obstacle(program + logFile)},
    };
}

} // namespace WriteCheck
