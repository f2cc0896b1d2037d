#include "recorder/standardoutput.h"

#include <QtGlobal>

#include <cerrno>
#include <cstdio>

#ifdef Q_OS_UNIX
#include <csignal>
#endif

StandardOutput::StandardOutput()
{
    // What a full disk did not take must not wait in a buffer and come twice.
    std::setvbuf(stdout, nullptr, _IONBF, 0);
#ifdef Q_OS_UNIX
    std::signal(SIGPIPE, SIG_IGN);
#endif
}

std::optional<QString> StandardOutput::write(const QByteArray &text)
{
    if (m_isClosed)
        return QStringLiteral("standard output is closed");
    errno = 0;
    const int begun = m_begun < text.size() ? m_begun : 0;
    m_begun =
        begun + int(std::fwrite(text.constData() + begun, 1, size_t(text.size() - begun), stdout));
    if (m_begun == text.size()) {
        m_begun = 0;
        return std::nullopt;
    }
#ifdef Q_OS_WIN
    m_isClosed = errno == EPIPE || errno == EINVAL;
#else
    m_isClosed = errno == EPIPE;
#endif
    return QStringLiteral("standard output: %1").arg(qt_error_string(errno));
}

void printMessage(const QString &text)
{
    const QByteArray line = "mz6218-cli: " + text.toUtf8() + '\n';
    std::fwrite(line.constData(), 1, size_t(line.size()), stderr);
    std::fflush(stderr);
}
