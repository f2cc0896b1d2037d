#pragma once

#include <QString>
#include <QStringList>

/// What the command line of the workbench asks for.
struct CommandLine
{
    enum class Wish {
        Run,   ///< show the window with \a files
        Print, ///< print \a text on the standard output and end with success
        Refuse ///< print \a text on the standard error and end with failure
    };

    Wish wish = Wish::Run;
    QString text;      ///< help, version or what is wrong
    QString language;  ///< "en", "cn" or empty: as last time
    QStringList files; ///< curve files to open
};

/// Reads \a arguments, the program's own name first.
CommandLine readCommandLine(const QStringList &arguments);
