#pragma once

#include <QString>
#include <QtGlobal>

class QDate;
class QDateTime;

/// The message log: every message of the program goes to standard error and into
/// "Log/<day>/<hour>.txt" below the current directory.
namespace MessageLog {

/// The text of a message as it stands in the log: the level's word, the message and the time stamp.
/// A \a type outside the five known ones leaves the time stamp alone.
QString line(QtMsgType type, const QString &message, const QDateTime &when);

/// The folder that holds the log of \a day, relative to the current directory.
QString folder(const QDate &day);

/// The file for a message of \a when, one for each hour, relative to the current directory.
QString file(const QDateTime &when);

/// Removes the folders of the days before the last \a keep, of which \a today is one; 0 keeps all.
/// Of each only files of the log go, so that a folder with anything else in it stays.
void removeOld(const QDate &today, int keep);

/// The handler for qInstallMessageHandler. A log that cannot be written never stands in the
/// program's way: without its folder the message is dropped, without its file it only reaches
/// standard error.
void handler(QtMsgType type, const QMessageLogContext &context, const QString &message);

} // namespace MessageLog
