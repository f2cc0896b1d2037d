#include "ptylink.h"

#include <QFile>
#include <QSocketNotifier>
#include <QTimer>

#include <array>
#include <cerrno>
#include <cstdlib>

#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

namespace sim {

namespace {

// How long a client may go unnoticed that opens the port.
constexpr int clientInterval = 50; // ms

// Closing a pseudo terminal takes away what its client has not read yet, so there is time for it.
constexpr int dropDelay = 100; // ms

/// Opens the client's side of the pseudo terminal at \a path, or returns -1.
int openClientSide(const QString &path)
{
    return ::open(QFile::encodeName(path).constData(), O_RDWR | O_NOCTTY | O_CLOEXEC);
}

/// Takes echo, line editing and the translation of line ends off the pseudo terminal at \a path.
bool makeRaw(const QString &path)
{
    const int fd = openClientSide(path);
    if (fd < 0)
        return false;
    termios settings{};
    bool done = tcgetattr(fd, &settings) == 0;
    if (done) {
        cfmakeraw(&settings);
        done = tcsetattr(fd, TCSANOW, &settings) == 0;
    }
    ::close(fd);
    return done;
}

} // namespace

PtyLink::PtyLink(QObject *parent)
    : Link(parent)
    , m_clientTimer(new QTimer(this))
{
    m_clientTimer->setInterval(clientInterval);
    connect(m_clientTimer, &QTimer::timeout, this, &PtyLink::lookForClient);
}

PtyLink::~PtyLink()
{
    close();
}

bool PtyLink::open(QString *error)
{
    m_master = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    bool done = m_master >= 0 && grantpt(m_master) == 0 && unlockpt(m_master) == 0;
    if (done) {
        m_path = QFile::decodeName(ptsname(m_master));
        done = makeRaw(m_path);
    }
    if (!done) {
        *error = tr("Cannot make a pseudo terminal: %1").arg(qt_error_string(errno));
        close();
        return false;
    }
    m_notifier = new QSocketNotifier(m_master, QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &PtyLink::readWaiting);
    waitForClient();
    return true;
}

void PtyLink::send(const QByteArray &bytes)
{
    if (!m_notifier || !m_notifier->isEnabled())
        return;
    const auto size = static_cast<std::size_t>(bytes.size());
    while (::write(m_master, bytes.constData(), size) < 0 && errno == EINTR) {
    }
}

void PtyLink::drop()
{
    if (!m_notifier)
        return;
    m_notifier->setEnabled(false);
    QTimer::singleShot(dropDelay, this, &PtyLink::replace);
}

void PtyLink::replace()
{
    close();
    emit closed();
    QString error;
    if (open(&error))
        emit pathChanged(m_path);
    else
        qCritical("%s", qPrintable(error));
}

void PtyLink::readWaiting()
{
    std::array<char, 4096> buffer{};
    const ssize_t count = ::read(m_master, buffer.data(), buffer.size());
    if (count > 0) {
        emit received(QByteArray(buffer.data(), static_cast<int>(count)));
    } else if (count == 0 || (errno != EAGAIN && errno != EINTR)) {
        // The last client has closed the port: the next one must not meet what this one left
        // unread.
        forgetUnread();
        waitForClient();
        emit closed();
    }
}

void PtyLink::lookForClient()
{
    pollfd state{m_master, POLLIN, 0};
    const bool isOpen = poll(&state, 1, 0) >= 0 && (state.revents & POLLHUP) == 0;
    const bool hasInput = (state.revents & POLLIN) != 0;
    if (!isOpen && !hasInput)
        return;
    m_clientTimer->stop();
    m_notifier->setEnabled(true);
}

void PtyLink::waitForClient()
{
    // While nobody has the port open, it counts as readable all the time.
    m_notifier->setEnabled(false);
    m_clientTimer->start();
}

void PtyLink::forgetUnread() const
{
    const int fd = openClientSide(m_path);
    if (fd < 0)
        return;
    tcflush(fd, TCIFLUSH);
    ::close(fd);
}

void PtyLink::close()
{
    m_clientTimer->stop();
    delete m_notifier;
    m_notifier = nullptr;
    if (m_master >= 0)
        ::close(m_master);
    m_master = -1;
}

} // namespace sim
