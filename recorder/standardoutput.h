#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// The results that a program prints, handed on a piece at a time.
class StandardOutput
{
public:
    /// Lets a pipe that nobody reads any more be an error and not the end of the program.
    StandardOutput();

    /// Why \a text could not be written, or nothing. To be tried again with the same text, of which
    /// a part may be out already.
    std::optional<QString> write(const QByteArray &text);
    /// Whether nobody reads the output any more.
    bool isClosed() const { return m_isClosed; }

private:
    bool m_isClosed = false;
    int m_begun = 0; // bytes that are out of a text that failed
};

/// Prints \a text and a newline on the error output, behind the program's name.
void printMessage(const QString &text);
