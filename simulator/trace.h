#pragma once

#include <QByteArray>

#include <cstdio>

namespace sim {

/// Writes down what goes over the wire, a line for every command and for every piece of a reply:
/// date, time with milliseconds, a word ("recv", "send" or "note") and the bytes in printable form.
class Trace
{
public:
    /// \a file stays open and belongs to the caller; null: nothing is written.
    explicit Trace(std::FILE *file = nullptr);

    void received(const QByteArray &line) { write("recv", line); }
    void sent(const QByteArray &bytes) { write("send", bytes); }
    void note(const QByteArray &text) { write("note", text); }

    /// \a bytes with everything outside printable ASCII as "\n", "\r" or "\xNN", and "\" doubled.
    static QByteArray printable(const QByteArray &bytes);

private:
    void write(const char *word, const QByteArray &text);

    std::FILE *m_file;
};

} // namespace sim
