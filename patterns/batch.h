#pragma once

#include "patterns/commandline.h"
#include "patterns/curvefilereader.h"

#include <QTextStream>

class QIODevice;

/// Work on many files without a window, for scripts. Everything but results is told on a stream of
/// messages, a line each.
namespace Batch {

enum ExitStatus {
    Done = 0,
    Failed = 1, ///< a file could not be read or written; the others are done
    WrongUsage = 2,
};

/// The curves of some files, their names made different: the second of a name is "NAME (2)".
struct Curves
{
    QVector<ReadCurve> curves;
    bool complete = true; ///< every file was read
};

/// Reads \a files; what cannot be read, and what deserves a remark, goes to \a messages.
Curves read(const QStringList &files, QTextStream &messages);

/// Puts \a content into the file at \a path, whole or not at all; false, and a message, on failure.
bool write(const QString &path, const QByteArray &content, QTextStream &messages);

/// Does \a task, but for the report, with \a files and returns the exit status.
ExitStatus run(const BatchTask &task, const QStringList &files, QIODevice &results,
               QTextStream &messages);

} // namespace Batch
