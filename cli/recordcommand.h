#pragma once

#include "cli/command.h"

/// The sub-command that measures unattended.
SubCommand recordSubCommand(CLI::App &app);
