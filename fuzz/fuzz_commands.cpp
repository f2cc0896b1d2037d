/// The command lines of the three programs: arguments parted by line feeds.

#include "console/startoptions.h"
#include "patterns/commandline.h"
#include "simulator/options.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QStringList>

#include <cstddef>
#include <cstdint>

/// The usage text asks the application object for the program's name.
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static const QCoreApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray text(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const QStringList arguments =
        QStringList(QStringLiteral("program")) + QString::fromUtf8(text).split(QLatin1Char('\n'));
    StartOptions::read(arguments);
    readCommandLine(arguments);
    sim::parseCommandLine(arguments);
    return 0;
}
