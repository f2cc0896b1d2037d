#pragma once

#include "cli/command.h"

/// The sub-command that sets the instrument.
SubCommand setSubCommand(CLI::App &app);
