/// Reply bytes in pieces, as an instrument or a noisy line sends them: the first byte of each piece
/// is its length.

#include "Logic/linebuffer.h"
#include "Logic/replyparser.h"

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    LineBuffer buffer;
    std::size_t at = 0;
    while (at < size) {
        const std::size_t length = qMin<std::size_t>(data[at], size - at - 1);
        ++at;
        buffer.append(
            QByteArray(reinterpret_cast<const char *>(data + at), static_cast<int>(length)));
        at += length;
        if (!buffer.hasLine())
            continue;
        const QString line = buffer.takeLine();
        if (line.contains(QLatin1Char('\n')) || !buffer.text().isEmpty())
            std::abort();
        ReplyParser::identity(line);
        ReplyParser::frequency(line);
        ReplyParser::offset(line);
        ReplyParser::powerUnit(line);
        ReplyParser::measureState(line);
        ReplyParser::averageCount(line);
        ReplyParser::power(line);
        ReplyParser::taskResult(line);
    }
    return 0;
}
