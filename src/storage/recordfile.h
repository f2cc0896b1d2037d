#pragma once

#include "storage/filewriting.h"

#include <QString>

class QDate;
class QDateTime;

/// The record of the readings: one CSV file a day, in UTF-8 with "\n" ends.
namespace RecordFile {

/// The file for \a day in \a directory.
QString path(const QString &directory, const QDate &day);

/// The first line of every file.
QString header();

/// The row of one reading. \a frequency in the unit that the console shows, which the header does
/// not tell; \a offset in dB; \a power the text of the power in dBm, \a converted the instrument's
/// own text of it.
QString row(const QDateTime &when, double frequency, double offset, const QString &power,
            const QString &converted);

/// Appends \a row to the file at \a path, behind the header when the file is empty. What goes wrong
/// costs this row and is told.
FileOutcome append(const QString &path, const QString &row);

} // namespace RecordFile
