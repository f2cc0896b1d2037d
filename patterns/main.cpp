#include "appstyle.h"
#include "patterns/commandline.h"
#include "patterns/patternwindow.h"
#include "patterns/workbench.h"

#include <QApplication>
#include <QIcon>
#include <QTextStream>

#include <cstdio>

namespace {

int print(const CommandLine &line)
{
    const bool refused = line.wish == CommandLine::Wish::Refuse;
    QTextStream(refused ? stderr : stdout) << line.text << '\n';
    return refused ? 1 : 0;
}

/// Read before there is a window system, so that help and version need none.
CommandLine earlyCommandLine(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    return readCommandLine(QCoreApplication::arguments());
}

} // namespace

int main(int argc, char **argv)
{
    const CommandLine early = earlyCommandLine(argc, argv);
    if (early.wish == CommandLine::Wish::Print)
        return print(early);

    AppStyle::enableHighDpi();
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("mz6218-patterns"));
    QApplication::setApplicationVersion(QStringLiteral(MZ_VERSION));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/image/patterns.ico")));
    QApplication::setFont(AppStyle::applicationFont());
    AppStyle::applyStyleSheet();

    // Qt has taken its own options out of the list by now.
    const CommandLine line = readCommandLine(QApplication::arguments());
    if (line.wish != CommandLine::Wish::Run)
        return print(line);
    Workbench workbench;
    if (!line.language.isEmpty())
        workbench.useLanguage(line.language);
    workbench.openWindow()->openFiles(line.files);
    return QApplication::exec();
}
