#pragma once

#include "antennapattern.h"
#include "commandinterpreter.h"
#include "faultinjector.h"
#include "instrument.h"
#include "levelscript.h"
#include "replay.h"
#include "session.h"
#include "trace.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTcpServer>

namespace sim {

struct Options;
class RotatorServer;

/// The instrument with its connectors. One TCP client is served at a time; others wait, connected
/// but unanswered, until it is their turn. The serial port works beside that, on the same
/// instrument.
class InstrumentServer : public QObject
{
    Q_OBJECT

public:
    /// \a trace may be null, and must outlive this.
    InstrumentServer(const Options &options, std::FILE *trace, QObject *parent = nullptr);

    /// Reads the files that \a options name, starts to listen and announces where. On failure
    /// returns false, and \a error is what to tell the user.
    bool start(const Options &options, QString *error);

    quint16 port() const { return m_server.serverPort(); }

signals:
    /// "Listening on 127.0.0.1:5001", "Rotator on 127.0.0.1:4533" or "Serial port: /dev/pts/3";
    /// the last again when it changes.
    void announced(const QString &line);

private:
    bool readFiles(const Options &options, QString *error);
    bool openSerialPort(QString *error);
    bool openRotator(const Options &options, QString *error);
    Input input() const;
    void serveNext();
    void endTcpSession();

    Trace m_trace;
    double m_level; ///< dBm, unless pattern or script give another
    std::optional<AntennaPattern> m_pattern;
    std::optional<LevelScript> m_script;
    std::optional<Replay> m_replay;
    RotatorServer *m_rotator = nullptr;
    QElapsedTimer m_clock;
    Instrument m_instrument;
    CommandInterpreter m_interpreter{m_instrument};
    FaultInjector m_faults;
    Bench m_bench;
    QTcpServer m_server;
    Session *m_tcpSession = nullptr;
};

} // namespace sim
