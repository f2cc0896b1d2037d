#include "appinit.h"
#include "console/startoptions.h"
#include "doctor/doctor.h"
#include "frame/appstyle.h"
#include "frame/display.h"
#include "frame/inputrules.h"
#include "frame/lateicon.h"
#include "mainwindow.h"
#include "messagelog.h"
#include "process/parentconsole.h"
#include "process/stopsignals.h"

#include <QApplication>
#include <QDateTime>

#include <cstdio>

namespace {

/// Prints why the program does not start; its exit code.
int refuse(const QString &reason)
{
    useParentConsole();
    std::fputs(reason.toLocal8Bit().constData(), stderr);
    return EXIT_FAILURE;
}

/// Prints what was asked for, or what is wrong; the exit code of the program.
int tell(const StartOptions &options)
{
    if (options.wish == StartOptions::Wish::Refuse)
        return refuse(options.text);
    useParentConsole();
    std::fputs(options.text.toLocal8Bit().constData(), stdout);
    return EXIT_SUCCESS;
}

/// Tells how the machine and \a instrument are; the exit code.
int examine(const QString &instrument)
{
    useParentConsole();
    const bool hasDisplay = QApplication::platformName() != QLatin1String("offscreen");
    const QString log = MessageLog::file(QDateTime::currentDateTime());
    return Doctor::examine(instrument, hasDisplay, log, stdout) ? EXIT_SUCCESS : EXIT_FAILURE;
}

QStringList rawArguments(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

} // namespace

int main(int argc, char **argv)
{
    // Help needs no application object, and so not even a part of Qt's that is missing; that object
    // takes Qt's own options away.
    const QStringList arguments = rawArguments(argc, argv);
    const StartOptions wished = StartOptions::read(arguments);
    if (wished.wish == StartOptions::Wish::Print)
        return tell(wished);

    const bool hasDisplay = Display::prepare(arguments);
    if (wished.wish == StartOptions::Wish::Examine)
        Display::makeOptional();
    AppStyle::enableHighDpi();
    QApplication app(argc, argv);
    const StartOptions options = StartOptions::read(QApplication::arguments());
    if (options.wish == StartOptions::Wish::Examine)
        return examine(options.examined);
    if (options.wish != StartOptions::Wish::Run)
        return tell(options);
    if (!hasDisplay)
        return refuse(Display::missingText() + QLatin1Char('\n'));

    qInstallMessageHandler(MessageLog::handler);
    InputRules::install();
    QApplication::setFont(AppStyle::applicationFont());
    QApplication::setWindowIcon(LateIcon::of(QStringLiteral(":/image/pt.ico")));
    QApplication::setApplicationName(QStringLiteral("MZ6218 Power Meter"));
    AppStyle::applyStyleSheet();
    AppInit::Instance()->start();

    MainWindow window;
    window.show();
    onStopSignals([] {
        QApplication::closeAllWindows();
        QApplication::quit();
    });
    window.beginOncePainted(options);
    return QApplication::exec();
}
