#pragma once

#include <QString>

#include <memory>

class QTextDecoder;

/// Collects the pieces in which replies arrive and hands out one line.
///
/// Only the first line of what was collected is ever handed out: what follows its newline in the
/// same piece is lost, since the instrument answers one line to one command.
class LineBuffer
{
public:
    /// The most bytes that are collected in wait for the end of a line.
    static constexpr int capacity = 64 * 1024;

    LineBuffer();
    ~LineBuffer();

    /// Adds the bytes of \a piece up to its first NUL, read as UTF-8. A character that is cut by
    /// the end of the piece is completed by the next one.
    void append(const QByteArray &piece);

    /// Whether what was collected ends with a newline.
    bool hasLine() const { return m_text.endsWith(QLatin1Char('\n')); }

    /// Whether more than `capacity` bytes came without a newline at their end.
    bool isOverfull() const { return m_received > capacity && !hasLine(); }

    /// The first line, without its newline and a carriage return before it; leaves the buffer
    /// empty.
    QString takeLine();

    /// Forgets everything, also a character that is not complete yet.
    void clear();

    /// What was collected so far.
    const QString &text() const { return m_text; }

private:
    std::unique_ptr<QTextDecoder> m_utf8;
    QString m_text;
    qint64 m_received = 0;
};
