/// The settings file: whatever it holds, five lines come out, and the choices read again unchanged.
/// (A prefix that stands twice in a line goes twice, so the two texts may differ.)

#include "storage/consolesettings.h"

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray text(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const ConsoleSettings read = ConsoleSettings::parse(text);
    const QByteArray written = read.toText();
    const ConsoleSettings again = ConsoleSettings::parse(written);
    if (written.count('\n') != 5 || again.language != read.language ||
        again.interval != read.interval || again.period != read.period)
        std::abort();
    return 0;
}
