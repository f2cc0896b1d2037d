#include "frame/display.h"

#include <QtGlobal>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

QtMessageHandler usualHandler = nullptr;

void explainFatal(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type != QtFatalMsg) {
        usualHandler(type, context, message);
        return;
    }
    std::fprintf(stderr,
                 "No window can be opened. Either the display cannot be reached, or this user may\n"
                 "not use it, or a part of Qt is missing. Qt says:\n%s\n",
                 message.toLocal8Bit().constData());
    std::_Exit(EXIT_FAILURE);
}

bool isMissing(const QStringList &arguments)
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    const auto chooses = [](const QString &argument) {
        // Qt takes its options with one dash and with two.
        const QString option =
            argument.startsWith(QLatin1String("--")) ? argument.mid(1) : argument;
        return option == QLatin1String("-platform") || option == QLatin1String("-display");
    };
    if (std::any_of(arguments.begin(), arguments.end(), chooses))
        return false;
    const auto isUnset = [](const char *name) { return qEnvironmentVariableIsEmpty(name); };
    return isUnset("QT_QPA_PLATFORM") && isUnset("DISPLAY") && isUnset("WAYLAND_DISPLAY");
#else
    Q_UNUSED(arguments)
    return false;
#endif
}

} // namespace

namespace Display {

bool prepare(const QStringList &arguments)
{
    usualHandler = qInstallMessageHandler(explainFatal);
    if (!isMissing(arguments))
        return true;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return false;
}

void makeOptional()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    // DISPLAY may be set elsewhere too, where there is no plugin for X11.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && !qEnvironmentVariableIsEmpty("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "xcb;offscreen");
#endif
}

void drawIntoMemory()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
}

QString missingText()
{
    return QStringLiteral(
        "There is no display to show a window on: neither DISPLAY nor WAYLAND_DISPLAY is set.\n"
        "Start the program in a desktop session; over ssh, \"ssh -X\" brings a display along.");
}

} // namespace Display
