#pragma once

#include <QCoreApplication>
#include <QString>

#include <functional>

class QDateTime;
class QLabel;
class QPushButton;
class QStatusBar;

/// What the status bar of the console tells: the instrument's identity, the port or address, the
/// state of the link and the time, or in place of the first two a notice. The bar owns the labels.
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

    /// What a notice is about.
    enum class Notice { Waiting, Setting, Records, Reconnecting };

    /// Shows what \a text says, in the language of the time, until the notice is cleared or another
    /// one is shown.
    void showNotice(Notice about, const std::function<QString()> &text);
    /// Takes the notice away if it is about that.
    void clearNotice(Notice about);
    void clearNotice();
    QString notice() const;
    /// The button that goes with a notice of something that can be stopped; hidden at first.
    QPushButton *stopButton() const { return m_stop; }

    /// Shows what has a language in the current one.
    void retranslate();

private:
    QStatusBar *m_bar;
    QLabel *m_identity;
    QLabel *m_port;
    QLabel *m_link;
    QLabel *m_clock;
    QLabel *m_notice; ///< takes its place in the bar with the first notice
    QPushButton *m_stop;
    Link m_shownLink = Link::Closed;
    Notice m_noticeTopic = Notice::Waiting;
    std::function<QString()> m_noticeText;
    bool m_isNoticePlaced = false;
};
