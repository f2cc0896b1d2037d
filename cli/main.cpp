#include "cli/commandline.h"
#include "process/stopsignals.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QTextCodec>

#include <cstdio>
#include <cstdlib>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

/// Keeps the numbers of standard streams that the caller closed from links and files, into which
/// results and messages would go otherwise.
void holdClosedStreams()
{
#ifdef Q_OS_UNIX
    int file = -1;
    do {
        file = ::open("/dev/null", O_RDONLY | O_CLOEXEC); // writing fails all the same
    } while (file >= 0 && file <= STDERR_FILENO);
    if (file >= 0)
        ::close(file);
#endif
}

} // namespace

int main(int argc, char **argv)
{
    holdClosedStreams();
#ifndef Q_OS_WIN
    // Services are often started without a language, and names of files are UTF-8 even so.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
#endif
    QCoreApplication app(argc, argv);
    // The link tells each line that it sends and reads.
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false\n*.info=false"));

    CommandLine::Result line = CommandLine::read(QCoreApplication::arguments());
    if (!line.command)
        return line.status;
    int status = 0;
    QObject::connect(line.command.get(), &Command::finished, &app, [&app, &status](int how) {
        status = how;
        // Not before the loop runs, which a command may be quicker than.
        QMetaObject::invokeMethod(&app, &QCoreApplication::quit, Qt::QueuedConnection);
    });
    onStopSignals([&line] { line.command->stop(); });
    line.command->start();
    QCoreApplication::exec();
    line.command.reset();
    std::fflush(nullptr);
    // A usual end waits for the name server that the address of an instrument is asked of.
    std::_Exit(status);
}
