#pragma once

#include "Logic/linkmode.h"

#include <QString>
#include <QStringList>

/// What the command line of the console asks for.
struct StartOptions
{
    enum class Wish {
        Run,     ///< show the window
        Examine, ///< examine the machine and what is at \a examined
        Print,   ///< print \a text on the standard output and end with success
        Refuse   ///< print \a text on the standard error and end with failure
    };

    Wish wish = Wish::Run;
    QString text;                 ///< help, version, or what is wrong and the usage
    QString lanHost;              ///< to connect to at once; empty: none
    QString serialPort;           ///< to open at once; empty: none
    int baudRate = usualBaudRate; ///< of \a serialPort
    QString examined;             ///< address of an instrument or PORT[:BAUD]; empty: none
    int logDays = 0;              ///< of the log to keep; 0: all
    QString language;             ///< "en", "cn" or empty: as last time

    /// Reads \a arguments, the program's own name first. What is not understood makes it a Refuse.
    static StartOptions read(const QStringList &arguments);
};
