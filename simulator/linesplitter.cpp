#include "linesplitter.h"

namespace sim {

namespace {

constexpr int longestLine = 4096;

} // namespace

QList<QByteArray> LineSplitter::feed(const QByteArray &bytes)
{
    QList<QByteArray> lines;
    for (const char byte : bytes) {
        if (byte != '\n') {
            m_overflow = m_overflow || m_rest.size() == longestLine;
            if (!m_overflow)
                m_rest.append(byte);
            continue;
        }
        if (!m_overflow)
            lines.append(m_rest);
        clear();
    }
    return lines;
}

void LineSplitter::clear()
{
    m_rest.clear();
    m_overflow = false;
}

} // namespace sim
