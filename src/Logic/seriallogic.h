#pragma once

#include "Logic/linebuffer.h"
#include "Logic/linkwaits.h"
#include "Logic/outcome.h"
#include "Logic/waitslices.h"

#include <QObject>
#include <QString>

#include <functional>
#include <optional>
#include <utility>

class QIODevice;
class QSerialPort;
class QTcpSocket;
class QTimer;

/// The one object through which the program talks to the instrument, over a serial port or over
/// TCP.
///
/// It lives in one thread and blocks it while it waits; no operation throws. Every setter asks
/// the instrument for the value again once it was confirmed, so that the `update...` signals always
/// carry what the instrument holds. A query whose command went out emits its signal in every case:
/// with an empty text or a zero when no answer came. What concerns the user goes out through
/// `errors`.
class SerialLogic : public QObject
{
    Q_OBJECT

public:
    explicit SerialLogic(QObject *parent = nullptr);
    ~SerialLogic() override;

    /// Chooses the transport: 0 = serial port, 1 = TCP. Any other mode sends nothing.
    void setLinkMode(const int &mode);

    /// Opens the link: \a name is the port and \a value the baud rate in serial mode, the host and
    /// the TCP port in TCP mode. False, after `errors`, when that fails.
    ///
    /// The new link starts clean: a close that is still pending is carried out first, and nothing
    /// that the old link left behind (a part of a reply, a wait for a result) reaches the new one.
    bool openPort(const QString &name, const int &value);

    /// Closes the link one second from now (see `delayClose`).
    void closePort();

    /// Writes one command line. False when it could not be confirmed that it left; `errors` tells
    /// why, except for every fourth unconfirmed TCP write of the process, which ends its call
    /// silently.
    bool sendCmd(const QByteArray &cmd);

    /// Whether a zeroing or calibration is under way whose result has not come yet.
    bool awaitsResult() const { return m_asyncReply; }

    /// Replaces the times to wait, for instruments and tests that need others.
    void setWaits(const LinkWaits &waits) { m_waits = waits; }

    /// Lets every wait look at \a isCancelled some twenty times a second, and end as if its time
    /// had run out once that is true. Connecting then runs an event loop, since the socket's own
    /// wait cannot be cut short: in a thread with a window, for callers only that hold back what
    /// the user does meanwhile.
    void setCancel(std::function<bool()> isCancelled)
    {
        m_slices.setCancel(std::move(isCancelled));
    }
    /// Lets everything that came before a command was sent be dropped, so that it is not taken for
    /// the reply.
    void setDropsLateInput(bool drops) { m_dropsLateInput = drops; }
    /// Waits \a ms for input and drops it together with all that was there already; false when
    /// nothing came.
    bool dropInput(int ms);

public slots:
    /// Closes both transports at once.
    void delayClose();
    /// Does nothing: the pace of the readings belongs to the console.
    void startRead();
    /// Stops the link timer.
    void stopRead();

    void queryIDN();
    void queryFrequency();
    /// Sets the frequency by its numeric form; \a value in GHz, sent with two decimals.
    void setFrequency(double value);
    /// Sets the frequency as text, \a unit being "GHz", "MHz" or "KHz". An instrument that does not
    /// confirm it gets the numeric form as well.
    void setFrequency(QString value, QString unit);
    void queryOffset();
    /// Sets the offset; \a value in dB, sent with two decimals.
    void setOffset(double value);
    void queryPowerUnit();
    /// Sets the unit of the displayed power, "dBm" or "W".
    void setPowerUnit(QString unit);
    void queryMeasureState();
    /// Sets relative measurement "ON" or "OFF"; "ON" again takes a new reference.
    void setMeasureState(QString state);
    void queryAverageCount();
    void setAverageCount(int count);

    /// Starts zeroing; the result comes as `updateSetZeroSuccess` or `updateSetZeroFailed`, never
    /// before this call has returned. Afterwards `awaitsResult` tells whether the command went out.
    void setZero();
    /// Starts calibration; as `setZero`, with `updateCalibrationSuccess` and
    /// `updateCalibrationFailed`.
    void calibrate();
    /// Reads the power once and emits `updatePower`.
    void readMesureData();

signals:
    /// A message for the user.
    void errors(QString err);
    /// The connection has ended or the port was taken away, of which no command has told yet. Comes
    /// also when it was this side that ended a connection.
    void lost();
    /// A line for the on-screen log.
    void displayLog(QString log);
    /// A wait that can be felt begins (true) or ends (false); the program does not react meanwhile.
    void busy(bool isBusy);
    /// What became of \a command, before the signal with its value. \a line is the reply without
    /// its newline, empty when none came. A setting that is confirmed is followed by the query for
    /// the value, zeroing and calibration tell when their result has come.
    void replied(QByteArray command, QString line, Outcome outcome);

    void updateIDN(QString idn);
    /// \a value in \a unit ("GHz", "MHz", "KHz"); no unit when the answer carried none.
    void updateFrequency(double value, QString unit = QString());
    /// \a value in dB.
    void updateOffset(double value);
    void updatePowUnit(QString unit);
    void updateMeasureState(QString state);
    void updateAverageCount(int count);
    /// \a dialValue in dBm, \a power as the instrument shows it; 100.0 and an empty text are no
    /// reading.
    void updatePower(double dialValue, QString power);
    void updateSetZeroSuccess();
    void updateSetZeroFailed();
    void updateCalibrationSuccess();
    void updateCalibrationFailed();

    // Declared for the console; the link itself never emits these.
    void updateSetSuccess(QString text);
    void updateSetFailed(QString text);
    void updateIP(QString IP);
    void updateWait(int flag);

private slots:
    bool readData(QString &str);
    void readDataSlot();

private:
    bool openSerial(const QString &name, int baudRate);
    bool openTcp(const QString &host, int port);
    void startClean();
    void closeLostPort();
    void tellLoss();

    QIODevice *openDevice() const;
    bool sendSerial(const QByteArray &cmd);
    bool sendTcp(const QByteArray &cmd);
    bool waitForNewBytes();
    QByteArray takeInput();
    bool dropOverlongLine();
    bool isUp() const;
    bool waitTelling(int total, const WaitSlices::Wait &wait);

    std::optional<QString> ask(const QByteArray &command);
    bool confirm(const QByteArray &command);
    void startTask(const QByteArray &command);
    void discardInput();
    void reportTask(const QString &line);

    QSerialPort *m_port;
    QTcpSocket *m_socket;
    QTimer *m_linkTimer;
    LineBuffer m_buffer;
    int m_linkMode = 0;
    bool m_asyncReply = false;
    // For instruments that have to be polled by another command; nothing sends it.
    QString m_pollCommand = QStringLiteral("Read?\n");

    QTimer *m_closeTimer;
    qint64 m_staleBytes = 0; // those that no read had taken when the last command was sent
    QByteArray m_task;       // the command whose result is awaited
    bool m_wasOverlong = false;
    bool m_dropsLateInput = false;
    WaitSlices m_slices;
    LinkWaits m_waits;
};
