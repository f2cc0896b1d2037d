#pragma once

#include "faultinjector.h"
#include "rotator.h"

#include <QElapsedTimer>
#include <QHostAddress>
#include <QTcpServer>

namespace sim {

class Trace;

/// The turntable on the network. Like rotctld it serves several clients at once.
class RotatorServer : public QObject
{
    Q_OBJECT

public:
    /// \a speed in degrees a second. \a trace must outlive this: it notes every command but the
    /// question for the position, which clients ask all the time.
    RotatorServer(double speed, const FaultInjector &faults, Trace &trace,
                  QObject *parent = nullptr);

    /// Starts to listen; false, with the reason in errorString(), when that fails.
    bool listen(const QHostAddress &address, quint16 port)
    {
        return m_server.listen(address, port);
    }
    QString errorString() const { return m_server.errorString(); }
    quint16 port() const { return m_server.serverPort(); }

    /// Where the table stands now, in degrees.
    double azimuth() const { return m_rotator.azimuth(m_clock.elapsed()); }

private:
    void serve();
    QList<Step> answer(const QByteArray &line);

    Rotator m_rotator;
    FaultInjector m_faults;
    Trace &m_trace;
    QElapsedTimer m_clock;
    QTcpServer m_server;
};

} // namespace sim
