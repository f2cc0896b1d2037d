#pragma once

#include "cli/command.h"

/// The sub-command that measures a radiation pattern with a turntable.
SubCommand sweepSubCommand(CLI::App &app);
