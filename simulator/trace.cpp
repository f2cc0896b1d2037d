#include "trace.h"

#include <QDateTime>
#include <QLocale>

namespace sim {

Trace::Trace(std::FILE *file)
    : m_file(file)
{}

QByteArray Trace::printable(const QByteArray &bytes)
{
    QByteArray text;
    for (const char byte : bytes) {
        if (byte == '\n')
            text += "\\n";
        else if (byte == '\r')
            text += "\\r";
        else if (byte == '\\')
            text += "\\\\";
        else if (byte >= ' ' && byte <= '~')
            text += byte;
        else
            text += "\\x" + QByteArray(1, byte).toHex();
    }
    return text;
}

void Trace::write(const char *word, const QByteArray &text)
{
    if (!m_file)
        return;
    const QByteArray time =
        QLocale::c()
            .toString(QDateTime::currentDateTime(), QStringLiteral("yyyy-MM-dd hh:mm:ss.zzz"))
            .toLatin1();
    const QByteArray line = time + ' ' + word + ' ' + printable(text) + '\n';
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), m_file);
    std::fflush(m_file);
}

} // namespace sim
