#pragma once

#include "cli/command.h"

/// The sub-command that tells what the instrument is and how it is set.
SubCommand identifySubCommand(CLI::App &app);
