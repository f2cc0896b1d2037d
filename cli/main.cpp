#include "cli/commandline.h"
#include "process/stopsignals.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QTextCodec>

int main(int argc, char **argv)
{
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
    QObject::connect(line.command.get(), &Command::finished, &app, [&status](int how) {
        status = how;
        // Not before the loop runs, which a command may be quicker than.
        QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    });
    onStopSignals([&line] { line.command->stop(); });
    line.command->start();
    QCoreApplication::exec();
    return status;
}
