#include "messagelog.h"

#include "storage/filewriting.h"

#include <QDateTime>
#include <QDir>

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

} // namespace

namespace MessageLog {

QString line(QtMsgType type, const QString &message, const QDateTime &when)
{
    return worded(type, message) + QLatin1Char('(') +
           when.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss zzz")) + QLatin1Char(')');
}

QString folder(const QDate &day)
{
    return QStringLiteral("Log/") + day.toString(QStringLiteral("yyyy-MM-dd"));
}

QString file(const QDateTime &when)
{
    return folder(when.date()) + QLatin1Char('/') + when.toString(QStringLiteral("hh")) +
           QStringLiteral(".txt");
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
