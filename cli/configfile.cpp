#include "cli/configfile.h"

#include <sstream>

namespace {

std::string withoutComment(const std::string &line)
{
    char quote = 0;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char letter = line[i];
        if (quote != 0)
            quote = letter == quote ? char(0) : quote;
        else if (letter == '"' || letter == '\'')
            quote = letter;
        else if (letter == '#')
            return line.substr(0, i);
    }
    if (quote != 0)
        throw CLI::ConfigError("a quote is not closed: " + line, CLI::ExitCodes::ConfigError);
    return line;
}

} // namespace

ConfigFile::ConfigFile()
{
    comment('\x01');
}

std::vector<CLI::ConfigItem> ConfigFile::from_config(std::istream &input) const
{
    std::stringstream plain;
    for (std::string line; std::getline(input, line);)
        plain << withoutComment(line) << '\n';
    return CLI::ConfigTOML::from_config(plain);
}
