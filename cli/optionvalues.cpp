#include "cli/optionvalues.h"

#include "cli/values.h"

namespace OptionValues {

qint64 duration(const char *option, const std::string &text)
{
    return required(option, text, Values::duration(QString::fromStdString(text)));
}

double number(const char *option, const std::string &text)
{
    return required(option, text, Values::number(QString::fromStdString(text)));
}

int count(const char *option, const std::string &text)
{
    return required(option, text, Values::count(QString::fromStdString(text)));
}

} // namespace OptionValues
