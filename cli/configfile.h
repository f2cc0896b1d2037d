#pragma once

#include <CLI/CLI.hpp>

/// Configuration files, in the part of TOML that options need.
///
/// Comments are taken off here: the library does it without regard to quotes, which would cut a
/// value that holds a "#".
class ConfigFile : public CLI::ConfigTOML
{
public:
    ConfigFile();
    std::vector<CLI::ConfigItem> from_config(std::istream &input) const override;
};
