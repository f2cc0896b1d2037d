#pragma once

#include "Logic/linkmode.h"

#include <QString>

/// A serial port and its speed, as a user writes them: PORT[:BAUD].
struct SerialAddress
{
    QString port; ///< name or path; empty when there is none
    int baudRate = usualBaudRate;

    /// Takes \a text apart. Names of ports hold colons as well (/dev/serial/by-path), so only a
    /// number behind the last one is a baud rate; it may be one that no port has, such as 0.
    static SerialAddress read(const QString &text);

    /// Whether the port looks like one, and not like the name of a host: by its form, or since it
    /// is one of \a known.
    bool isPort(const QStringList &known) const;
};
