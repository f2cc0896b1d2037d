#include "Logic/linebuffer.h"

#include <QTextCodec>

LineBuffer::LineBuffer()
{
    clear();
}

LineBuffer::~LineBuffer() = default;

void LineBuffer::append(const QByteArray &piece)
{
    // All bytes count: a line at the wrong baud rate may consist of NULs, which leave no text
    // behind.
    m_received += piece.size();
    const uint length = qstrnlen(piece.constData(), uint(piece.size()));
    m_text += m_utf8->toUnicode(piece.constData(), int(length));
}

QString LineBuffer::takeLine()
{
    QString line = m_text.left(m_text.indexOf(QLatin1Char('\n')));
    if (line.endsWith(QLatin1Char('\r')))
        line.chop(1);
    clear();
    return line;
}

void LineBuffer::clear()
{
    m_utf8.reset(QTextCodec::codecForName("UTF-8")->makeDecoder());
    m_text.clear();
    m_received = 0;
}
