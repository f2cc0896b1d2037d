#include "instrumentserver.h"
#include "options.h"
#include "process/stopsignals.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>

namespace {

/// Writes at once, since the reader may be a program that waits for it.
void print(std::FILE *file, const QString &text)
{
    std::fputs(qPrintable(text), file);
    std::fflush(file);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("mz6218-sim"));

    const sim::CommandLine line = sim::parseCommandLine(QCoreApplication::arguments());
    if (line.action != sim::CommandLine::Action::Run) {
        const bool failed = line.action == sim::CommandLine::Action::PrintAndFail;
        print(failed ? stderr : stdout, line.text);
        return failed ? EXIT_FAILURE : EXIT_SUCCESS;
    }

    onStopSignals(&QCoreApplication::quit);
    sim::InstrumentServer server(line.options, line.options.trace ? stdout : nullptr);
    QObject::connect(&server, &sim::InstrumentServer::announced, &server,
                     [](const QString &text) { print(stdout, text + QLatin1Char('\n')); });
    QString error;
    if (!server.start(line.options, &error)) {
        print(stderr, error + QLatin1Char('\n'));
        return EXIT_FAILURE;
    }
    return QCoreApplication::exec();
}
