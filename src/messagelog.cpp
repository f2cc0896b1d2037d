#include "messagelog.h"

#include "storage/filewriting.h"

#include <QDateTime>
#include <QDir>
#include <QLocale>

#include <cstdio>

namespace {

QString worded(QtMsgType type, const QString &message)
{
    switch (type) {
    case QtDebugMsg:
        return QStringLiteral("Debug: ") + message;
    case QtInfoMsg:
        return QStringLiteral("Info: ") + message;
    case QtWarningMsg:
        return QStringLiteral("Warning: ") + message;
    case QtCriticalMsg:
        return QStringLiteral("Critical: ") + message;
    case QtFatalMsg:
        return QStringLiteral("Fatal: ") + message;
    }
    return {};
}

/// Not by the system's locale, whose digits may be others than those that programs sort by.
template<typename Time>
QString inDigits(const Time &time, const char *format)
{
    return QLocale::c().toString(time, QLatin1String(format));
}

} // namespace

namespace MessageLog {

QString line(QtMsgType type, const QString &message, const QDateTime &when)
{
    return worded(type, message) + QLatin1Char('(') + inDigits(when, "yyyy-MM-dd hh:mm:ss zzz") +
           QLatin1Char(')');
}

QString folder(const QDate &day)
{
    return QStringLiteral("Log/") + inDigits(day, "yyyy-MM-dd");
}

QString file(const QDateTime &when)
{
    return folder(when.date()) + QLatin1Char('/') + inDigits(when, "hh") + QStringLiteral(".txt");
}

void removeOld(const QDate &today, int keep)
{
    if (keep <= 0)
        return;
    const QDir log(QStringLiteral("Log"));
    const auto days = log.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks);
    for (const QFileInfo &each : days) {
        const QDate day = QDate::fromString(each.fileName(), QStringLiteral("yyyy-MM-dd"));
        if (!day.isValid() || day.daysTo(today) < keep)
            continue;
        QDir folder(each.filePath());
        const QStringList files = folder.entryList({QStringLiteral("??.txt")}, QDir::Files);
        for (const QString &name : files)
            folder.remove(name);
        log.rmdir(each.fileName());
    }
}

void handler(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const QDateTime now = QDateTime::currentDateTime();
    const QString today = folder(now.date());
    if (!QDir(today).exists() && !QDir().mkpath(today))
        return;

    const QString text = line(type, message, now);
    // Release builds carry no function names.
    const char *function = context.function != nullptr ? context.function : "";
    std::fprintf(stderr, "%s,%s(%d)\n", text.toLocal8Bit().constData(), function, context.line);
    std::fflush(stderr);

    appendLine(file(now), (text + QStringLiteral("\r\n")).toUtf8(), {});
}

} // namespace MessageLog
