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
