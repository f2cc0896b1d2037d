#pragma once

#include "cli/command.h"

/// The sub-commands that zero and calibrate the sensor.
SubCommand zeroSubCommand(CLI::App &app);
SubCommand calibrateSubCommand(CLI::App &app);
