#pragma once

#include "Logic/linkmode.h"
#include "console/statuslabels.h"

#include <QObject>
#include <QString>

class ConsolePanel;
class QTimer;
class SerialLogic;
class TimeChart;

/// The console's link from its open to its end, and what lives as long as it does: polling,
/// recording and what the panel lets the user do. `end` alone ends it, whatever the reason.
class LinkSession : public QObject
{
    Q_OBJECT

public:
    LinkSession(SerialLogic *link, ConsolePanel *panel, StatusLabels *status, TimeChart *chart,
                QObject *parent);

    LinkMode mode() const { return m_mode; }
    /// Closes the link and goes over to \a mode.
    void setMode(LinkMode mode);

    /// Opens the link, after the old one was closed, and asks the instrument for its settings.
    /// \a port and \a value: serial port and baud rate, or host and TCP port. False when that
    /// failed, of which the link has told.
    bool open(const QString &port, int value);
    /// Whether the link is open and the instrument's settings have been read.
    bool isOpen() const { return m_state == State::Open; }

    /// Closes the link and shows it as \a shown.
    void close(StatusLabels::Link shown);
    /// Ends everything that an open link keeps going, without a word to the link itself.
    void end();

    /// The next reading is due half a second from now.
    void startPolling();
    /// A reading of this link has come, and the next one is due.
    void takeReading();
    /// Whether what is shown is the link's latest reading. It is none before the first, and none
    /// between a setting, which lets the polling rest, and the next reading.
    bool isReadingCurrent() const;
    void stopPolling();
    /// A record that has no current reading yet is due again one second from now.
    void postponeRecord();
    /// The next record is due one interval from now.
    void startRecords();

    /// The address of the last LAN link.
    QString ipAddress() const { return m_ipAddress; }
    void setIpAddress(const QString &address) { m_ipAddress = address; }

signals:
    void readingDue();
    void recordDue();
    void ended();

private:
    enum class State { Closed, Opening, Open };

    QTimer *createTimer(const char *name, void (LinkSession::*due)());
    void setState(State state);
    bool queryInstrument();
    bool failOpening(const QString &port, int value);
    void pollLostLink();

    SerialLogic *m_link;
    ConsolePanel *m_panel;
    StatusLabels *m_status;
    TimeChart *m_chart;
    QTimer *m_readTimer;
    QTimer *m_saveTimer;
    QTimer *m_firstSaveTimer; // for the record right after an open, and for a postponed one
    LinkMode m_mode = serialLink;
    State m_state = State::Closed;
    bool m_hasReading = false; // of the present link
    QString m_ipAddress;
};
