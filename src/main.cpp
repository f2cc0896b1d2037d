#include "appinit.h"
#include "appstyle.h"
#include "mainwindow.h"
#include "messagelog.h"
#include "startoptions.h"

#include <QApplication>
#include <QIcon>
#include <QTimer>

#include <cstdio>

namespace {

/// Prints what was asked for, or what is wrong; the exit code of the program.
int tell(const StartOptions &options)
{
    const bool refused = options.wish == StartOptions::Wish::Refuse;
    std::fputs(options.text.toLocal8Bit().constData(), refused ? stderr : stdout);
    return refused ? EXIT_FAILURE : EXIT_SUCCESS;
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
    // Help needs no display, which the application object does; that one takes its own options
    // away.
    const StartOptions wished = StartOptions::read(rawArguments(argc, argv));
    if (wished.wish == StartOptions::Wish::Print)
        return tell(wished);

    AppStyle::enableHighDpi();
    QApplication app(argc, argv);
    qInstallMessageHandler(MessageLog::handler);
    const StartOptions options = StartOptions::read(QApplication::arguments());
    if (options.wish != StartOptions::Wish::Run)
        return tell(options);

    QApplication::setFont(AppStyle::applicationFont());
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/image/pt.ico")));
    QApplication::setApplicationName(QStringLiteral("MZ6218 Power Meter"));
    AppStyle::applyStyleSheet();
    AppInit::Instance()->start();

    MainWindow window;
    window.show();
    QTimer::singleShot(0, &window, [&window, &options] { window.begin(options); });
    return QApplication::exec();
}
