#include "frame/appstyle.h"
#include "frame/display.h"
#include "patterns/commandline.h"
#include "patterns/openactions.h"
#include "patterns/patternwindow.h"
#include "patterns/workbench.h"
#include "process/parentconsole.h"
#include "process/stopsignals.h"

#include <QApplication>
#include <QIcon>
#include <QTextStream>

#include <cstdio>

namespace {

int print(const CommandLine &line)
{
    useParentConsole();
    const bool refused = line.wish == CommandLine::Wish::Refuse;
    QTextStream(refused ? stderr : stdout) << line.text << '\n';
    return refused ? 1 : 0;
}

} // namespace

int main(int argc, char **argv)
{
    QStringList arguments;
    {
        // Before there is a window system, so that help and version need none.
        const QCoreApplication app(argc, argv);
        arguments = QCoreApplication::arguments();
        const CommandLine early = readCommandLine(arguments);
        if (early.wish == CommandLine::Wish::Print)
            return print(early);
    }

    const bool hasDisplay = Display::prepare(arguments);
    AppStyle::enableHighDpi();
    QApplication app(argc, argv);
    qInstallMessageHandler(nullptr);
    QApplication::setApplicationName(QStringLiteral("mz6218-patterns"));
    QApplication::setApplicationVersion(QStringLiteral(MZ_VERSION));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/image/patterns.ico")));
    QApplication::setFont(AppStyle::applicationFont());
    AppStyle::applyStyleSheet();

    // Qt has taken its own options out of the list by now.
    const CommandLine line = readCommandLine(QApplication::arguments());
    if (line.wish != CommandLine::Wish::Run)
        return print(line);
    if (!hasDisplay)
        return print({CommandLine::Wish::Refuse, Display::missingText(), {}, {}});

    // Closed, not only ended: a window stores its place when it is closed.
    onStopSignals([] {
        QApplication::closeAllWindows();
        QApplication::quit();
    });
    Workbench workbench;
    if (!line.language.isEmpty())
        workbench.useLanguage(line.language);
    workbench.openWindow()->opening().openFiles(line.files);
    return QApplication::exec();
}
