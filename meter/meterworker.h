#pragma once

#include "Logic/seriallogic.h"
#include "meter/backoff.h"
#include "meter/meteraddress.h"
#include "meter/metervalues.h"

#include <QObject>
#include <QTimer>

#include <atomic>
#include <deque>
#include <functional>
#include <memory>

/// What the thread of the link and the others look at.
struct MeterFlags
{
    std::atomic<bool> isStopped{false};
    std::atomic<bool> awaitsReply{false};
};

/// The part of a `Meter` that lives in the thread of its link. Everything that it does blocks it,
/// so works are queued here and carried out one after the other, whatever the link's waits deliver
/// meanwhile.
class MeterWorker : public QObject
{
    Q_OBJECT

public:
    MeterWorker(const MeterAddress &address, const LinkWaits &waits,
                std::shared_ptr<MeterFlags> flags);

    /// Carries \a work out when all that came before it is done.
    void submit(std::function<void()> work);

    void open(bool keepsOpen);
    void describe();
    void read();
    void poll(int pause);
    /// Lets \a setting set or ask for one.
    void set(const std::function<void(SerialLogic &)> &setting);
    void run(MeterTask task);

signals:
    void stateChanged(MeterState state, const QString &reason);
    void reopened();
    void described(const MeterDescription &description);
    void reading(const MeterReading &reading);
    void answered(const MeterAnswer &answer);
    void taskEnded(MeterTask task, const MeterAnswer &answer);

private:
    void take(const QByteArray &command, const QString &line, Outcome outcome);
    void takeLoss();

    void tryOpen();
    bool openLink();
    bool drain();
    void lose(const QString &reason);
    void becomeOpen();
    void setState(MeterState state, const QString &reason = {});

    MeterAnswer ask(const std::function<void()> &question);
    /// What follows from an answer for the link; to be called when the answer has been told.
    void settle(Outcome outcome);
    void recover();

    const MeterAddress m_address;
    const std::shared_ptr<MeterFlags> m_flags;
    SerialLogic m_link;
    Backoff m_backoff;
    QTimer m_retryTimer;
    QTimer m_pollTimer;
    QTimer m_describeTimer;

    std::deque<std::function<void()>> m_works;
    bool m_isWorking = false;

    MeterState m_state = MeterState::Closed;
    QString m_error; // why the link could not be opened
    bool m_keepsOpen = false;
    bool m_isLinkOpen = false;
    bool m_wasOpened = false;
    bool m_mayHoldLateReply = false;
    int m_unanswered = 0; // commands in a row
    int m_pollPause = -1;
    MeterAnswer m_answer;
    MeterDescription m_description; // of the replies to the last request
};
