#pragma once

#include "cli/command.h"

#include <QStringList>

#include <memory>

/// The program's command line.
namespace CommandLine {

/// What was read of it.
struct Result
{
    std::unique_ptr<Command> command; ///< none where the program is to end at once
    int status = 0;                   ///< with this
};

/// Reads \a arguments, the first of which is the program's name, and the configuration file that
/// they name. What is wrong, and help that is asked for, is printed.
Result read(const QStringList &arguments);

} // namespace CommandLine
