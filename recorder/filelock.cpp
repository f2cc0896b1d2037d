#include "recorder/filelock.h"

#include <QFile>
#include <QLockFile>

#ifdef Q_OS_UNIX
#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

QString usedByAnother(const QString &path)
{
    return QStringLiteral("another program writes these files (%1)").arg(path);
}

} // namespace

#ifdef Q_OS_UNIX

// A lock of the kernel, since one that is told by the number of its process outlives a restart in a
// container, where all processes have the same number.
FileLock::FileLock(const QString &path)
    : m_path(path)
{
    const QByteArray name = QFile::encodeName(path);
    // Who had the lock before may just have taken its file away.
    do {
        if (m_file >= 0)
            ::close(m_file);
        m_file = ::open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
        if (m_file < 0) {
            m_obstacle = QStringLiteral("%1: %2").arg(path, qt_error_string(errno));
            return;
        }
        if (::flock(m_file, LOCK_EX | LOCK_NB) != 0) {
            m_obstacle = usedByAnother(path);
            return;
        }
    } while (!isHeld());
}

FileLock::~FileLock()
{
    if (m_file < 0)
        return;
    if (!m_obstacle && isHeld())
        ::unlink(QFile::encodeName(m_path).constData());
    ::close(m_file);
}

bool FileLock::isHeld() const
{
    struct stat own = {};
    struct stat found = {};
    return m_file >= 0 && ::fstat(m_file, &own) == 0 &&
           ::stat(QFile::encodeName(m_path).constData(), &found) == 0 &&
           own.st_ino == found.st_ino && own.st_dev == found.st_dev;
}

#else

FileLock::FileLock(const QString &path)
    : m_path(path)
    , m_lockFile(std::make_unique<QLockFile>(path))
{
    m_lockFile->setStaleLockTime(0);
    if (!m_lockFile->tryLock(0))
        m_obstacle = usedByAnother(path);
}

FileLock::~FileLock() = default;

bool FileLock::isHeld() const
{
    return m_lockFile->isLocked();
}

#endif
