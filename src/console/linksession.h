#pragma once

#include "Logic/linkmode.h"
#include "measure/reading.h"

#include <QElapsedTimer>
#include <QObject>
#include <QString>

#include <functional>

class QTimer;
class SerialLogic;

/// The console's link to the instrument: what it is at, what it last read, and when the next
/// reading and the next record are due. It knows no widget; the window shows what it tells.
///
/// `end` alone ends a link, whatever the reason.
class LinkSession : public QObject
{
    Q_OBJECT

public:
    enum class State {
        Closed,
        Opening, ///< the transport is open, the instrument's settings are being read
        Open     ///< polling and recording
    };

    /// How far the reading can be trusted to be of now.
    enum class Freshness {
        None, ///< nothing has been read on this link
        Live,
        Stale ///< of some time ago, or nothing asks for another one
    };

    /// What the user sets in the instrument.
    enum class Setting { Frequency, Offset, AverageCount, RelativeState, PowerUnit };
    Q_ENUM(Setting)

    /// The timers are made children of \a parent, so that they have their names below the window.
    LinkSession(SerialLogic *link, QObject *parent);

    LinkMode mode() const { return m_mode; }
    /// Closes the link and goes over to \a mode.
    void setMode(LinkMode mode);

    /// Opens the link, after the old one was closed, and asks the instrument for its settings.
    /// \a port and \a value: serial port and baud rate, or host and TCP port. False when that
    /// failed, which `failed` has told, or when it was stopped.
    bool open(const QString &port, int value);
    /// Gives up the opening under way, within a tenth of a second.
    void stopOpening();
    bool isOpening() const { return m_isOpening; }

    State state() const { return m_state; }
    /// Whether the link is open and the instrument's settings have been read.
    bool isOpen() const { return m_state == State::Open; }
    /// Whether the closed link is one of a LAN that the user took down or that could not be opened.
    bool isDisconnected() const { return m_isDisconnected; }

    /// Closes the link.
    void close();
    /// The same, as the LAN calls it.
    void disconnectLink();
    /// Ends everything that an open link keeps going; the link itself is not told.
    void end();

    /// The latest reading; of the link before until the next one is opened.
    const Reading &reading() const { return m_reading; }
    Freshness freshness() const;
    /// Whole seconds since the latest reading came.
    int readingAge() const;
    /// A reading came: \a level in dBm (Reading::noLevel: none) and the instrument's \a text of it.
    /// The next one is due half a second from now.
    void takeReading(double level, const QString &text);
    /// Asks for a reading, or ends a poll that has outlived its link.
    void poll();

    /// Lets polling rest and has \a send send \a setting; `settingRefused` unless it comes back.
    void change(Setting setting, const std::function<void(SerialLogic &)> &send);
    /// The instrument has told what \a setting is; polling goes on.
    void confirm(Setting setting);
    /// The next reading is due half a second from now.
    void startPolling();
    void stopPolling();
    /// Whether polling rests, for a setting that was not confirmed, until another one is or the
    /// link is opened anew.
    bool isResting() const { return m_isResting; }

    /// Lets polling rest and starts zeroing or calibration. False when the command did not go out.
    bool startTask(void (SerialLogic::*task)());

    /// Whether there is a reading to record: any on a closed link, on an open one the link's
    /// latest. It is read first when \a mayRead, else the record is due again a second from now.
    bool provideReading(bool mayRead);
    /// The next record is due \a minutes from now.
    void startRecords(int minutes);
    /// How long an interval between two records is from the next open on.
    void setRecordInterval(std::function<int()> minutes) { m_recordInterval = std::move(minutes); }

    /// The address of the last LAN link that opened.
    QString ipAddress() const { return m_ipAddress; }
    void setIpAddress(const QString &address);
    /// The address that was tried last, whether it opened or not.
    QString proposedAddress() const { return m_proposedAddress; }

signals:
    void modeChanged(LinkMode mode);
    void stateChanged(LinkSession::State state);
    /// An open succeeded or failed: \a port and \a value as it was given them.
    void portChanged(const QString &port, int value);
    /// What the opening under way waits for next, in words; empty when it is over.
    void waitingFor(const QString &what);
    /// Comes some twenty times a second while an opening waits. Whoever handles it may handle
    /// events, and may call stopOpening(), but must keep the user from everything else.
    void stillWaiting();
    /// Every reading, also one that is missing, and the end of the former link's at an open.
    void readingChanged(const Reading &reading);

    void settingConfirmed(LinkSession::Setting setting);
    /// The instrument did not confirm \a setting: polling rests.
    void settingRefused(LinkSession::Setting setting);

    /// An open link has ended, not by the user's wish. The state is closed already.
    void linkLost(const QString &reason);
    /// An error without an open link: an open that failed, a command that found none.
    void failed(const QString &reason);

    void readingDue();
    void recordDue();

private:
    QTimer *createTimer(const char *name, void (LinkSession::*due)());
    void setState(State state);
    bool openWithSettings(const QString &port, int value);
    bool queryInstrument();
    void failOpening(const QString &port, int value);
    void takeError(const QString &error);
    void takeLoss();
    bool isReadingCurrent() const;

    SerialLogic *m_link;
    QTimer *m_readTimer;
    QTimer *m_saveTimer;
    QTimer *m_firstSaveTimer; // for the record right after an open, and for a postponed one
    std::function<int()> m_recordInterval;

    LinkMode m_mode = serialLink;
    State m_state = State::Closed;
    bool m_isDisconnected = false;
    bool m_isOpening = false;
    bool m_isStopWanted = false;
    QString m_openError; // the first of the opening under way

    Reading m_reading;
    QElapsedTimer m_sinceReading;
    bool m_isCurrent = false; // nothing was set since the reading
    bool m_isResting = false;

    QString m_ipAddress;
    QString m_proposedAddress;
};
