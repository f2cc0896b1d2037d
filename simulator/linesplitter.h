#pragma once

#include <QByteArray>
#include <QList>

namespace sim {

/// Makes command lines out of the bytes that come in.
class LineSplitter
{
public:
    /// The lines that \a bytes completed, without their "\n". A line of more than 4096
    /// bytes is lost, as it would be in an instrument's input buffer.
    QList<QByteArray> feed(const QByteArray &bytes);
    /// Forgets an unfinished line.
    void clear();

private:
    QByteArray m_rest;
    bool m_overflow = false;
};

} // namespace sim
