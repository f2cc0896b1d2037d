#pragma once

#include <QDateTime>
#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <utility>

QT_BEGIN_NAMESPACE
class QTcpSocket;
QT_END_NAMESPACE

/// Looks after a link that was lost until it can be opened again: after 1, 2, 4 ... 60 s it looks
/// whether the instrument is there, without holding anything up, and then asks for the open.
///
/// An instrument on the LAN serves one client, so the connection that probes it is closed before.
class Reconnector : public QObject
{
    Q_OBJECT

public:
    struct Target
    {
        bool isLan = false;
        QString name;  ///< host or serial port
        int value = 0; ///< TCP port or baud rate
    };

    explicit Reconnector(QObject *parent = nullptr);
    ~Reconnector() override;

    /// Begins to try. A run under way begins anew.
    void begin(const Target &target);
    /// The open that `reachable` asked for has failed; the tries go on.
    void goOn();
    /// Ends the tries, because the link is open or because the user wants no more of them.
    void stop();

    bool isActive() const { return m_since.isValid(); }
    QDateTime since() const { return m_since; }
    /// How it stands, for the status bar.
    QString text() const;

    /// Lets a second last \a ms, for tests.
    void setSecond(int ms) { m_second.setInterval(ms); }
    /// Replaces the look at the list of serial ports.
    void setPortLookup(std::function<bool(const QString &)> isThere)
    {
        m_isThere = std::move(isThere);
    }

signals:
    /// Another second, another state.
    void changed();
    /// The instrument is there: open \a name with \a value now, then call stop() or goOn().
    void reachable(const QString &name, int value);

private:
    void wait();
    void tick();
    void tryNow();
    void probe();
    void endProbe(bool isReachable);

    Target m_target;
    QDateTime m_since;
    QTimer m_second;
    QTimer m_probeLimit;
    std::unique_ptr<QTcpSocket> m_socket;
    std::function<bool(const QString &)> m_isThere;
    int m_pause = 0; ///< s, the latest one
    int m_secondsLeft = 0;
    bool m_isAway = false; ///< the serial port is not in the list
};
