#include "2d/curvefile.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

template<typename File>
FileOutcome write(File &file, const QByteArray &bytes, bool (*finish)(File &))
{
    if (!file.open(QIODevice::WriteOnly))
        return {FileOutcome::Kind::OpenFailed, file.errorString()};
    if (file.write(bytes) != bytes.size() || !finish(file))
        return {FileOutcome::Kind::WriteFailed, file.errorString()};
    return {};
}

/// A full disk that still takes a part of the bytes is no error to QSaveFile, which would commit
/// the part; flushing tells. The second time tells the reason as well.
bool commitWhole(QSaveFile &file)
{
    return (file.flush() || file.flush()) && file.commit();
}

} // namespace

FileOutcome replaceFile(const QString &path, const QByteArray &bytes)
{
    const QFileInfo former(path);
    if (former.exists() && !former.isFile() && !former.isDir()) {
        // A device or a pipe has no content to protect, and must not be replaced by a file.
        QFile device(path);
        return write<QFile>(device, bytes, [](QFile &file) { return file.flush(); });
    }
    QSaveFile target(path);
    return write<QSaveFile>(target, bytes, commitWhole);
}
