#pragma once

#include <QCoreApplication>
#include <QString>

class QDateTime;
class QLabel;
class QStatusBar;

/// What the status bar of the console tells: the instrument's identity, the port or address, the
/// state of the link and the time. The bar owns the labels.
class StatusLabels
{
    Q_DECLARE_TR_FUNCTIONS(StatusLabels)

public:
    /// What the link is said to be; a serial link is open or closed, a LAN link connected or not.
    enum class Link { Closed, Open, Connected, Disconnected };

    explicit StatusLabels(QStatusBar *bar);

    void showIdentity(const QString &identity);
    /// \a value is the baud rate of a serial port or the TCP port of a host.
    void showPort(const QString &name, int value);
    void showLink(Link link);
    void showTime(const QDateTime &now);

    /// Shows the state of the link in the current language; the rest has none.
    void retranslate();

private:
    QLabel *m_identity;
    QLabel *m_port;
    QLabel *m_link;
    QLabel *m_clock;
    Link m_shownLink = Link::Closed;
};
