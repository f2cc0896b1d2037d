#pragma once

#include <QString>

#include <optional>

class QByteArray;

/// The five settings of the console that survive a restart, and their file: five lines in UTF-8,
/// always in the same order.
struct ConsoleSettings
{
    QString language;     ///< "en" or "cn"
    QString ipAddress;    ///< of the last LAN connection
    QString recordFolder; ///< as written; whether it exists is the reader's to see
    int interval = 0;     ///< of the records, in minutes; not yet clamped
    int period = 10;      ///< of the time chart, in minutes, 0 to 10

    /// The file of the console: "config.ini" beside the program.
    static QString ownFile();

    /// Reads the text of the file. Nothing is refused: a missing line reads as an empty one, a
    /// language line without "en" is Chinese, an interval that is no number is 0, and a period that
    /// is none from 0 to 10 is 10.
    static ConsoleSettings parse(const QByteArray &text);

    /// The folder that the records go into: the stored one or, where that is none (any more), the
    /// program's own. Not the usual "DataRecord" in it: that is only for a console without
    /// settings.
    QString usedRecordFolder() const;

    /// The text of the file.
    QByteArray toText() const;

    /// Reads the file at \a path; nothing when it cannot be read.
    static std::optional<ConsoleSettings> load(const QString &path);

    /// Replaces the file at \a path; where it cannot be written the old one stays.
    void save(const QString &path) const;
};
