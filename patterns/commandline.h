#pragma once

#include <QString>
#include <QStringList>

/// Work that is done without a window.
struct BatchTask
{
    enum class Kind {
        None,
        Figures,   ///< the figures of all curves on standard output
        Export,    ///< all curves as curve files into the folder \a output
        ExportMsi, ///< the curves \a horizontal and \a vertical as the MSI file \a output
        Report,    ///< the report as the file \a output
    };

    Kind kind = Kind::None;
    QString output;
    QString horizontal;
    QString vertical;
};

/// What the command line of the workbench asks for.
struct CommandLine
{
    enum class Wish {
        Run,   ///< show the window with \a files
        Batch, ///< do \a task with \a files
        Print, ///< print \a text on the standard output and end with success
        Refuse ///< print \a text on the standard error and end with failure
    };

    Wish wish = Wish::Run;
    QString text;         ///< help, version or what is wrong
    QString language;     ///< "en", "cn" or empty: as last time
    QStringList files;    ///< curve files to open
    bool isBatch = false; ///< work without a window is asked for, rightly or wrongly
    BatchTask task;
    QString meter;   ///< address in the dialog that measures a pattern; empty: it is not opened
    QString rotator; ///< likewise; empty: as last time
};

/// Reads \a arguments, the program's own name first.
CommandLine readCommandLine(const QStringList &arguments);
