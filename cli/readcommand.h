#pragma once

#include "cli/command.h"

/// The sub-command that reads the power.
SubCommand readSubCommand(CLI::App &app);
