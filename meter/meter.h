#pragma once

#include "Logic/linkwaits.h"
#include "meter/meteraddress.h"
#include "meter/metervalues.h"

#include <QObject>

#include <memory>

class MeterWorker;
class QThread;

/// The instrument for programs that must not block.
///
/// The link, which blocks by design, lives in a thread of its own. Requests return at once, are
/// carried out one after the other and answered by a signal each, also when the link is gone (with
/// `Outcome::Link`). After a time-out the link is closed and opened again, and what came before a
/// command was sent is never taken for its reply, so that a late reply spoils one answer only.
class Meter : public QObject
{
    Q_OBJECT

public:
    enum class Keeping {
        Once,   ///< one try to open; the first loss ends it
        Forever ///< tries again after 1, 2, 4 … 60 s, and reads identity and settings back after
                ///< each open and every ten minutes
    };

    /// \a waits are for instruments and tests that need others.
    explicit Meter(const MeterAddress &address, const LinkWaits &waits = {},
                   QObject *parent = nullptr);
    /// Stops it.
    ~Meter() override;

    /// Begins to open the link. To be called once.
    void open(Keeping keeping);
    /// Ends everything, in less than 100 ms; no signal comes afterwards.
    void stop();

    const MeterAddress &address() const { return m_address; }
    MeterState state() const { return m_state; }
    /// Whether a command has gone out whose reply has not come yet.
    bool awaitsReply() const;

    /// Reads identity and settings; answered by `described`.
    void describe();
    /// Reads the power once; answered by `reading`.
    void read();
    /// Reads again and again from now on, \a pause ms after each answer, while the link is open.
    void poll(int pause);
    /// Asks whether the levels are relative; answered by `answered`.
    void askRelative();
    /// Sets and reads back; answered by `answered`. \a value in \a unit ("GHz", "MHz", "KHz").
    void setFrequency(const QString &value, const QString &unit);
    void setOffset(double decibels);
    void setAveraging(int count);
    /// \a unit is "dBm" or "W".
    void setUnit(const QString &unit);
    void setRelative(bool isOn);
    /// Zeroes or calibrates, 30 s at most; answered by `taskEnded`.
    void run(MeterTask task);

signals:
    /// \a reason says in English why a link is lost or could not be opened; empty otherwise.
    void stateChanged(MeterState state, const QString &reason);
    /// The link has been opened once more, after a loss or after a time-out.
    void reopened();
    /// Identity and settings as they were read just now; on request, and by itself with
    /// `Keeping::Forever`.
    void described(const MeterDescription &description);
    void reading(const MeterReading &reading);
    void answered(const MeterAnswer &answer);
    void taskEnded(MeterTask task, const MeterAnswer &answer);

private:
    template<typename Work>
    void submit(Work work);

    const MeterAddress m_address;
    MeterState m_state = MeterState::Closed;
    MeterWorker *m_worker = nullptr; // lives in m_thread and goes with it
    QThread *m_thread = nullptr;
    std::shared_ptr<struct MeterFlags> m_flags;
};
