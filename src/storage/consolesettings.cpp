#include "storage/consolesettings.h"

#include "storage/filewriting.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

namespace {

constexpr int longestPeriod = 10;
constexpr qint64 sizeLimit = 65536; // what is longer is no settings file

/// Line \a index without the carriage return that an editor may have put behind it.
QString lineAt(const QStringList &lines, int index)
{
    QString line = lines.value(index);
    if (line.endsWith(QLatin1Char('\r')))
        line.chop(1);
    return line;
}

int periodIn(QString line)
{
    if (!line.contains(QStringLiteral("Period")))
        return longestPeriod;
    const int period = line.remove(QStringLiteral("Period:")).toInt();
    return period >= 0 && period <= longestPeriod ? period : longestPeriod;
}

} // namespace

QString ConsoleSettings::ownFile()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/config.ini");
}

QString ConsoleSettings::usedRecordFolder() const
{
    return QFileInfo(recordFolder).isDir() ? recordFolder : QCoreApplication::applicationDirPath();
}

ConsoleSettings ConsoleSettings::parse(const QByteArray &text)
{
    const QStringList lines = QString::fromUtf8(text).split(QLatin1Char('\n'));
    ConsoleSettings settings;
    settings.language = lineAt(lines, 0).contains(QStringLiteral("en")) ? QStringLiteral("en")
                                                                        : QStringLiteral("cn");
    settings.ipAddress = lineAt(lines, 1).remove(QStringLiteral("IP:"));
    settings.recordFolder = lineAt(lines, 2).remove(QStringLiteral("Path:"));
    settings.interval = lineAt(lines, 3).remove(QStringLiteral("Interval:")).toInt();
    settings.period = periodIn(lineAt(lines, 4));
    return settings;
}

QByteArray ConsoleSettings::toText() const
{
    return QStringLiteral("language:%1\nIP:%2\nPath:%3\nInterval:%4\nPeriod:%5\n")
        .arg(language, ipAddress, recordFolder, QString::number(interval), QString::number(period))
        .toUtf8();
}

std::optional<ConsoleSettings> ConsoleSettings::load(const QString &path)
{
    QFile file(path);
    QByteArray text;
    if (file.open(QIODevice::ReadOnly))
        text = file.read(sizeLimit);
    if (file.error() == QFileDevice::NoError)
        return parse(text);
    if (file.exists())
        qWarning().noquote() << "Settings not read from" << path << ":" << file.errorString();
    return std::nullopt;
}

void ConsoleSettings::save(const QString &path) const
{
    // A full disk must not leave an empty file behind, which would read as Chinese and one minute.
    const FileOutcome outcome = replaceFile(path, toText());
    if (outcome.kind != FileOutcome::Kind::Written)
        qWarning().noquote() << "Settings not written to" << path << ":" << outcome.reason;
}
