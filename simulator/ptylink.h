#pragma once

#include "link.h"

class QSocketNotifier;
class QTimer;

namespace sim {

/// The instrument's serial port, as a pseudo terminal. Clients may open and close it one after
/// another.
class PtyLink : public Link
{
    Q_OBJECT

public:
    explicit PtyLink(QObject *parent = nullptr);
    ~PtyLink() override;

    /// Makes the pseudo terminal. On failure returns false, and \a error tells why.
    bool open(QString *error);
    /// What a client opens, such as "/dev/pts/3".
    QString path() const { return m_path; }

    QByteArray name() const override { return m_path.toLocal8Bit(); }
    /// As on a serial line without flow control, what nobody takes is lost.
    void send(const QByteArray &bytes) override;
    /// Takes the port away like a pulled adapter, and offers another one.
    void drop() override;

signals:
    /// The port could be opened under another path from now on.
    void pathChanged(const QString &path);

private:
    void readWaiting();
    void lookForClient();
    void waitForClient();
    void forgetUnread() const;
    void close();
    void replace();

    int m_master = -1;
    QString m_path;
    QSocketNotifier *m_notifier = nullptr; ///< enabled while a client has the port open
    QTimer *m_clientTimer;
};

} // namespace sim
