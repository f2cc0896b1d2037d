#pragma once

#include "commandinterpreter.h"
#include "faultinjector.h"
#include "instrument.h"
#include "session.h"
#include "trace.h"

#include <QObject>
#include <QTcpServer>

namespace sim {

struct Options;

/// The instrument with its connectors. One TCP client is served at a time; others wait, connected
/// but unanswered, until it is their turn. The serial port works beside that, on the same
/// instrument.
class InstrumentServer : public QObject
{
    Q_OBJECT

public:
    /// \a trace may be null, and must outlive this.
    InstrumentServer(const Options &options, std::FILE *trace, QObject *parent = nullptr);

    /// Starts to listen as \a options say, and announces where. On failure returns false, and \a
    /// error is what to tell the user.
    bool start(const Options &options, QString *error);

    quint16 port() const { return m_server.serverPort(); }

signals:
    /// "Listening on 127.0.0.1:5001" or "Serial port: /dev/pts/3"; the latter again when it
    /// changes.
    void announced(const QString &line);

private:
    bool openSerialPort(QString *error);
    void serveNext();
    void endTcpSession();

    Trace m_trace;
    Instrument m_instrument;
    CommandInterpreter m_interpreter{m_instrument};
    FaultInjector m_faults;
    Bench m_bench;
    QTcpServer m_server;
    Session *m_tcpSession = nullptr;
};

} // namespace sim
