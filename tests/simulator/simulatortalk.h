#pragma once

#include "simulatorprocess.h"

#include <QTcpSocket>

/// What the tests that talk to the running simulator share.

constexpr int patience = 10000; // ms, for what is bound to happen

inline const QByteArray reading("RETURN:GET -20.00dBm,-20.00dBm");

inline QStringList words(const char *line)
{
    return QString::fromLatin1(line).split(QLatin1Char(' '));
}

/// The next line on \a device without its newline; "(nothing)" when the other side or patience
/// ends.
inline QByteArray line(QIODevice &device)
{
    while (!device.canReadLine()) {
        if (!device.waitForReadyRead(patience))
            return "(nothing)";
    }
    return device.readLine().chopped(1);
}

inline void send(QIODevice &device, const QByteArray &bytes)
{
    device.write(bytes);
    while (device.bytesToWrite() > 0 && device.waitForBytesWritten(patience)) {
    }
}

inline QByteArray ask(QIODevice &device, const QByteArray &command)
{
    send(device, command + '\n');
    return line(device);
}

/// A client over TCP, connected once the simulator has taken it.
class Client : public QTcpSocket
{
public:
    explicit Client(SimulatorProcess &simulator)
    {
        connectToHost(simulator.address(), simulator.port());
        waitForConnected(patience);
    }
};
