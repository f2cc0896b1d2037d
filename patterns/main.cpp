#include "frame/appstyle.h"
#include "frame/display.h"
#include "frame/inputrules.h"
#include "frame/language.h"
#include "frame/lateicon.h"
#include "patterns/batch.h"
#include "patterns/batchreport.h"
#include "patterns/commandline.h"
#include "patterns/measuremenu.h"
#include "patterns/openactions.h"
#include "patterns/patternwindow.h"
#include "patterns/workbench.h"
#include "process/parentconsole.h"
#include "process/stopsignals.h"

#include <QApplication>
#include <QFile>
#include <QLoggingCategory>
#include <QTextStream>
#include <QTimer>

#include <cstdio>

namespace {

int print(const CommandLine &line)
{
    useParentConsole();
    const bool refused = line.wish == CommandLine::Wish::Refuse;
    QTextStream(refused ? stderr : stdout) << line.text << '\n';
    return refused ? Batch::WrongUsage : Batch::Done;
}

/// Work without a window; the report alone needs a QApplication.
int work(const CommandLine &line)
{
    useParentConsole();
    Language language;
    language.set(line.language);
    QTextStream messages(stderr);
    messages.setCodec("UTF-8");
    if (line.task.kind == BatchTask::Kind::Report)
        return Batch::writeReport(line.task.output, line.files, messages);
    QFile results;
    results.open(stdout, QIODevice::WriteOnly);
    const int status = Batch::run(line.task, line.files, results, messages);
    return results.flush() ? status : int(Batch::Failed);
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
        if (early.wish == CommandLine::Wish::Batch && early.task.kind != BatchTask::Kind::Report)
            return work(early);
        if (early.isBatch) {
            Display::drawIntoMemory();
            // What that cannot do is nobody's concern.
            QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
        }
    }

    const bool hasDisplay = Display::prepare(arguments);
    AppStyle::enableHighDpi();
    QApplication app(argc, argv);
    qInstallMessageHandler(nullptr);
    QApplication::setApplicationName(QStringLiteral("mz6218-patterns"));
    QApplication::setApplicationVersion(QStringLiteral(MZ_VERSION));
    QApplication::setWindowIcon(LateIcon::of(QStringLiteral(":/image/patterns.ico")));
    InputRules::install();
    QApplication::setFont(AppStyle::applicationFont());
    AppStyle::applyStyleSheet();

    // Qt has taken its own options out of the list by now.
    const CommandLine line = readCommandLine(QApplication::arguments());
    if (line.wish == CommandLine::Wish::Batch)
        return work(line);
    if (line.wish != CommandLine::Wish::Run)
        return print(line);
    if (!hasDisplay) {
        useParentConsole();
        QTextStream(stderr) << Display::missingText() << '\n';
        return Batch::Failed;
    }

    // The link tells each line that it sends and reads.
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false\n*.info=false"));
    Workbench workbench;
    onStopSignals([&workbench] { workbench.stop(); });
    if (!line.language.isEmpty())
        workbench.useLanguage(line.language);
    // From the event loop, which alone can be told to end while files are read.
    PatternWindow *window = workbench.openWindow();
    QTimer::singleShot(0, window, [&] {
        window->opening().openFiles(line.files);
        if (!line.meter.isEmpty())
            window->measuring().measurePattern(line.meter, line.rotator);
    });
    return QApplication::exec();
}
