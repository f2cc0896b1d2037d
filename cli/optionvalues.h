#pragma once

#include <CLI/CLI.hpp>

#include <QtGlobal>

#include <optional>
#include <string>

/// Values of options, which were written as \a text. All throw a CLI::ValidationError for a text
/// that is none.
namespace OptionValues {

/// \a value, which was read from \a text.
template<typename Value>
Value required(const char *option, const std::string &text, const std::optional<Value> &value)
{
    if (!value)
        throw CLI::ValidationError(option, "cannot be \"" + text + '"');
    return *value;
}

/// In ns.
qint64 duration(const char *option, const std::string &text);
double number(const char *option, const std::string &text);
/// At least 1.
int count(const char *option, const std::string &text);

} // namespace OptionValues
