#pragma once

#include <QString>

class QByteArray;

/// What became of a file that was to be written.
struct FileOutcome
{
    enum class Kind {
        Written,
        OpenFailed,  ///< nothing could be opened for writing
        WriteFailed, ///< the bytes did not all reach the disk
    };

    Kind kind = Kind::Written;
    QString reason; ///< the system's words for a failure, else empty
};

/// Puts \a bytes in place of the file at \a path. After a failure the former file is as it was: the
/// bytes go beside it first and take its name only when all of them are on the disk.
FileOutcome replaceFile(const QString &path, const QByteArray &bytes);

/// Adds \a line, which ends in "\n", to the file at \a path, behind \a header when the file is
/// empty. After a failure the file is as it was, as far as the disk allows. Where the last line has
/// no end, of a program that was killed or a disk that went away, the new one still starts at the
/// left, behind an end as its own.
FileOutcome appendLine(const QString &path, const QByteArray &line, const QByteArray &header);
