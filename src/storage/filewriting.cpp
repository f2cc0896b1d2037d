#include "storage/filewriting.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <unistd.h>
#endif

namespace {

/// The system's words when \a file does not reach the disk, else empty. QSaveFile itself takes no
/// notice, but it is here that some file systems find out that there is no room.
QString syncFailure(const QSaveFile &file)
{
#ifdef Q_OS_UNIX
    int result = 0;
    do {
        result = ::fsync(file.handle());
    } while (result != 0 && errno == EINTR);
    const bool isUnsupported = errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP;
    if (result != 0 && !isUnsupported)
        return qt_error_string(errno);
#else
    Q_UNUSED(file)
#endif
    return {};
}

FileOutcome writeDevice(const QString &path, const QByteArray &bytes)
{
    QFile device(path);
    if (!device.open(QIODevice::WriteOnly))
        return {FileOutcome::Kind::OpenFailed, device.errorString()};
    if (device.write(bytes) != bytes.size() || !device.flush())
        return {FileOutcome::Kind::WriteFailed, device.errorString()};
    return {};
}

/// How a file ends.
enum class End {
    Empty,
    WholeLine,
    TornLine,
    Unknown, ///< it cannot be read
};

End endOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return End::Unknown;
    const qint64 size = file.size();
    char last = '\n';
    if (!file.seek(qMax<qint64>(0, size - 1)) || !file.getChar(&last))
        return size == 0 && file.error() == QFileDevice::NoError ? End::Empty : End::Unknown;
    // A size of 0 with a byte behind it is one that the system could not tell.
    return size == 0 || last == '\n' ? End::WholeLine : End::TornLine;
}

/// Whether all of \a bytes were written. A disk that takes a part of them tells why only when it is
/// asked again.
bool writeAll(QFile &file, const QByteArray &bytes)
{
    qint64 written = 0;
    qint64 piece = 0;
    do {
        piece = file.write(bytes.constData() + written, bytes.size() - written);
        written += qMax<qint64>(0, piece);
    } while (piece > 0 && written < bytes.size());
    return written == bytes.size();
}

QByteArray lineEndOf(const QByteArray &line)
{
    return line.endsWith("\r\n") ? QByteArray("\r\n") : QByteArray("\n");
}

} // namespace

FileOutcome replaceFile(const QString &path, const QByteArray &bytes)
{
    const QFileInfo former(path);
    // A device or a pipe has no content to protect, and must not be replaced by a file.
    if (former.exists() && !former.isFile() && !former.isDir())
        return writeDevice(path, bytes);

    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return {FileOutcome::Kind::OpenFailed, file.errorString()};
    // A full disk that still takes a part of the bytes is no error to QSaveFile, which would commit
    // the part; flushing tells. The second time tells the reason as well.
    if (file.write(bytes) != bytes.size() || !(file.flush() || file.flush()))
        return {FileOutcome::Kind::WriteFailed, file.errorString()};
    const QString failure = syncFailure(file);
    if (!failure.isEmpty())
        return {FileOutcome::Kind::WriteFailed, failure};
    if (!file.commit())
        return {FileOutcome::Kind::WriteFailed, file.errorString()};
    return {};
}

FileOutcome appendLine(const QString &path, const QByteArray &line, const QByteArray &header)
{
    QFile file(path);
    // Unbuffered: what could not be written must not be tried again when the file is closed.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
        return {FileOutcome::Kind::OpenFailed, file.errorString()};
    const qint64 size = file.size();
    const End end = file.isSequential() ? End::Unknown : endOf(path);
    QByteArray bytes = line;
    if (end == End::TornLine)
        bytes.prepend(lineEndOf(line));
    else if (size == 0 && end != End::WholeLine)
        bytes.prepend(header);

    if (!writeAll(file, bytes)) {
        const QString reason = file.errorString();
        if (size > 0 || end == End::Empty)
            file.resize(size);
        return {FileOutcome::Kind::WriteFailed, reason};
    }
    file.close(); // where a disk on another machine tells that it is full
    if (file.error() != QFileDevice::NoError)
        return {FileOutcome::Kind::WriteFailed, file.errorString()};
    return {};
}
