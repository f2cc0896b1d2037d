#pragma once

#include "Logic/linkmode.h"

#include <QString>

#include <optional>

/// Where an instrument is reached.
struct MeterAddress
{
    LinkMode mode = lanLink;
    QString place;                 ///< host, or name of the serial port
    int value = instrumentTcpPort; ///< TCP port, or baud rate

    /// Reads HOST[:PORT]; an IPv6 address with a port stands in brackets. Nothing for an empty host
    /// or a port that there is none of.
    static std::optional<MeterAddress> lan(const QString &text);
    /// Reads PORT[:BAUD]. Paths of devices hold colons, so only digits behind the last one are a
    /// rate. Nothing for an empty port or a rate of 0.
    static std::optional<MeterAddress> serial(const QString &text);

    /// What users know the instrument by: host or port, with the TCP port where it is not the usual
    /// one.
    QString name() const;
};
