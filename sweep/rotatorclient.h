#pragma once

#include "sweep/rotatortext.h"

#include <QObject>
#include <QQueue>
#include <QTcpSocket>
#include <QTimer>

/// What a rotator's server tells about its table.
struct TableDescription
{
    QString model; ///< empty: not told
    std::optional<TableLimits> limits;
};

/// How long a rotator's server is waited for, in milliseconds.
struct RotatorWaits
{
    int connecting = 5000;
    int reply = 5000;
    int optionalReply = 1000; ///< to a command that a server need not know
    int firstPause = 1000;    ///< before it is tried again; doubled from try to try
    int longestPause = 5000;
};

/// The asynchronous connection to a rotator's server over TCP. Nothing here blocks; commands are
/// sent one after the other, each once the reply to the former has come.
///
/// A lost connection, and one on which no reply came within 5 s, is opened again, after 1, 2, 4,
/// then 5 s, until `close`. Commands that were under way then have no reply.
class RotatorClient : public QObject
{
    Q_OBJECT

public:
    explicit RotatorClient(QObject *parent = nullptr);
    /// Stops a table that may be turning, as far as the link takes it at once.
    ~RotatorClient() override;

    /// Replaces the times to wait.
    void setWaits(const RotatorWaits &waits) { m_waits = waits; }

    /// Connects to \a host, asks for the position once, then for the model and the limits.
    void open(const QString &host, quint16 port);
    void close();
    bool isUp() const { return m_isUp; }

    void move(double azimuth);
    void readPosition();
    /// Stops the table: goes out at once, and the commands before it have no reply any more.
    void stop();

    /// The first position and whatever description came.
    const TableDescription &description() const { return m_description; }

signals:
    /// The table has told where it stands, and what it is: \a azimuth in degrees.
    void described(double azimuth);
    /// The connection is open; for the first time after `described`.
    void up();
    /// There is no connection, \a reason in the system's words; it is tried again.
    void down(const QString &reason);
    /// The reply to a move, 0 when it starts.
    void moved(int code);
    /// The reply to a question for the position; \a azimuth counts where \a code is 0.
    void position(int code, double azimuth);
    void stopped(int code);

private:
    enum class Command { None, Position, Move, Stop, Model, State };
    struct Order
    {
        Command command = Command::None;
        QByteArray bytes;
    };

    void stopForGood();
    void connectNow();
    void connected();
    void lose(const QString &reason);
    void submit(const Order &order);
    void sendNext();
    void readLines();
    bool isWhole() const;
    void finishCommand();
    void timedOut();
    void takePosition();
    void takeStop();
    void describeFurther();

    RotatorWaits m_waits;
    QString m_host;
    quint16 m_port = 0;
    QTcpSocket m_socket;
    QTimer m_limit; ///< of the connecting, or of the reply that is awaited
    QTimer m_pause; ///< before the next attempt to connect
    int m_attempts = 0;
    bool m_isUp = false;
    bool m_isDescribed = false;
    bool m_hasPosition = false;
    bool m_modelAsked = false;
    bool m_stateAsked = false;
    bool m_mayTurn = false;   ///< a move went out that nothing has stopped
    qintptr m_turning = -1;   ///< the connection on which it went out
    bool m_overtakes = false; ///< a stop was sent while another reply was awaited
    TableDescription m_description;
    RotatorText::Position m_first; ///< whose elevation goes out with every move

    Command m_command = Command::None;
    QQueue<Order> m_orders;
    QByteArray m_buffer;
    QByteArrayList m_lines;
};
