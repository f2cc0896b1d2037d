#pragma once

/// How long the link waits for the instrument, in milliseconds.
struct LinkWaits
{
    int connecting = 3000;    ///< for each of the two attempts to reach a host
    int serialWriting = 3000; ///< for a command to leave the serial port
    int tcpWriting = 2000;    ///< for each of the three attempts to send a command over TCP
    int reading = 5000;       ///< for each piece of a reply
    int closing = 1000;       ///< from the wish to close to the close
};
