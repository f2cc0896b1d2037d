#pragma once

#include "recorder/outbox.h"

#include <QDate>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

/// The files of one instrument in a folder, one a day.
class DayFiles
{
public:
    /// \a name is what the files are called after; what has no place in the name of a file becomes
    /// "_".
    DayFiles(const QString &folder, const QString &name);
    ~DayFiles();
    Q_DISABLE_COPY(DayFiles)

    /// Makes the folder and keeps every other program off these files for as long as this lives;
    /// why that, or writing the files called \a names, is not possible, or nothing.
    std::optional<QString> open(const QStringList &names = {});

    /// The name of the file of \a day; \a ending with its point.
    QString fileName(const QDate &day, const QString &ending) const;
    /// Appends to one of them, in one piece and to the disk's own cache. A line that has no end, of
    /// a program that was killed, is ended before. A folder that went away is not made again:
    /// most likely it is a medium that comes back.
    std::optional<QString> append(const Outbox::Line &lines);

private:
    std::optional<QString> lock();

    const QString m_folder;
    const QString m_name;
    QString m_lastFile;
    std::unique_ptr<class FileLock> m_lock;
};
